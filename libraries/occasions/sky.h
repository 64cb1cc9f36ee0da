// The moments of days at a place, as clocks there show them.
#pragma once

#include <cstdint>
#include <optional>

#include "libraries/hours/zman_day.h"
#include "libraries/occasions/occasions_core.h"

namespace occasions {

constexpr int64_t kMinutesPerDay = 24 * 60;

// A minute on the clock in force.
struct ClockMinute {
  int64_t minute;         // since 0:00 of the absolute day 0
  int32_t offsetSeconds;  // of the clock from UTC

  // The civil day that it is on.
  int32_t Day() const { return static_cast<int32_t>(minute / kMinutesPerDay); }
};

enum class Rounding : uint8_t { kDown, kUp, kNearest };

// Days are absolute. Not for use by several threads at once.
class Sky {
 public:
  explicit Sky(const Question& question) : question_(question) {}

  ClockMinute Sunset(int32_t day);
  ClockMinute Sunrise(int32_t day);

  // Nothing where the zman does not occur on the day.
  std::optional<ClockMinute> Zman(int32_t day, hours::Definition zman);

  // Minutes after sunset; any number.
  ClockMinute AfterSunset(int32_t day, int32_t minutes);

  // By the rule of Shabbat, its own times aside.
  ClockMinute Lighting(int32_t eve);
  ClockMinute End(int32_t day);

  // A moment of UTC, in seconds since 1970-01-01.
  ClockMinute At(double utcSeconds, Rounding rounding) const;

  // What there is to say, as bits of Note, where the sun does not set or rise on the day, or not get as low as the end
  // of Shabbat by degrees wants.
  uint16_t NotesOfSunset(int32_t day) const;
  uint16_t NotesOfSunrise(int32_t day) const;
  uint16_t NotesOfEnd(int32_t day) const;

  // Why a zman does not occur on the day: kNeverSoLow or kAlwaysLower.
  uint16_t NoteOfMissing(int32_t day, const hours::Definition& zman) const;

 private:
  hours::ZmanDay& On(int32_t day);
  sun::SunDay SunOf(int32_t day) const;

  const Question& question_;
  int32_t day_ = 0;
  std::optional<hours::ZmanDay> zmanim_;  // of day_
};

}  // namespace occasions
