// Documents as calendars: moments worked out by hand from the clock's offset.
#include "app/core/document_calendar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "tests/core/app_document_fixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

std::string Written(const DocumentFixture& document, const DocumentChoice& choice, int32_t reminder = 0) {
  StringSink sink;
  EXPECT_EQ(WriteDocumentCalendar(document.source, choice, reminder, {}, sink), CalendarResult::kWritten);
  return sink.text();
}

// What the lines of a property say, in order.
std::vector<std::string> ValuesOf(const std::string& calendar, const std::string& property) {
  std::vector<std::string> values;
  const std::string begin = "\r\n" + property + ":";
  for (std::size_t at = calendar.find(begin); at != calendar.npos; at = calendar.find(begin, at + 1)) {
    const std::size_t value = at + begin.size();
    values.push_back(calendar.substr(value, calendar.find("\r\n", value) - value));
  }
  return values;
}

constexpr DocumentChoice Choosing(DocumentKind kind) {
  DocumentChoice choice;
  choice.kind = kind;
  return choice;
}

DocumentChoice Zmanim(std::vector<uint32_t> zmanim) {
  DocumentChoice choice = Choosing(DocumentKind::kZmanim);
  choice.zmanim = std::move(zmanim);
  return choice;
}

// The moment of a zman at a time of 7 January 2007.
std::string MomentOf(DocumentFixture& document, ClockTime time) {
  document.days[0].times[0] = time;
  const std::vector<std::string> starts = ValuesOf(Written(document, Zmanim({0})), "DTSTART");
  return starts.size() == 1 ? starts[0] : "none";
}

}  // namespace

// 16:27 on a clock one hour ahead of UTC is 15:27.
TEST(DocumentCalendar, CandleLightingAndEndAreMoments) {
  DocumentFixture document({5, 1, 2007}, {7, 1, 2007});
  document.AddReadings({6, 1, 2007}, "Vayechi: Genesis 47:28-50:26");
  const std::string calendar = Written(document, Choosing(DocumentKind::kShabbatTimes), 20);
  EXPECT_THAT(ValuesOf(calendar, "DTSTART"), ElementsAre("20070105T152700Z", "20070106T163100Z"));
  EXPECT_THAT(ValuesOf(calendar, "SUMMARY"), ElementsAre("Candle lighting", "End of Shabbat"));
  EXPECT_THAT(ValuesOf(calendar, "LOCATION"), ElementsAre("Aachen", "Aachen"));
  EXPECT_THAT(ValuesOf(calendar, "CATEGORIES"), ElementsAre("Shabbat", "Shabbat"));
  EXPECT_THAT(calendar, HasSubstr("Vayechi\\n16 month 10 5767"));
  EXPECT_THAT(ValuesOf(calendar, "TRIGGER"), ElementsAre("-PT20M"));
  EXPECT_THAT(Written(document, Choosing(DocumentKind::kShabbatTimes)), Not(HasSubstr("VALARM")));
}

TEST(DocumentCalendar, HoursFrom24OnAndBelow0AreOtherDays) {
  DocumentFixture document({7, 1, 2007}, {7, 1, 2007}, 1);
  EXPECT_EQ(MomentOf(document, {7, 1}), "20070107T060100Z");
  EXPECT_EQ(MomentOf(document, {25, 18}), "20070108T001800Z");
  EXPECT_EQ(MomentOf(document, {-1, 30}), "20070106T223000Z");
  EXPECT_EQ(MomentOf(document, {0, 30}), "20070106T233000Z");
}

TEST(DocumentCalendar, AZmanAfterMidnightIsOfTheNextDayWhereTheLibrarySaysSo) {
  DocumentFixture document({7, 1, 2007}, {7, 1, 2007}, 1);
  document.services.dayOffsets[0] = 1;
  EXPECT_EQ(MomentOf(document, {0, 30}), "20070107T233000Z");
  document.services.dayOffsets[0] = -1;
  EXPECT_EQ(MomentOf(document, {23, 50}), "20070106T225000Z");
}

// In the far north a sunset after midnight is a small hour in the block.
TEST(DocumentCalendar, SmallHoursOfShabbatAreTheNextDays) {
  DocumentFixture document({5, 1, 2007}, {5, 1, 2007});
  document.shabbatTimes[0].endHour = 1;
  document.shabbatTimes[0].endMinute = 15;
  EXPECT_THAT(ValuesOf(Written(document, Choosing(DocumentKind::kShabbatTimes)), "DTSTART"),
              ElementsAre("20070105T152700Z", "20070107T001500Z"));
}

// India: five and a half hours ahead; Newfoundland: three and a half behind.
TEST(DocumentCalendar, ZonesOfHalfHoursCount) {
  DocumentFixture document({7, 1, 2007}, {7, 1, 2007}, 1);
  document.services.offset = 19800;
  EXPECT_EQ(MomentOf(document, {7, 1}), "20070107T013100Z");
  document.services.offset = -12600;
  EXPECT_EQ(MomentOf(document, {21, 0}), "20070108T003000Z");
}

// The clock is put forward at 2:00 on 7 January, as it were.
TEST(DocumentCalendar, TheClockOfTheMomentCountsOnADayOnWhichItChanges) {
  DocumentFixture document({7, 1, 2007}, {7, 1, 2007}, 1);
  document.services.summerBegins = int64_t{document.services.AbsoluteDay({7, 1, 2007})} * 1440 + 120;
  EXPECT_EQ(MomentOf(document, {1, 30}), "20070107T003000Z");
  EXPECT_EQ(MomentOf(document, {3, 30}), "20070107T013000Z");
}

TEST(DocumentCalendar, WhatHasNoTimeHasNoEvent) {
  DocumentFixture document({7, 1, 2007}, {7, 1, 2007}, 2);
  document.days[0].times[0] = kNoTime;
  EXPECT_THAT(ValuesOf(Written(document, Zmanim({0, 1})), "SUMMARY"), ElementsAre("Z1"));
  StringSink sink;
  for (const ClockTime time : {kNoTime, ClockTime{kUnknownTimeHour, 0}, ClockTime{71582788, 3}, ClockTime{-30, 0}}) {
    document.days[0].times[0] = time;
    EXPECT_EQ(WriteDocumentCalendar(document.source, Zmanim({0}), 0, {}, sink), CalendarResult::kNoEvents);
  }
  EXPECT_EQ(sink.text(), "");
}

TEST(DocumentCalendar, RowsOfDaysAndReadingsLastTheWholeDay) {
  DocumentFixture document({5, 1, 2007}, {6, 1, 2007});
  document.AddReadings({6, 1, 2007}, "Vayechi: Genesis 47:28-50:26", "", "I Kings 2:1-12");
  DocumentChoice days = Choosing(DocumentKind::kDays);
  days.zmanim = {0};
  const std::string calendar = Written(document, days);
  EXPECT_THAT(ValuesOf(calendar, "DTSTART;VALUE=DATE"), ElementsAre("20070105", "20070106"));
  EXPECT_THAT(ValuesOf(calendar, "SUMMARY"), ElementsAre("15 month 10 5767", "Vayechi"));
  EXPECT_THAT(calendar, HasSubstr("Candle lighting: 16:27\\nZ0: 07:01"));
  const std::string readings = Written(document, Choosing(DocumentKind::kReadings));
  EXPECT_THAT(ValuesOf(readings, "DTSTART;VALUE=DATE"), ElementsAre("20070106"));
  EXPECT_THAT(readings, HasSubstr("Haftarah: I Kings 2:1-12"));
  EXPECT_THAT(ValuesOf(Written(document, Choosing(DocumentKind::kWeeks)), "DTSTART;VALUE=DATE"),
              ElementsAre("20070106"));
}

// Semicolons are escaped in the file.
TEST(DocumentCalendar, OccasionsStandInTheDescriptionOfTheirDay) {
  DocumentFixture document({5, 1, 2007}, {6, 1, 2007});
  document.source.hasOccasions = true;
  document.services.occasions[{document.services.AbsoluteDay({6, 1, 2007}), 1}] = {{"Fast", {}},
                                                                                   {"Fast: ends", ClockTime{17, 31}}};
  const std::string calendar = Written(document, Choosing(DocumentKind::kDays));
  EXPECT_THAT(calendar, HasSubstr("Occasions: Fast\\; Fast: ends 17:31"));
  EXPECT_EQ(calendar.find("Occasions"), calendar.rfind("Occasions")) << "the other day has none";
}

TEST(DocumentCalendar, NamesOfEventsAreTheSameInOtherRangesAndLanguages) {
  DocumentFixture document({1, 1, 2007}, {20, 1, 2007});
  DocumentFixture later({7, 1, 2007}, {30, 1, 2007});
  DocumentChoice hebrew = Zmanim({0, 1});
  hebrew.language = 4;
  hebrew.hebrewZmanim = true;
  const std::vector<std::string> first = ValuesOf(Written(document, Zmanim({0, 1})), "UID");
  const std::vector<std::string> second = ValuesOf(Written(later, hebrew), "UID");
  ASSERT_EQ(first.size(), 40u);
  for (std::size_t i = 12; i < 40; ++i) EXPECT_EQ(first[i], second[i - 12]) << i;
  later.source.location.latitude = -5047;
  EXPECT_NE(ValuesOf(Written(later, hebrew), "UID")[0], second[0]) << "another place";
}

TEST(DocumentCalendar, NamesOfEventsAreUnique) {
  DocumentFixture document({1, 1, 2007}, {31, 12, 2007}, 40);
  for (int32_t day = 1; day <= 28; ++day) document.AddReadings({static_cast<uint32_t>(day), 1, 2007}, "Reading");
  std::vector<uint32_t> all;
  for (uint32_t zman = 0; zman < 40; ++zman) all.push_back(zman);
  std::set<std::string> names;
  std::size_t count = 0;
  for (const DocumentKind kind : {DocumentKind::kShabbatTimes, DocumentKind::kWeeks, DocumentKind::kDays,
                                  DocumentKind::kZmanim, DocumentKind::kReadings}) {
    DocumentChoice choice = Choosing(kind);
    choice.zmanim = all;
    for (const std::string& name : ValuesOf(Written(document, choice), "UID")) {
      names.insert(name);
      ++count;
    }
  }
  EXPECT_EQ(count, 52u * 3 + 365u + 365u * 40 + 28u);
  EXPECT_EQ(names.size(), count);
}

TEST(DocumentCalendar, IsCancelledByItsProgress) {
  const DocumentFixture document({1, 1, 2007}, {20, 1, 2007});
  StringSink sink;
  std::size_t asked = 0;
  const auto progress = [&](std::size_t done, std::size_t all) {
    EXPECT_EQ(all, 20u);
    EXPECT_EQ(done, asked++);
    return done < 5;
  };
  EXPECT_EQ(WriteDocumentCalendar(document.source, Zmanim({0}), 0, {}, sink, progress), CalendarResult::kCancelled);
  EXPECT_EQ(asked, 6u);
}
