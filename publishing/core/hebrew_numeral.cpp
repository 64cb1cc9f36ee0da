#include "publishing/core/hebrew_numeral.h"

#include <cstddef>
#include <string_view>

namespace publishing {
namespace {

// clang-format off
constexpr const char* kUnits[] = {"", "א", "ב", "ג", "ד", "ה", "ו", "ז", "ח", "ט"};
constexpr const char* kTens[] = {"", "י", "כ", "ל", "מ", "נ", "ס", "ע", "פ", "צ"};
constexpr const char* kHundreds[] = {"", "ק", "ר", "ש", "ת", "תק", "תר", "תש", "תת", "תתק"};
// clang-format on

constexpr std::string_view kGeresh = "׳";
constexpr std::string_view kGershayim = "״";
constexpr std::size_t kLetterSize = 2;  // in UTF-8

}  // namespace

std::string HebrewNumeral(uint32_t number) {
  if (number < 1 || number > 999) return std::to_string(number);
  const uint32_t ofTen = number % 100;
  std::string letters = kHundreds[number / 100];
  if (ofTen == 15 || ofTen == 16) {  // else they would be letters of the Name
    letters += std::string(kUnits[9]) + kUnits[ofTen - 9];
  } else {
    letters += std::string(kTens[ofTen / 10]) + kUnits[ofTen % 10];
  }
  if (letters.size() == kLetterSize) return letters.append(kGeresh);
  return letters.insert(letters.size() - kLetterSize, kGershayim);
}

}  // namespace publishing
