// What the user takes away of the occasions, on paper or in a file, and how it is titled.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "libraries/occasions/occasion_cells.h"
#include "libraries/occasions/shown_days.h"

namespace occasions {

struct Taken {
  Question question;
  sun::PackedPlace packed = {};
  std::string place;  // UTF-8
  Wording wording;
  Span span = Span::kRange;
  int32_t year = 0;  // of a span that is a year
  Days days;
  std::optional<Kind> kind;   // the only one that is shown
  std::string searched;       // what was typed; empty: nothing
  bool candlesAlone = false;  // lightings and ends, a row for each evening; else the list
  std::vector<Row> rows;
};

// "Occasions of the Jewish year 5787", "Candle lighting and end from 01.01.2026 to 31.03.2026".
std::string TitleText(const Taken& taken);

// Place, land, the rule of candles, and what the list has been narrowed to.
std::vector<std::string> RemarksOf(const Taken& taken);

// "Candle lighting 18 minutes before sunset, end 45 minutes after sunset, unless set by hand"
std::string CandleRuleText(const candles::ShabbatRule& rule, Language language);

}  // namespace occasions
