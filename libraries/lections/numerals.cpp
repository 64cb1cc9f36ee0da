#include "libraries/lections/numerals.h"

#include <string_view>

namespace lections {
namespace {

constexpr std::string_view kUnits[] = {"", "א", "ב", "ג", "ד", "ה", "ו", "ז", "ח", "ט"};
constexpr std::string_view kTens[] = {"", "י", "כ", "ל", "מ", "נ", "ס", "ע", "פ", "צ"};
constexpr std::string_view kHundreds[] = {"", "ק", "ר", "ש", "ת"};

}  // namespace

std::string Number(int number, Numerals numerals) {
  if (numerals == Numerals::kDecimal) return std::to_string(number);
  const int below100 = number % 100;
  std::string text(kHundreds[number / 100]);
  if (below100 == 15 || below100 == 16) {  // the letters of ten and five, or ten and six, would spell the Name
    text += below100 == 15 ? "טו" : "טז";
  } else {
    text += kTens[below100 / 10];
    text += kUnits[below100 % 10];
  }
  return text;
}

}  // namespace lections
