#include "engine/sun_times.h"

#include "app/bound_entries.h"
#include "companion/twilight.h"
#include "engine/current.h"

ClockTime SunEvent(const CalendarDate& date, uint32_t event) {
  ClockTime time{};
  Solar.SolarGetSunsetSunrise(date.uDay, date.uMonth, date.uYear, event, CurrentLocation.latitude,
                              CurrentLocation.longitude, CurrentLocation.zoneHours, CurrentLocation.zoneMinutes,
                              &time.hour, &time.minute);
  return time;
}

ClockTime TwilightInterval(const CalendarDate& date, double depressionDegrees) {
  ClockTime interval{};
  TwilightCalculate(date.uDay, date.uMonth, date.uYear, depressionDegrees, CurrentLocation.latitude,
                    CurrentLocation.longitude, CurrentLocation.zoneHours, CurrentLocation.zoneMinutes, &interval.hour,
                    &interval.minute);
  return interval;
}
