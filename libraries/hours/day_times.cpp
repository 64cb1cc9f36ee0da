#include "libraries/hours/day_times.h"

#include <cmath>
#include <cstdio>

#include "libraries/calendar/gregorian.h"
#include "libraries/sun/clock_in_force.h"

namespace hours {
namespace {

constexpr double kSecondsPerDay = 86400;

int32_t UnixDayAt(const sun::PlaceSettings& place, double utcSeconds) {
  const double clockSeconds = utcSeconds + sun::ClockOffsetSeconds(place.clock, utcSeconds);
  return static_cast<int32_t>(std::floor(clockSeconds / kSecondsPerDay));
}

// Sunrise and sunset as the solar library shows them.
ShownSun SunShown(int32_t unixDay, const sun::PlaceSettings& place) {
  const sun::SunDay day = sun::ComputeSunDay(unixDay, place.site);
  const auto minute = [&place](const sun::SunEvent& event) {
    return sun::NearestMinute(event.utcSeconds, sun::ClockOffsetSeconds(place.clock, event.utcSeconds));
  };
  return {minute(sun::Sunrise(day, place.elevationMetres)), minute(sun::Sunset(day, place.elevationMetres))};
}

}  // namespace

DayTimes::DayTimes(const sun::PlaceSettings& place, double utcSeconds, stamp::Form form)
    : unixDay_(UnixDayAt(place, utcSeconds)), form_(form), day_(unixDay_, place, SunShown(unixDay_, place)) {}

std::string DayTimes::DateText() const {
  const calendar::Date date = calendar::GregorianFromAbsolute(unixDay_ + calendar::kAbsoluteDayOfUnixDay0);
  char text[48];
  std::snprintf(text, sizeof text, "%02d.%02d.%04d", date.day, date.month, date.year);
  return text;
}

std::string DayTimes::TimeOf(const Definition& zman) {
  const std::optional<int64_t> minute = day_.ClockMinute(zman);
  if (!minute) return "----";
  const sun::HourAndMinute time = sun::TimeOfDay(*minute);
  return stamp::TimeText(time.hour, time.minute, form_);
}

}  // namespace hours
