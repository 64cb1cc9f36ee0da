// The nineteen built-in zmanim, for users who want no selection of their own: each follows from sunrise, sunset and the
// interval to a solar depression.
#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "engine/core/clock_time.h"

inline constexpr uint32_t kBuiltInZmanimCount = 19;

struct DaySun {
  ClockTime sunrise;
  ClockTime sunset;
};

enum class BuiltInRule {
  kMinutesBeforeSunrise,
  kMinutesAfterSunset,
  kDegreesBeforeSunrise,
  kDegreesAfterSunset,
  kProportionalHours,  // twelfths of the time from sunrise to sunset, counted from sunrise
};

struct BuiltInZman {
  BuiltInRule rule;
  double amount;           // minutes, degrees or hours, as the rule has it
  int32_t minutesOff = 0;  // added to proportional hours
};

// In the order of the table's columns. The Magen Avraham's day runs from 72 minutes before sunrise to 72 minutes after
// sunset (Magen Avraham 58:1); against the Vilna Gaon's it begins 72 minutes earlier and each of its hours is 12
// minutes longer, so that p hours into it are 12p - 72 minutes later. Midday, p = 6, is the same for both.
inline constexpr std::array<BuiltInZman, kBuiltInZmanimCount> kBuiltInZmanim = {{
    {BuiltInRule::kMinutesBeforeSunrise, 72},    // Alot HaShachar (Rabbi Moshe Feinstein)
    {BuiltInRule::kDegreesBeforeSunrise, 11},    // Earliest Tallit
    {BuiltInRule::kDegreesBeforeSunrise, 10.2},  // Earliest Tallit
    {BuiltInRule::kMinutesBeforeSunrise, 0},     // HaNetz HaChama
    {BuiltInRule::kProportionalHours, 3, -36},   // Kriat Shema (M"A)
    {BuiltInRule::kProportionalHours, 3},        // Kriat Shema (GR"O)
    {BuiltInRule::kProportionalHours, 4, -24},   // Tefila (M"A)
    {BuiltInRule::kProportionalHours, 4},        // Tefila (GR"O)
    {BuiltInRule::kProportionalHours, 6},        // Chatzot (GR"O)
    {BuiltInRule::kProportionalHours, 6},        // Chatzot (M"A)
    {BuiltInRule::kProportionalHours, 6.5},      // Mincha Gedola (GR"O)
    {BuiltInRule::kProportionalHours, 6.5, 6},   // Mincha Gedola (M"A)
    {BuiltInRule::kProportionalHours, 9.5},      // Mincha K'tana (GR"O)
    {BuiltInRule::kProportionalHours, 9.5, 42},  // Mincha K'tana (M"A)
    {BuiltInRule::kMinutesAfterSunset, 0},       // Shkia
    {BuiltInRule::kDegreesAfterSunset, 5.95},    // Ba'al HaTanya
    {BuiltInRule::kDegreesAfterSunset, 7.5},     // 3 Medium Stars
    {BuiltInRule::kDegreesAfterSunset, 8.75},    // 3 Small Stars
    {BuiltInRule::kMinutesAfterSunset, 72},      // Tzait HaChochavim (Rabbeinu Tam)
}};

// The interval from sunset (or to sunrise) to a depression in degrees, in hours and minutes.
using TwilightQuestion = std::function<ClockTime(double depressionDegrees)>;

// The clock time of a row of the table. Only the rules by degrees ask for an interval.
ClockTime BuiltInZmanTime(const BuiltInZman& zman, const DaySun& sun, const TwilightQuestion& twilight);

// minutes before sunrise. Deliberate: the difference is unsigned, so that before 01:12 the hour of dawn is a large
// number that nobody takes for a time.
ClockTime MinutesBeforeSunrise(ClockTime sunrise, uint32_t minutes);

// The interval before sunrise or after sunset, with no wrap at midnight: negative hours and minutes, or hours from 24
// up.
ClockTime IntervalBeforeSunrise(ClockTime sunrise, ClockTime interval);
ClockTime IntervalAfterSunset(ClockTime sunset, ClockTime interval);

// So many twelfths of the day after sunrise, and minutesOff minutes more. Fractions of a minute are dropped.
ClockTime ProportionalHours(const DaySun& sun, double hours, int32_t minutesOff);
