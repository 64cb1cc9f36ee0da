#include "libraries/calendar/date.h"
#include "libraries/calendar/jewish.h"
#include "libraries/calendar/molad.h"
#include "libraries/hours/named_days.h"
#include "libraries/occasions/year_rows.h"

namespace occasions {
namespace {

constexpr double kSecondsPerDay = 86400;
constexpr double kSecondsPerPart = 10.0 / 3;
// Half a month of 29 days 12 hours 793 parts.
constexpr double kHalfMonthSeconds = calendar::kPartsPerMonth / 2.0 * kSecondsPerPart;

// Of UTC since 1970-01-01.
double MoladUtcSeconds(int32_t month, int32_t year) {
  const double sinceDay0 =
      static_cast<double>(calendar::MoladParts(month, year)) * kSecondsPerPart - kSecondsPerDay / 4;
  return sinceDay0 - calendar::kAbsoluteDayOfUnixDay0 * kSecondsPerDay - calendar::kJerusalemMeanSeconds;
}

int32_t NumberOf(int32_t month, int32_t year) {
  return month == calendar::kAdar && !calendar::IsJewishLeapYear(year) ? kAdarOfCommonYear : month;
}

void AddRoshChodesh(const YearSources& sources, int32_t month, int32_t newMonth, bool hasTwoDays, int32_t number) {
  if (month == calendar::kTishri) return;
  for (int32_t day = newMonth - (hasTwoDays ? 1 : 0); day <= newMonth; ++day) {
    if (!sources.rows.Wants(Occasion::kRoshChodesh, day)) continue;
    sources.rows.AddDay(day, {.occasion = Occasion::kRoshChodesh, .number = number});
  }
}

// On the last Shabbat before Rosh Chodesh; Tishri is not announced (Orach Chaim 417, Mishnah Berurah).
void AddAnnouncement(const YearSources& sources, int32_t month, int32_t firstDay, int32_t number) {
  if (month == calendar::kTishri) return;
  const int32_t dayBefore = firstDay - 1;
  const int32_t shabbat = dayBefore - (dayBefore % 7 + 8) % 7;
  if (!sources.rows.Wants(Occasion::kShabbatMevarchim, shabbat)) return;
  sources.rows.AddDay(shabbat, {.occasion = Occasion::kShabbatMevarchim, .number = number});
}

void AddMolad(const YearSources& sources, double molad, int32_t number) {
  const ClockMinute moment = sources.sky.At(molad, Rounding::kNearest);
  if (!sources.rows.Wants(Occasion::kMolad, moment.Day())) return;
  sources.rows.AddMoment(
      moment, {.occasion = Occasion::kMolad, .moment = Moment::kInstant, .rule = Rule::kMolad, .number = number});
}

// The light of a day, from dawn to nightfall. In the nights that get dark but have no dawn it begins at the sun's
// lowest point.
struct Daylight {
  ClockMinute dawn;
  ClockMinute nightfall;
  uint16_t notesOfDawn;
};

// Nothing where it does not get dark, and where it stays dark.
std::optional<Daylight> DaylightOf(const YearSources& sources, int32_t day) {
  constexpr hours::Definition kLowest = {{hours::Both(hours::kSolarMidnight), 0}, hours::Rounding::kDown};
  const Customs& customs = sources.question.customs;
  const hours::Definition dawn = DawnOf(customs);
  const std::optional<ClockMinute> nightfall = sources.sky.Zman(day, NightfallOf(customs.nightfall));
  if (!nightfall) return std::nullopt;
  if (const std::optional<ClockMinute> exact = sources.sky.Zman(day, dawn)) return {{*exact, *nightfall, 0}};
  if (sources.sky.NoteOfMissing(day, dawn) == kAlwaysLower) return std::nullopt;
  return {{*sources.sky.Zman(day, kLowest), *nightfall, kLowestPoint}};
}

// Whether a day has no daylight because it does not get dark, rather than because it stays dark.
bool IsNeverDark(const YearSources& sources, int32_t day) {
  const hours::Definition nightfall = NightfallOf(sources.question.customs.nightfall);
  return !sources.sky.Zman(day, nightfall) && sources.sky.NoteOfMissing(day, nightfall) == kNeverSoLow;
}

// A moment of a night, which is said not to be used for it when it is a night of Shabbat or Yom Tov (Orach Chaim
// 426:2).
void AddInNight(const YearSources& sources, const ClockMinute& moment, Row row) {
  const bool isEvening = moment.minute % kMinutesPerDay >= kMinutesPerDay / 2;
  const int32_t dayOfNight = moment.Day() + (isEvening ? 1 : 0);
  if (HolyDayOn(dayOfNight, sources.question.land)) row.notes |= kInHolyNight;
  sources.rows.AddMoment(moment, row);
}

// At night alone the moon is blessed (Orach Chaim 426).
void AddKiddushLevana(const YearSources& sources, const ClockMinute& limit, Row row) {
  const bool isFirst = row.moment == Moment::kFrom;
  if (!sources.rows.Wants(Occasion::kKiddushLevana, limit.Day())) return;
  if (IsNeverDark(sources, limit.Day())) {
    row.notes |= kNeverSoLow;
    return sources.rows.AddDay(limit.Day(), row);
  }
  for (int32_t day = limit.Day() - 1; day <= limit.Day() + 1; ++day) {
    const std::optional<Daylight> light = DaylightOf(sources, day);
    if (!light || limit.minute < light->dawn.minute || limit.minute >= light->nightfall.minute) continue;
    row.rule = isFirst ? Rule::kFirstNight : Rule::kLastNight;
    if (!isFirst) row.notes |= light->notesOfDawn;
    return AddInNight(sources, isFirst ? light->nightfall : light->dawn, row);
  }
  row.rule = Rule::kSinceMolad;
  AddInNight(sources, limit, row);
}

void AddMonth(const YearSources& sources, int32_t month, int32_t year) {
  const Customs& customs = sources.question.customs;
  const int32_t newMonth = calendar::AbsoluteFromJewish({1, month, year});
  const bool hasTwoDays = calendar::JewishFromAbsolute(newMonth - 1).day == 30;
  const int32_t number = NumberOf(month, year);
  AddRoshChodesh(sources, month, newMonth, hasTwoDays, number);
  AddAnnouncement(sources, month, newMonth - (hasTwoDays ? 1 : 0), number);
  const double molad = MoladUtcSeconds(month, year);
  AddMolad(sources, molad, number);
  const double first = molad + customs.kiddushLevanaFromDays * kSecondsPerDay;
  AddKiddushLevana(sources, sources.sky.At(first, Rounding::kUp),
                   {.occasion = Occasion::kKiddushLevana, .moment = Moment::kFrom, .number = number});
  const double last = molad + (customs.kiddushLevanaUntilHalfMonth ? kHalfMonthSeconds : 15 * kSecondsPerDay);
  AddKiddushLevana(sources, sources.sky.At(last, Rounding::kDown),
                   {.occasion = Occasion::kKiddushLevana, .moment = Moment::kUntil, .number = number});
}

}  // namespace

void AddMonths(const YearSources& sources, int32_t jewishYear) {
  for (int32_t month = calendar::kNisan; month <= calendar::MonthsInJewishYear(jewishYear); ++month) {
    AddMonth(sources, month, jewishYear);
  }
}

}  // namespace occasions
