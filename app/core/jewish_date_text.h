#pragma once

#include <cstdint>
#include <string>

#include "companion/calendar_date.h"

// Whether a Jewish year has thirteen months (the third, 6th, 8th, 11th, 14th, 17th and 19th of nineteen).
constexpr bool IsJewishLeapYear(uint32_t year) {
  return (uint64_t{7} * year + 1) % 19 < 7;
}

// A number of 1 to 999 in Hebrew letters with its signs, in UTF-8: "ט״ו", "תשפ״ז", "ה׳". Of a larger one the thousands
// are left out, as is usual for years; a whole thousand is its own number, with the sign.
std::string HebrewNumeral(uint32_t number);

// "16 Tevet 5767" in a language of the readings; "16. Tevet 5767" in German, and "ט״ז טבת תשס״ז" in Hebrew.
std::string JewishDateInWords(const CalendarDate& jewish, uint32_t language);
