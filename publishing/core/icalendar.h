// Days and moments as a calendar file that calendar programs take in (RFC 5545).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "publishing/core/sink_buffer.h"

namespace publishing {

// A Gregorian date, in the years 1 to 9999.
struct CivilDate {
  int32_t year = 0;
  int32_t month = 0;  // from 1
  int32_t day = 0;
  friend auto operator<=>(const CivilDate&, const CivilDate&) = default;
};

struct UtcMoment {
  CivilDate date;
  int32_t hour = 0;
  int32_t minute = 0;
  int32_t second = 0;
  friend auto operator<=>(const UtcMoment&, const UtcMoment&) = default;
};

// Something that lasts a whole day, or begins at a moment. Texts are UTF-8 and may have several lines; what is empty is
// left out.
struct Event {
  std::string uid = {};  // the same whenever the same event is written again, and no other event's anywhere
  CivilDate date = {};   // of what lasts a whole day; else not used
  std::optional<UtcMoment> start = {};
  std::optional<UtcMoment> end = {};  // later than start; without it the event has no length
  std::string summary = {};
  std::string description = {};
  std::string location = {};
  std::vector<std::string> categories = {};
  std::optional<int32_t> alarmMinutesBefore = {};  // a reminder so long before it begins
};

// Writes a calendar of events that leave the user's time free. A calendar has at least one event (3.6).
class CalendarWriter {
 public:
  // now: when the file is made.
  CalendarWriter(TextSink& sink, const std::string& name, const UtcMoment& now);

  void Add(const Event& event);

  // After the last event; before it, what the sink got is no file.
  void Finish();

 private:
  void WriteProperty(std::string_view nameAndColon, std::string_view text);
  void WriteTimes(const Event& event);
  void WriteCategories(const std::vector<std::string>& categories);
  void WriteAlarm(const Event& event);
  void WriteFolded();

  SinkBuffer file_;
  std::string stamp_;  // the line that each event has
  std::string line_;   // of which one is made
};

}  // namespace publishing
