// Occasions as tables: the list, and candle lightings and ends on one sheet.
#include "libraries/occasions/occasion_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "publishing/core/one_page.h"
#include "tests/core/occasions_places.h"
#include "tests/core/recorded_page.h"
#include "tests/core/written_files.h"

namespace occasions {
namespace {

using publishing::RowKind;
using publishing::Table;
using testing::ElementsAre;
using testing::HasSubstr;
using Cells = std::vector<std::string>;

constexpr int32_t kFriday = 739947;  // 27 November 2026

std::vector<Cells> CellsIn(const Table& table) {
  std::vector<Cells> cells;
  ForEachRow(table, [&](const publishing::Row& row) { cells.push_back(row.cells); });
  return cells;
}

Row RowOn(int32_t day, Occasion occasion, Moment moment, std::optional<int32_t> minute, int32_t number = 0) {
  return {.day = day, .occasion = occasion, .moment = moment, .number = number, .minute = minute};
}

Taken TakenOf(std::vector<Row> rows, Language language = Language::kEnglish) {
  Taken taken;
  taken.question = QuestionAt(kNewYorkPlace, "America/New_York", calendar::Land::kDiaspora);
  taken.place = "New York";
  taken.wording.language = language;
  taken.span = Span::kJewishYear;
  taken.year = 5787;
  taken.days = DaysOfYear(Span::kJewishYear, 5787);
  taken.rows = std::move(rows);
  return taken;
}

Taken CandlesOf(std::vector<Row> rows, Language language = Language::kEnglish) {
  Taken taken = TakenOf(std::move(rows), language);
  taken.candlesAlone = true;
  return taken;
}

TEST(OccasionTable, TheListHasItsColumnsAndSaysWhatItIsOf) {
  const Table table = TableOf(TakenOf({RowOn(kFriday, Occasion::kShabbat, Moment::kCandles, 969),
                                       RowOn(kFriday + 8, Occasion::kChanukah, Moment::kWholeDay, {}, 1),
                                       RowOn(kFriday + 9, Occasion::kChanukah, Moment::kLights, {}, 3)}));
  EXPECT_EQ(table.title, "Occasions of the Jewish year 5787");
  EXPECT_THAT(table.remarks, ElementsAre("New York", "Days as kept in the diaspora",
                                         "Candle lighting 18 minutes before sunset, end 45 minutes after sunset, "
                                         "unless set by hand"));
  const std::vector<Cells> cells = CellsIn(table);
  ASSERT_EQ(cells.size(), 3u);
  EXPECT_THAT(cells[0], ElementsAre("27.11.2026", "Friday", "17 Kislev 5787", "Shabbat: candle lighting", "16:09", ""));
  EXPECT_EQ(cells[1][4], "") << "a whole day";
  EXPECT_EQ(cells[2][4], "----") << "does not occur";
  EXPECT_EQ(table.columns[3].heading, "Occasion");
}

TEST(OccasionTable, TimesAreInTheFormOfTheUser) {
  Taken taken = TakenOf({RowOn(kFriday, Occasion::kShabbat, Moment::kCandles, 969)});
  taken.wording.form = stamp::Form::kTwelveHours;
  EXPECT_EQ(CellsIn(TableOf(taken))[0][4], "04:09 p.m.");
}

TEST(OccasionTable, ASpreadsheetGetsDatesOfEveryCountry) {
  EXPECT_EQ(CellsIn(TableOf(TakenOf({RowOn(kFriday, Occasion::kShabbat, Moment::kEnd, 1030)}), true))[0][0],
            "2026-11-27");
  EXPECT_EQ(CellsIn(TableOf(CandlesOf({RowOn(kFriday, Occasion::kShabbat, Moment::kCandles, 969)}), true))[0][0],
            "2026-11-27");
}

TEST(OccasionTable, InHebrewItBeginsAtTheRight) {
  const Table table = TableOf(TakenOf({RowOn(kFriday, Occasion::kShabbat, Moment::kCandles, 969)}, Language::kHebrew));
  EXPECT_TRUE(table.rightToLeft);
  EXPECT_EQ(table.language, "he");
  EXPECT_EQ(table.title, "מועדי השנה העברית תשפ״ז");
  EXPECT_EQ(table.columns[3].heading, "מועד");
  EXPECT_EQ(CellsIn(table)[0][3], "שבת: הדלקת נרות");
}

TEST(OccasionTable, WhatTheListIsNarrowedToIsSaid) {
  Taken taken = TakenOf({});
  taken.span = Span::kRange;
  taken.days = {DayOf(1, 1, 2026), DayOf(31, 3, 2026)};
  taken.kind = Kind::kFast;
  taken.searched = "tevet";
  const Table table = TableOf(taken);
  EXPECT_EQ(table.title, "Occasions from 01.01.2026 to 31.03.2026");
  ASSERT_EQ(table.remarks.size(), 5u);
  EXPECT_EQ(table.remarks[3], "Only: " + KindName(Kind::kFast, Language::kEnglish));
  EXPECT_EQ(table.remarks[4], "Only what has: tevet");
  taken.span = Span::kCivilYear;
  taken.year = 2026;
  EXPECT_EQ(TableOf(taken).title, "Occasions of the year 2026");
}

TEST(CandleRuleText, SaysEitherEndAndTheCityOfFortyMinutes) {
  candles::ShabbatRule rule;
  rule.candleMinutes = 20;
  rule.endsByMinutes = false;
  rule.endDegrees = 8.5;
  EXPECT_EQ(
      CandleRuleText(rule, Language::kEnglish),
      "Candle lighting 20 minutes before sunset, end when the sun is 8.5 degrees below the horizon, unless set by "
      "hand");
  rule.minutesAfterDegrees = 3;
  EXPECT_THAT(CandleRuleText(rule, Language::kEnglish), HasSubstr("8.5 degrees below the horizon and 3 minutes later"));
  rule.isJerusalem = true;
  EXPECT_THAT(CandleRuleText(rule, Language::kEnglish), HasSubstr("40 minutes before sunset"));
  rule = {};
  rule.candleMinutes = -5;
  EXPECT_THAT(CandleRuleText(rule, Language::kEnglish), HasSubstr("Candle lighting 5 minutes after sunset"));
}

TEST(CandleTable, AnEveningHasItsLightingAndTheEndOfTheDayAfterInOneRow) {
  const Table table = TableOf(CandlesOf({RowOn(kFriday, Occasion::kShabbat, Moment::kCandles, 969),
                                         RowOn(kFriday + 1, Occasion::kShabbat, Moment::kEnd, 1040),
                                         RowOn(kFriday + 7, Occasion::kShabbat, Moment::kCandles, 968),
                                         RowOn(kFriday + 8, Occasion::kShabbat, Moment::kEnd, 1039)}));
  EXPECT_EQ(table.title, "Candle lighting and end in the Jewish year 5787");
  EXPECT_THAT(CellsIn(table), ElementsAre(Cells{"November 2026"}, Cells{"Fri 27", "Shabbat", "16:09", "17:20"},
                                          Cells{"December 2026"}, Cells{"Fri 4", "Shabbat", "16:08", "17:19"}));
}

// Each further day is lit for as the one before goes out: its row has the end of all.
TEST(CandleTable, OfThreeDaysEachEveningHasARow) {
  const int32_t wednesday = kFriday - 2;
  const Table table = TableOf(CandlesOf({RowOn(wednesday, Occasion::kRoshHashana, Moment::kCandles, 1000, 1),
                                         RowOn(wednesday + 1, Occasion::kRoshHashana, Moment::kCandles, 1060, 2),
                                         RowOn(kFriday, Occasion::kShabbat, Moment::kCandles, 998),
                                         RowOn(kFriday + 1, Occasion::kShabbat, Moment::kEnd, 1058)}));
  const std::vector<Cells> cells = CellsIn(table);
  ASSERT_EQ(cells.size(), 4u);
  EXPECT_EQ(cells[1][3], "");
  EXPECT_EQ(cells[2][3], "");
  EXPECT_THAT(cells[3], ElementsAre("Fri 27", "Shabbat", "16:38", "17:38"));
}

TEST(CandleTable, AnEndBesideALightingBelongsToTheEveningBefore) {
  const Table table = TableOf(CandlesOf({RowOn(kFriday, Occasion::kShabbat, Moment::kCandles, 969),
                                         RowOn(kFriday + 1, Occasion::kShavuot, Moment::kCandles, 1040, 1),
                                         RowOn(kFriday + 1, Occasion::kShabbat, Moment::kEnd, 1040),
                                         RowOn(kFriday + 2, Occasion::kShavuot, Moment::kEnd, 1041, 1)}));
  const std::vector<Cells> cells = CellsIn(table);
  ASSERT_EQ(cells.size(), 3u);
  EXPECT_THAT(cells[1], ElementsAre("Fri 27", "Shabbat", "16:09", "17:20"));
  EXPECT_EQ(cells[2][3], "17:21");
}

TEST(CandleTable, AnEndWhoseLightingIsNotThereHasTheEveningOfTheDayBefore) {
  const Table table = TableOf(CandlesOf({RowOn(kFriday + 1, Occasion::kShabbat, Moment::kEnd, 1040)}));
  EXPECT_THAT(CellsIn(table).at(1), ElementsAre("Fri 27", "Shabbat", "", "17:20"));
}

constexpr int kDotsPerInch = 125;  // letters of RecordedPage are 10 points then

publishing::Sheet SheetOf(double width, double height) {
  const auto dots = [](double millimetres) { return static_cast<int>(millimetres * kDotsPerInch / 25.4); };
  const int margin = dots(12.7);
  return {dots(width), dots(height), {margin, margin, dots(width) - 2 * margin, dots(height) - 2 * margin}};
}

// 5787 has thirteen months, 2026 the most lightings; in the longer form of times.
TEST(CandleTable, AYearFitsOneSheetOfAnyPaper) {
  const publishing::Sheet sheets[] = {SheetOf(210, 297), SheetOf(297, 210), SheetOf(215.9, 279.4),
                                      SheetOf(279.4, 215.9)};
  for (const auto& [span, year] : {std::pair(Span::kJewishYear, 5787), {Span::kCivilYear, 2026}}) {
    for (const Language language : {Language::kEnglish, Language::kHebrew}) {
      Taken taken = TakenYear(kNewYorkPlace, "America/New_York", calendar::Land::kDiaspora, span, year);
      taken.candlesAlone = true;
      taken.wording = {language, stamp::Form::kTwelveHours};
      const Table table = TableOf(taken);
      EXPECT_GT(table.rows->Count(), 60u);
      for (const publishing::Sheet& sheet : sheets) {
        publishing::RecordedPage surface;
        const publishing::OnePage page(table, sheet, kDotsPerInch, surface);
        ASSERT_TRUE(page.Fits()) << year << " on a sheet " << sheet.width << " wide";
        page.Draw(surface, 0);
        for (const publishing::DrawnLine& line : surface.lines) {
          EXPECT_LE(line.box.Bottom(), sheet.body.Bottom());
          EXPECT_LE(line.box.Right(), sheet.body.Right());
          EXPECT_GE(line.size, publishing::kUsualSize / 2) << "letters of less than five points";
        }
      }
    }
  }
}

TEST(CandleTable, NoEveningHasTwoRowsAndEveryEndHasItsLighting) {
  for (const calendar::Land land : {calendar::Land::kDiaspora, calendar::Land::kIsrael}) {
    for (int32_t year = 5770; year < 5800; ++year) {
      Taken taken = TakenYear(kJerusalemPlace, "Asia/Jerusalem", land, Span::kJewishYear, year);
      taken.candlesAlone = true;
      std::string before;
      const std::vector<Cells> rows = CellsIn(TableOf(taken, true));
      for (const Cells& cells : rows) {
        EXPECT_LT(before, cells[0]) << "two rows of an evening";
        before = cells[0];
        // The first day of the year may be one that was lit for in the year before.
        const bool isFirst = &cells == &rows.front();
        EXPECT_TRUE(isFirst || !cells[2].empty()) << cells[0] << " " << cells[1];
      }
    }
  }
}

}  // namespace
}  // namespace occasions
