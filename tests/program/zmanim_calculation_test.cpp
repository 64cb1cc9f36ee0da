// The zmanim of a document's days on a plain window, sun, zmanim and custom times scripted.
#include <iterator>

#include "engine/current.h"
#include "engine/properties.h"
#include "engine/string_table.h"
#include "tests/program/program_fixture.h"
#include "win/scoped.h"
#include "zmanim/calculate_zmanim.h"
#include "zmanim/core/builtin_zmanim.h"
#include "zmanim/core/zmanim_block.h"
#include "zmanim/custom_zmanim.h"
#include "zmanim/zmanim_in_use.h"

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

constexpr CalendarDate kFriday{5, 1, 2007};
constexpr CalendarDate kSaturday{6, 1, 2007};

class ZmanimCalculationTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    document_ = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(document_, nullptr);
    SetPlace("Haifa");
  }
  void TearDown() override {
    FreeBlockProperty(document_, property::kCity);
    FreeBlockProperty(document_, property::kZmanimTimes);
    FreeBlockProperty(document_, property::kZmanimLabels);
    DestroyWindow(document_);
    EXPECT_EQ(Libraries().openOwnTimes, 0);
    EXPECT_EQ(System().locks, 0);
    ProgramTest::TearDown();
  }

  void SetPlace(const char* name) {
    const HGLOBAL city = GlobalAlloc(GMEM_MOVEABLE, kTextSize);
    lstrcpyA(ScopedGlobalLock<char>(city).get(), name);
    ReplaceBlockProperty(document_, property::kCity, city);
  }
  void UseLibraryZmanim(uint32_t count) {
    Libraries().zmanimCount = count;
    CallLog().clear();
  }
  static void UseBuiltInZmanim() { Libraries().settings["shab30.ini|Settings|EnableZmanim"] = "0"; }

  std::vector<ZmanimDay> Calculate(const CalendarDate& start, const CalendarDate& end) {
    CalculateZmanim(document_, start.uDay, start.uMonth, start.uYear, end.uDay, end.uMonth, end.uYear);
    const ScopedGlobalLock<const ZmanimBlock> block(GetBlockProperty(document_, property::kZmanimTimes));
    if (!block) return {};
    return {block->days, block->days + block->count};
  }

  HWND document_ = nullptr;
};

}  // namespace

TEST_F(ZmanimCalculationTest, EveryDayOfTheRangeHasItsRecordInOrder) {
  const auto days = Calculate({30, 12, 2006}, {2, 1, 2007});
  ASSERT_THAT(days, SizeIs(4));
  EXPECT_EQ(days[0].date.uDay, 30u);
  EXPECT_EQ(days[1].date.uDay, 31u);
  EXPECT_EQ(days[2].date.uDay, 1u);
  EXPECT_EQ(days[2].date.uMonth, 1u);
  EXPECT_EQ(days[2].date.uYear, 2007u);
  EXPECT_EQ(days[3].date.uDay, 2u);
  EXPECT_EQ(GlobalSize(GetBlockProperty(document_, property::kZmanimTimes)), 4u + 4u * 812u);
}

TEST_F(ZmanimCalculationTest, AnEmptyRangeReplacesTheBlockByOneThatCountsNone) {
  Calculate(kFriday, kSaturday);
  EXPECT_THAT(Calculate(kSaturday, kFriday), IsEmpty());
  EXPECT_EQ(GlobalSize(GetBlockProperty(document_, property::kZmanimTimes)), 4u);
  EXPECT_THAT(System().blocks, SizeIs(3));  // the place, the new block and its labels
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
}

TEST_F(ZmanimCalculationTest, ARangeOf32001DaysIsReportedOnceAndKeptWhole) {
  UseLibraryZmanim(1);
  const auto days = Calculate({1, 1, 1990}, {12, 8, 2077});  // 32,001 days by Python's datetime
  EXPECT_THAT(days, SizeIs(32001));
  EXPECT_EQ(days.back().date.uDay, 12u);
  EXPECT_EQ(days.back().date.uYear, 2077u);
  EXPECT_THAT(CallsWith("message box"),
              ElementsAre("message box 'Too many shabbat times' caption 'Times / Readings' type 0x10 owner none"));
}

TEST_F(ZmanimCalculationTest, ALongerRangeIsReportedOnceAndCutTo32001Days) {
  UseLibraryZmanim(1);
  const auto days = Calculate({1, 1, 1990}, {31, 12, 2999});
  ASSERT_THAT(days, SizeIs(32001));
  EXPECT_EQ(days.back().date.uDay, 12u);
  EXPECT_EQ(days.back().date.uMonth, 8u);
  EXPECT_EQ(days.back().date.uYear, 2077u);
  EXPECT_THAT(CallsWith("message box"), SizeIs(1));
}

TEST_F(ZmanimCalculationTest, ARangeOf32000DaysIsNotTooLong) {
  UseLibraryZmanim(1);
  EXPECT_THAT(Calculate({1, 1, 1990}, {11, 8, 2077}), SizeIs(32000));
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
}

TEST_F(ZmanimCalculationTest, TheLibraryIsAskedForEveryZmanWithPlaceDateAndSun) {
  UseLibraryZmanim(2);
  CurrentLocation = {"South", -3352, -15112, -3, -30};
  Libraries().logZmanim = true;
  Calculate(kFriday, kFriday);
  EXPECT_THAT(
      CallLog(),
      ElementsAre("own times loaded", "sunrise 5.1.2007 -3352 -15112 -3:-30", "sunset 5.1.2007 -3352 -15112 -3:-30",
                  "own time asked for Zman 0", "zman 0 of 5.1.2007 at -3352 -15112 -3:-30 sun 5:47 19:5 window yes",
                  "own time asked for Zman 1", "zman 1 of 5.1.2007 at -3352 -15112 -3:-30 sun 5:47 19:5 window yes",
                  "own times done"));
}

TEST_F(ZmanimCalculationTest, MinutesAfterMidnightBecomeHourAndMinute) {
  UseLibraryZmanim(4);
  Libraries().zmanMinutes = [](uint32_t index, const CalendarDate&) {
    constexpr int32_t kMinutes[] = {0, 59, 60, 1439};
    return kMinutes[index];
  };
  const auto days = Calculate(kFriday, kFriday);
  EXPECT_EQ(days[0].times[0], (ClockTime{0, 0}));
  EXPECT_EQ(days[0].times[1], (ClockTime{0, 59}));
  EXPECT_EQ(days[0].times[2], (ClockTime{1, 0}));
  EXPECT_EQ(days[0].times[3], (ClockTime{23, 59}));
}

TEST_F(ZmanimCalculationTest, AZmanThatDoesNotOccurOnADayHasTheMarkAndTheNextDayIsComputed) {
  UseLibraryZmanim(2);
  Libraries().zmanMinutes = [](uint32_t index, const CalendarDate& date) {
    if (index == 0) return date.uDay == 5 ? -1 : 300;
    return date.uDay == 5 ? -77 : 301;
  };
  const auto days = Calculate(kFriday, kSaturday);
  EXPECT_EQ(days[0].times[0], (ClockTime{2000, 0}));
  EXPECT_EQ(days[0].times[1], (ClockTime{2000, 0}));
  EXPECT_EQ(days[1].times[0], (ClockTime{5, 0}));
  EXPECT_EQ(days[1].times[1], (ClockTime{5, 1}));
}

TEST_F(ZmanimCalculationTest, ACustomTimeReplacesExactlyItsDayZmanAndPlace) {
  UseLibraryZmanim(2);
  Libraries().ownTimes["Haifa|Zman 1|5.1.2007"] = {4, 44};
  auto days = Calculate(kFriday, kSaturday);
  EXPECT_EQ(days[0].times[0], (ClockTime{6, 0}));
  EXPECT_EQ(days[0].times[1], (ClockTime{4, 44}));
  EXPECT_EQ(days[1].times[1], (ClockTime{6, 10}));
  SetPlace("Aachen");
  days = Calculate(kFriday, kSaturday);
  EXPECT_EQ(days[0].times[1], (ClockTime{6, 10}));
}

TEST_F(ZmanimCalculationTest, ThePlaceOfCustomTimesIsTheDocuments) {
  UseLibraryZmanim(1);
  Libraries().ownTimes["Haifa|Zman 0|5.1.2007"] = {4, 44};
  CurrentLocation = {"Elsewhere", 0, 0, 0, 0};
  EXPECT_EQ(Calculate(kFriday, kFriday)[0].times[0], (ClockTime{4, 44}));
}

TEST_F(ZmanimCalculationTest, ACustomTimeIsCopiedAsTheStoreGivesIt) {
  UseLibraryZmanim(2);
  Libraries().ownTimes["Haifa|Zman 0|5.1.2007"] = {1000, 7};
  Libraries().ownTimes["Haifa|Zman 1|5.1.2007"] = {25, 61};
  const auto days = Calculate(kFriday, kFriday);
  EXPECT_EQ(days[0].times[0], (ClockTime{1000, 7}));
  EXPECT_EQ(days[0].times[1], (ClockTime{25, 61}));
}

TEST_F(ZmanimCalculationTest, WithoutADescriptionTheStoreIsNotConsulted) {
  UseLibraryZmanim(1);
  Libraries().zmanNames[0] = "";
  Libraries().logZmanim = true;
  EXPECT_EQ(Calculate(kFriday, kFriday)[0].times[0], (ClockTime{6, 0}));
  EXPECT_THAT(CallsWith("own time asked"), IsEmpty());
}

TEST_F(ZmanimCalculationTest, TheSlotsBeyondTheSelectionShowNoTime) {
  UseLibraryZmanim(3);
  const auto days = Calculate(kFriday, kFriday);
  EXPECT_EQ(days[0].times[2], (ClockTime{6, 20}));
  for (uint32_t zman = 3; zman < 100; ++zman) EXPECT_EQ(days[0].times[zman], (ClockTime{2000, 0})) << zman;
}

TEST_F(ZmanimCalculationTest, ASelectionOfMoreThanAHundredCountsAsAHundred) {
  UseLibraryZmanim(130);
  EXPECT_EQ(GetZmanimCount(), 100u);
  const auto days = Calculate(kFriday, kFriday);
  EXPECT_EQ(days[0].times[99], (ClockTime{22, 30}));  // 360 + 990 minutes
}

TEST_F(ZmanimCalculationTest, TheCountIsWhatTheLibraryAnswersNow) {
  UseLibraryZmanim(25);
  EXPECT_EQ(GetZmanimCount(), 25u);
  Libraries().zmanimCount = 40;
  EXPECT_EQ(GetZmanimCount(), 40u);
  UseBuiltInZmanim();
  EXPECT_EQ(GetZmanimCount(), 19u);
}

TEST_F(ZmanimCalculationTest, FlagAndCountAreReadOncePerCalculation) {
  UseLibraryZmanim(40);
  Libraries().logSettings = true;
  const auto questionsOf = [this](const CalendarDate& end) {
    CallLog().clear();
    Libraries().zmanimCountQuestions = 0;
    Calculate({1, 1, 2007}, end);
    EXPECT_THAT(CallsWith("read"), ElementsAre("read shab30.ini|Settings|EnableZmanim"));
    return Libraries().zmanimCountQuestions;
  };
  EXPECT_EQ(questionsOf({31, 1, 2007}), questionsOf({1, 1, 2007}));
}

TEST_F(ZmanimCalculationTest, BuiltInZmanimFollowFromTheSun) {
  UseBuiltInZmanim();
  Bound().sunset = [](const CalendarDate&) { return DoubledTime{19, 13}; };
  Libraries().twilightIntervals = {{11, {0, 50}}, {10.2, {0, 46}}, {5.95, {0, 26}}, {7.5, {0, 33}}, {8.75, {0, 39}}};
  const auto days = Calculate(kFriday, kFriday);
  constexpr ClockTime kExpected[] = {{4, 35},  {4, 57},  {5, 1},   {5, 47},  {8, 32}, {9, 8},   {9, 51},
                                     {10, 15}, {12, 30}, {12, 30}, {13, 3},  {13, 9}, {16, 25}, {17, 7},
                                     {19, 13}, {19, 39}, {19, 46}, {19, 52}, {20, 25}};
  for (std::size_t zman = 0; zman < std::size(kExpected); ++zman) {
    EXPECT_EQ(days[0].times[zman], kExpected[zman]) << zman;
  }
  for (uint32_t zman = 19; zman < 100; ++zman) EXPECT_EQ(days[0].times[zman], (ClockTime{2000, 0})) << zman;
  EXPECT_THAT(CallsWith("twilight"),
              ElementsAre("twilight 5.1.2007 11.00", "twilight 5.1.2007 10.20", "twilight 5.1.2007 5.95",
                          "twilight 5.1.2007 7.50", "twilight 5.1.2007 8.75"));
}

TEST_F(ZmanimCalculationTest, BuiltInZmanimUseNoCustomTimeThoughOneIsStored) {
  UseBuiltInZmanim();
  Libraries().ownTimes["Haifa|Shkia|5.1.2007"] = {4, 44};
  Libraries().ownTimes["Haifa|Zman 14|5.1.2007"] = {4, 44};
  Libraries().logZmanim = true;
  EXPECT_EQ(Calculate(kFriday, kFriday)[0].times[14], (ClockTime{19, 5}));
  EXPECT_THAT(CallsWith("own time"), IsEmpty());
  EXPECT_THAT(CallsWith("zman"), IsEmpty());
}

TEST_F(ZmanimCalculationTest, EveryDayHasItsOwnSun) {
  UseBuiltInZmanim();
  Bound().sunrise = [](const CalendarDate& date) { return DoubledTime{5, static_cast<int32_t>(date.uDay)}; };
  Bound().sunset = [](const CalendarDate& date) { return DoubledTime{19, static_cast<int32_t>(date.uDay)}; };
  const auto days = Calculate(kFriday, kSaturday);
  EXPECT_EQ(days[0].times[3], (ClockTime{5, 5}));
  EXPECT_EQ(days[1].times[3], (ClockTime{5, 6}));
  EXPECT_EQ(days[1].times[18], (ClockTime{20, 18}));
}

TEST_F(ZmanimCalculationTest, ALateSunsetPassesMidnightOnTheSameRecord) {
  UseBuiltInZmanim();
  Bound().sunset = [](const CalendarDate&) { return DoubledTime{22, 48}; };
  const auto days = Calculate(kFriday, kFriday);
  EXPECT_EQ(days[0].times[18], (ClockTime{0, 0}));
  EXPECT_EQ(days[0].date.uDay, 5u);
}

TEST_F(ZmanimCalculationTest, ASunriseBeforeTwelveMinutesPastOneMakesDawnAMeaninglessLargeHour) {
  UseBuiltInZmanim();
  Bound().sunrise = [](const CalendarDate&) { return DoubledTime{1, 11}; };
  EXPECT_EQ(Calculate(kFriday, kFriday)[0].times[0], (ClockTime{71582788, 15}));
}

TEST_F(ZmanimCalculationTest, StoringACustomTimeWritesItsKeyAndReleasesTheStore) {
  EXPECT_TRUE(SetCustomZman(kFriday, 3, "Haifa", {4, 44}));
  EXPECT_THAT(CallLog(), ElementsAre("own time set Haifa|Zman 3|5.1.2007 = 4:44", "own times stored"));
  ASSERT_THAT(Libraries().ownTimes, SizeIs(1));
  EXPECT_EQ(Libraries().ownTimes.begin()->first, "Haifa|Zman 3|5.1.2007");
}

TEST_F(ZmanimCalculationTest, StoringWithoutADescriptionDoesNothing) {
  Libraries().zmanNames[3] = "";
  EXPECT_FALSE(SetCustomZman(kFriday, 3, "Haifa", {4, 44}));
  EXPECT_THAT(CallLog(), IsEmpty());
}

TEST_F(ZmanimCalculationTest, AStoreThatCannotBeWrittenIsAFailure) {
  Libraries().ownTimesFail = true;
  EXPECT_FALSE(SetCustomZman(kFriday, 3, "Haifa", {4, 44}));
  EXPECT_THAT(Libraries().ownTimes, IsEmpty());
}

TEST_F(ZmanimCalculationTest, TheBuiltInZmanimHaveTheirNames) {
  const char* const expected[] = {"Alot HaShachar (Rabbi Moshe Feinstein)",
                                  "Earliest Tallit (11 degrees below horizon)",
                                  "Earliest Tallit (10.2 degrees below horizon)",
                                  "HaNetz HaChama",
                                  "Kriat Shema (M\"A)",
                                  "Kriat Shema (GR\"O)",
                                  "Tefila (M\"A)",
                                  "Tefila (GR\"O)",
                                  "Chatzot (GR\"O)",
                                  "Chatzot (M\"A)",
                                  "Mincha Gedola (GR\"O)",
                                  "Mincha Gedola (M\"A)",
                                  "Mincha K'tana (GR\"O)",
                                  "Mincha K'tana (M\"A)",
                                  "Shkia",
                                  "Ba'al HaTanya",
                                  "3 Medium Stars",
                                  "3 Small Stars",
                                  "Tzait HaChochavim (Rabbeinu Tam)"};
  for (unsigned i = 0; i < std::size(expected); ++i) EXPECT_STREQ(TableString(64 + i), expected[i]);
}
