#include "libraries/calendar/jewish.h"
#include "libraries/calendar/molad.h"
#include "libraries/calendar/tekufa.h"
#include "libraries/hours/named_days.h"
#include "libraries/occasions/year_rows.h"

namespace occasions {
namespace {

using calendar::Tekufa;
using calendar::Weekday;

// In the order of Tekufa: the month that a season is called by.
constexpr int32_t kMonths[] = {calendar::kTishri, calendar::kTevet, calendar::kNisan, calendar::kTammuz};

// In the diaspora from the evening before the sixtieth day of the season, its own day counted; in the Land of Israel
// from that of 7 Cheshvan (Taanit 10a, Orach Chaim 117).
constexpr int32_t kDayOfTalUmatar = 60;
constexpr int32_t kDayOfTalUmatarInIsrael = 7;

double UtcSeconds(int64_t jerusalemMinute) {
  const int64_t unixMinute = jerusalemMinute - calendar::kAbsoluteDayOfUnixDay0 * kMinutesPerDay;
  return static_cast<double>(unixMinute) * 60 - calendar::kJerusalemMeanSeconds;
}

void AddTekufa(const YearSources& sources, Tekufa tekufa, int32_t year) {
  const ClockMinute moment = sources.sky.At(UtcSeconds(calendar::TekufaMinute(tekufa, year)), Rounding::kNearest);
  if (!sources.rows.Wants(Occasion::kTekufa, moment.Day())) return;
  sources.rows.AddMoment(moment, {.occasion = Occasion::kTekufa,
                                  .moment = Moment::kInstant,
                                  .rule = Rule::kTekufa,
                                  .number = kMonths[static_cast<size_t>(tekufa)]});
}

void AddTalUmatar(const YearSources& sources, int32_t year) {
  const bool isIsrael = sources.question.land == calendar::Land::kIsrael;
  const int32_t day = isIsrael ? calendar::AbsoluteFromJewish({kDayOfTalUmatarInIsrael, calendar::kCheshvan, year})
                               : calendar::TekufaDay(Tekufa::kTishri, year) + kDayOfTalUmatar - 1;
  const int32_t evening = day - 1;
  if (!sources.rows.Wants(Occasion::kTalUmatar, evening)) return;
  const uint16_t notes = calendar::WeekdayOf(evening) == Weekday::kFriday ? kOnFriday : 0;
  sources.rows.AddDay(evening, {.occasion = Occasion::kTalUmatar, .notes = notes});
}

// When the season of Nisan begins as a Wednesday does, every 28 years: at sunrise of that day (Berachot 59b).
void AddBlessingOfTheSun(const YearSources& sources, int32_t year) {
  constexpr int64_t kBeginOfDay = 18 * 60;
  const int32_t day = calendar::TekufaDay(Tekufa::kNisan, year);
  const bool isAtBegin = calendar::TekufaMinute(Tekufa::kNisan, year) % kMinutesPerDay == kBeginOfDay;
  if (!isAtBegin || calendar::WeekdayOf(day) != Weekday::kWednesday) return;
  if (!sources.rows.Wants(Occasion::kBlessingOfTheSun, day)) return;
  const uint16_t notes = sources.sky.NotesOfSunrise(day);
  sources.rows.AddMoment(
      sources.sky.Sunrise(day),
      {.occasion = Occasion::kBlessingOfTheSun, .moment = Moment::kFrom, .rule = Rule::kSunrise, .notes = notes});
}

}  // namespace

void AddSeasons(const YearSources& sources, int32_t jewishYear) {
  for (const Tekufa tekufa : {Tekufa::kTishri, Tekufa::kTevet, Tekufa::kNisan, Tekufa::kTammuz}) {
    AddTekufa(sources, tekufa, jewishYear);
  }
  AddTalUmatar(sources, jewishYear);
  AddBlessingOfTheSun(sources, jewishYear);
}

// Those before the New Year that ends the year (Orach Chaim 581). Ashkenazim begin at midnight after a Shabbat, four
// days of them at least before Rosh Hashana; Sephardim on 2 Elul, which a Shabbat moves to Sunday.
void AddSelichot(const YearSources& sources, int32_t jewishYear) {
  constexpr hours::Definition kMidnight = {{hours::Both(hours::kSolarMidnight), hours::kDayThousandthHours},
                                           hours::Rounding::kUp};
  if (sources.question.customs.selichot == SelichotCustom::kSephardi) {
    const int32_t day = calendar::AbsoluteFromJewish({2, calendar::kElul, jewishYear});
    const bool isShabbat = calendar::WeekdayOf(day) == Weekday::kSaturday;
    const uint16_t notes = isShabbat ? kFromShabbatToSunday : 0;
    return sources.rows.AddDay(day + (isShabbat ? 1 : 0), {.occasion = Occasion::kSelichot, .notes = notes});
  }
  const int32_t newYear = calendar::JewishNewYear(jewishYear + 1);
  const auto weekday = static_cast<int32_t>(calendar::WeekdayOf(newYear));
  constexpr int32_t kLeastDays = 4;
  const int32_t sunday = newYear - weekday - (weekday < kLeastDays ? 7 : 0);
  const int32_t shabbat = sunday - 1;
  if (!sources.rows.Wants(Occasion::kSelichot, shabbat)) return;
  AddZman(sources, shabbat, kMidnight,
          {.occasion = Occasion::kSelichot, .moment = Moment::kFrom, .rule = Rule::kMidnight});
}

}  // namespace occasions
