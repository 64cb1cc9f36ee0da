// Occasions in words, UTF-8.
#pragma once

#include <string>

#include "libraries/occasions/occasions_core.h"

namespace occasions {

enum class Language : uint8_t { kEnglish, kHebrew };

// "Pesach, first day", "Rosh Chodesh Kislev".
std::string NameOf(const Row& row, Language language);

// The same with its moment: "Pesach, first day: candle lighting".
std::string TitleOf(const Row& row, Language language);

// By which rule the moment came, and what there is to know beside: "18 minutes before sunset". May be empty.
std::string RemarkOf(const Question& question, const Row& row, Language language);

// "Shabbat", "Yom Tov" ... as lists of kinds call them.
std::string KindName(Kind kind, Language language);

// "Sunday"
std::string WeekdayName(int32_t day, Language language);

// The Jewish date of the day, the one that its daylight has: "15 Nisan 5787".
std::string JewishDateText(int32_t day, Language language);

}  // namespace occasions
