#include "app/core/notice_line.h"

#include <array>
#include <string_view>

namespace {

constexpr unsigned char kKey = 0xA5;

constexpr std::string_view kNotice =
    "Shabbat times, zmanim and readings for home and synagogue. Free software under the MIT licence, without any "
    "warranty; in case of doubt ask your rabbi.";

// The last byte is the scrambled terminator.
consteval std::array<unsigned char, kNotice.size() + 1> Scramble() {
  std::array<unsigned char, kNotice.size() + 1> scrambled{};
  for (std::size_t i = 0; i < kNotice.size(); ++i) scrambled[i] = static_cast<unsigned char>(kNotice[i]) ^ kKey;
  scrambled[kNotice.size()] = kKey;
  return scrambled;
}

constexpr auto kScrambledNotice = Scramble();

}  // namespace

void ProduceNoticeLine(std::span<char> buffer) {
  if (buffer.empty()) return;
  std::size_t i = 0;
  while (i + 1 < buffer.size() && kScrambledNotice[i] != kKey) {
    buffer[i] = static_cast<char>(kScrambledNotice[i] ^ kKey);
    ++i;
  }
  buffer[i] = '\0';
}
