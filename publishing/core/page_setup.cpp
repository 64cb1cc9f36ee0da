#include "publishing/core/page_setup.h"

#include <array>
#include <charconv>

namespace publishing {
namespace {

constexpr int kMostPaper = 0xFFFF;

// Orientation, paper, and the margins.
using Numbers = std::array<int, 6>;
constexpr Numbers kMost = {2, kMostPaper, kMostMargin, kMostMargin, kMostMargin, kMostMargin};

// Takes a number and the blanks after it off a text.
bool TakeNumber(std::string_view& text, int most, int& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || number < 0 || number > most) return false;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  const std::size_t next = text.find_first_not_of(' ');
  if (next == 0) return false;
  text.remove_prefix(next == std::string_view::npos ? text.size() : next);
  return true;
}

}  // namespace

PageMargins MarginsOf(const PageSetup& setup, const PageMargins& usual) {
  return setup.margins == PageMargins{} ? usual : setup.margins;
}

std::string TextOf(const PageSetup& setup) {
  const PageMargins& margins = setup.margins;
  std::string text = std::to_string(static_cast<int>(setup.orientation));
  for (const int number : {setup.paper, margins.left, margins.top, margins.right, margins.bottom}) {
    text += ' ' + std::to_string(number);
  }
  return text;
}

PageSetup PageSetupOf(std::string_view text) {
  Numbers numbers{};
  for (std::size_t index = 0; index < numbers.size(); ++index) {
    if (!TakeNumber(text, kMost[index], numbers[index])) return {};
  }
  if (!text.empty()) return {};
  return {static_cast<Orientation>(numbers[0]), numbers[1], {numbers[2], numbers[3], numbers[4], numbers[5]}};
}

}  // namespace publishing
