// The user's own texts of readings, at hand for every day.
#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "libraries/calendar/date.h"
#include "libraries/lections/own_text.h"
#include "libraries/lections/reading_texts.h"
#include "libraries/lections/settings.h"
#include "libraries/lections/when.h"

namespace lections {

std::string& SlotOf(Slot slot, ReadingTexts& texts);

class OwnReadings {
 public:
  OwnReadings() = default;
  explicit OwnReadings(const OwnTexts& texts) : entries_(texts.begin(), texts.end()) {}

  bool empty() const { return entries_.empty(); }

  // Puts the texts that hold into those of a day: of the days' kinds the most particular last, and for each the text
  // for all before one for a land, customs or a language. A text that the language's code page lacks a character of is
  // left out. A day that has no reading of its own but gets a text is called by its date.
  void Put(const Whens& whens, const Settings& settings, ReadingTexts& texts) const;

 private:
  std::vector<std::pair<OwnPlace, OwnText>> entries_;  // in the order of places
};

// How far ahead days are looked for: some come but a few times in a century.
constexpr int32_t kDaysAhead = 60 * 366;

// The next dates on which a kind of days comes, from a day on (absolute, included), in a land: as many as are asked
// for, fewer where the days come less often within kDaysAhead, or not at all. A date of one
// year is its day, though it may have passed.
std::vector<int32_t> NextDaysOf(const When& when, calendar::Land land, int32_t from, size_t count);

}  // namespace lections
