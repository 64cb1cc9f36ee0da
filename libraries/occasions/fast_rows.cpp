#include "libraries/calendar/holiday.h"
#include "libraries/calendar/jewish.h"
#include "libraries/occasions/year_rows.h"

namespace occasions {
namespace {

// By the calendar's table of holidays, which has the dates and what Shabbat moves.
struct Fast {
  Occasion occasion;
  const char* holiday;
};
constexpr Fast kFasts[] = {
    {Occasion::kFastOfGedaliah, "Fast of Gedaliah"},       {Occasion::kTenthOfTevet, "Fast of 10 Tevet"},
    {Occasion::kFastOfEsther, "Fast of Esther"},           {Occasion::kFastOfFirstborn, "Fast of the Firstborn"},
    {Occasion::kSeventeenthOfTammuz, "Fast of 17 Tammuz"}, {Occasion::kTishaBeAv, "Tisha BeAv"},
};

struct FastDay {
  int32_t day;
  uint16_t notes;
};

FastDay DayOf(const Fast& fast, int32_t year) {
  const calendar::Holiday& holiday = calendar::JewishHolidayNamed(fast.holiday);
  const int32_t date = *calendar::JewishBaseDay(holiday.rules[0], year);
  const int32_t day = *calendar::DayOfHoliday(holiday, year, calendar::JewishBaseDay);
  if (day > date) return {day, kFromShabbatToSunday};
  if (day < date) return {day, kFromShabbatToThursday};
  const uint16_t notes = calendar::WeekdayOf(day) == calendar::Weekday::kFriday ? kOnFriday : 0;
  return {day, notes};
}

void AddDawnToNightfall(const YearSources& sources, int32_t day, Row row) {
  const Customs& customs = sources.question.customs;
  row.moment = Moment::kFastBegins;
  row.rule = Rule::kDawn;
  AddZman(sources, day, DawnOf(customs), row);
  row.moment = Moment::kFastEnds;
  row.rule = Rule::kNightfall;
  AddZman(sources, day, NightfallOf(customs.nightfall), row);
}

void AddTishaBeAv(const YearSources& sources, int32_t day, Row row) {
  const Customs& customs = sources.question.customs;
  const uint16_t moved = row.notes;
  row.moment = Moment::kFastBegins;
  row.rule = Rule::kSunset;
  row.notes |= sources.sky.NotesOfSunset(day - 1);
  sources.rows.AddMoment(sources.sky.Sunset(day - 1), row);
  row.moment = Moment::kFastEnds;
  row.rule = Rule::kNightfallOfAv;
  row.notes = moved;
  const std::string& nightfall = customs.nightfallOfAv.empty() ? customs.nightfall : customs.nightfallOfAv;
  AddZman(sources, day, NightfallOf(nightfall), row);
}

// On the eve of Pesach itself the fast ends with the Seder.
void AddFirstborn(const YearSources& sources, const FastDay& fast, Row row) {
  if (fast.notes & kFromShabbatToThursday) return AddDawnToNightfall(sources, fast.day, row);
  row.moment = Moment::kFastBegins;
  row.rule = Rule::kDawn;
  AddZman(sources, fast.day, DawnOf(sources.question.customs), row);
}

// Monday, Thursday and Monday after the first Shabbat of the month behind Rosh Chodesh (Orach Chaim 492).
void AddBehab(const YearSources& sources, int32_t month, int32_t year) {
  constexpr int32_t kDaysAfterShabbat[] = {2, 5, 9};
  const int32_t newMonth = calendar::AbsoluteFromJewish({1, month, year});
  const int32_t shabbat = newMonth + 6 - (newMonth % 7 + 7) % 7;
  const int32_t first = shabbat > newMonth ? shabbat : shabbat + 7;
  int32_t number = 0;
  for (const int32_t days : kDaysAfterShabbat) {
    ++number;
    if (!sources.rows.Wants(Occasion::kBehab, first + days)) continue;
    AddDawnToNightfall(sources, first + days, {.occasion = Occasion::kBehab, .number = number});
  }
}

}  // namespace

void AddFasts(const YearSources& sources, int32_t jewishYear) {
  for (const Fast& fast : kFasts) {
    const FastDay day = DayOf(fast, jewishYear);
    if (!sources.rows.Wants(fast.occasion, day.day)) continue;
    const Row row = {.occasion = fast.occasion, .notes = day.notes};
    if (fast.occasion == Occasion::kTishaBeAv) {
      AddTishaBeAv(sources, day.day, row);
    } else if (fast.occasion == Occasion::kFastOfFirstborn) {
      AddFirstborn(sources, day, row);
    } else {
      AddDawnToNightfall(sources, day.day, row);
    }
  }
  AddBehab(sources, calendar::kCheshvan, jewishYear);
  AddBehab(sources, calendar::kIyar, jewishYear);
}

}  // namespace occasions
