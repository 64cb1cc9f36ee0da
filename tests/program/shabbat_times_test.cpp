// The calculation of Shabbat times on a plain window, the sun and the calendar scripted. Expected times are worked out
// by hand.
#include "app/compute_document.h"

#include <algorithm>

#include "engine/current.h"
#include "engine/properties.h"
#include "tests/program/program_fixture.h"
#include "win/scoped.h"
#include "zmanim/core/zmanim_block.h"
#include "zmanim/zmanim_in_use.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class ShabbatTimesTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    document_ = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(document_, nullptr);
  }
  void TearDown() override {
    DestroyWindow(document_);
    ProgramTest::TearDown();
  }

  void Calculate(const DateRange& range) {
    CurrentRange = range;
    CalculateShabbatTimes(document_, range.start.uDay, range.start.uMonth, range.start.uYear, range.end.uDay,
                          range.end.uMonth, range.end.uYear);
  }

  ShabbatTimeEntry FirstEntry() {
    Calculate({{5, 1, 2007}, {11, 1, 2007}});
    const auto entries = ShabbatTimesOf(document_);
    EXPECT_THAT(entries, SizeIs(1));
    return entries.empty() ? ShabbatTimeEntry{} : entries.front();
  }

  DoubledTime FirstCandles() {
    const ShabbatTimeEntry entry = FirstEntry();
    return {static_cast<int32_t>(entry.candleHour), static_cast<int32_t>(entry.candleMinute)};
  }

  DoubledTime FirstEnd() {
    const ShabbatTimeEntry entry = FirstEntry();
    return {static_cast<int32_t>(entry.endHour), static_cast<int32_t>(entry.endMinute)};
  }

  // The calls of the calculation that start with a prefix, those for the zmanim, which come first, left out.
  static std::vector<std::string> ShabbatCallsWith(const std::string& prefix) {
    auto& calls = CallLog();
    const auto zmanimDone = std::find(calls.begin(), calls.end(), "own times done");
    EXPECT_NE(zmanimDone, calls.end());
    calls.erase(calls.begin(), zmanimDone);
    return CallsWith(prefix);
  }

  void Set(const char* key, const char* value) {
    Libraries().settings[std::string("shabbat2.ini|Shabbat|") + key] = value;
  }

  HWND document_ = nullptr;
};

void SunsetAt(int32_t hour, int32_t minute) {
  Bound().sunset = [=](const CalendarDate&) { return DoubledTime{hour, minute}; };
}

#define EXPECT_TIME(time, expectedHour, expectedMinute) \
  do {                                                  \
    const DoubledTime actual = (time);                  \
    EXPECT_EQ(actual.hour, expectedHour);               \
    EXPECT_EQ(actual.minute, expectedMinute);           \
  } while (false)

}  // namespace

TEST_F(ShabbatTimesTest, RangeFromFridayToNextThursdayYieldsOneEntry) {
  Calculate({{5, 1, 2007}, {11, 1, 2007}});
  const auto entries = ShabbatTimesOf(document_);
  ASSERT_THAT(entries, SizeIs(1));
  EXPECT_EQ(entries[0].day, 5u);
  EXPECT_EQ(entries[0].month, 1u);
  EXPECT_EQ(entries[0].year, 2007u);
  EXPECT_EQ(GlobalSize(GetBlockProperty(document_, property::kShabbatTimes)), 40u);
}

TEST_F(ShabbatTimesTest, RangeWithoutFridayYieldsABlockOf76BytesThatCountsNone) {
  Calculate({{6, 1, 2007}, {11, 1, 2007}});
  const HGLOBAL block = GetBlockProperty(document_, property::kShabbatTimes);
  EXPECT_EQ(GlobalSize(block), 76u);
  EXPECT_EQ(ScopedGlobalLock<const ShabbatTimesList>(block)->count, 0u);
}

TEST_F(ShabbatTimesTest, RangeThatEndsBeforeItStartsYieldsNoneAndNoMessage) {
  Calculate({{12, 1, 2007}, {5, 1, 2007}});
  EXPECT_THAT(ShabbatTimesOf(document_), IsEmpty());
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
}

TEST_F(ShabbatTimesTest, EntriesStandInDateOrderOverYearsEnd) {
  Calculate({{22, 12, 2006}, {5, 1, 2007}});
  const auto entries = ShabbatTimesOf(document_);
  ASSERT_THAT(entries, SizeIs(3));
  EXPECT_EQ(entries[0].day, 22u);
  EXPECT_EQ(entries[1].day, 29u);
  EXPECT_EQ(entries[1].year, 2006u);
  EXPECT_EQ(entries[2].day, 5u);
  EXPECT_EQ(entries[2].year, 2007u);
}

TEST_F(ShabbatTimesTest, SunsetsOfFridayAndSaturdayAreAskedForThePlace) {
  CurrentLocation = {"South", -3352, -15112, -3, -30};
  Libraries().logZmanim = true;
  FirstEntry();
  EXPECT_THAT(ShabbatCallsWith("sunset"),
              ElementsAre("sunset 5.1.2007 -3352 -15112 -3:-30", "sunset 6.1.2007 -3352 -15112 -3:-30"));
}

TEST_F(ShabbatTimesTest, CandlesAreLitEighteenMinutesBeforeFridaysSunset) {
  SunsetAt(19, 5);
  EXPECT_TIME(FirstCandles(), 18, 47);
}

TEST_F(ShabbatTimesTest, CandleLightingWrapsToTheEveningOnTheSameEntry) {
  SunsetAt(0, 10);
  EXPECT_TIME(FirstCandles(), 23, 52);
  EXPECT_EQ(FirstEntry().day, 5u);
}

TEST_F(ShabbatTimesTest, CandleLightingFollowsThePreference) {
  Set("CandleLighting", "40");
  EXPECT_TIME(FirstCandles(), 18, 25);
}

TEST_F(ShabbatTimesTest, CandleLightingOfAbcReadsAsZeroMinutes) {
  Set("CandleLighting", "abc");
  EXPECT_TIME(FirstCandles(), 19, 5);
}

TEST_F(ShabbatTimesTest, EmptyCandleLightingReadsAsEighteenMinutes) {
  Set("CandleLighting", "");
  EXPECT_TIME(FirstCandles(), 18, 47);
}

TEST_F(ShabbatTimesTest, JerusalemLightsFortyMinutesBeforeWhateverThePreferenceSays) {
  Set("CandleLighting", "18");
  CurrentLocation = {"Jerusalem", 3147, 3513, 2, 0};
  ApplyCandleOverrideRule();
  EXPECT_TIME(FirstCandles(), 18, 25);
}

TEST_F(ShabbatTimesTest, JerusalemInLowerCaseGetsThePreference) {
  Set("CandleLighting", "18");
  CurrentLocation = {"jerusalem", 3147, 3513, 2, 0};
  ApplyCandleOverrideRule();
  EXPECT_TIME(FirstCandles(), 18, 47);
}

TEST_F(ShabbatTimesTest, SaturdaysSunsetStandsInTheEntry) {
  Bound().sunset = [](const CalendarDate& date) { return DoubledTime{16, static_cast<int32_t>(date.uDay)}; };
  const ShabbatTimeEntry entry = FirstEntry();
  EXPECT_EQ(entry.sunsetHour, 16u);
  EXPECT_EQ(entry.sunsetMinute, 6u);
}

TEST_F(ShabbatTimesTest, ShabbatEndsFortyFiveMinutesAfterSaturdaysSunset) {
  SunsetAt(23, 30);
  EXPECT_TIME(FirstEnd(), 0, 15);
  SunsetAt(17, 0);
  EXPECT_TIME(FirstEnd(), 17, 45);
}

TEST_F(ShabbatTimesTest, ShabbatEndsByThePreferredMinutes) {
  Set("End", "72");
  EXPECT_TIME(FirstEnd(), 20, 17);
  Set("End", "-10");
  EXPECT_TIME(FirstEnd(), 19, -5);
}

TEST_F(ShabbatTimesTest, DegreesMethodAddsTheIntervalOfSaturday) {
  Set("DoMinutes", "0");
  Libraries().twilightInterval = {0, 58};
  EXPECT_TIME(FirstEnd(), 20, 3);
  EXPECT_THAT(CallsWith("twilight"), ElementsAre("twilight 6.1.2007 8.00"));
}

TEST_F(ShabbatTimesTest, DegreesMethodFollowsAngleAndAddedMinutes) {
  Set("DoMinutes", "0");
  Set("DegreesBelowHorizon", "8.5");
  Set("AddMinutesAfterDegrees", "3");
  Libraries().twilightInterval = {0, 40};
  EXPECT_TIME(FirstEnd(), 19, 48);
  EXPECT_THAT(CallsWith("twilight"), ElementsAre("twilight 6.1.2007 8.50"));
}

TEST_F(ShabbatTimesTest, DegreesMethodLeavesAnHourOfTwentyFourWhenNothingIsCarriedAfterwards) {
  Set("DoMinutes", "0");
  SunsetAt(23, 30);
  Libraries().twilightInterval = {0, 40};
  EXPECT_TIME(FirstEnd(), 24, 10);
  Set("AddMinutesAfterDegrees", "50");
  EXPECT_TIME(FirstEnd(), 1, 0);
}

TEST_F(ShabbatTimesTest, CustomTimesAreTakenExactlyAndNoPreferenceIsReadForThem) {
  Libraries().customTimes["Haifa|5.1.2007"] = {{16, 20}, {17, 31}};
  Libraries().logSettings = true;
  Libraries().logZmanim = true;
  const ShabbatTimeEntry entry = FirstEntry();
  EXPECT_EQ(entry.candleHour, 16u);
  EXPECT_EQ(entry.candleMinute, 20u);
  EXPECT_EQ(entry.endHour, 17u);
  EXPECT_EQ(entry.endMinute, 31u);
  EXPECT_THAT(ShabbatCallsWith("read"), IsEmpty());
  EXPECT_THAT(ShabbatCallsWith("sunset"), IsEmpty());
}

TEST_F(ShabbatTimesTest, CustomTimesHoldForTheirOwnFridayOnly) {
  Libraries().customTimes["Haifa|12.1.2007"] = {{16, 20}, {17, 31}};
  Calculate({{5, 1, 2007}, {12, 1, 2007}});
  const auto entries = ShabbatTimesOf(document_);
  ASSERT_THAT(entries, SizeIs(2));
  EXPECT_EQ(entries[0].candleHour, 18u);
  EXPECT_EQ(entries[1].candleHour, 16u);
}

TEST_F(ShabbatTimesTest, PreferencesAreReadAfreshForEveryShabbatInTheirOrder) {
  Libraries().logSettings = true;
  Libraries().logZmanim = true;
  Set("DoMinutes", "0");
  Calculate({{5, 1, 2007}, {12, 1, 2007}});
  const std::string file = "read shabbat2.ini|Shabbat|";
  EXPECT_THAT(ShabbatCallsWith("read"),
              ElementsAre(file + "CandleLighting", file + "DoMinutes", file + "DegreesBelowHorizon",
                          file + "AddMinutesAfterDegrees", file + "CandleLighting", file + "DoMinutes",
                          file + "DegreesBelowHorizon", file + "AddMinutesAfterDegrees"));
}

TEST_F(ShabbatTimesTest, MoreThan32000FridaysAreReportedOnceAndCutTo32001) {
  Libraries().logZmanim = true;
  Libraries().zmanimCount = 1;
  Calculate({{7, 1, 1583}, {31, 12, 3000}});
  const auto entries = ShabbatTimesOf(document_);
  ASSERT_THAT(entries, SizeIs(32001));
  // 32,000 weeks after 7 January 1583 by Python's datetime.
  EXPECT_EQ(entries.back().day, 22u);
  EXPECT_EQ(entries.back().month, 4u);
  EXPECT_EQ(entries.back().year, 2196u);
  EXPECT_THAT(ShabbatCallsWith("message box"),
              ElementsAre("message box 'Too many shabbat times' caption 'Times / Readings' type 0x10 owner none"));
}

TEST_F(ShabbatTimesTest, AFridayWithoutAMonthEndsTheProcess) {
  Bound().spoilDate = [](CalendarDate& date) {
    if (date.uDay == 5) date.uMonth = 13;
  };
  FirstEntry();
  EXPECT_THAT(CallLog(),
              Contains("fatal exit 0 'CalculateShabbatTimes: dateCurrent.uMonth must be in the range 1-12'"));
}

TEST_F(ShabbatTimesTest, ASaturdayWithoutAMonthEndsTheProcess) {
  Bound().spoilDate = [](CalendarDate& date) {
    if (date.uDay == 6) date.uMonth = 0;
  };
  FirstEntry();
  EXPECT_THAT(CallsWith("fatal"),
              ElementsAre("fatal exit 0 'CalculateShabbatTimes: dateNext.uMonth must be in the range 1-12'"));
}

TEST_F(ShabbatTimesTest, TheZmanimOfTheRangeAreComputedForThePlaceOnTheWindow) {
  Libraries().ownTimes["Haifa|Zman 0|6.1.2007"] = {4, 44};
  Calculate({{5, 1, 2007}, {6, 1, 2007}});
  const ScopedGlobalLock<const ZmanimBlock> block(GetBlockProperty(document_, property::kZmanimTimes));
  ASSERT_TRUE(block);
  ASSERT_EQ(block->count, 2u);
  const ZmanimDay* const days = block->days;
  EXPECT_EQ(days[0].times[0], (ClockTime{6, 0}));
  EXPECT_EQ(days[1].times[0], (ClockTime{4, 44}));
}

TEST_F(ShabbatTimesTest, PlaceAndRangeAreRecordedOnTheWindow) {
  CurrentLocation = {"South", -3352, -15112, -3, -30};
  Calculate({{5, 1, 2007}, {11, 2, 2008}});
  EXPECT_STREQ(ScopedGlobalLock<const char>(GetBlockProperty(document_, property::kCity)).get(), "South");
  EXPECT_EQ(GlobalSize(GetBlockProperty(document_, property::kCity)), 256u);
  EXPECT_EQ(GetIntegerProperty(document_, "StartDay"), 5);
  EXPECT_EQ(GetIntegerProperty(document_, "StartMonth"), 1);
  EXPECT_EQ(GetIntegerProperty(document_, "StartYear"), 2007);
  EXPECT_EQ(GetIntegerProperty(document_, "EndDay"), 11);
  EXPECT_EQ(GetIntegerProperty(document_, "EndMonth"), 2);
  EXPECT_EQ(GetIntegerProperty(document_, "EndYear"), 2008);
  EXPECT_EQ(GetIntegerProperty(document_, "Latitude"), -3352);
  EXPECT_EQ(GetIntegerProperty(document_, "Longitude"), -15112);
  EXPECT_EQ(GetIntegerProperty(document_, "TimeZone"), -3);
  EXPECT_EQ(GetIntegerProperty(document_, "TimeZoneMin"), -30);
}

TEST_F(ShabbatTimesTest, ASecondCalculationFreesTheBlocksOfTheFirst) {
  FirstEntry();
  EXPECT_THAT(System().blocks, SizeIs(4));  // City, ZmanimTimes, ZmanimLabels and ShabbatTimes
  FirstEntry();
  EXPECT_THAT(System().blocks, SizeIs(4));
}

TEST_F(ShabbatTimesTest, TheCursorIsPutBack) {
  const HCURSOR before = SetCursor(LoadCursor(nullptr, IDC_CROSS));
  FirstEntry();
  EXPECT_EQ(SetCursor(before), LoadCursor(nullptr, IDC_CROSS));
}
