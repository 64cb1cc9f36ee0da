// Which kinds a row is of, and what is shown when some are hidden. Dates are those of Nisan 5785, when the eve of
// Pesach is a Shabbat, and of printed calendars.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "libraries/occasions/occasion_texts.h"
#include "tests/core/occasions_days.h"

namespace occasions {
namespace {

using testing::ElementsAre;

Question Hiding(Question question, Kind kind) {
  question.customs.hiddenKinds = 1u << static_cast<int>(kind);
  return question;
}

std::vector<std::string> OfKind(const std::vector<Row>& rows, Kind kind) {
  std::vector<Row> found;
  for (const Row& row : rows) {
    if (IsOfKind(row, kind)) found.push_back(row);
  }
  return DaysOf(found);
}

TEST(OccasionKinds, ShabbatBesideYomTovHasItsCandlesAndItsEnd) {
  const auto rows = RowsBetween(InJerusalem(), CivilDay(2025, 4, 11), CivilDay(2025, 4, 19));
  EXPECT_THAT(OfKind(rows, Kind::kShabbat),
              ElementsAre("2025-04-11 Fri shabbat candles", "2025-04-13 Sun pesach 1 end",
                          "2025-04-18 Fri pesach 7 candles", "2025-04-19 Sat pesach 7 end"));
}

TEST(OccasionKinds, YomTovBeforeShabbatHasItsEnd) {
  // Rosh Hashana 5785 is Thursday and Friday.
  const auto rows = RowsBetween(InNewYork(), CivilDay(2024, 10, 2), CivilDay(2024, 10, 5));
  EXPECT_THAT(OfKind(rows, Kind::kYomTov),
              ElementsAre("2024-10-02 Wed eruv-tavshilin until", "2024-10-02 Wed rosh-hashana 1 candles",
                          "2024-10-03 Thu rosh-hashana 1", "2024-10-03 Thu rosh-hashana 2 candles",
                          "2024-10-04 Fri rosh-hashana 2", "2024-10-05 Sat shabbat end"));
}

TEST(OccasionKinds, HiddenYomTovLeavesShabbatWhole) {
  const Question question = Hiding(InJerusalem(), Kind::kYomTov);
  const auto rows = RowsBetween(question, CivilDay(2025, 4, 18), CivilDay(2025, 4, 19));
  EXPECT_THAT(DaysOf(rows, {Occasion::kPesach}),
              ElementsAre("2025-04-18 Fri pesach 7 candles", "2025-04-19 Sat pesach 7 end"));
}

TEST(OccasionKinds, HiddenShabbatLeavesYomTovWhole) {
  const Question question = Hiding(InNewYork(), Kind::kShabbat);
  const auto rows = RowsBetween(question, CivilDay(2024, 10, 4), CivilDay(2024, 10, 12));
  EXPECT_THAT(DaysOf(rows, {Occasion::kShabbat}), ElementsAre("2024-10-05 Sat shabbat end"));
  EXPECT_NE(FindRow(rows, Occasion::kYomKippur, Moment::kCandles), nullptr);
}

TEST(OccasionKinds, FirstNightOnAFridayIsNotSaidInIt) {
  int32_t onFridays = 0;
  for (const Row& row : RowsBetween(InNewYork(), CivilDay(2020, 1, 1), CivilDay(2030, 12, 31))) {
    if (row.occasion != Occasion::kKiddushLevana || row.moment != Moment::kFrom) continue;
    const auto weekday = calendar::WeekdayOf(row.day);
    const bool isEvening = row.minute.value_or(0) >= 12 * 60;
    const bool isFridayNight =
        (weekday == calendar::Weekday::kFriday && isEvening) || (weekday == calendar::Weekday::kSaturday && !isEvening);
    if (!isFridayNight) continue;
    ++onFridays;
    EXPECT_TRUE(row.notes & kInHolyNight) << DayText(row.day);
    const bool hasItsOwn = row.number == calendar::kTishri || row.number == calendar::kAv;
    const std::string expected = hasItsOwn ? "many wait" : "not said in the night of a Shabbat or Yom Tov";
    EXPECT_THAT(RemarkOf(InNewYork(), row, Language::kEnglish), testing::HasSubstr(expected));
  }
  EXPECT_GT(onFridays, 5);
}

}  // namespace
}  // namespace occasions
