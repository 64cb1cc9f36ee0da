#include "libraries/lections/numerals.h"

namespace lections {
namespace {

constexpr const char* kUnits[] = {"", "א", "ב", "ג", "ד", "ה", "ו", "ז", "ח", "ט"};
constexpr const char* kTens[] = {"", "י", "כ", "ל", "מ", "נ", "ס", "ע", "פ", "צ"};
constexpr const char* kHundreds[] = {"", "ק", "ר", "ש", "ת"};

}  // namespace

std::string Number(int number, Numerals numerals) {
  if (numerals == Numerals::kDecimal) return std::to_string(number);
  const int below100 = number % 100;
  std::string text = kHundreds[number / 100];
  // The letters of ten and five, or ten and six, would spell the Name.
  if (below100 == 15) return text + "טו";
  if (below100 == 16) return text + "טז";
  return text + kTens[below100 / 10] + kUnits[below100 % 10];
}

}  // namespace lections
