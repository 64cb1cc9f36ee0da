#include "engine/sun_times.h"

#include "companion/twilight.h"
#include "engine/bound_entries.h"

ClockTime SunEvent(const Location& place, const CalendarDate& date, uint32_t event) {
  ClockTime time{};
  Solar.SolarGetSunsetSunrise(date.uDay, date.uMonth, date.uYear, event, place.latitude, place.longitude,
                              place.zoneHours, place.zoneMinutes, &time.hour, &time.minute);
  return time;
}

ClockTime TwilightInterval(const Location& place, const CalendarDate& date, double depressionDegrees) {
  ClockTime interval{};
  TwilightCalculate(date.uDay, date.uMonth, date.uYear, depressionDegrees, place.latitude, place.longitude,
                    place.zoneHours, place.zoneMinutes, &interval.hour, &interval.minute);
  return interval;
}
