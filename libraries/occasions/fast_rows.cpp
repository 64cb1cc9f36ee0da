#include "libraries/calendar/jewish.h"
#include "libraries/occasions/year_rows.h"

namespace occasions {
namespace {

using calendar::Weekday;

// Where a fast's Shabbat moves it.
enum class FromShabbat : uint8_t { kNever, kToSunday, kToThursday };

// Shulchan Aruch, Orach Chaim 549-550 and 686; of the firstborn 470.
struct Fast {
  Occasion occasion;
  int32_t month;  // kAdarOfCommonYear: the Adar of Purim
  int32_t day;
  FromShabbat fromShabbat;
};
constexpr Fast kFasts[] = {
    {Occasion::kFastOfGedaliah, calendar::kTishri, 3, FromShabbat::kToSunday},
    {Occasion::kTenthOfTevet, calendar::kTevet, 10, FromShabbat::kNever},
    {Occasion::kFastOfEsther, kAdarOfCommonYear, 13, FromShabbat::kToThursday},
    {Occasion::kFastOfFirstborn, calendar::kNisan, 14, FromShabbat::kToThursday},
    {Occasion::kSeventeenthOfTammuz, calendar::kTammuz, 17, FromShabbat::kToSunday},
    {Occasion::kTishaBeAv, calendar::kAv, 9, FromShabbat::kToSunday},
};

struct FastDay {
  int32_t day;
  uint16_t notes;
};

FastDay DayOf(const Fast& fast, int32_t year) {
  const int32_t adarOfPurim = calendar::IsJewishLeapYear(year) ? calendar::kAdarII : calendar::kAdar;
  const int32_t month = fast.month == kAdarOfCommonYear ? adarOfPurim : fast.month;
  const int32_t date = calendar::AbsoluteFromJewish({fast.day, month, year});
  switch (calendar::WeekdayOf(date)) {
    case Weekday::kFriday: return {date, kOnFriday};
    case Weekday::kSaturday:
      if (fast.fromShabbat == FromShabbat::kToSunday) return {date + 1, kFromShabbatToSunday};
      return {date - 2, kFromShabbatToThursday};
    default: return {date, 0};
  }
}

void AddDawnToNightfall(const YearSources& sources, int32_t day, Row row) {
  const Customs& customs = sources.question.customs;
  row.moment = Moment::kFastBegins;
  row.rule = Rule::kDawn;
  sources.rows.AddMoment(sources.sky.Zman(day, DawnOf(customs)), day, row);
  row.moment = Moment::kFastEnds;
  row.rule = Rule::kNightfall;
  sources.rows.AddMoment(sources.sky.Zman(day, NightfallOf(customs.nightfall)), day, row);
}

uint16_t NotesOfSunset(const YearSources& sources, int32_t day) {
  return sources.sky.SunSets(day) ? 0 : kSunDoesNotSet;
}

void AddTishaBeAv(const YearSources& sources, int32_t day, Row row) {
  const Customs& customs = sources.question.customs;
  const uint16_t moved = row.notes;
  row.moment = Moment::kFastBegins;
  row.rule = Rule::kSunset;
  row.notes |= NotesOfSunset(sources, day - 1);
  sources.rows.AddMoment(sources.sky.Sunset(day - 1), row);
  row.moment = Moment::kFastEnds;
  row.rule = Rule::kNightfallOfAv;
  row.notes = moved;
  const std::string& nightfall = customs.nightfallOfAv.empty() ? customs.nightfall : customs.nightfallOfAv;
  sources.rows.AddMoment(sources.sky.Zman(day, NightfallOf(nightfall)), day, row);
}

// On the eve of Pesach itself the fast ends with the Seder.
void AddFirstborn(const YearSources& sources, const FastDay& fast, Row row) {
  if (fast.notes & kFromShabbatToThursday) return AddDawnToNightfall(sources, fast.day, row);
  row.moment = Moment::kFastBegins;
  row.rule = Rule::kDawn;
  sources.rows.AddMoment(sources.sky.Zman(fast.day, DawnOf(sources.question.customs)), fast.day, row);
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
