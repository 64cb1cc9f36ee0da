// The days whose proportional hours are counted.
#pragma once

#include "libraries/hours/zman.h"

namespace hours {

constexpr Bound kSun = {BoundKind::kSun};
constexpr Bound kSeaLevelSun = {BoundKind::kSeaLevelSun};
constexpr Bound kTransit = {BoundKind::kTransit};
constexpr Bound kMeanNoon = {BoundKind::kMeanNoon};
constexpr Bound kSolarMidnight = {BoundKind::kMidnight};
constexpr Bound kMeanMidnight = {BoundKind::kMeanMidnight};

constexpr Bound Degrees(int32_t thousandths) {
  return {BoundKind::kDegrees, thousandths};
}
constexpr Bound Minutes(int32_t minutes) {
  return {BoundKind::kMinutes, minutes * 1000};
}
constexpr Bound ProportionalMinutes(int32_t minutes) {
  return {BoundKind::kProportionalMinutes, minutes * 1000};
}

// A day that begins as long before sunrise as it ends after sunset.
constexpr Day Both(Bound bound) {
  return {bound, bound};
}

constexpr Day kGraDay = Both(kSun);                   // the Vilna Gaon's: sunrise to sunset
constexpr Day kBaalHaTanyaDay = Both(Degrees(1583));  // sunrise and sunset as seen over the hills of the Land of Israel
constexpr Day kAteretTorahDay = {ProportionalMinutes(72), Minutes(40)};
constexpr Day kNight = Both({BoundKind::kNight});  // sunset to the next sunrise

// A half of the day, of which the other half begins or ends at 12:00 of local mean time. Of its twelfths each hour of
// the day has two.
constexpr Day MorningToMeanNoon(Day day) {
  return {day.start, kMeanNoon};
}
constexpr Day MeanNoonToEvening(Day day) {
  return {kMeanNoon, day.end};
}

}  // namespace hours
