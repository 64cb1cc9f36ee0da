#include "publishing/core/icalendar.h"

#include <cstdlib>

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

void AppendDigits(std::string& text, int32_t number, std::size_t digits) {
  text.append(digits, '0');
  for (std::size_t at = text.size(); number > 0 && digits > 0; number /= 10, --digits) {
    text[--at] = static_cast<char>('0' + number % 10);
  }
}

void AppendDate(std::string& text, const CivilDate& date) {
  AppendDigits(text, date.year, 4);
  AppendDigits(text, date.month, 2);
  AppendDigits(text, date.day, 2);
}

void AppendMoment(std::string& text, std::string_view property, const UtcMoment& moment) {
  text += property;
  AppendDate(text, moment.date);
  text += 'T';
  AppendDigits(text, moment.hour, 2);
  AppendDigits(text, moment.minute, 2);
  AppendDigits(text, moment.second, 2);
  text += "Z\r\n";
}

void AppendDay(std::string& text, std::string_view property, const CivilDate& date) {
  text += property;
  AppendDate(text, date);
  text += "\r\n";
}

// What stands in a text as it is: all of ASCII but the signs that mean something and control characters.
bool IsPlain(char byte) {
  return byte >= ' ' && byte < 0x7F && byte != '\\' && byte != ';' && byte != ',';
}

// RFC 5545, 3.3.11. Control characters other than tabs and line ends may not stand in a text.
void AppendEscaped(std::string& escaped, std::string_view text) {
  char32_t before = 0;
  while (!text.empty()) {
    std::size_t plain = 0;
    while (plain < text.size() && IsPlain(text[plain])) ++plain;
    escaped += text.substr(0, plain);
    text.remove_prefix(plain);
    if (plain > 0) before = ' ';
    if (text.empty()) return;
    const char32_t character = TakeCharacter(text);
    const bool isLineEnd = character == '\r' || (character == '\n' && before != '\r');
    before = character;
    if (isLineEnd) {
      escaped += "\\n";
    } else if (character == '\\' || character == ';' || character == ',') {
      escaped += '\\';
      escaped += static_cast<char>(character);
    } else if (!IsControl(character) || character == '\t') {
      AppendUtf8(escaped, character);
    }
  }
}

bool IsWithinCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

}  // namespace

CalendarWriter::CalendarWriter(TextSink& sink, const std::string& name, const UtcMoment& now) : file_(sink) {
  AppendMoment(stamp_, "DTSTAMP:", now);
  file_.text() +=
      "BEGIN:VCALENDAR\r\n"
      "VERSION:2.0\r\n"
      "PRODID:-//Times Readings//Times Readings//EN\r\n"
      "CALSCALE:GREGORIAN\r\n";
  WriteProperty("X-WR-CALNAME:", name);
}

void CalendarWriter::Add(const Event& event) {
  file_.text() += "BEGIN:VEVENT\r\n";
  WriteProperty("UID:", event.uid);
  file_.text() += stamp_;
  WriteTimes(event);
  WriteProperty("SUMMARY:", event.summary);
  WriteProperty("DESCRIPTION:", event.description);
  WriteProperty("LOCATION:", event.location);
  WriteCategories(event.categories);
  file_.text() += "TRANSP:TRANSPARENT\r\n";
  WriteAlarm(event);
  file_.text() += "END:VEVENT\r\n";
  file_.EndPart();
}

void CalendarWriter::Finish() {
  file_.text() += "END:VCALENDAR\r\n";
  file_.WriteAll();
}

void CalendarWriter::WriteTimes(const Event& event) {
  std::string& text = file_.text();
  if (!event.start) {
    AppendDay(text, "DTSTART;VALUE=DATE:", event.date);
    AppendDay(text, "DTEND;VALUE=DATE:", DayAfter(event.date));
    return;
  }
  AppendMoment(text, "DTSTART:", *event.start);
  if (event.end && *event.end > *event.start) AppendMoment(text, "DTEND:", *event.end);
}

void CalendarWriter::WriteCategories(const std::vector<std::string>& categories) {
  line_.clear();
  for (const std::string& category : categories) {
    if (category.empty()) continue;
    line_ += line_.empty() ? "CATEGORIES:" : ",";
    AppendEscaped(line_, category);
  }
  if (!line_.empty()) WriteFolded();
}

// RFC 5545, 3.6.6: an alarm that is shown has a text of its own.
void CalendarWriter::WriteAlarm(const Event& event) {
  if (!event.alarmMinutesBefore) return;
  const int64_t minutes = *event.alarmMinutesBefore;
  file_.text() += "BEGIN:VALARM\r\nACTION:DISPLAY\r\nTRIGGER:";
  file_.text() += (minutes > 0 ? "-PT" : "PT") + std::to_string(std::abs(minutes)) + "M\r\n";
  line_ = "DESCRIPTION:";
  AppendEscaped(line_, event.summary);
  WriteFolded();
  file_.text() += "END:VALARM\r\n";
}

void CalendarWriter::WriteProperty(std::string_view nameAndColon, std::string_view text) {
  line_ = nameAndColon;
  AppendEscaped(line_, text);
  if (line_.size() > nameAndColon.size()) WriteFolded();
}

// Between characters.
void CalendarWriter::WriteFolded() {
  std::string& text = file_.text();
  std::string_view rest = line_;
  for (std::size_t room = kMostOctets; rest.size() > room; room = kMostOctets - 1) {
    std::size_t length = room;
    while (IsWithinCharacter(rest[length])) --length;
    text += rest.substr(0, length);
    text += "\r\n ";
    rest.remove_prefix(length);
  }
  text += rest;
  text += "\r\n";
}

}  // namespace publishing
