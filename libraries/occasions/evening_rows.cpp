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

// The zman of the lights, by the user's custom.
struct LightsRule {
  Rule rule;
  hours::Definition zman;
};

LightsRule LightsRuleOf(const Customs& customs) {
  constexpr hours::Definition kSunset = {{hours::kGraDay, hours::kDayThousandthHours}, hours::Rounding::kNearest};
  switch (customs.chanukah) {
    case ChanukahRule::kSunset: return {Rule::kSunset, kSunset};
    case ChanukahRule::kMinutes:
      return {Rule::kChanukahMinutes, NightfallOf(std::string(kMinutesId) + std::to_string(customs.chanukahMinutes))};
    case ChanukahRule::kHalfTwilight: return {Rule::kHalfTwilight, kHalfTwilight};
    case ChanukahRule::kNightfall: break;
  }
  return {Rule::kNightfall, NightfallOf(customs.nightfall)};
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
  const LightsRule lights = LightsRuleOf(sources.question.customs);
  if (weekday == Weekday::kSaturday) {
    const RuledMoment end = sources.times.End(evening);
    const std::optional<ClockMinute> moment = sources.sky.Zman(evening, lights.zman);
    if (!moment || moment->minute <= end.moment.minute) {
      row.rule = Rule::kAfterShabbat;
      row.notes = end.notes;
      return sources.rows.AddMoment(end.moment, row);
    }
  }
  row.rule = lights.rule;
  const bool isFromSunset = row.rule == Rule::kSunset || row.rule == Rule::kChanukahMinutes;
  if (isFromSunset) row.notes |= sources.sky.NotesOfSunset(evening);
  AddZman(sources, evening, lights.zman, row);
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
  AddZman(sources, day, zman, row);
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
    AddZman(sources, evening, nightfall,
            {.occasion = Occasion::kOmer, .moment = Moment::kCount, .rule = Rule::kNightfall, .number = count});
  }
}

void AddChametz(const YearSources& sources, int32_t jewishYear) {
  const PesachEve eve = PesachEveOf(jewishYear);
  if (!sources.rows.Wants(Occasion::kChametz, eve.day) && !sources.rows.Wants(Occasion::kChametz, eve.day - 2)) return;
  const Customs& customs = sources.question.customs;
  const uint16_t notes = eve.isShabbat ? kOnShabbat : 0;
  const int32_t evening = eve.isShabbat ? eve.day - 2 : eve.day - 1;
  AddZman(sources, evening, NightfallOf(customs.nightfall),
          {.occasion = Occasion::kSearchForChametz, .moment = Moment::kFrom, .rule = Rule::kNightfall, .notes = notes});
  if (eve.isShabbat) {
    AddChametzZman(sources, eve.day - 1, BurningChametz(customs), {.moment = Moment::kBurningEnds, .notes = kOnFriday});
  }
  AddChametzZman(sources, eve.day, EatingChametz(customs), {.moment = Moment::kEatingEnds, .notes = notes});
  AddChametzZman(sources, eve.day, BurningChametz(customs), {.moment = Moment::kBurningEnds, .notes = notes});
}

}  // namespace occasions
