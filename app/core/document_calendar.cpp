#include "app/core/document_calendar.h"

#include <cstdio>
#include <optional>
#include <string>

#include "app/core/document_words.h"
#include "publishing/core/stable_hash.h"

namespace {

using publishing::Event;

constexpr int64_t kSecondsPerMinute = 60;
constexpr int64_t kMinutesPerDay = int64_t{kMinutesPerHour} * kHoursPerDay;
constexpr int64_t kSecondsPerDay = kMinutesPerDay * kSecondsPerMinute;

// Texts in events' names; they must never be others.
constexpr char kCandles[] = "candles";
constexpr char kEnd[] = "end";
constexpr char kWeek[] = "week";
constexpr char kDay[] = "day";
constexpr char kReadings[] = "readings";
constexpr char kZman[] = "zman ";

int64_t FloorDivided(int64_t value, int64_t divisor) {
  return value >= 0 ? value / divisor : -((-value + divisor - 1) / divisor);
}

publishing::CivilDate CivilDateOf(const CalendarDate& date) {
  return {static_cast<int32_t>(date.uYear), static_cast<int32_t>(date.uMonth), static_cast<int32_t>(date.uDay)};
}

// A sunset after midnight, as it is in the far north, stands in the block as the small hours of its own date.
ClockTime EveningTime(uint32_t hour, uint32_t minute) {
  const bool isSmallHour = IsAfterMidnight(hour) && hour < kHoursPerDay;
  return {static_cast<int32_t>(isSmallHour ? hour + kHoursPerDay : hour), static_cast<int32_t>(minute)};
}

// Hours are the date's own, or within a day of it; else there is no time.
bool IsTime(ClockTime time) {
  return time.hour > -kHoursPerDay && time.hour < 2 * kHoursPerDay && time.minute > -kMinutesPerHour &&
         time.minute < kMinutesPerHour;
}

class Calendar {
 public:
  Calendar(const DocumentSource& source, const DocumentChoice& choice, int32_t reminderMinutes,
           const publishing::UtcMoment& now, TextSink& sink)
      : source_(source),
        choice_(choice),
        table_(DocumentTable(source, WithoutMonths(choice))),
        reminderMinutes_(reminderMinutes),
        now_(now),
        sink_(sink) {}

  CalendarResult Write(const publishing::Progress& progress);

 private:
  static DocumentChoice WithoutMonths(DocumentChoice choice) {
    choice.forSpreadsheet = true;
    choice.isoDates = false;
    return choice;
  }
  void AddItem(std::size_t item);
  void AddWeek(const ShabbatTimeEntry& entry);
  void AddZmanim(const ZmanimDay& day);
  void AddWholeDay(std::size_t item, const CalendarDate& date, const char* kind);
  void AddMoment(const CalendarDate& date, ClockTime time, Event event);
  void Add(const Event& event);
  std::string Uid(const CalendarDate& date, const std::string& kind) const;
  std::string About(const CalendarDate& date) const;
  CalendarDate DayAfter(const CalendarDate& date) const {
    return source_.services.Gregorian(source_.services.AbsoluteDay(date) + 1);
  }

  const DocumentSource& source_;
  const DocumentChoice& choice_;
  publishing::Table table_;
  int32_t reminderMinutes_;
  publishing::UtcMoment now_;
  TextSink& sink_;
  std::optional<publishing::CalendarWriter> writer_;  // from the first event on
};

CalendarResult Calendar::Write(const publishing::Progress& progress) {
  const std::size_t count = table_.rows->Count();
  for (std::size_t item = 0; item < count; ++item) {
    if (progress && !progress(item, count)) return CalendarResult::kCancelled;
    AddItem(item);
  }
  if (!writer_) return CalendarResult::kNoEvents;
  writer_->Finish();
  return CalendarResult::kWritten;
}

void Calendar::AddItem(std::size_t item) {
  switch (choice_.kind) {
    case DocumentKind::kShabbatTimes:
    case DocumentKind::kDoorPage: return AddWeek(source_.shabbatTimes[item]);
    case DocumentKind::kZmanim: return AddZmanim(source_.zmanimDays[item]);
    case DocumentKind::kWeeks: return AddWholeDay(item, DayAfter(FridayOf(source_.shabbatTimes[item])), kWeek);
    case DocumentKind::kDays: return AddWholeDay(item, source_.zmanimDays[item].date, kDay);
    case DocumentKind::kReadings: return AddWholeDay(item, source_.readings[item].date, kReadings);
  }
}

// The portion and the Jewish date, a line each.
std::string Calendar::About(const CalendarDate& date) const {
  const std::string portion = PortionOf(source_, date);
  const std::string jewish = JewishDateOf(source_, source_.services.AbsoluteDay(date), choice_.language);
  return portion.empty() ? jewish : portion + "\n" + jewish;
}

void Calendar::AddWeek(const ShabbatTimeEntry& entry) {
  const CalendarDate friday = FridayOf(entry);
  const CalendarDate saturday = DayAfter(friday);
  Event event{.description = About(saturday), .categories = {"Shabbat"}};
  event.uid = Uid(friday, kCandles);
  event.summary = WordOf(Word::kCandleLighting, choice_.language);
  if (reminderMinutes_ > 0) event.alarmMinutesBefore = reminderMinutes_;
  AddMoment(friday, EveningTime(entry.candleHour, entry.candleMinute), event);
  event.uid = Uid(saturday, kEnd);
  event.summary = WordOf(Word::kEndOfShabbat, choice_.language);
  event.alarmMinutesBefore.reset();
  AddMoment(saturday, EveningTime(entry.endHour, entry.endMinute), event);
}

void Calendar::AddZmanim(const ZmanimDay& day) {
  const std::string about = About(day.date);
  for (const uint32_t zman : choice_.zmanim) {
    ClockTime time = day.times[zman];
    if (!IsTime(time)) continue;
    time.hour += source_.services.ZmanDayOffset(day, zman) * kHoursPerDay;
    AddMoment(day.date, time,
              {.uid = Uid(day.date, kZman + source_.zmanim[zman].english),
               .summary = ZmanName(source_, zman, choice_.hebrewZmanim),
               .description = about,
               .categories = {"Zmanim"}});
  }
}

// What the table's row says, a line for each of its texts but those that the event has itself: its day and its name.
void Calendar::AddWholeDay(std::size_t item, const CalendarDate& date, const char* kind) {
  publishing::Row row;
  table_.rows->Read(item, row);
  const std::string portion = PortionOf(source_, date);
  const std::string summary = portion.empty() ? About(date) : portion;
  constexpr std::size_t kColumnsOfDay = 2;
  std::string lines;
  for (std::size_t column = choice_.kind == DocumentKind::kWeeks ? 0 : kColumnsOfDay; column < row.cells.size();
       ++column) {
    const std::string& text = row.cells[column];
    if (text.empty() || text == summary) continue;
    lines += (lines.empty() ? "" : "\n") + table_.columns[column].heading + ": " + text;
  }
  Add({.uid = Uid(date, kind),
       .date = CivilDateOf(date),
       .summary = summary,
       .description = lines,
       .location = source_.place,
       .categories = {choice_.kind == DocumentKind::kWeeks ? "Shabbat" : "Jewish calendar"}});
}

void Calendar::AddMoment(const CalendarDate& date, ClockTime time, Event event) {
  const int64_t minutes = int64_t{time.hour} * kMinutesPerHour + time.minute;
  if (minutes < -kMinutesPerDay || minutes > 2 * kMinutesPerDay) return;  // by settings that no calculation can mean
  const auto minuteOfDay = static_cast<int32_t>(minutes);
  const int64_t onClock = source_.services.AbsoluteDay(date) * kSecondsPerDay + minuteOfDay * kSecondsPerMinute;
  const int64_t utc = onClock - source_.services.ClockOffsetSeconds(date, minuteOfDay);
  const int64_t day = FloorDivided(utc, kSecondsPerDay);
  const auto second = static_cast<int32_t>(utc - day * kSecondsPerDay);
  const auto minute = static_cast<int32_t>(second / kSecondsPerMinute);
  event.start = publishing::UtcMoment{CivilDateOf(source_.services.Gregorian(static_cast<int32_t>(day))),
                                      minute / kMinutesPerHour, minute % kMinutesPerHour,
                                      static_cast<int32_t>(second % kSecondsPerMinute)};
  event.location = source_.place;
  Add(event);
}

void Calendar::Add(const Event& event) {
  if (!writer_) writer_.emplace(sink_, table_.title, now_);
  writer_->Add(event);
}

// By the numbers of the place, not by its name, which may be spelled in many ways.
std::string Calendar::Uid(const CalendarDate& date, const std::string& kind) const {
  const Location& place = source_.location;
  const std::string what = kind + "|" + std::to_string(place.latitude) + "|" + std::to_string(place.longitude) + "|" +
                           std::to_string(place.zoneHours) + "|" + std::to_string(place.zoneMinutes);
  char text[64];
  std::snprintf(text, sizeof text, "%04u%02u%02u-%016llx@times-readings", static_cast<unsigned>(date.uYear),
                static_cast<unsigned>(date.uMonth), static_cast<unsigned>(date.uDay),
                static_cast<unsigned long long>(publishing::StableHash(what)));
  return text;
}

}  // namespace

CalendarResult WriteDocumentCalendar(const DocumentSource& source, const DocumentChoice& choice,
                                     int32_t reminderMinutes, const publishing::UtcMoment& now, TextSink& sink,
                                     const publishing::Progress& progress) {
  return Calendar(source, choice, reminderMinutes, now, sink).Write(progress);
}
