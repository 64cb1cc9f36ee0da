// The occasions against what independent programs answer: the days of sixty years, and the times of a year of each of
// the fourteen types, in both lands and at five places.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "libraries/sun/clock_in_force.h"
#include "tests/core/occasions_days.h"

namespace {

using namespace occasions;
using calendar::Land;

struct ReferencePlace {
  const char* name;
  int32_t latitude, longitude, zoneHours, zoneMinutes;
  const char* zoneId;
};

struct ReferenceYear {
  int32_t year;
  int32_t type;       // one of fourteen
  int32_t newYear;    // the civil date of 1 Tishri, as year * 10000 + month * 100 + day
  int32_t talUmatar;  // of the diaspora: days since then
};

// lands: 1 the diaspora, 2 Israel, 3 both; an exception of 0 is one that the type has and the year has not.
struct ReferenceFact {
  int32_t typeOrYear;
  int32_t day;  // since 1 Tishri
  const char* occasion;
  int32_t number;
  int32_t lands;
};

struct ReferenceGroup {
  int32_t year;
  size_t place, first, count;
};

// lands: with kLoose where kiddush levana has no minute to compare with: its limit lies within two minutes of dawn or
// nightfall, or the night has no dawn.
constexpr int32_t kLoose = 4;
struct ReferenceTime {
  int32_t day;
  int32_t what;             // index into kWhats
  int32_t secondsFromZero;  // of the moment by the sun that ours is made of, on the clock in force
  int32_t lands;
};

// Nightfalls on whose evenings the omer is counted.
constexpr int32_t kDaysOfOmer = 49;
struct ReferenceOmer {
  size_t group;
  int32_t secondsLater[kDaysOfOmer];  // of the clock in force, than on the evening before; the first since 0:00
};

// Those of a year, and of a day before and after it.
struct ReferenceInstant {
  int32_t year;
  const char* occasion;
  int32_t number;
  int64_t utcSeconds;
};

#include "occasions_reference_days.h"

// How ours is made of the sun's moment: rounded, and so many minutes more.
enum class Made { kNearest, kUp, kDown };
constexpr int32_t kMinusCandles = -1000;
struct What {
  std::optional<Occasion> occasion;  // none: whatever it is that candles are lit for or that ends
  Moment moment;
  Made made;
  int32_t plusMinutes = 0;
};
constexpr int32_t kEndMinutes = 45;  // the default
constexpr What kWhats[] = {
    {{}, Moment::kCandles, Made::kNearest, kMinusCandles},
    {{}, Moment::kCandles, Made::kNearest, kEndMinutes},  // as the day before ends
    {{}, Moment::kEnd, Made::kNearest, kEndMinutes},
    {Occasion::kFastOfGedaliah, Moment::kFastBegins, Made::kDown},
    {Occasion::kTenthOfTevet, Moment::kFastBegins, Made::kDown},
    {Occasion::kFastOfEsther, Moment::kFastBegins, Made::kDown},
    {Occasion::kFastOfFirstborn, Moment::kFastBegins, Made::kDown},
    {Occasion::kSeventeenthOfTammuz, Moment::kFastBegins, Made::kDown},
    {Occasion::kTishaBeAv, Moment::kFastBegins, Made::kNearest},
    {Occasion::kFastOfGedaliah, Moment::kFastEnds, Made::kUp},
    {Occasion::kTenthOfTevet, Moment::kFastEnds, Made::kUp},
    {Occasion::kFastOfEsther, Moment::kFastEnds, Made::kUp},
    {Occasion::kFastOfFirstborn, Moment::kFastEnds, Made::kUp},
    {Occasion::kSeventeenthOfTammuz, Moment::kFastEnds, Made::kUp},
    {Occasion::kTishaBeAv, Moment::kFastEnds, Made::kUp},
    {Occasion::kChametz, Moment::kEatingEnds, Made::kDown},
    {Occasion::kChametz, Moment::kBurningEnds, Made::kDown},
    {Occasion::kChanukah, Moment::kLights, Made::kNearest, kMinusCandles},  // on Friday
    {Occasion::kChanukah, Moment::kLights, Made::kNearest, kEndMinutes},    // after Shabbat
    {Occasion::kChanukah, Moment::kLights, Made::kUp},
    {Occasion::kKiddushLevana, Moment::kFrom, Made::kUp},
    {Occasion::kKiddushLevana, Moment::kUntil, Made::kDown},
};

// The programs' sun is by the formulas of NOAA.
constexpr int32_t kSunSeconds = 15;

constexpr int32_t BitOf(Land land) {
  return land == Land::kIsrael ? 2 : 1;
}

Question QuestionFor(const ReferencePlace& place, Land land) {
  return QuestionAt(place.name, place.latitude, place.longitude, place.zoneHours, place.zoneMinutes, place.zoneId,
                    land);
}

using Fact = std::string;  // "12 pesach 1"

Fact FactOf(int32_t day, const std::string& occasion, int32_t number) {
  return std::to_string(day) + " " + occasion + " " + std::to_string(number);
}

// Days as calendars have them: the omer and the lights are counted on the evening before, fasts stand as their moments,
// Selichot as the Shabbat that they follow.
std::optional<Fact> FactOf(const Row& row, int32_t newYear) {
  const std::string id = IdOf(row.occasion);
  const int32_t day = row.day - newYear;
  if (row.occasion == Occasion::kTishaBeAv) {
    return row.moment == Moment::kFastEnds ? std::optional(FactOf(day, id, 0)) : std::nullopt;
  }
  if (row.occasion == Occasion::kSelichot) {
    return FactOf(day - (calendar::WeekdayOf(row.day) == calendar::Weekday::kSunday ? 1 : 0), id, 0);
  }
  const bool isFast = row.moment == Moment::kFastBegins && row.occasion != Occasion::kFastOfYomKippur;
  if (row.moment == Moment::kWholeDay || isFast || row.occasion == Occasion::kBlessingOfTheSun) {
    return FactOf(day, id, row.number);
  }
  if (row.occasion == Occasion::kOmer) return FactOf(day + 1, id, row.number);
  return std::nullopt;
}

std::set<Fact> ExpectedFacts(const ReferenceYear& year, Land land) {
  std::set<Fact> facts;
  for (const ReferenceFact& fact : kReferenceFacts) {
    if (fact.typeOrYear == year.type && (fact.lands & BitOf(land))) {
      facts.insert(FactOf(fact.day, fact.occasion, fact.number));
    }
  }
  for (const ReferenceFact& fact : kReferenceExceptions) {
    if (fact.typeOrYear != year.year) continue;
    const Fact text = FactOf(fact.day, fact.occasion, fact.number);
    if (fact.lands & BitOf(land)) {
      facts.insert(text);
    } else {
      facts.erase(text);
    }
  }
  if (land == Land::kDiaspora) facts.insert(FactOf(year.talUmatar, "tal-umatar", 0));
  return facts;
}

TEST(OccasionsReference, HasSixtyYearsOfAllFourteenTypes) {
  std::set<int32_t> types;
  for (const ReferenceYear& year : kReferenceYears) {
    types.insert(year.type);
    EXPECT_EQ(calendar::JewishNewYear(year.year),
              CivilDay(year.newYear / 10000, year.newYear / 100 % 100, year.newYear % 100));
  }
  EXPECT_EQ(types.size(), 14u);
  EXPECT_EQ(std::size(kReferenceYears), 60u);
}

TEST(OccasionsReference, TheDaysOfSixtyYearsAreTheProgramsDays) {
  for (const Land land : {Land::kDiaspora, Land::kIsrael}) {
    Question question = InNewYork();
    question.land = land;
    for (const ReferenceYear& year : kReferenceYears) {
      const int32_t newYear = calendar::JewishNewYear(year.year);
      std::set<Fact> facts;
      for (const Row& row : RowsOfJewishYear(question, year.year)) {
        const std::optional<Fact> fact = FactOf(row, newYear);
        if (!fact) continue;
        EXPECT_TRUE(facts.insert(*fact).second) << year.year << ": twice " << *fact;
      }
      EXPECT_EQ(facts, ExpectedFacts(year, land)) << year.year << " in land " << BitOf(land);
    }
  }
}

int32_t RoundedMinute(double seconds, Made made) {
  const double minutes = seconds / 60;
  if (made == Made::kUp) return static_cast<int32_t>(std::ceil(minutes));
  return static_cast<int32_t>(std::floor(made == Made::kDown ? minutes : minutes + 0.5));
}

int32_t MinuteMadeOf(const ReferenceTime& time, const What& what, int32_t candleMinutes, int32_t laterSeconds) {
  const int32_t plus = what.plusMinutes == kMinusCandles ? -candleMinutes : what.plusMinutes;
  return time.day * 1440 + RoundedMinute(time.secondsFromZero + laterSeconds, what.made) + plus;
}

// The minutes of a year's rows, counted from 1 Tishri, by what they are moments of: of the rows that kWhats names.
using Key = std::pair<std::optional<Occasion>, Moment>;
using Minutes = std::map<Key, std::set<int32_t>>;

Minutes MinutesOf(const std::vector<Row>& rows, int32_t newYear) {
  Minutes minutes;
  for (const What& what : kWhats) minutes[{what.occasion, what.moment}] = {};
  for (const Row& row : rows) {
    const bool isAnyones = row.moment == Moment::kCandles || row.moment == Moment::kEnd;
    const auto found = minutes.find({isAnyones ? std::nullopt : std::optional(row.occasion), row.moment});
    if (row.minute && found != minutes.end()) found->second.insert((row.day - newYear) * 1440 + *row.minute);
  }
  return minutes;
}

struct Tally {
  int32_t exact = 0;
  int32_t atAnEdge = 0;
};

std::string TextOf(const Key& key) {
  return (key.first ? std::string(IdOf(*key.first)) + " " : "") + IdOf(key.second);
}

void ExpectTime(const ReferenceTime& time, int32_t candleMinutes, Minutes& minutes, Tally& tally,
                const std::string& where) {
  const What& what = kWhats[time.what];
  std::set<int32_t>& ours = minutes[{what.occasion, what.moment}];
  if (ours.erase(MinuteMadeOf(time, what, candleMinutes, 0)) != 0) {
    ++tally.exact;
    return;
  }
  for (const int32_t later : {-kSunSeconds, kSunSeconds}) {
    if (ours.erase(MinuteMadeOf(time, what, candleMinutes, later)) == 0) continue;
    ++tally.atAnEdge;
    return;
  }
  ADD_FAILURE() << where << ": none of ours is " << TextOf({what.occasion, what.moment}) << " of day " << time.day
                << " at second " << time.secondsFromZero;
}

// Within a day; there is none of ours where the night does not get dark.
void PassOver(const ReferenceTime& time, Minutes& minutes) {
  const What& what = kWhats[time.what];
  std::set<int32_t>& ours = minutes[{what.occasion, what.moment}];
  const auto found = ours.lower_bound((time.day - 1) * 1440);
  if (found != ours.end() && *found < (time.day + 2) * 1440) ours.erase(found);
}

void ExpectTimes(const ReferenceGroup& group, Land land, Tally& tally) {
  const ReferencePlace& place = kReferencePlaces[group.place];
  const Question question = QuestionFor(place, land);
  Minutes minutes = MinutesOf(RowsOfJewishYear(question, group.year), calendar::JewishNewYear(group.year));
  const std::string where = std::string(place.name) + ", " + std::to_string(group.year);
  for (const bool isLoose : {false, true}) {
    for (size_t i = group.first; i < group.first + group.count; ++i) {
      const ReferenceTime& time = kReferenceTimes[i];
      if (!(time.lands & BitOf(land)) || ((time.lands & kLoose) != 0) != isLoose) continue;
      if (isLoose) {
        PassOver(time, minutes);
      } else {
        ExpectTime(time, question.shabbat.candleMinutes, minutes, tally, where);
      }
    }
  }
  for (const auto& [key, ours] : minutes) {
    EXPECT_TRUE(ours.empty()) << where << ": only ours is " << TextOf(key) << " of day " << *ours.begin() / 1440;
  }
}

TEST(OccasionsReference, TheTimesOfAYearOfEachTypeAreMadeOfTheProgramsSun) {
  Tally tally;
  for (const ReferenceGroup& group : kReferenceGroups) {
    for (const Land land : {Land::kDiaspora, Land::kIsrael}) ExpectTimes(group, land, tally);
  }
  std::printf("%d times to the minute, %d at a minute's edge\n", tally.exact, tally.atAnEdge);
  EXPECT_LT(tally.atAnEdge * 40, tally.exact);
}

void ExpectOmer(const ReferenceOmer& omer, Tally& tally) {
  const ReferenceGroup& group = kReferenceGroups[omer.group];
  const ReferencePlace& place = kReferencePlaces[group.place];
  const std::vector<Row> rows = RowsOfJewishYear(QuestionFor(place, Land::kDiaspora), group.year);
  const int32_t firstEvening = calendar::AbsoluteFromJewish({15, calendar::kNisan, group.year});
  int32_t seconds = 0;
  for (int32_t count = 1; count <= kDaysOfOmer; ++count) {
    seconds += omer.secondsLater[count - 1];
    const Row row = TheRow(rows, Occasion::kOmer, Moment::kCount, count);
    const std::string where = std::string(place.name) + ", " + std::to_string(group.year) + ", " + TimeText(row);
    EXPECT_EQ(row.day, firstEvening + count - 1) << where;
    const bool isExact = row.minute == RoundedMinute(seconds, Made::kUp);
    ++(isExact ? tally.exact : tally.atAnEdge);
    EXPECT_TRUE(isExact || row.minute == RoundedMinute(seconds - kSunSeconds, Made::kUp) ||
                row.minute == RoundedMinute(seconds + kSunSeconds, Made::kUp))
        << where << ": count " << count << " is at second " << seconds;
  }
}

TEST(OccasionsReference, TheOmerIsCountedFromTheProgramsNightfallOn) {
  Tally tally;
  std::set<size_t> places;
  for (const ReferenceOmer& omer : kReferenceOmers) {
    places.insert(kReferenceGroups[omer.group].place);
    ExpectOmer(omer, tally);
  }
  std::printf("%d counts to the minute, %d at a minute's edge\n", tally.exact, tally.atAnEdge);
  EXPECT_EQ(tally.exact + tally.atAnEdge, 35 * kDaysOfOmer);
  EXPECT_LT(tally.atAnEdge * 10, tally.exact);
  EXPECT_EQ(places.size(), std::size(kReferencePlaces));
}

// Occasion and number, in the order of time.
using Instants = std::map<int64_t, std::pair<std::string, int32_t>>;  // by seconds of UTC

Instants InstantsOf(const std::vector<Row>& rows, const sun::PlaceClock& clock) {
  Instants instants;
  for (const Row& row : rows) {
    if (row.moment != Moment::kInstant) continue;
    const int64_t shown = int64_t{row.day - calendar::kAbsoluteDayOfUnixDay0} * 86400 + *row.minute * 60;
    const int64_t utc = shown - row.offsetSeconds;
    EXPECT_EQ(row.offsetSeconds, sun::ClockOffsetSeconds(clock, static_cast<double>(utc)));
    instants[utc] = {IdOf(row.occasion), row.number};
  }
  return instants;
}

// Rounded to the minute, the mean time of Jerusalem being known to the second.
void ExpectInstants(const ReferencePlace& place, int32_t year) {
  constexpr int64_t kMostSeconds = 31;
  const Question question = QuestionFor(place, Land::kDiaspora);
  Instants ours = InstantsOf(RowsOfJewishYear(question, year), question.settings.clock);
  const auto secondsOf = [](int32_t day) { return int64_t{day - calendar::kAbsoluteDayOfUnixDay0} * 86400; };
  const int64_t begin = secondsOf(calendar::JewishNewYear(year) + 1);
  const int64_t end = secondsOf(calendar::JewishNewYear(year + 1) - 1);
  for (const ReferenceInstant& instant : kReferenceInstants) {
    if (instant.year != year) continue;
    const auto found = ours.lower_bound(instant.utcSeconds - kMostSeconds);
    const bool isThere = found != ours.end() && found->first <= instant.utcSeconds + kMostSeconds &&
                         found->second == std::pair(std::string(instant.occasion), instant.number);
    const bool isInYear = instant.utcSeconds >= begin && instant.utcSeconds < end;  // on every clock
    EXPECT_TRUE(isThere || !isInYear) << place.name << ", " << year << ": none of ours is " << instant.occasion << ' '
                                      << instant.number << " at " << instant.utcSeconds;
    if (isThere) ours.erase(found);
  }
  for (const auto& [utc, what] : ours) {
    ADD_FAILURE() << place.name << ", " << year << ": only ours is " << what.first << ' ' << what.second << " at "
                  << utc;
  }
}

TEST(OccasionsReference, MoladotAndTekufotAreTheProgramsMomentsOnTheClocksOfPlaces) {
  for (const ReferenceGroup& group : kReferenceGroups) ExpectInstants(kReferencePlaces[group.place], group.year);
  EXPECT_GE(std::size(kReferenceInstants), std::size(kReferenceGroups) / 5 * (12 + 4));
}

}  // namespace
