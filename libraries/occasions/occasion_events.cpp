#include "libraries/occasions/occasion_events.h"

#include <cstdio>
#include <string>

#include "libraries/calendar/gregorian.h"

namespace occasions {
namespace {

constexpr int64_t kSecondsPerMinute = 60;
constexpr int64_t kMinutesPerHour = 60;
constexpr int64_t kSecondsPerDay = 24 * 60 * 60;

publishing::CivilDate CivilDateOf(int32_t day) {
  const calendar::Date date = calendar::GregorianFromAbsolute(day);
  return {date.year, date.month, date.day};
}

publishing::UtcMoment UtcMomentOf(int32_t day, int32_t minute, int32_t offsetSeconds) {
  const int64_t unixDay = int64_t{day} - calendar::kAbsoluteDayOfUnixDay0;
  const int64_t utc = unixDay * kSecondsPerDay + minute * kSecondsPerMinute - offsetSeconds;
  int64_t utcDay = utc / kSecondsPerDay;
  int64_t second = utc % kSecondsPerDay;
  if (second < 0) {
    --utcDay;
    second += kSecondsPerDay;
  }
  const auto minutes = static_cast<int32_t>(second / kSecondsPerMinute);
  return {CivilDateOf(static_cast<int32_t>(utcDay + calendar::kAbsoluteDayOfUnixDay0)),
          static_cast<int32_t>(minutes / kMinutesPerHour), static_cast<int32_t>(minutes % kMinutesPerHour),
          static_cast<int32_t>(second % kSecondsPerMinute)};
}

std::string UidOf(const sun::PackedPlace& place, const Row& row) {
  const calendar::Date date = calendar::GregorianFromAbsolute(row.day);
  char uid[200];
  std::snprintf(uid, sizeof uid, "%04d%02d%02d-%s-%s-%d-at-%d-%d-%d-%d@times-readings", date.year, date.month, date.day,
                IdOf(row.occasion), IdOf(row.moment), row.number, place.latitude, place.longitude, place.zoneHours,
                place.zoneMinutes);
  return uid;
}

}  // namespace

std::optional<publishing::Event> EventOf(const Taken& taken, const Row& row) {
  if (row.moment != Moment::kWholeDay && !row.minute) return std::nullopt;
  const Language language = taken.wording.language;
  publishing::Event event;
  event.uid = UidOf(taken.packed, row);
  if (row.minute) {
    event.start = UtcMomentOf(row.day, *row.minute, row.offsetSeconds);
  } else {
    event.date = CivilDateOf(row.day);
  }
  event.summary = TitleOf(row, language);
  event.description = JewishDateText(row.day, language);
  if (const std::string remark = RemarkOf(taken.question, row, taken.wording.language); !remark.empty())
    event.description += "\n" + remark;
  event.location = taken.place;
  event.categories = {KindName(KindOf(row.occasion), language)};
  return event;
}

CalendarResult WriteCalendar(const Taken& taken, const publishing::UtcMoment& now, TextSink& sink,
                             const publishing::Progress& progress) {
  std::optional<publishing::CalendarWriter> writer;  // from the first event on
  for (size_t index = 0; index < taken.rows.size(); ++index) {
    if (progress && !progress(index, taken.rows.size())) return CalendarResult::kCancelled;
    const std::optional<publishing::Event> event = EventOf(taken, taken.rows[index]);
    if (!event) continue;
    if (!writer) writer.emplace(sink, TitleText(taken) + (taken.place.empty() ? "" : ", " + taken.place), now);
    writer->Add(*event);
  }
  if (!writer) return CalendarResult::kNoEvents;
  writer->Finish();
  return CalendarResult::kWritten;
}

}  // namespace occasions
