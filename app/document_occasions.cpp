#include "app/document_occasions.h"

#include <algorithm>
#include <new>
#include <string_view>

#include "app/core/document_words.h"
#include "engine/bound_entries.h"
#include "engine/optional_entries.h"

namespace {

// A little more than a Jewish year, which the library works out whole whatever is asked of it.
constexpr int32_t kDaysInStretch = 400;

// Rata Die day 0 was a Sunday.
constexpr int32_t kDaysPerWeek = 7;
constexpr int32_t kFriday = 5;
constexpr int32_t kSaturday = 6;

std::optional<ClockTime> TimeOf(const OccasionsRecord& record) {
  if (record.hour == OCCASIONS_WHOLE_DAY) return std::nullopt;
  return record.hour < 0 ? kNoTime : ClockTime{record.hour, record.minute};
}

// Lighting on Friday's evening and the end on Shabbat's have columns of their own, as they were when the document was
// calculated; the library's are by the settings of today.
bool HasOwnColumn(const OccasionsRecord& record, int32_t day) {
  const std::string_view moment = record.moment;
  const bool isAfterMidnight = record.hour >= 0 && IsAfterMidnight(static_cast<uint32_t>(record.hour));
  const int32_t weekdayOfEvening = (isAfterMidnight ? day - 1 : day) % kDaysPerWeek;
  return (moment == "candles" && weekdayOfEvening == kFriday) || (moment == "end" && weekdayOfEvening == kSaturday);
}

}  // namespace

bool OccasionsOfDocument::AreKnown() {
  return OptionalEntries.OccasionsEnumerate != nullptr;
}

std::vector<DocumentOccasion> OccasionsOfDocument::On(int32_t absoluteDay, const Location& place,
                                                      const DateRange& range, uint32_t language) {
  if (!AreKnown()) return {};
  const int32_t begin = absoluteDay - absoluteDay % kDaysInStretch;
  const Stretch wanted = {std::max(begin, AbsoluteFromDate(range.start)),
                          std::min(begin + kDaysInStretch - 1, AbsoluteFromDate(range.end)),
                          WordsLanguageOf(language).rightToLeft};
  if (stretch_ != wanted) {
    stretch_ = wanted;
    Fetch(place);
  }
  std::vector<DocumentOccasion> found;
  for (const OnDay& row : std::ranges::equal_range(occasions_, absoluteDay, {}, &OnDay::day)) {
    found.push_back(row.occasion);
  }
  return found;
}

int32_t CALLBACK OccasionsOfDocument::Take(const OccasionsRecord* record, void* context) try {
  auto& self = *static_cast<OccasionsOfDocument*>(context);
  const int32_t day = AbsoluteFromDate({record->day, record->month, record->year});
  if (HasOwnColumn(*record, day)) return 1;
  const char* const title = self.stretch_.inHebrew ? record->hebrew : record->english;
  self.occasions_.push_back({day, {title, TimeOf(*record)}});
  return 1;
} catch (const std::bad_alloc&) {
  return 0;
}

// The library answers in full unless memory is wanting; days must not look as if nothing were kept on them.
void OccasionsOfDocument::Fetch(const Location& place) {
  occasions_.clear();
  const CalendarDate first = DateFromAbsolute(stretch_.firstDay);
  const CalendarDate last = DateFromAbsolute(stretch_.lastDay);
  const int32_t isWhole = OptionalEntries.OccasionsEnumerate(
      place.name, place.latitude, place.longitude, place.zoneHours, place.zoneMinutes, first.uDay, first.uMonth,
      first.uYear, last.uDay, last.uMonth, last.uYear, Take, this);
  if (isWhole) return;
  stretch_ = {};
  throw std::bad_alloc();
}
