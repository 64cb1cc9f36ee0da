// The sun at a place, by the libraries' clock there.
#pragma once

#include "companion/solar.h"
#include "engine/core/clock_time.h"
#include "engine/core/records.h"

// SOLAR_SUNRISE or SOLAR_SUNSET of a Gregorian date.
ClockTime SunEvent(const Location& place, const CalendarDate& date, uint32_t event);

// From sunset (or to sunrise) until the sun stands so many degrees below the horizon, in hours and minutes.
ClockTime TwilightInterval(const Location& place, const CalendarDate& date, double depressionDegrees);
