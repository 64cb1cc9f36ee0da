// What the settings say about a place: its elevation and its clock.
//
//   almanacelevation.ini  [Elevation]   <place key>=metres
//   solar.ini             [SummerTime]  Mode=Automatic|Off   <place key>=zone id of the tz database, or none
//
// The place key is "%d-%d-%d-%d-%d-%d" of latitude degrees and minutes, longitude degrees and minutes (without their
// signs), zone hours and zone minutes (with theirs). What is missing under a place's key is looked for under that of
// the same zone with the minutes' other sign: (-3, 30) and (-3, -30) are one zone, and built-in places once had the
// second form.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "libraries/sun/sun_day.h"

namespace sun {

// A place as programs hand it over: coordinates packed as degrees x 100 + minutes, negative for south and west; the
// standard zone as hours and minutes, read as zone_offset.h says. Any numbers.
struct PackedPlace {
  int32_t latitude;
  int32_t longitude;
  int32_t zoneHours;
  int32_t zoneMinutes;

  bool operator==(const PackedPlace&) const = default;
};

// The settings' readers, as companion/profile.h has them.
struct SettingsReader {
  int32_t (*readInt)(const char* section, const char* key, int32_t defaultValue, const char* file);
  uint32_t (*readText)(const char* section, const char* key, const char* defaultValue, char* buffer, uint32_t size,
                       const char* file);
};

// The clock that a place's times are told in.
struct PlaceClock {
  int32_t standardOffsetSeconds;
  std::array<char, 64> zoneId;  // empty: the standard clock all year
};

struct PlaceSettings {
  Site site;
  double elevationMetres;  // 0 or more
  PlaceClock clock;
};

// What the files say about a place.
struct PlaceTexts {
  int32_t elevationMetres;
  std::array<char, 64> mode;
  std::array<char, 64> zone;

  bool operator==(const PlaceTexts&) const = default;
};

constexpr char kClockFile[] = "solar.ini";
constexpr char kClockSection[] = "SummerTime";
constexpr char kModeKey[] = "Mode";
constexpr char kModeOff[] = "Off";        // as Mode; in any letter case
constexpr char kNoSummerTime[] = "none";  // in place of a zone id; in any letter case

// Whether a text of the clock's section is one of these words.
bool IsWord(const char* text, const char* word);

// A text of the clock's section, "" when it is missing; what does not fit is no mode and no zone either.
std::array<char, 64> ReadClockText(const SettingsReader& reader, const char* key);

using PlaceKey = std::array<char, 80>;

PlaceKey KeyOf(const PackedPlace& place);
// With the minutes' other sign; empty when that would be another zone, or the same key.
PlaceKey OtherKeyOf(const PackedPlace& place);

// Everything an answer needs, by at most three reads, or five for zones of hours and minutes.
//
// An elevation below the sea counts as none. One place has an elevation where the settings name none: 48 degrees 54'
// north, 8 degrees 42' east, zone 1, 263 metres. The zone is the one that the settings name; where they name none or
// one that the tz database does not know, that of the place's coordinates and offset (zone_of_place.h).
PlaceSettings ReadPlaceSettings(const SettingsReader& reader, const PackedPlace& place);

// The same for programs that ask for one place many times: the settings are read each time, but what follows from them
// and the place is worked out only when they are others than the last time. Not for use by several threads at once.
class KnownPlace {
 public:
  // What it answers is good until the next call.
  const PlaceSettings& Read(const SettingsReader& reader, const PackedPlace& place);

 private:
  std::optional<PackedPlace> place_;
  PlaceKey key_;       // of place_
  PlaceKey otherKey_;  // of place_
  PlaceTexts texts_;
  PlaceSettings settings_;  // by place_ and texts_
};

}  // namespace sun
