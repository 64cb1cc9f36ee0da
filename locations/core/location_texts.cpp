#include "locations/core/location_texts.h"

#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace {

struct Degrees {
  uint32_t degrees;
  uint32_t minutes;
};

Degrees Unpack(int32_t packed) {
  const uint32_t magnitude = packed < 0 ? 0u - static_cast<uint32_t>(packed) : static_cast<uint32_t>(packed);
  return {magnitude / 100, magnitude % 100};
}

// The hours' sign holds for the minutes too, whatever theirs is; without hours they have their own.
std::string ZoneText(int32_t hours, int32_t signedMinutes) {
  const int64_t minutes = hours != 0 ? std::abs(int64_t{signedMinutes}) : signedMinutes;
  char text[48];
  int length = 0;
  if (hours != 0) length = std::snprintf(text, sizeof text, hours > 0 ? "+%" PRId32 : "%" PRId32, hours);
  if (minutes != 0) {
    std::snprintf(text + length, sizeof text - static_cast<std::size_t>(length), ":%02" PRId64, minutes);
  } else {
    text[length] = '\0';
  }
  return text;
}

}  // namespace

ElevationPlace ElevationPlaceOf(const Location& location) {
  const Degrees latitude = Unpack(location.latitude);
  const Degrees longitude = Unpack(location.longitude);
  return {latitude.degrees,  latitude.minutes,   longitude.degrees,
          longitude.minutes, location.zoneHours, location.zoneMinutes};
}

std::string ElevationKey(const ElevationPlace& place) {
  char key[96];
  std::snprintf(key, sizeof key, "%" PRIu32 "-%" PRIu32 "-%" PRIu32 "-%" PRIu32 "-%" PRId32 "-%" PRId32,
                place.latitudeDegrees, place.latitudeMinutes, place.longitudeDegrees, place.longitudeMinutes,
                place.zoneHours, place.zoneMinutes);
  return key;
}

std::string OtherElevationKey(const ElevationPlace& place) {
  constexpr int32_t kHasNoOpposite = std::numeric_limits<int32_t>::min();
  if (place.zoneHours == 0 || place.zoneMinutes == 0 || place.zoneMinutes == kHasNoOpposite) return {};
  ElevationPlace other = place;
  other.zoneMinutes = -place.zoneMinutes;
  return ElevationKey(other);
}

int32_t DefaultElevation(int32_t packedLatitude, int32_t packedLongitude, int32_t zoneHours) {
  return packedLatitude == 4854 && packedLongitude == 842 && zoneHours == 1 ? 263 : 0;
}

std::string ParameterLine(const Location& location, int32_t elevationMetres) {
  const Degrees latitude = Unpack(location.latitude);
  const Degrees longitude = Unpack(location.longitude);
  const std::string elevation =
      elevationMetres > 0 ? std::to_string(elevationMetres) + " meters" : std::string("no elevation");
  char line[2 * kTextSize];
  std::snprintf(line, sizeof line, "%s: %2" PRIu32 ",%02" PRIu32 "%s  %2" PRIu32 ",%02" PRIu32 "%s  GMT%s, %s",
                location.name, latitude.degrees, latitude.minutes, location.latitude < 0 ? "S" : "N", longitude.degrees,
                longitude.minutes, location.longitude < 0 ? "W" : "E",
                ZoneText(location.zoneHours, location.zoneMinutes).c_str(), elevation.c_str());
  return line;
}
