// Days as a calendar file that calendar programs take in (RFC 5545).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace publishing {

// A Gregorian date, in the years 1 to 9999.
struct CivilDate {
  int32_t year = 0;
  int32_t month = 0;  // from 1
  int32_t day = 0;
};

struct UtcMoment {
  CivilDate date;
  int32_t hour = 0;
  int32_t minute = 0;
  int32_t second = 0;
};

// Something that lasts a whole day. Texts are UTF-8 and may have several lines.
struct Event {
  std::string uid;  // the same whenever the same event is written again, and no other event's anywhere
  CivilDate date;
  std::string summary;
  std::string description;  // may be empty
};

// A calendar of all-day events that leave the day free. now: when the file is made.
std::string CalendarOf(const std::string& name, const std::vector<Event>& events, const UtcMoment& now);

}  // namespace publishing
