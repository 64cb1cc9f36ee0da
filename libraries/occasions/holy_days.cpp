#include "libraries/occasions/holy_days.h"

#include "libraries/calendar/jewish.h"

namespace occasions {
namespace {

using calendar::Land;
using calendar::Weekday;

struct HolyDate {
  int32_t month;
  int32_t day;
  HolyDay holy;
  Lands lands = Lands::kBoth;
};

// Leviticus 23; the second days of the diaspora, and of Rosh Hashana everywhere (Shulchan Aruch, Orach Chaim 496, 601).
constexpr HolyDate kHolyDates[] = {
    {calendar::kNisan, 15, {Occasion::kPesach, 1}},
    {calendar::kNisan, 16, {Occasion::kPesach, 2}, Lands::kDiaspora},
    {calendar::kNisan, 21, {Occasion::kPesach, 7}},
    {calendar::kNisan, 22, {Occasion::kPesach, 8}, Lands::kDiaspora},
    {calendar::kSivan, 6, {Occasion::kShavuot, 1}},
    {calendar::kSivan, 7, {Occasion::kShavuot, 2}, Lands::kDiaspora},
    {calendar::kTishri, 1, {Occasion::kRoshHashana, 1}},
    {calendar::kTishri, 2, {Occasion::kRoshHashana, 2}},
    {calendar::kTishri, 10, {Occasion::kYomKippur, 0}},
    {calendar::kTishri, 15, {Occasion::kSukkot, 1}},
    {calendar::kTishri, 16, {Occasion::kSukkot, 2}, Lands::kDiaspora},
    {calendar::kTishri, 22, {Occasion::kSheminiAtzeret, 0}, Lands::kDiaspora},
    {calendar::kTishri, 22, {Occasion::kSheminiAtzeret, 1}, Lands::kIsrael},
    {calendar::kTishri, 23, {Occasion::kSimchatTorah, 0}, Lands::kDiaspora},
};

constexpr bool IsShabbat(int32_t day) {
  return calendar::WeekdayOf(day) == Weekday::kSaturday;
}

std::optional<HolyDay> YomTovOn(int32_t day, Land land) {
  const calendar::Date date = calendar::JewishFromAbsolute(day);
  for (const HolyDate& holy : kHolyDates) {
    if (holy.month == date.month && holy.day == date.day && IsKept(holy.lands, land)) return holy.holy;
  }
  return std::nullopt;
}

// The time of day of a moment that the user has set, on that date at which it is nearest to the one reckoned.
ClockMinute OwnTime(int32_t hour, int32_t minute, const ClockMinute& reckoned) {
  const int64_t ofDay = int64_t{hour} * 60 + minute;
  const int64_t half = kMinutesPerDay / 2;
  const int64_t difference = (ofDay - reckoned.minute % kMinutesPerDay + kMinutesPerDay + half) % kMinutesPerDay;
  return {reckoned.minute + difference - half, reckoned.offsetSeconds};
}

void AddLighting(HolyTimes& times, int32_t day, const HolyDay& holy, RowCollector& rows) {
  const RuledMoment lighting = times.Lighting(day);
  const auto notes = static_cast<uint16_t>(lighting.notes | (IsShabbat(day) ? kOnShabbat : 0));
  rows.AddMoment(lighting.moment, {.occasion = holy.occasion,
                                   .moment = Moment::kCandles,
                                   .rule = lighting.rule,
                                   .notes = notes,
                                   .number = holy.number});
}

// What the holy days in a row are that end with a day.
uint16_t NotesOfDaysEnding(int32_t day, Land land) {
  uint16_t notes = IsShabbat(day) ? kOnShabbat : 0;
  for (; HolyDayOn(day, land); --day) {
    if (IsShabbat(day)) notes |= kEndsShabbat;
    if (YomTovOn(day, land)) notes |= kEndsYomTov;
  }
  return notes;
}

void AddEnd(const Question& question, HolyTimes& times, int32_t day, const HolyDay& holy, RowCollector& rows) {
  const RuledMoment end = times.End(day);
  const auto notes = static_cast<uint16_t>(end.notes | NotesOfDaysEnding(day, question.land));
  rows.AddMoment(
      end.moment,
      {.occasion = holy.occasion, .moment = Moment::kEnd, .rule = end.rule, .notes = notes, .number = holy.number});
}

// Yom Kippur's own: it begins with the candles, ends with the day.
void AddFast(HolyTimes& times, int32_t day, RowCollector& rows) {
  const RuledMoment lighting = times.Lighting(day);
  rows.AddMoment(lighting.moment, {.occasion = Occasion::kFastOfYomKippur,
                                   .moment = Moment::kFastBegins,
                                   .rule = Rule::kWithCandles,
                                   .notes = lighting.notes});
  const RuledMoment end = times.End(day);
  rows.AddMoment(end.moment, {.occasion = Occasion::kFastOfYomKippur,
                              .moment = Moment::kFastEnds,
                              .rule = Rule::kWithEnd,
                              .notes = end.notes});
}

// On the eve of a Yom Tov that runs into Friday, for cooking on it for Shabbat (Orach Chaim 527).
void AddEruv(const Question& question, HolyTimes& times, int32_t friday, RowCollector& rows) {
  if (!YomTovOn(friday, question.land)) return;
  int32_t first = friday;
  while (HolyDayOn(first - 1, question.land)) --first;
  const RuledMoment lighting = times.Lighting(first);
  rows.AddMoment(lighting.moment, {.occasion = Occasion::kEruvTavshilin,
                                   .moment = Moment::kUntil,
                                   .rule = Rule::kWithCandles,
                                   .notes = lighting.notes});
}

}  // namespace

std::optional<HolyDay> HolyDayOn(int32_t day, Land land) {
  const std::optional<HolyDay> yomTov = YomTovOn(day, land);
  if (yomTov || !IsShabbat(day)) return yomTov;
  return HolyDay{Occasion::kShabbat, 0};
}

std::optional<candles::Times> HolyTimes::OwnTimes(int32_t friday) const {
  return question_.ownTimes ? question_.ownTimes(friday) : std::nullopt;
}

RuledMoment HolyTimes::BeforeSunset(int32_t eve) {
  const ClockMinute reckoned = sky_.Lighting(eve);
  const bool isFriday = calendar::WeekdayOf(eve) == Weekday::kFriday;
  if (const auto own = isFriday ? OwnTimes(eve) : std::nullopt) {
    return {OwnTime(own->candleHour, own->candleMinute, reckoned), Rule::kOwnTime, 0};
  }
  return {reckoned, question_.shabbat.isJerusalem ? Rule::kJerusalem : Rule::kCandleMinutes, sky_.NotesOfSunset(eve)};
}

RuledMoment HolyTimes::Lighting(int32_t holyDay) {
  if (IsShabbat(holyDay) || !HolyDayOn(holyDay - 1, question_.land)) return BeforeSunset(holyDay - 1);
  RuledMoment end = End(holyDay - 1);
  end.rule = Rule::kFromFlame;
  return end;
}

RuledMoment HolyTimes::End(int32_t holyDay) {
  const ClockMinute reckoned = sky_.End(holyDay);
  if (const auto own = IsShabbat(holyDay) ? OwnTimes(holyDay - 1) : std::nullopt) {
    return {OwnTime(own->endHour, own->endMinute, reckoned), Rule::kOwnTime, 0};
  }
  return {reckoned, question_.shabbat.endsByMinutes ? Rule::kEndMinutes : Rule::kEndDegrees, sky_.NotesOfEnd(holyDay)};
}

void AddHolyDays(const Question& question, Sky& sky, int32_t first, int32_t last, RowCollector& rows) {
  HolyTimes times(question, sky);
  // A lighting stands on the day before its own, an eruv up to two days before its Friday.
  for (int32_t day = first - 1; day <= last + 3; ++day) {
    const std::optional<HolyDay> holy = HolyDayOn(day, question.land);
    if (!holy) continue;
    if (rows.IsAround(day - 1)) AddLighting(times, day, *holy, rows);
    const bool isLast = !HolyDayOn(day + 1, question.land);
    if (isLast && rows.IsAround(day)) AddEnd(question, times, day, *holy, rows);
    const bool isFast = holy->occasion == Occasion::kYomKippur;
    if (isFast && rows.Wants(Occasion::kFastOfYomKippur, day)) AddFast(times, day, rows);
    const bool isFriday = calendar::WeekdayOf(day) == Weekday::kFriday;
    if (isFriday && rows.Wants(Occasion::kEruvTavshilin, day - 2)) AddEruv(question, times, day, rows);
  }
}

}  // namespace occasions
