// Documents as tables.
#include "app/core/document_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "tests/core/app_document_fixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

constexpr uint32_t kEnglish = 1;
constexpr uint32_t kHebrew = 4;

// Each row as its texts; a month's as "# text".
std::vector<std::vector<std::string>> RowsOf(const publishing::Table& table) {
  std::vector<std::vector<std::string>> rows;
  publishing::ForEachRow(table, [&](const publishing::Row& row) {
    rows.push_back(row.cells);
    if (row.kind == publishing::RowKind::kGroup) rows.back() = {"# " + row.cells[0]};
  });
  return rows;
}

std::vector<std::string> HeadingsOf(const publishing::Table& table) {
  std::vector<std::string> headings;
  for (const publishing::Column& column : table.columns) headings.push_back(column.heading);
  return headings;
}

DocumentFixture Weekend() {
  return {{5, 1, 2007}, {7, 1, 2007}};
}

}  // namespace

TEST(DocumentTable, ShabbatTimesHaveARowForEachFriday) {
  DocumentFixture document({5, 1, 2007}, {13, 1, 2007});
  document.AddReadings({6, 1, 2007}, "Vayechi: Genesis 47:28-50:26");
  const publishing::Table table = DocumentTable(document.source, {.kind = DocumentKind::kShabbatTimes});
  EXPECT_EQ(table.title, "Shabbat times: Aachen");
  EXPECT_THAT(table.remarks, ElementsAre("05.01.2007 - 13.01.2007 (15 month 10 5767 - 23 month 10 5767)"));
  EXPECT_THAT(HeadingsOf(table),
              ElementsAre("Friday", "Candle lighting", "Shabbat", "Jewish date", "Portion", "End of Shabbat"));
  EXPECT_THAT(RowsOf(table),
              ElementsAre(ElementsAre("05.01.2007", "16:27", "06.01.2007", "16 month 10 5767", "Vayechi", "17:31"),
                          ElementsAre("12.01.2007", "16:27", "13.01.2007", "23 month 10 5767", "", "17:31")));
  EXPECT_FALSE(table.rightToLeft);
  EXPECT_EQ(table.language, "en");
  EXPECT_EQ(table.runningHead, "Shabbat times: Aachen, 05.01.2007 - 13.01.2007");
}

TEST(DocumentTable, WeeksHaveTheChosenZmanimOfTheShabbatBeforeItsEnd) {
  DocumentFixture document({5, 1, 2007}, {7, 1, 2007}, 3);
  const publishing::Table table = DocumentTable(document.source, {.kind = DocumentKind::kWeeks, .zmanim = {0, 2}});
  EXPECT_THAT(HeadingsOf(table), ElementsAre("Friday", "Candle lighting", "Shabbat", "Jewish date", "Portion", "Z0",
                                             "Z2", "End of Shabbat"));
  EXPECT_THAT(RowsOf(table), ElementsAre(ElementsAre("05.01.2007", "16:27", "06.01.2007", "16 month 10 5767", "",
                                                     "07:02", "09:02", "17:31")));
}

TEST(DocumentTable, TheShabbatAfterARangeThatEndsOnFridayHasNoZmanim) {
  const DocumentFixture document({5, 1, 2007}, {5, 1, 2007});
  const publishing::Table table = DocumentTable(document.source, {.kind = DocumentKind::kWeeks, .zmanim = {0}});
  EXPECT_THAT(RowsOf(table),
              ElementsAre(ElementsAre("05.01.2007", "16:27", "06.01.2007", "16 month 10 5767", "", "", "17:31")));
}

TEST(DocumentTable, TheShabbatAfterARangeThatEndsOnFridayHasItsPortion) {
  DocumentFixture document({5, 1, 2007}, {5, 1, 2007});
  ReadingsEntry entry{};
  entry.date = {6, 1, 2007};
  std::strcpy(entry.torah1, "Vayechi: Genesis 47:28-50:26");
  document.source.shabbatAfter = {entry};
  EXPECT_THAT(RowsOf(DocumentTable(document.source, {.kind = DocumentKind::kShabbatTimes})),
              ElementsAre(Contains("Vayechi")));
  EXPECT_THAT(RowsOf(DocumentTable(document.source, {.kind = DocumentKind::kReadings})), IsEmpty());
}

TEST(DocumentTable, TheShabbatThatARangeBeginsWithHasItsEnd) {
  DocumentFixture document({6, 1, 2007}, {7, 1, 2007});
  document.source.fridayBefore = {{5, 1, 2007, 16, 27, 16, 46, 17, 33}};
  const std::vector<std::vector<std::string>> rows =
      RowsOf(DocumentTable(document.source, {.kind = DocumentKind::kDays}));
  ASSERT_THAT(rows, SizeIs(2));
  EXPECT_EQ(rows[0].back(), "17:33");
  EXPECT_EQ(rows[1].back(), "");
  EXPECT_THAT(RowsOf(DocumentTable(document.source, {.kind = DocumentKind::kShabbatTimes})), IsEmpty());
}

// As the readings library words Chanukah where the customs read different verses.
TEST(DocumentTable, APortionIsNamedWithoutCustoms) {
  DocumentFixture document({5, 1, 2007}, {6, 1, 2007});
  document.source.customs = {"Ashkenazi", "Sephardi", "Chabad", ""};
  document.AddReadings({5, 1, 2007}, "Chanukah, day 1, Ashkenazi, Chabad: Numbers 7:1-17");
  document.AddReadings({6, 1, 2007}, "Pesach, day 7, Shabbat: Exodus 13:17-15:26");
  EXPECT_EQ(PortionOf(document.source, {5, 1, 2007}), "Chanukah, day 1");
  EXPECT_EQ(PortionOf(document.source, {6, 1, 2007}), "Pesach, day 7, Shabbat");
}

TEST(DocumentTable, DaysHaveCandleLightingOnFridayAndTheEndOnABoldShabbat) {
  DocumentFixture document = Weekend();
  document.AddReadings({6, 1, 2007}, "Vayechi: Genesis 47:28-50:26");
  const publishing::Table table = DocumentTable(document.source, {.kind = DocumentKind::kDays, .zmanim = {1}});
  EXPECT_THAT(HeadingsOf(table),
              ElementsAre("Day", "Date", "Jewish date", "Portion", "Candle lighting", "Z1", "End of Shabbat"));
  EXPECT_THAT(RowsOf(table),
              ElementsAre(ElementsAre("weekday 5", "05.01.2007", "15 month 10 5767", "", "16:27", "08:01", ""),
                          ElementsAre("weekday 6", "06.01.2007", "16 month 10 5767", "Vayechi", "", "08:02", "17:31"),
                          ElementsAre("weekday 0", "07.01.2007", "17 month 10 5767", "", "", "08:03", "")));
  publishing::Row row;
  for (const std::size_t day : {0u, 1u, 2u}) {
    table.rows->Read(day, row);
    EXPECT_EQ(row.isBold, day == 1) << day;
  }
}

TEST(DocumentTable, ZmanimAreInTheirOrderWithMarksWhereThereIsNoTime) {
  DocumentFixture document = Weekend();
  document.days[0].times[1] = kNoTime;
  document.days[1].times[0] = {kUnknownTimeHour, 0};
  document.days[2].times[1] = {25, 18};
  DocumentChoice choice{.kind = DocumentKind::kZmanim, .zmanim = {0, 1}};
  EXPECT_THAT(RowsOf(DocumentTable(document.source, choice)),
              ElementsAre(ElementsAre("weekday 5", "05.01.2007", "15 month 10 5767", "07:01", "----"),
                          ElementsAre("weekday 6", "06.01.2007", "16 month 10 5767", "??:??", "08:02"),
                          ElementsAre("weekday 0", "07.01.2007", "17 month 10 5767", "07:03", "01:18 (+1)")));
  EXPECT_THAT(DocumentTable(document.source, choice).notes,
              ElementsAre("All times are those of the clock in force at the place, summer time included.",
                          "----: does not occur on that day.", "(+1): the next day."));
  choice.zmanim = {0};
  EXPECT_EQ(DocumentTable(document.source, choice).notes.size(), 1u) << "the missing one is not in it";
}

// In the far north dawn can be before midnight, and midnight after it.
TEST(DocumentTable, TimesOfAnotherDaySaySo) {
  DocumentFixture document({5, 1, 2007}, {5, 1, 2007}, 4);
  document.days[0].times[0] = {23, 2};
  document.days[0].times[1] = {0, 36};
  document.days[0].times[2] = {23, 49};
  document.services.dayOffsets = {{0, -1}, {1, 1}, {3, 1}};
  const publishing::Table table =
      DocumentTable(document.source, {.kind = DocumentKind::kZmanim, .zmanim = {0, 1, 2, 3}});
  EXPECT_THAT(RowsOf(table), ElementsAre(ElementsAre("weekday 5", "05.01.2007", "15 month 10 5767", "23:02 (-1)",
                                                     "00:36 (+1)", "23:49", "10:01")))
      << "of a time by day the libraries are not asked";
  EXPECT_THAT(table.notes, ElementsAre("All times are those of the clock in force at the place, summer time included.",
                                       "(+1): the next day.", "(-1): the day before."));
}

TEST(DocumentTable, ASpreadsheetHasNothingForMissingTimesAndDatesAsItLikes) {
  DocumentFixture document = Weekend();
  document.days[0].times[0] = kNoTime;
  document.days[1].times[0] = {kUnknownTimeHour, 0};
  const DocumentChoice choice{.kind = DocumentKind::kZmanim, .zmanim = {0}, .forSpreadsheet = true, .isoDates = true};
  EXPECT_THAT(RowsOf(DocumentTable(document.source, choice)),
              ElementsAre(ElementsAre("weekday 5", "2007-01-05", "15 month 10 5767", ""),
                          ElementsAre("weekday 6", "2007-01-06", "16 month 10 5767", ""),
                          ElementsAre("weekday 0", "2007-01-07", "17 month 10 5767", "07:03")));
}

TEST(DocumentTable, ReadingsHaveTheirSlotsInLines) {
  DocumentFixture document = Weekend();
  document.AddReadings({6, 1, 2007}, "Vayechi: Genesis 47:28-50:26", "Second", "I Kings 2:1-12", "Extra", true);
  const publishing::Table table = DocumentTable(document.source, {.kind = DocumentKind::kReadings});
  EXPECT_THAT(HeadingsOf(table), ElementsAre("Date", "Day", "Jewish date", "Torah", "Haftarah", "Yizkor"));
  EXPECT_THAT(RowsOf(table),
              ElementsAre(ElementsAre("06.01.2007", "weekday 6", "16 month 10 5767",
                                      "Vayechi: Genesis 47:28-50:26\nSecond\nExtra", "I Kings 2:1-12", "Yizkor")));
  EXPECT_THAT(table.notes, IsEmpty());
}

TEST(DocumentTable, ADocumentWithoutAnythingHasNoRows) {
  DocumentFixture document({7, 1, 2007}, {7, 1, 2007});
  EXPECT_EQ(DocumentTable(document.source, {.kind = DocumentKind::kShabbatTimes}).rows->Count(), 0u);
  EXPECT_EQ(DocumentTable(document.source, {.kind = DocumentKind::kReadings}).rows->Count(), 0u);
  document.days.clear();
  document.Refresh();
  EXPECT_EQ(DocumentTable(document.source, {.kind = DocumentKind::kDays}).rows->Count(), 0u);
}

TEST(DocumentTable, LongRangesHaveARowAboveEachMonth) {
  const DocumentFixture document({30, 12, 2006}, {2, 3, 2007});  // 63 days
  const publishing::Table table = DocumentTable(document.source, {.kind = DocumentKind::kZmanim, .zmanim = {0}});
  const auto rows = RowsOf(table);
  ASSERT_EQ(rows.size(), 63u + 4u);
  EXPECT_THAT(rows[0], ElementsAre("# civil 12 2006"));
  EXPECT_EQ(rows[1][1], "30.12.2006");
  EXPECT_EQ(rows[2][1], "31.12.2006");
  EXPECT_THAT(rows[3], ElementsAre("# civil 1 2007"));
  EXPECT_EQ(rows[4][1], "01.01.2007");
  EXPECT_EQ(rows[34][1], "31.01.2007");
  EXPECT_THAT(rows[35], ElementsAre("# civil 2 2007"));
  EXPECT_THAT(rows[64], ElementsAre("# civil 3 2007"));
  EXPECT_EQ(rows[66][1], "02.03.2007");
}

TEST(DocumentTable, RangesOfTwoMonthsAndSpreadsheetsHaveNoRowsForMonths) {
  const DocumentFixture two({30, 12, 2006}, {1, 3, 2007});
  EXPECT_EQ(DocumentTable(two.source, {.kind = DocumentKind::kZmanim}).rows->Count(), 62u);
  const DocumentFixture longer({30, 12, 2006}, {2, 3, 2007});
  const DocumentChoice choice{.kind = DocumentKind::kZmanim, .forSpreadsheet = true};
  EXPECT_EQ(DocumentTable(longer.source, choice).rows->Count(), 63u);
}

TEST(DocumentTable, TheDoorPageIsShortAndAlwaysHasMonths) {
  DocumentFixture document({26, 1, 2007}, {2, 2, 2007});
  document.AddReadings({27, 1, 2007}, "Bo: Exodus 10:1-13:16");
  const publishing::Table table = DocumentTable(document.source, {.kind = DocumentKind::kDoorPage});
  EXPECT_THAT(HeadingsOf(table), ElementsAre("Friday", "Portion", "Candle lighting", "End of Shabbat"));
  EXPECT_THAT(RowsOf(table), ElementsAre(ElementsAre("# civil 1 2007"), ElementsAre("26.01.", "Bo", "16:27", "17:31"),
                                         ElementsAre("# civil 2 2007"), ElementsAre("02.02.", "", "16:27", "17:31")));
}

TEST(DocumentTable, InHebrewItGoesFromTheRightWithHebrewNames) {
  DocumentFixture document = Weekend();
  const publishing::Table table = DocumentTable(
      document.source, {.kind = DocumentKind::kZmanim, .zmanim = {0, 1}, .language = kHebrew, .hebrewZmanim = true});
  EXPECT_TRUE(table.rightToLeft);
  EXPECT_EQ(table.language, "he");
  EXPECT_EQ(table.title, "זמני היום: Aachen");
  EXPECT_THAT(HeadingsOf(table), ElementsAre("יום", "תאריך", "תאריך עברי", "זמן", "Z1"))
      << "a name that is blank is the English one";
  EXPECT_EQ(RowsOf(table)[1][2], "ט״ז בmonth 10 תשס״ז");
}

TEST(DocumentTable, ARangeThatWasCutEndsWithItsLastDay) {
  DocumentFixture document = Weekend();
  document.days.pop_back();
  document.Refresh();
  EXPECT_THAT(DocumentTable(document.source, {.kind = DocumentKind::kDays, .language = kEnglish}).remarks,
              ElementsAre("05.01.2007 - 06.01.2007 (15 month 10 5767 - 16 month 10 5767)"));
}

namespace {

// On the Friday a fast with its beginning, and something that does not occur.
struct DocumentWithOccasions : DocumentFixture {
  DocumentWithOccasions() : DocumentFixture({5, 1, 2007}, {7, 1, 2007}) {
    source.hasOccasions = true;
    const int32_t friday = services.AbsoluteDay({5, 1, 2007});
    services.occasions[{friday, kEnglish}] = {
        {"Fast of Tevet", {}}, {"Fast of Tevet: begins", ClockTime{5, 11}}, {"Lights", kNoTime}};
    services.occasions[{friday, kHebrew}] = {{"עשרה בטבת", {}}};
  }
};

}  // namespace

TEST(DocumentTable, DaysEndWithTheirOccasionsEachWithItsTime) {
  const DocumentWithOccasions document;
  const publishing::Table table = DocumentTable(document.source, {.kind = DocumentKind::kDays, .zmanim = {1}});
  EXPECT_THAT(HeadingsOf(table), ElementsAre("Day", "Date", "Jewish date", "Portion", "Candle lighting", "Z1",
                                             "End of Shabbat", "Occasions"));
  const std::vector<std::vector<std::string>> rows = RowsOf(table);
  ASSERT_THAT(rows, SizeIs(3));
  EXPECT_EQ(rows[0].back(), "Fast of Tevet; Fast of Tevet: begins 05:11; Lights ----");
  EXPECT_EQ(rows[1].back(), "");
  EXPECT_THAT(rows[1], SizeIs(8));
}

TEST(DocumentTable, OccasionsAreToldInTheLanguageOfTheDocument) {
  const DocumentWithOccasions document;
  const publishing::Table table = DocumentTable(document.source, {.kind = DocumentKind::kDays, .language = kHebrew});
  EXPECT_EQ(HeadingsOf(table).back(), "מועדים");
  EXPECT_EQ(RowsOf(table)[0].back(), "עשרה בטבת");
}

namespace {

constexpr char kMissingNote[] = "----: does not occur on that day.";

publishing::Table DaysOf(const DocumentFixture& document) {
  return DocumentTable(document.source, {.kind = DocumentKind::kDays});
}

}  // namespace

TEST(DocumentTable, AnOccasionWithoutItsMomentHasItsNote) {
  DocumentWithOccasions document;
  EXPECT_THAT(DaysOf(document).notes, Contains(kMissingNote));
  EXPECT_THAT(DocumentTable(document.source, {.kind = DocumentKind::kZmanim}).notes, Not(Contains(kMissingNote)));
  document.services.occasions.begin()->second.pop_back();
  EXPECT_THAT(DaysOf(document).notes, Not(Contains(kMissingNote)));
}

// The deepest dawn that can be chosen, at 26 degrees, occurs on every day up to 66.56 - 26 = 40.56 degrees.
TEST(DocumentTable, NearTheEquatorEveryMomentOccursAndNobodyIsAsked) {
  DocumentWithOccasions document;
  for (const int32_t latitude : {0, 3146, -3749, 4000}) {
    document.source.location.latitude = latitude;
    EXPECT_THAT(DaysOf(document).notes, Not(Contains(kMissingNote))) << latitude;
  }
  EXPECT_EQ(document.services.questions, 0);
  for (const int32_t latitude : {4001, 4043, -4153, 6938}) {
    document.source.location.latitude = latitude;
    EXPECT_THAT(DaysOf(document).notes, Contains(kMissingNote)) << latitude;
  }
}

// Rows are read with progress, a table is made before it.
TEST(DocumentTable, OccasionsOfALongRangeAreNotLookedThroughForTheNote) {
  DocumentFixture document({1, 1, 2007}, {31, 12, 2011});
  document.source.hasOccasions = true;
  EXPECT_THAT(DaysOf(document).notes, Contains(kMissingNote));
  EXPECT_EQ(document.services.questions, 0);
  document.source.location.latitude = 3146;
  EXPECT_THAT(DaysOf(document).notes, Not(Contains(kMissingNote)));
  EXPECT_EQ(document.services.questions, 0);
}

TEST(DocumentTable, SpreadsheetsHaveNothingInPlaceOfAnOccasionsMissingTime) {
  const DocumentWithOccasions document;
  const publishing::Table table = DocumentTable(document.source, {.kind = DocumentKind::kDays, .forSpreadsheet = true});
  EXPECT_EQ(RowsOf(table)[0].back(), "Fast of Tevet; Fast of Tevet: begins 05:11; Lights");
  EXPECT_THAT(table.notes, Not(Contains(kMissingNote)));
}

TEST(DocumentTable, OccasionsThatAreNotWantedAreLeftOut) {
  const DocumentWithOccasions document;
  const publishing::Table table = DocumentTable(document.source, {.kind = DocumentKind::kDays, .occasions = false});
  EXPECT_EQ(HeadingsOf(table).back(), "End of Shabbat");
  EXPECT_THAT(RowsOf(table)[0], SizeIs(6));
  EXPECT_THAT(table.notes, SizeIs(1));
}

TEST(DocumentTable, OtherKindsHaveNoOccasions) {
  const DocumentWithOccasions document;
  for (const DocumentKind kind : {DocumentKind::kShabbatTimes, DocumentKind::kWeeks, DocumentKind::kZmanim,
                                  DocumentKind::kReadings, DocumentKind::kDoorPage}) {
    EXPECT_THAT(HeadingsOf(DocumentTable(document.source, {.kind = kind})), Not(Contains("Occasions")));
  }
}
