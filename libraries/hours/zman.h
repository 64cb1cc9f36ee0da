// What a zman is: a moment reckoned from the sun of a day, and how it is rounded to a minute.
//
// Every zman is a number of proportional hours into some day, and maybe minutes more. Dawn and nightfall are the two
// ends of a day, its hours 0 and 12. Amounts are whole thousandths, so that they are written and compared exactly.
#pragma once

#include <cstdint>
#include <optional>

namespace hours {

// What a day begins or ends with: its start is the one of the morning, its end the one of the evening.
enum class BoundKind : uint8_t {
  kSun,                  // sunrise or sunset as the solar library has them, elevation included
  kSeaLevelSun,          // the same as seen from the sea
  kDegrees,              // the sun's centre so far below the geometric horizon
  kMinutes,              // so long before sunrise or after sunset
  kProportionalMinutes,  // the same in minutes of which the day from sunrise to sunset has 720
  kTransit,              // the sun's upper culmination
  kMeanNoon,             // 12:00 of local mean time
  kMidnight,             // the sun's lower culmination before or after the transit
  kNight,                // sunset at the start, the next date's sunrise at the end
  kMeanMidnight,         // 0:00 of local mean time, half a day before or after kMeanNoon
  kDawnParts,            // eighteenths of the time from 19.8 degrees of depression to sunrise, outwards
  kSeaLevelMinutes,      // kMinutes, kProportionalMinutes and kNight with sunrise and sunset as seen from the sea
  kSeaLevelProportionalMinutes,
  kSeaLevelNight,
};

struct Bound {
  BoundKind kind;
  int32_t thousandths = 0;  // of degrees, minutes or parts; negative on the other side of sunrise or sunset

  bool operator==(const Bound&) const = default;
};

struct Day {
  Bound start;
  Bound end;

  bool operator==(const Day&) const = default;
};

// So many twelfths of the day after its start, and so many minutes of the clock more. At 0 and 12 hours the other end
// need not occur.
struct Reckoning {
  Day day;
  int32_t thousandthHours;
  int32_t thousandthMinutes = 0;

  bool operator==(const Reckoning&) const = default;
};

constexpr int32_t kDayThousandthHours = 12000;

// Deadlines go down and onsets up, so that a time shown is always a safe one.
enum class Rounding : uint8_t { kDown, kUp, kNearest };

struct Definition {
  Reckoning reckoning;
  Rounding rounding;
  std::optional<Reckoning> notBefore = {};  // the later of both counts; a zman has no time unless both have
  bool isForPesachEve = false;              // occurs on 14 Nisan only
  std::optional<Reckoning> notAfter = {};   // the earlier of both counts, likewise

  bool operator==(const Definition&) const = default;
};

// The same where elevation moves sunrise and sunset only: whatever lies inside of a day, and minutes of which the day
// has 720, are reckoned from sunrise and sunset at sea level. Sunrise, sunset and minutes of the clock beside them keep
// the elevation.
Definition WithHoursAtSeaLevel(const Definition& zman);

}  // namespace hours
