#include "tests/doubles/bound_doubles.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstring>

#include "engine/bound_entries.h"
#include "tests/doubles/call_log.h"

namespace {

// Rata Die of 1 January 1970.
constexpr int32_t kUnixEpoch = 719163;

int32_t AbsoluteFromForeign(const CalendarDate* date) {
  using namespace std::chrono;
  const year_month_day day{year(static_cast<int>(date->uYear)), month(date->uMonth), std::chrono::day(date->uDay)};
  return static_cast<int32_t>(sys_days(day).time_since_epoch().count()) + kUnixEpoch;
}

void ForeignFromAbsolute(int32_t absoluteDay, CalendarDate* date) {
  using namespace std::chrono;
  const year_month_day day(sys_days(days(absoluteDay - kUnixEpoch)));
  *date = {unsigned(day.day()), unsigned(day.month()), static_cast<uint32_t>(int(day.year()))};
  if (Bound().spoilDate) Bound().spoilDate(*date);
}

void JewishForeignFromAbsolute(int32_t absoluteDay, CalendarDate* date) {
  ForeignFromAbsolute(absoluteDay, date);
  date->uYear += kDoubledJewishEpoch;
}

uint32_t CountPlaces() {
  return static_cast<uint32_t>(Bound().places.size());
}

uint32_t GetPlace(uint32_t index, char* name, int32_t* latitude, int32_t* longitude, int32_t* zoneHours,
                  int32_t* zoneMinutes) {
  const DoubledPlace& place = Bound().places.at(index);
  std::strcpy(name, place.name.c_str());
  *latitude = place.latitude;
  *longitude = place.longitude;
  *zoneHours = place.zoneHours;
  *zoneMinutes = place.zoneMinutes;
  return 1;
}

void GetSunsetSunrise(uint32_t day, uint32_t month, uint32_t year, uint32_t event, int32_t latitude, int32_t longitude,
                      int32_t zoneHours, int32_t zoneMinutes, int32_t* hour, int32_t* minute) {
  const bool sunrise = event == SOLAR_SUNRISE;
  LogCall("%s %u.%u.%u %d %d %d:%d", sunrise ? "sunrise" : "sunset", day, month, year, latitude, longitude, zoneHours,
          zoneMinutes);
  const DoubledTime time = sunrise ? Bound().sunrise({day, month, year}) : Bound().sunset({day, month, year});
  *hour = time.hour;
  *minute = time.minute;
}

}  // namespace

BoundScript& Bound() {
  static BoundScript script;
  return script;
}

void ResetBoundLibraries() {
  Bound() = {.places = {{"Aachen", 5046, 606, 1, 0}, {"Haifa", 3249, 3459, 2, 0}, {"Jerusalem", 3147, 3513, 2, 0}},
             .sunset =
                 [](const CalendarDate&) {
                   return DoubledTime{19, 5};
                 },
             .sunrise =
                 [](const CalendarDate&) {
                   return DoubledTime{5, 47};
                 },
             .spoilDate = nullptr};
  CivilCalendar = {};
  CivilCalendar.DatefilterAbsoluteFromForeign = AbsoluteFromForeign;
  CivilCalendar.DatefilterForeignFromAbsolute = ForeignFromAbsolute;
  LunarCalendar = {};
  LunarCalendar.DatefilterForeignFromAbsolute = JewishForeignFromAbsolute;
  Solar = {};
  Solar.SolarGetCountOfBuiltInLocations = CountPlaces;
  Solar.SolarGetBuiltInLocation = GetPlace;
  Solar.SolarGetSunsetSunrise = GetSunsetSunrise;
}
