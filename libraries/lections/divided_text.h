// Where the program, as it makes its list of a document's readings, divides a text over two lines of its day.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "libraries/lections/own_text.h"

namespace lections {

// The lines that are searched for a separator, as a set of bits.
enum DividedLines : uint8_t { kFirstOfTorah = 1, kFirstOfHaftarot = 2, kSecondOfHaftarot = 4 };

// separator: bytes of the language's code page. It counts where at least one more byte follows. What follows takes the
// next line: in place of what stands there, or moving that a line down; the second of the haftarot never moves it.
struct Divider {
  std::string_view separator;
  uint8_t lines;
  bool movesNextDown;
  uint32_t language = kAnyLanguage;
};
std::span<const Divider> Dividers();

// Texts of this language, Finnish, are not divided.
constexpr uint32_t kUndividedLanguage = 7;

// Whether a divider stands in a text of a line.
bool IsDividedAt(std::string_view encoded, const Divider& divider);

// What the user is told of a text that the program will divide; empty for all others.
std::string DivisionRemark(const OwnPlace& place, std::string_view text);

}  // namespace lections
