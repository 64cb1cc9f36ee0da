#include "tests/doubles/occasions_double.h"

#include <cstdio>

#include "engine/bound_entries.h"
#include "engine/optional_entries.h"
#include "tests/doubles/call_log.h"

namespace {

void LogQuestion(const char* what, const char* place, int32_t latitude, int32_t longitude, int32_t zoneHours,
                 int32_t zoneMinutes, const CalendarDate& first, const CalendarDate& last) {
  LogCall("%s '%s' %d %d %d:%d %u.%u.%u-%u.%u.%u", what, place, latitude, longitude, zoneHours, zoneMinutes, first.uDay,
          first.uMonth, first.uYear, last.uDay, last.uMonth, last.uYear);
}

void InDialog(HWND owner) {
  Occasions().dialogOwner = owner;
  if (Occasions().inDialog) Occasions().inDialog(owner);
}

void DoDialog(HWND owner, const char* place, int32_t latitude, int32_t longitude, int32_t zoneHours,
              int32_t zoneMinutes, uint32_t firstDay, uint32_t firstMonth, uint32_t firstYear, uint32_t lastDay,
              uint32_t lastMonth, uint32_t lastYear) {
  // What the user does may end the document whose place this is.
  const std::string before = place;
  InDialog(owner);
  LogQuestion(before == place ? "occasions of" : "changed occasions of", place, latitude, longitude, zoneHours,
              zoneMinutes, {firstDay, firstMonth, firstYear}, {lastDay, lastMonth, lastYear});
}

int32_t DoSettingsDialog(HWND owner) {
  LogCall("settings of occasions");
  InDialog(owner);
  return 1;
}

int32_t Enumerate(const char* place, int32_t latitude, int32_t longitude, int32_t zoneHours, int32_t zoneMinutes,
                  uint32_t firstDay, uint32_t firstMonth, uint32_t firstYear, uint32_t lastDay, uint32_t lastMonth,
                  uint32_t lastYear, OccasionsReceiver receiver, void* context) {
  const CalendarDate first = {firstDay, firstMonth, firstYear};
  const CalendarDate last = {lastDay, lastMonth, lastYear};
  LogQuestion("enumerate", place, latitude, longitude, zoneHours, zoneMinutes, first, last);
  for (int32_t day = AbsoluteFromDate(first); day <= AbsoluteFromDate(last); ++day) {
    const CalendarDate date = DateFromAbsolute(day);
    for (const DoubledOccasion& occasion : Occasions().ofDay(date)) {
      OccasionsRecord record{};
      record.day = date.uDay;
      record.month = date.uMonth;
      record.year = date.uYear;
      record.weekday = static_cast<uint32_t>(day % 7);
      record.hour = occasion.hour;
      record.minute = occasion.minute;
      std::snprintf(record.moment, sizeof record.moment, "%s", occasion.moment);
      std::snprintf(record.english, sizeof record.english, "%s", occasion.english.c_str());
      std::snprintf(record.hebrew, sizeof record.hebrew, "%s", occasion.hebrew.c_str());
      if (!receiver(&record, context)) return 0;
    }
  }
  return 1;
}

}  // namespace

OccasionsScript& Occasions() {
  static OccasionsScript script;
  return script;
}

void BindDoubledOccasions() {
  Occasions() = {};
  Occasions().ofDay = [](const CalendarDate&) { return std::vector<DoubledOccasion>(); };
  OptionalEntries.OccasionsDoDialog = DoDialog;
  OptionalEntries.OccasionsDoSettingsDialog = DoSettingsDialog;
  OptionalEntries.OccasionsEnumerate = Enumerate;
}
