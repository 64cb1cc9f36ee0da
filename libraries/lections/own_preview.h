// What the dialog of own texts shows of readings. Texts are UTF-8.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "libraries/lections/own_readings.h"
#include "libraries/lections/own_text.h"
#include "libraries/lections/settings.h"
#include "libraries/lections/when.h"

namespace lections {

// The settings in which a text for a place can be seen: the user's, but for what the place says otherwise.
Settings SettingsFor(const OwnPlace& place, const Settings& settings);

// A day's texts, a line each, "Torah: ..." before "Haftarah: ..." and "Note: ...", what is empty left out.
std::string LinesOf(const ReadingTexts& texts, const Language& language);

// "28.11.2026, 18 Kislev 5787" of an absolute day; "28.11.2026" is CivilDateText of reading_names.h.
std::string DateText(int32_t day);

// The days, each with its texts: "28.11.2026, 18 Kislev 5787" and LinesOf, with an empty line between two.
std::string PreviewOf(const std::vector<int32_t>& days, const Settings& settings, const OwnReadings& own);

// The day on which each kind of days comes next, from a day on, in a land; none for what does not come there within
// kDaysAhead.
std::map<When, int32_t> NextDays(calendar::Land land, int32_t from);

// A kind of days as the list shows it.
struct OwnRow {
  When when;
  std::string name;
  int32_t next = 0;  // the day on which it comes next; 0: it does not come in the land
  std::string torah;
  std::string haftarot;
};
OwnRow RowOf(const When& when, int32_t next, const Settings& settings, const OwnReadings& own);

// "all", or "diaspora, Sephardi, German": where a text holds, in words.
std::string ScopeText(const OwnPlace& place);

// "Torah 1" to "Haftarah 3", "Note".
const char* NameOf(Slot slot);

}  // namespace lections
