#include "publishing/core/icalendar.h"

#include <cstdio>
#include <string_view>

#include "publishing/core/unicode.h"

namespace publishing {
namespace {

// RFC 5545, 3.1: a line is no longer than this, without its line end; what goes on on the next line stands after a
// blank, which counts there.
constexpr std::size_t kMostOctets = 75;

constexpr int32_t kDecember = 12;

bool IsLeapYear(int32_t year) {
  return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int32_t DaysOfMonth(int32_t year, int32_t month) {
  constexpr int32_t kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

CivilDate DayAfter(const CivilDate& date) {
  if (date.day < DaysOfMonth(date.year, date.month)) return {date.year, date.month, date.day + 1};
  if (date.month < kDecember) return {date.year, date.month + 1, 1};
  return {date.year + 1, 1, 1};
}

std::string TextOf(const CivilDate& date) {
  char text[40];
  std::snprintf(text, sizeof text, "%04d%02d%02d", date.year, date.month, date.day);
  return text;
}

std::string TextOf(const UtcMoment& moment) {
  char text[40];
  std::snprintf(text, sizeof text, "T%02d%02d%02dZ", moment.hour, moment.minute, moment.second);
  return TextOf(moment.date) + text;
}

// RFC 5545, 3.3.11. Control characters other than tabs and line ends may not stand in a text.
std::string Escaped(std::string_view text) {
  std::string escaped;
  char32_t before = 0;
  while (!text.empty()) {
    const char32_t character = TakeCharacter(text);
    const bool isLineEnd = character == '\r' || (character == '\n' && before != '\r');
    before = character;
    if (isLineEnd) {
      escaped += "\\n";
    } else if (character == '\\' || character == ';' || character == ',') {
      escaped += '\\';
      escaped += static_cast<char>(character);
    } else if ((character >= ' ' || character == '\t') && character != 0x7F) {
      AppendUtf8(escaped, character);
    }
  }
  return escaped;
}

// A line, folded between characters.
void AppendLine(std::string& calendar, std::string_view line) {
  std::size_t octets = 0;
  while (!line.empty()) {
    std::string_view rest = line;
    TakeCharacter(rest);
    const std::size_t length = line.size() - rest.size();
    if (octets + length > kMostOctets) {
      calendar += "\r\n ";
      octets = 1;
    }
    calendar += line.substr(0, length);
    octets += length;
    line = rest;
  }
  calendar += "\r\n";
}

void AppendEvent(std::string& calendar, const Event& event, const std::string& now) {
  AppendLine(calendar, "BEGIN:VEVENT");
  AppendLine(calendar, "UID:" + Escaped(event.uid));
  AppendLine(calendar, "DTSTAMP:" + now);
  AppendLine(calendar, "DTSTART;VALUE=DATE:" + TextOf(event.date));
  AppendLine(calendar, "DTEND;VALUE=DATE:" + TextOf(DayAfter(event.date)));
  AppendLine(calendar, "SUMMARY:" + Escaped(event.summary));
  if (!event.description.empty()) AppendLine(calendar, "DESCRIPTION:" + Escaped(event.description));
  AppendLine(calendar, "TRANSP:TRANSPARENT");
  AppendLine(calendar, "END:VEVENT");
}

}  // namespace

std::string CalendarOf(const std::string& name, const std::vector<Event>& events, const UtcMoment& now) {
  std::string calendar;
  AppendLine(calendar, "BEGIN:VCALENDAR");
  AppendLine(calendar, "VERSION:2.0");
  AppendLine(calendar, "PRODID:-//Times Readings//Times Readings//EN");
  AppendLine(calendar, "CALSCALE:GREGORIAN");
  AppendLine(calendar, "X-WR-CALNAME:" + Escaped(name));
  const std::string stamp = TextOf(now);
  for (const Event& event : events) AppendEvent(calendar, event, stamp);
  AppendLine(calendar, "END:VCALENDAR");
  return calendar;
}

}  // namespace publishing
