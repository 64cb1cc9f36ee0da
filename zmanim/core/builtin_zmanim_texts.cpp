#include "zmanim/core/builtin_zmanim_texts.h"

#include <cstddef>

const std::array<BuiltInZmanText, kBuiltInZmanimCount> kBuiltInZmanimTexts = {{
    {"עלות השחר (72 דקות)", "72 minutes before sunrise."},
    {"זמן טלית ותפילין (11 מעלות)",
     "As long before sunrise as the sun takes after sunset to stand 11 degrees below the horizon."},
    {"זמן טלית ותפילין (10.2 מעלות)",
     "As long before sunrise as the sun takes after sunset to stand 10.2 degrees below the horizon."},
    {"הנץ החמה", "Sunrise."},
    {R"(סוף זמן ק"ש (מג"א))",
     "3 of the 12 hours from 72 minutes before sunrise to 72 minutes after sunset: the latest time."},
    {R"(סוף זמן ק"ש (גר"א))", "3 of the 12 hours from sunrise to sunset: the latest time."},
    {R"(סוף זמן תפילה (מג"א))",
     "4 of the 12 hours from 72 minutes before sunrise to 72 minutes after sunset: the latest time."},
    {R"(סוף זמן תפילה (גר"א))", "4 of the 12 hours from sunrise to sunset: the latest time."},
    {R"(חצות היום (גר"א))", "Half of the time from sunrise to sunset."},
    {R"(חצות היום (מג"א))", "Half of the time from 72 minutes before sunrise to 72 minutes after sunset."},
    {R"(מנחה גדולה (גר"א))", "6.5 of the 12 hours from sunrise to sunset."},
    {R"(מנחה גדולה (מג"א))", "6.5 of the 12 hours from 72 minutes before sunrise to 72 minutes after sunset."},
    {R"(מנחה קטנה (גר"א))", "9.5 of the 12 hours from sunrise to sunset."},
    {R"(מנחה קטנה (מג"א))", "9.5 of the 12 hours from 72 minutes before sunrise to 72 minutes after sunset."},
    {"שקיעה", "Sunset."},
    {"צאת (בעל התניא)", "The sun 5.95 degrees below the horizon in the evening."},
    {"שלושה כוכבים בינוניים", "The sun 7.5 degrees below the horizon in the evening."},
    {"שלושה כוכבים קטנים", "The sun 8.75 degrees below the horizon in the evening."},
    {R"(צאת הכוכבים (ר"ת))", "72 minutes after sunset."},
}};

namespace {

// windows-1255: the letters alef to tav from 0xE0 on. In UTF-8 they are 0xD7 and a byte from 0x90 on.
constexpr unsigned char kUtf8Hebrew = 0xD7;
constexpr unsigned char kUtf8Alef = 0x90;
constexpr unsigned char kAlef = 0xE0;

bool IsOfNumber(char c) {
  return (c >= '0' && c <= '9') || c == '.';
}

char Swapped(char c) {
  return c == '(' ? ')' : c == ')' ? '(' : c;
}

}  // namespace

std::string DisplayHebrewName(std::string_view utf8) {
  std::string display;
  std::string number;  // from its last digit to its first
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const bool isLetter = static_cast<unsigned char>(utf8[i]) == kUtf8Hebrew && i + 1 < utf8.size();
    const char c =
        isLetter ? static_cast<char>(static_cast<unsigned char>(utf8[++i]) - kUtf8Alef + kAlef) : Swapped(utf8[i]);
    if (IsOfNumber(c)) {
      number.insert(0, 1, c);
    } else {
      display.append(number) += c;
      number.clear();
    }
  }
  return display + number;
}
