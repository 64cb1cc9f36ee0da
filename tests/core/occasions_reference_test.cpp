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

struct ReferenceTime {
  int32_t day;
  int32_t what;             // index into kWhats
  int32_t secondsFromZero;  // of the moment by the sun that ours is made of, on the clock in force
  int32_t lands;
};

#include "occasions_reference_days.h"

// How ours is made of the sun's moment: rounded, and so many minutes more.
enum class Made { kNearest, kUp, kDown };
constexpr int32_t kMinusCandles = -1000;
struct What {
  Moment moment;
  Made made;
  int32_t plusMinutes = 0;
};
constexpr int32_t kEndMinutes = 45;  // the default
constexpr What kWhats[] = {
    {Moment::kCandles, Made::kNearest, kMinusCandles},
    {Moment::kCandles, Made::kNearest, kEndMinutes},  // as the day before ends
    {Moment::kEnd, Made::kNearest, kEndMinutes},
    {Moment::kFastBegins, Made::kDown},
    {Moment::kFastBegins, Made::kNearest},  // 9 Av
    {Moment::kFastEnds, Made::kUp},
    {Moment::kEatingEnds, Made::kDown},
    {Moment::kBurningEnds, Made::kDown},
    {Moment::kLights, Made::kNearest, kMinusCandles},  // on Friday
    {Moment::kLights, Made::kNearest, kEndMinutes},    // after Shabbat
    {Moment::kLights, Made::kUp},
    {Moment::kFrom, Made::kUp},
    {Moment::kUntil, Made::kDown},
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

int32_t MinuteMadeOf(const ReferenceTime& time, const What& what, int32_t candleMinutes, int32_t laterSeconds) {
  const double minutes = (time.secondsFromZero + laterSeconds) / 60.0;
  const double rounded = what.made == Made::kUp     ? std::ceil(minutes)
                         : what.made == Made::kDown ? std::floor(minutes)
                                                    : std::floor(minutes + 0.5);
  const int32_t plus = what.plusMinutes == kMinusCandles ? -candleMinutes : what.plusMinutes;
  return time.day * 1440 + static_cast<int32_t>(rounded) + plus;
}

// The minutes of a year's rows, counted from 1 Tishri, by their moments.
using Minutes = std::map<Moment, std::set<int32_t>>;

bool IsCompared(const Row& row) {
  if (row.occasion == Occasion::kKiddushLevana) return true;
  const bool isOther = row.occasion == Occasion::kBehab || row.occasion == Occasion::kFastOfYomKippur;
  return !isOther && row.moment != Moment::kFrom && row.moment != Moment::kUntil;
}

Minutes MinutesOf(const std::vector<Row>& rows, int32_t newYear) {
  Minutes minutes;
  for (const Row& row : rows) {
    if (row.minute && IsCompared(row)) minutes[row.moment].insert((row.day - newYear) * 1440 + *row.minute);
  }
  return minutes;
}

struct Tally {
  int32_t exact = 0;
  int32_t atAnEdge = 0;
};

void ExpectTime(const ReferenceTime& time, int32_t candleMinutes, Minutes& minutes, Tally& tally,
                const std::string& where) {
  const What& what = kWhats[time.what];
  std::set<int32_t>& ours = minutes[what.moment];
  if (ours.erase(MinuteMadeOf(time, what, candleMinutes, 0)) != 0) {
    ++tally.exact;
    return;
  }
  for (const int32_t later : {-kSunSeconds, kSunSeconds}) {
    if (ours.erase(MinuteMadeOf(time, what, candleMinutes, later)) == 0) continue;
    ++tally.atAnEdge;
    return;
  }
  ADD_FAILURE() << where << ": none of ours is " << IdOf(what.moment) << " of day " << time.day << " at second "
                << time.secondsFromZero;
}

TEST(OccasionsReference, TheTimesOfAYearOfEachTypeAreMadeOfTheProgramsSun) {
  Tally tally;
  for (const ReferenceGroup& group : kReferenceGroups) {
    const ReferencePlace& place = kReferencePlaces[group.place];
    for (const Land land : {Land::kDiaspora, Land::kIsrael}) {
      const Question question = QuestionFor(place, land);
      Minutes minutes = MinutesOf(RowsOfJewishYear(question, group.year), calendar::JewishNewYear(group.year));
      const std::string where = std::string(place.name) + ", " + std::to_string(group.year);
      for (size_t i = group.first; i < group.first + group.count; ++i) {
        const ReferenceTime& time = kReferenceTimes[i];
        if (time.lands & BitOf(land)) ExpectTime(time, question.shabbat.candleMinutes, minutes, tally, where);
      }
      for (const Moment moment : {Moment::kCandles, Moment::kEnd, Moment::kFastBegins, Moment::kFastEnds,
                                  Moment::kEatingEnds, Moment::kBurningEnds, Moment::kLights}) {
        EXPECT_TRUE(minutes[moment].empty()) << where << ": only ours is " << IdOf(moment);
      }
    }
  }
  std::printf("%d times to the minute, %d at a minute's edge\n", tally.exact, tally.atAnEdge);
  EXPECT_LT(tally.atAnEdge * 40, tally.exact);
}

}  // namespace
