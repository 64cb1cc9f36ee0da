// The form is RFC 5545's.
#include "publishing/core/icalendar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "tests/core/written_files.h"

namespace publishing {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using written::CalendarOf;

constexpr UtcMoment kNow = {{2026, 11, 2}, 7, 5, 9};

std::string OfText(const std::string& summary, const std::string& description = {}) {
  return CalendarOf("c", {{.uid = "u", .date = {2026, 1, 1}, .summary = summary, .description = description}}, kNow);
}

TEST(ICalendar, AnEventLastsAWholeDay) {
  EXPECT_EQ(CalendarOf("Birthdays",
                       {{.uid = "1@x", .date = {2026, 3, 9}, .summary = "Moshe", .description = "in Nisan"}}, kNow),
            "BEGIN:VCALENDAR\r\n"
            "VERSION:2.0\r\n"
            "PRODID:-//Times Readings//Times Readings//EN\r\n"
            "CALSCALE:GREGORIAN\r\n"
            "X-WR-CALNAME:Birthdays\r\n"
            "BEGIN:VEVENT\r\n"
            "UID:1@x\r\n"
            "DTSTAMP:20261102T070509Z\r\n"
            "DTSTART;VALUE=DATE:20260309\r\n"
            "DTEND;VALUE=DATE:20260310\r\n"
            "SUMMARY:Moshe\r\n"
            "DESCRIPTION:in Nisan\r\n"
            "TRANSP:TRANSPARENT\r\n"
            "END:VEVENT\r\n"
            "END:VCALENDAR\r\n");
}

TEST(ICalendar, TheDayAfterTheLastOfAMonthIsTheFirst) {
  const std::pair<CivilDate, const char*> cases[] = {{{2026, 2, 28}, "20260301"}, {{2024, 2, 28}, "20240229"},
                                                     {{2024, 2, 29}, "20240301"}, {{2100, 2, 28}, "21000301"},
                                                     {{2000, 2, 28}, "20000229"}, {{2026, 4, 30}, "20260501"},
                                                     {{2026, 12, 31}, "20270101"}};
  for (const auto& [date, end] : cases) {
    EXPECT_THAT(CalendarOf("", {{.uid = "u", .date = date}}, kNow),
                HasSubstr(std::string("DTEND;VALUE=DATE:") + end + "\r"));
  }
}

TEST(ICalendar, TextsAreEscaped) {
  EXPECT_THAT(OfText("a,b;c\\d:\"e\"\r\nf\ng\rh\ti"), HasSubstr("SUMMARY:a\\,b\\;c\\\\d:\"e\"\\nf\\ng\\nh\ti\r\n"));
  EXPECT_THAT(OfText(std::string("a\0b\x7F\x1B", 5)), HasSubstr("SUMMARY:ab\r\n"));
  EXPECT_THAT(OfText("a\xFFz"), HasSubstr("SUMMARY:a\uFFFDz\r\n"));
}

TEST(ICalendar, AnEmptyDescriptionIsLeftOut) {
  EXPECT_THAT(OfText("s"), Not(HasSubstr("DESCRIPTION")));
}

std::vector<std::string> LinesOf(const std::string& calendar) {
  std::vector<std::string> lines;
  std::istringstream text(calendar);
  for (std::string line; std::getline(text, line);) {
    EXPECT_TRUE(line.ends_with("\r"));
    line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

// RFC 5545, 3.1: at most 75 octets, the blank included.
TEST(ICalendar, LinesAreFoldedBetweenCharacters) {
  for (std::size_t shift = 0; shift < 8; ++shift) {
    std::string text(shift, 'x');
    for (int i = 0; i < 60; ++i) text += i % 3 == 0 ? "ש" : i % 3 == 1 ? "€" : "👪";
    std::string unfolded;
    for (const std::string& line : LinesOf(OfText(text))) {
      EXPECT_LE(line.size(), 75u);
      const bool goesOn = line.starts_with(" ");
      EXPECT_NE(static_cast<unsigned char>(line[goesOn ? 1 : 0]) & 0xC0, 0x80) << "a character is divided";
      unfolded += goesOn ? line.substr(1) : "\n" + line;
    }
    EXPECT_THAT(unfolded, HasSubstr("\nSUMMARY:" + text + "\n"));
  }
}

TEST(ICalendar, ALineOf75OctetsIsNotFolded) {
  const std::string name = "SUMMARY:";
  EXPECT_THAT(OfText(std::string(75 - name.size(), 'x')), HasSubstr("x\r\nTRANSP"));
  EXPECT_THAT(OfText(std::string(76 - name.size(), 'x')), HasSubstr("x\r\n x\r\nTRANSP"));
}

TEST(ICalendar, ATimedEventBeginsAndEndsAtMoments) {
  const Event event = {.uid = "u",
                       .start = UtcMoment{{2026, 3, 9}, 5, 6, 7},
                       .end = UtcMoment{{2026, 3, 10}, 0, 0, 0},
                       .summary = "s",
                       .location = "Jerusalem, Israel",
                       .categories = {"a,b", "", "c"},
                       .alarmMinutesBefore = 18};
  EXPECT_THAT(CalendarOf("c", {event}, kNow), HasSubstr("BEGIN:VEVENT\r\n"
                                                        "UID:u\r\n"
                                                        "DTSTAMP:20261102T070509Z\r\n"
                                                        "DTSTART:20260309T050607Z\r\n"
                                                        "DTEND:20260310T000000Z\r\n"
                                                        "SUMMARY:s\r\n"
                                                        "LOCATION:Jerusalem\\, Israel\r\n"
                                                        "CATEGORIES:a\\,b,c\r\n"
                                                        "TRANSP:TRANSPARENT\r\n"
                                                        "BEGIN:VALARM\r\n"
                                                        "ACTION:DISPLAY\r\n"
                                                        "TRIGGER:-PT18M\r\n"
                                                        "DESCRIPTION:s\r\n"
                                                        "END:VALARM\r\n"
                                                        "END:VEVENT\r\n"));
}

// RFC 5545, 3.6.1 and 3.8.2.2: the end is later than the beginning; an event may be without one.
TEST(ICalendar, AnEventThatEndsWhereItBeginsHasNoEnd) {
  const UtcMoment moment = {{2026, 3, 9}, 5, 6, 7};
  EXPECT_THAT(CalendarOf("c", {{.uid = "u", .start = moment}}, kNow), Not(HasSubstr("DTEND")));
  EXPECT_THAT(CalendarOf("c", {{.uid = "u", .start = moment, .end = moment}}, kNow), Not(HasSubstr("DTEND")));
}

TEST(ICalendar, AnAlarmMayBeAtTheBeginningOrAfterIt) {
  const auto withAlarm = [](int32_t minutes) {
    return CalendarOf("c", {{.uid = "u", .date = {2026, 1, 1}, .alarmMinutesBefore = minutes}}, kNow);
  };
  EXPECT_THAT(withAlarm(0), HasSubstr("TRIGGER:PT0M\r\nDESCRIPTION:\r\n"));
  EXPECT_THAT(withAlarm(-5), HasSubstr("TRIGGER:PT5M\r\n"));
  EXPECT_THAT(withAlarm(INT32_MIN), HasSubstr("TRIGGER:PT2147483648M\r\n"));
}

TEST(ICalendar, WhatIsEmptyIsLeftOut) {
  EXPECT_THAT(OfText(""), Not(HasSubstr("SUMMARY")));
  EXPECT_THAT(CalendarOf("c", {{.uid = "u", .date = {2026, 1, 1}, .categories = {""}}}, kNow),
              AllOf(Not(HasSubstr("LOCATION")), Not(HasSubstr("CATEGORIES")), Not(HasSubstr("VALARM"))));
}

}  // namespace
}  // namespace publishing
