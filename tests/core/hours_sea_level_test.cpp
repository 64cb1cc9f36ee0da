// Where elevation moves sunrise and sunset, but not the proportional hours.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "libraries/hours/choice.h"
#include "libraries/hours/choice_merge.h"
#include "libraries/hours/definition_text.h"
#include "libraries/hours/fingerprint.h"
#include "tests/core/hours_days.h"

namespace hours {
namespace {

constexpr double kJerusalemMetres = 754;
constexpr char kLine[] = "proportional-hours sea-level";

sun::PlaceSettings Jerusalem(double metres) {
  return PlaceAt(3147, 3514, 2, 0, metres);
}

// The elevation moves the sun's part of these alone.
bool IsBesideSunrise(const Definition& zman) {
  const Reckoning& reckoning = zman.reckoning;
  if (reckoning.thousandthHours != 0 && reckoning.thousandthHours != kDayThousandthHours) return false;
  const BoundKind kind = (reckoning.thousandthHours == 0 ? reckoning.day.start : reckoning.day.end).kind;
  return kind == BoundKind::kSun || kind == BoundKind::kMinutes || kind == BoundKind::kDawnParts;
}

// A place high up with hours at sea level has the sunrise of the high place and the hours of a low one.
TEST(HoursAtSeaLevel, AreThoseOfAPlaceWithoutElevationAndSunriseAndSunsetKeepIt) {
  const int32_t pesachEve = sun::UnixDayOfDate(1, 4, 2026);
  ZmanDay high = DayAt(pesachEve, Jerusalem(kJerusalemMetres));
  ZmanDay low = DayAt(pesachEve, Jerusalem(0));
  for (const CatalogueZman& zman : Catalogue()) {
    ZmanDay& expected = IsBesideSunrise(zman.definition) ? high : low;
    const Definition moved = WithHoursAtSeaLevel(zman.definition);
    EXPECT_EQ(high.UtcSeconds(moved).has_value(), expected.UtcSeconds(zman.definition).has_value()) << zman.id;
    EXPECT_EQ(high.UtcSeconds(moved), expected.UtcSeconds(zman.definition)) << zman.id;
    EXPECT_EQ(high.ClockMinute(moved), expected.ClockMinute(zman.definition)) << zman.id;
  }
}

// By hand: 754 m move sunrise and sunset by about 4.2 minutes each, so the third hour of a day between them by half of
// that; the Magen Avraham's likewise, and by a fifth more where his 72 minutes on either side are of that day.
TEST(HoursAtSeaLevel, MoveTheLatestShemaByTwoMinutesInJerusalem) {
  ZmanDay day = DayAt(sun::UnixDayOfDate(20, 3, 2026), Jerusalem(kJerusalemMetres));
  for (const auto& [id, seconds] :
       {std::pair{"shema-gra", 126.0}, {"shema-mga-72-min", 126.0}, {"shema-mga-72-zmanis", 126.0 * 1.2}}) {
    EXPECT_NEAR(*day.UtcSeconds(WithHoursAtSeaLevel(Zman(id))) - *day.UtcSeconds(Zman(id)), seconds, 6) << id;
  }
}

TEST(HoursAtSeaLevel, AreToldInTheDefinition) {
  const auto textOf = [](const char* id) { return DefinitionText(WithHoursAtSeaLevel(Zman(id))); };
  EXPECT_EQ(textOf("shema-gra"), "3 of the 12 hours from sunrise at sea level to sunset at sea level, rounded down");
  EXPECT_EQ(textOf("shema-mga-72-min"),
            "3 of the 12 hours from 72 minutes before sunrise at sea level to 72 minutes after sunset at sea level, "
            "rounded down");
  EXPECT_EQ(textOf("dawn-72-zmanis"), "72 zmanis minutes before sunrise at sea level, rounded down");
  EXPECT_EQ(textOf("midnight-half"),
            "half of the time from sunset at sea level to the next sunrise at sea level, rounded down");
  EXPECT_EQ(textOf("dawn-72-min"), "72 minutes before sunrise, rounded down");
  EXPECT_EQ(textOf("sunset"), "sunset, to the nearest minute");
  for (const CatalogueZman& zman : Catalogue()) {
    EXPECT_LE(DefinitionText(WithHoursAtSeaLevel(zman.definition)).size(), 165u) << zman.id;
  }
}

TEST(HoursAtSeaLevel, OfBothTimesOfAZmanAreMoved) {
  const Choice choice = ReadChoice(std::string(kLine) +
                                   "\nzman own-1\nzman own-2\n"
                                   "own 1 hours-gra 3 later hours-mga-72-min 3 down Later\n"
                                   "own 2 minutes-after-sunset 45 earlier zmanis-after-sunset 72 up Earlier\n");
  const std::vector<DescribedZman> chosen = ChosenZmanim(choice);
  ASSERT_EQ(chosen.size(), 2u);
  EXPECT_EQ(chosen[0].definition.notBefore->day.start, (Bound{BoundKind::kSeaLevelMinutes, 72000}));
  EXPECT_EQ(chosen[1].definition.reckoning.day.end, (Bound{BoundKind::kMinutes, 45000}));
  EXPECT_EQ(chosen[1].definition.notAfter->day.end, (Bound{BoundKind::kSeaLevelProportionalMinutes, 72000}));
}

TEST(HoursAtSeaLevel, AreALineOfTheFileThatIsReadAndWritten) {
  EXPECT_FALSE(ReadChoice("").areHoursAtSeaLevel);
  EXPECT_TRUE(ReadChoice("zman sunset\nproportional-hours sea-level\n").areHoursAtSeaLevel);
  EXPECT_FALSE(ReadChoice("proportional-hours elevation\nproportional-hours sea-level\n").areHoursAtSeaLevel);
  for (const char* line : {"proportional-hours", "proportional-hours sea-level ", "# proportional-hours sea-level",
                           "Proportional-hours sea-level", "proportional-hours  sea-level"}) {
    EXPECT_FALSE(ReadChoice(line).areHoursAtSeaLevel) << line;
  }
  Choice choice = ReadChoice("zman sunset\n");
  choice.areHoursAtSeaLevel = true;
  EXPECT_EQ(Applied(choice, "# mine\nzman sunset\n"), "# mine\nzman sunset\nproportional-hours sea-level\n");
  choice.areHoursAtSeaLevel = false;
  EXPECT_EQ(Applied(choice, "proportional-hours sea-level\nzman sunset\n"), "zman sunset\n");
}

TEST(HoursAtSeaLevel, AreAnotherSelectionByItsFingerprint) {
  Choice choice = ReadChoice("");
  const uint64_t before = FingerprintOf(ChosenZmanim(choice));
  choice.areHoursAtSeaLevel = true;
  EXPECT_NE(FingerprintOf(ChosenZmanim(choice)), before);
}

TEST(HoursAtSeaLevel, AreMergedAsTheSideThatChangedThemHasThem) {
  const auto never = [](const MergeConflict&) -> std::optional<Side> { return std::nullopt; };
  for (const bool base : {false, true}) {
    for (const bool isMineChanged : {false, true}) {
      for (const bool isTheirsChanged : {false, true}) {
        const Choice before = {{"sunrise", "sunset"}, {}, base};
        const Choice mine = {{"sunrise", "sunset", "midday"}, {}, base != isMineChanged};
        const Choice theirs = {{"dawn-16.1", "sunrise", "sunset"}, {}, base != isTheirsChanged};
        const std::optional<Choice> merged = MergedChoice(before, mine, theirs, never);
        ASSERT_TRUE(merged);
        EXPECT_EQ(merged->areHoursAtSeaLevel, base != (isMineChanged || isTheirsChanged));
      }
    }
  }
}

}  // namespace
}  // namespace hours
