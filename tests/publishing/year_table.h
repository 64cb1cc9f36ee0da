// A year of Shabbat times as people hang it up: 55 weeks under thirteen months.
#pragma once

#include <string>
#include <vector>

#include "publishing/core/table.h"

struct YearWords {
  std::string title;
  std::vector<std::string> headings;  // date, portion, candle lighting, end
  std::vector<std::string> months;    // thirteen
  std::vector<std::string> portions;  // come again and again
  std::string note;
  bool rightToLeft;
};

const YearWords& EnglishYear();
const YearWords& HebrewYear();
const YearWords& RussianYear();

// Every time is there once: week 7 has the candle lighting 16:07 and the end 17:07.
publishing::Table YearTable(const YearWords& words);
