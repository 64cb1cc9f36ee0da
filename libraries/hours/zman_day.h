// The zmanim of one date at one place. The sun is computed once; what zmanim have in common is computed once too.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "libraries/hours/zman.h"
#include "libraries/sun/place_settings.h"
#include "libraries/sun/sun_day.h"

namespace hours {

// Sunrise and sunset as they are shown: minutes after midnight on the clock in force, as the solar library rounds them.
// Any numbers; whole days too many or too few do not matter.
struct ShownSun {
  int64_t sunriseMinutes;
  int64_t sunsetMinutes;

  bool operator==(const ShownSun&) const = default;
};

class ZmanDay {
 public:
  // unixDay: days since 1970-01-01 of the years 1 to 9999 (sun::UnixDayOfDate).
  ZmanDay(int32_t unixDay, const sun::PlaceSettings& place, const ShownSun& shown);

  // With sunrise and sunset as the place's settings have them.
  ZmanDay(int32_t unixDay, const sun::PlaceSettings& place);

  // Whether sunrise and sunset are shown as the place's settings have them. If not, the settings have changed since.
  bool AgreesWithShown() const { return agreesWithShown_; }

  // The exact moment, in seconds of UTC since 1970-01-01; nothing when it depends on a depression that the sun does not
  // pass on the date, or on another date. Sunrise and sunset always occur: where the sun stays up or down, they are its
  // lowest or highest point.
  std::optional<double> UtcSeconds(const Definition& zman);

  // The zman on the clock in force at its moment, in minutes after that clock's 1970-01-01 00:00. Sunrise, sunset and
  // zmanim of whole minutes from them are counted from the shown sunrise and sunset; all others are exact moments,
  // rounded as their definitions say.
  std::optional<int64_t> ClockMinute(const Definition& zman);

 private:
  ZmanDay(int32_t unixDay, const sun::PlaceSettings& place, const ShownSun* shown);

  // The morning's bound or the evening's.
  enum class End : uint8_t { kStart, kEnd };

  std::optional<double> At(const Bound& bound, End end);
  std::optional<double> At(const Reckoning& reckoning);
  std::optional<double> AtDepression(int32_t thousandthDegrees, End end);
  std::optional<double> AtDawnParts(int32_t thousandths, End end);
  double MeanNoon() const;
  double SeaLevelSun(End end);
  double NextSunrise(double elevationMetres);
  double Outwards(double sun, double seconds, End end) const { return sun + (end == End::kStart ? -seconds : seconds); }
  std::optional<int64_t> CountedMinute(const Definition& zman) const;
  int32_t OffsetSeconds(double utcSeconds) const;
  bool IsPesachEve();

  int32_t unixDay_;
  const sun::PlaceSettings place_;
  sun::SunDay sun_;
  double sunrise_;
  double sunset_;
  double shownSunrise_;  // the moments of the shown minutes
  double shownSunset_;
  bool agreesWithShown_ = true;
  int32_t offsetSeconds_;  // of the clock from a day before noon to a day after it
  bool hasOneOffset_;
  std::optional<bool> isPesachEve_;
  std::optional<double> seaLevelSunrise_;
  std::optional<double> seaLevelSunset_;
  std::optional<sun::SunDay> nextSun_;

  // Depressions asked for so far, each in the slot of its key; of two for one slot the later.
  static constexpr size_t kSlots = 256;
  std::array<int32_t, kSlots> keptKeys_;
  std::array<double, kSlots> keptMoments_;  // not a number where the sun does not get there
};

}  // namespace hours
