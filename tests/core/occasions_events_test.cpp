// Occasions as events of a calendar file.
#include "libraries/occasions/occasion_events.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "tests/core/occasions_places.h"

namespace occasions {
namespace {

using publishing::CivilDate;
using publishing::UtcMoment;
using testing::HasSubstr;
using testing::StartsWith;

Taken NewYork() {
  return TakenYear(kNewYorkPlace, "America/New_York", calendar::Land::kDiaspora, Span::kCivilYear, 2026);
}

constexpr UtcMoment kNow = {{2026, 11, 23}, 1, 2, 3};

TEST(OccasionEvents, AMomentIsThereByUtcAndADayAsADay) {
  const Taken taken = NewYork();
  const Row candles = {.day = DayOf(27, 11, 2026),
                       .occasion = Occasion::kShabbat,
                       .moment = Moment::kCandles,
                       .rule = Rule::kCandleMinutes,
                       .minute = 16 * 60 + 12,
                       .offsetSeconds = -5 * 3600};
  const auto event = EventOf(taken, candles);
  ASSERT_TRUE(event);
  EXPECT_EQ(event->start, (UtcMoment{{2026, 11, 27}, 21, 12, 0}));
  EXPECT_EQ(event->summary, TitleOf(candles, Language::kEnglish));
  EXPECT_EQ(event->description, "17 Kislev 5787\n" + RemarkOf(taken.question, candles, Language::kEnglish));
  EXPECT_EQ(event->location, "Some Place");
  EXPECT_EQ(event->categories, std::vector<std::string>{KindName(Kind::kShabbat, Language::kEnglish)});
  const auto wholeDay = EventOf(taken, {.day = DayOf(5, 12, 2026), .occasion = Occasion::kChanukah, .number = 1});
  ASSERT_TRUE(wholeDay);
  EXPECT_FALSE(wholeDay->start);
  EXPECT_EQ(wholeDay->date, (CivilDate{2026, 12, 5}));
}

TEST(OccasionEvents, AnEveningCanBeTheNextDayByUtcAndAMorningTheDayBefore) {
  const Taken taken = NewYork();
  Row row = {.day = DayOf(31, 12, 2026), .moment = Moment::kEnd, .minute = 20 * 60, .offsetSeconds = -5 * 3600};
  EXPECT_EQ(EventOf(taken, row)->start, (UtcMoment{{2027, 1, 1}, 1, 0, 0}));
  row = {.day = DayOf(1, 1, 2027), .moment = Moment::kFrom, .minute = 30, .offsetSeconds = 2 * 3600};
  EXPECT_EQ(EventOf(taken, row)->start, (UtcMoment{{2026, 12, 31}, 22, 30, 0}));
}

// The clock shows 1:30 twice as it is put back; the row says which it is.
TEST(OccasionEvents, TheRepeatedHourIsTheOneOfTheRow) {
  const Taken taken = NewYork();
  Row row = {.day = DayOf(1, 11, 2026), .moment = Moment::kFrom, .minute = 90, .offsetSeconds = -4 * 3600};
  EXPECT_EQ(EventOf(taken, row)->start, (UtcMoment{{2026, 11, 1}, 5, 30, 0}));
  row.offsetSeconds = -5 * 3600;
  EXPECT_EQ(EventOf(taken, row)->start, (UtcMoment{{2026, 11, 1}, 6, 30, 0}));
}

TEST(OccasionEvents, AMomentThatDoesNotOccurIsNone) {
  EXPECT_FALSE(EventOf(NewYork(), {.day = DayOf(1, 7, 2026), .moment = Moment::kFastBegins}));
}

TEST(OccasionEvents, NoTwoRowsShareAUidAndLanguageAndRangeDoNotChangeIt) {
  Taken taken = NewYork();
  taken.rows = RowsBetween(taken.question, DayOf(1, 1, 2000), DayOf(31, 12, 2030));
  ASSERT_GT(taken.rows.size(), 5000u);
  std::set<std::string> uids;
  Taken hebrew = taken;
  hebrew.wording.language = Language::kHebrew;
  for (const Row& row : taken.rows) {
    const auto event = EventOf(taken, row);
    if (!event) continue;
    EXPECT_TRUE(uids.insert(event->uid).second) << event->uid;
    EXPECT_EQ(EventOf(hebrew, row)->uid, event->uid);
  }
  for (const Row& row : NewYork().rows) EXPECT_TRUE(uids.contains(EventOf(taken, row)->uid));
  EXPECT_THAT(*uids.begin(), StartsWith("20000101-"));
  EXPECT_THAT(*uids.begin(), HasSubstr("-at-4043--7400--5-0@times-readings"));
}

TEST(OccasionEvents, AnotherPlaceHasOtherUids) {
  Taken taken = NewYork();
  const std::string uid = EventOf(taken, taken.rows.front())->uid;
  taken.packed = kSydneyPlace;
  EXPECT_NE(EventOf(taken, taken.rows.front())->uid, uid);
}

TEST(OccasionEvents, TheCalendarBearsTheTitleAndEveryEvent) {
  const Taken taken = NewYork();
  StringSink sink;
  EXPECT_EQ(WriteCalendar(taken, kNow, sink), CalendarResult::kWritten);
  EXPECT_THAT(sink.text(), HasSubstr("X-WR-CALNAME:Occasions of the year 2026\\, Some Place"));
  size_t events = 0;
  for (size_t at = 0; (at = sink.text().find("BEGIN:VEVENT", at)) != std::string::npos; ++at) ++events;
  EXPECT_EQ(events, taken.rows.size());
}

TEST(OccasionEvents, WithoutAnyThereIsNoFileAndAUserCanEndIt) {
  Taken taken = NewYork();
  StringSink sink;
  EXPECT_EQ(WriteCalendar(taken, kNow, sink, [](size_t, size_t) { return false; }), CalendarResult::kCancelled);
  taken.rows = {{.day = DayOf(1, 7, 2026), .moment = Moment::kFastBegins}};
  EXPECT_EQ(WriteCalendar(taken, kNow, sink), CalendarResult::kNoEvents);
  EXPECT_EQ(sink.text(), "");
}

}  // namespace
}  // namespace occasions
