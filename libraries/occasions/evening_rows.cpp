#include "libraries/calendar/jewish.h"
#include "libraries/hours/named_days.h"
#include "libraries/occasions/year_rows.h"

namespace occasions {
namespace {

using calendar::Weekday;

constexpr int32_t kLights = 8;
constexpr int32_t kDaysOfOmer = 49;

// 13.5 minutes, Rabbeinu Tam's bein hashmashot, before three medium stars.
constexpr hours::Definition kHalfTwilight = {{hours::Both(hours::Degrees(7083)), hours::kDayThousandthHours, -13500},
                                             hours::Rounding::kUp};

struct LightingRule {
  std::optional<ClockMinute> moment;
  Rule rule;
};

LightingRule LightsOn(const YearSources& sources, int32_t evening) {
  const Customs& customs = sources.question.customs;
  switch (customs.chanukah) {
    case ChanukahRule::kSunset: return {sources.sky.Sunset(evening), Rule::kSunset};
    case ChanukahRule::kMinutes:
      return {sources.sky.AfterSunset(evening, customs.chanukahMinutes), Rule::kChanukahMinutes};
    case ChanukahRule::kHalfTwilight: return {sources.sky.Zman(evening, kHalfTwilight), Rule::kHalfTwilight};
    case ChanukahRule::kNightfall: break;
  }
  return {sources.sky.Zman(evening, NightfallOf(customs.nightfall)), Rule::kNightfall};
}

// Orach Chaim 672; on Friday before the candles of Shabbat (679), on Saturday night when Shabbat has ended (681).
void AddLight(const YearSources& sources, int32_t evening, Row row) {
  const Weekday weekday = calendar::WeekdayOf(evening);
  if (weekday == Weekday::kFriday) {
    const RuledMoment candles = sources.times.BeforeSunset(evening);
    row.rule = Rule::kBeforeCandles;
    row.notes = candles.notes;
    return sources.rows.AddMoment(candles.moment, row);
  }
  LightingRule lights = LightsOn(sources, evening);
  row.rule = lights.rule;
  if (weekday == Weekday::kSaturday) {
    const RuledMoment end = sources.times.End(evening);
    if (!lights.moment || lights.moment->minute <= end.moment.minute) {
      row.rule = Rule::kAfterShabbat;
      row.notes = end.notes;
      lights.moment = end.moment;
    }
  }
  const bool isFromSunset = row.rule == Rule::kSunset || row.rule == Rule::kChanukahMinutes;
  if (isFromSunset && !sources.sky.SunSets(evening)) row.notes |= kSunDoesNotSet;
  sources.rows.AddMoment(lights.moment, evening, row);
}

// Where 14 Nisan is a Shabbat, chametz is searched for on Thursday night and burnt on Friday (Orach Chaim 444).
struct PesachEve {
  int32_t day;
  bool isShabbat;
};

PesachEve PesachEveOf(int32_t year) {
  const int32_t day = calendar::AbsoluteFromJewish({14, calendar::kNisan, year});
  return {day, calendar::WeekdayOf(day) == Weekday::kSaturday};
}

void AddChametzZman(const YearSources& sources, int32_t day, hours::Definition zman, Row row) {
  zman.isForPesachEve = false;  // it may be the day before
  row.occasion = Occasion::kChametz;
  row.rule = Rule::kChametzZman;
  sources.rows.AddMoment(sources.sky.Zman(day, zman), day, row);
}

}  // namespace

void AddLights(const YearSources& sources, int32_t jewishYear) {
  const int32_t first = calendar::AbsoluteFromJewish({25, calendar::kKislev, jewishYear}) - 1;
  for (int32_t light = 1; light <= kLights; ++light) {
    const int32_t evening = first + light - 1;
    if (!sources.rows.Wants(Occasion::kChanukah, evening)) continue;
    AddLight(sources, evening, {.occasion = Occasion::kChanukah, .moment = Moment::kLights, .number = light});
  }
}

// From the night of 16 Nisan (Leviticus 23:15, Orach Chaim 489).
void AddOmer(const YearSources& sources, int32_t jewishYear) {
  const int32_t first = calendar::AbsoluteFromJewish({15, calendar::kNisan, jewishYear});
  const hours::Definition nightfall = NightfallOf(sources.question.customs.nightfall);
  for (int32_t count = 1; count <= kDaysOfOmer; ++count) {
    const int32_t evening = first + count - 1;
    if (!sources.rows.Wants(Occasion::kOmer, evening)) continue;
    sources.rows.AddMoment(
        sources.sky.Zman(evening, nightfall), evening,
        {.occasion = Occasion::kOmer, .moment = Moment::kCount, .rule = Rule::kNightfall, .number = count});
  }
}

void AddChametz(const YearSources& sources, int32_t jewishYear) {
  const PesachEve eve = PesachEveOf(jewishYear);
  if (!sources.rows.Wants(Occasion::kChametz, eve.day) && !sources.rows.Wants(Occasion::kChametz, eve.day - 2)) return;
  const Customs& customs = sources.question.customs;
  const uint16_t notes = eve.isShabbat ? kOnShabbat : 0;
  const int32_t evening = eve.isShabbat ? eve.day - 2 : eve.day - 1;
  sources.rows.AddMoment(
      sources.sky.Zman(evening, NightfallOf(customs.nightfall)), evening,
      {.occasion = Occasion::kSearchForChametz, .moment = Moment::kFrom, .rule = Rule::kNightfall, .notes = notes});
  if (eve.isShabbat) {
    AddChametzZman(sources, eve.day - 1, BurningChametz(customs), {.moment = Moment::kBurningEnds, .notes = kOnFriday});
  }
  AddChametzZman(sources, eve.day, EatingChametz(customs), {.moment = Moment::kEatingEnds, .notes = notes});
  AddChametzZman(sources, eve.day, BurningChametz(customs), {.moment = Moment::kBurningEnds, .notes = notes});
}

}  // namespace occasions
