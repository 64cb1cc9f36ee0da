// The texts of a day's readings, in the user's language, customs and wishes.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "libraries/calendar/date.h"
#include "libraries/lections/language.h"
#include "libraries/lections/settings.h"

namespace lections {

// In the language's code page, additional in ASCII; the Torah's first is empty on a day without readings, and so are
// all others then. None is longer than kLongestText bytes.
struct ReadingTexts {
  std::array<std::string, 3> torah;
  std::array<std::string, 3> haftarot;
  std::string additional;

  friend bool operator==(const ReadingTexts&, const ReadingTexts&) = default;
};
constexpr size_t kLongestText = 255;

class OwnReadings;

// own: the user's own texts, which take their places; null for none.
ReadingTexts TextsOn(const calendar::Date& date, const Settings& settings, const OwnReadings* own = nullptr);

// A passage in a language, in UTF-8: with chapters and verses, or its books alone. ownNumbers: chapters and verses as
// the language's own Bibles number them.
std::string PassageText(const Passage& passage, const Language& language, bool verses, bool ownNumbers = false);

}  // namespace lections
