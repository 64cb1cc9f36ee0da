#include "libraries/sun/zone_of_place.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string_view>
#include <vector>

#include "libraries/sun/clock_rules.h"
#include "libraries/sun/places.h"
#include "libraries/sun/zone_map.h"
#include "libraries/sun/zone_offset.h"

namespace sun {
namespace {

constexpr std::string_view kJerusalem = "Asia/Jerusalem";
constexpr double kKilometresPerDegree = 111.2;  // of latitude

// Zones of a place and its surroundings, those of the place itself first, each once.
std::vector<const char*> ZonesNear(double latitude, double longitude) {
  constexpr std::array<double, 3> kRadiiKilometres = {1.7, 3.4, 5};
  constexpr int kDirections = 12;
  std::vector<const char*> zones;
  const auto take = [&zones](const ZonesOfPoint& found) {
    for (const char* zone : found) {
      const auto isSame = [zone](const char* other) { return std::string_view(other) == zone; };
      if (zone && std::ranges::none_of(zones, isSame)) zones.push_back(zone);
    }
  };
  take(ZonesAt(latitude, longitude));
  const double shrinking = std::max(std::cos(latitude * (std::numbers::pi / 180)), 0.01);  // of a degree of longitude
  for (const double radius : kRadiiKilometres) {
    for (int i = 0; i < kDirections; ++i) {
      const double angle = i * (2 * std::numbers::pi / kDirections);
      take(ZonesAt(latitude + radius * std::sin(angle) / kKilometresPerDegree,
                   longitude + radius * std::cos(angle) / kKilometresPerDegree / shrinking));
    }
  }
  return zones;
}

double Degrees(int32_t packed) {
  return packed / 100 + packed % 100 / 60.0;
}

const BuiltInPlace* BuiltInPlaceAt(int32_t packedLatitude, int32_t packedLongitude, int64_t offsetMinutes) {
  const auto stands = [&](const BuiltInPlace& place) {
    return place.packedLatitude == packedLatitude && place.packedLongitude == packedLongitude &&
           StandardOffsetMinutes(place.zoneHours, place.zoneMinutes) == offsetMinutes;
  };
  const auto found = std::ranges::find_if(BuiltInPlaces(), stands);
  return found == BuiltInPlaces().end() ? nullptr : &*found;
}

// Of zones that fit, those of the place first: the first, but Asia/Jerusalem before the other zone of the same place.
template <typename Fits>
const char* FirstThatFits(const std::vector<const char*>& zones, const ZonesOfPoint& there, Fits fits) {
  const auto isThere = [&there](const char* zone) {
    return std::ranges::any_of(there, [zone](const char* own) { return own && std::string_view(own) == zone; });
  };
  const char* first = nullptr;
  for (const char* zone : zones) {
    if (!fits(zone)) continue;
    if (zone == kJerusalem && first && isThere(zone) == isThere(first)) return zone;
    if (!first) first = zone;
  }
  return first;
}

}  // namespace

ZoneOfPlace FindZone(int32_t packedLatitude, int32_t packedLongitude, int32_t zoneHours, int32_t zoneMinutes) {
  const int64_t offsetMinutes = StandardOffsetMinutes(zoneHours, zoneMinutes);
  if (const BuiltInPlace* place = BuiltInPlaceAt(packedLatitude, packedLongitude, offsetMinutes)) {
    return {place->zoneId, ZoneReason::kBuiltIn};
  }
  const double latitude = Degrees(packedLatitude);
  const double longitude = Degrees(packedLongitude);
  const std::vector<const char*> zones = ZonesNear(latitude, longitude);
  const ZonesOfPoint there = ZonesAt(latitude, longitude);
  const int64_t offsetSeconds = offsetMinutes * 60;
  const auto isStandard = [&](const char* zone) { return StandingOffsetSeconds(zone) == offsetSeconds; };
  if (const char* zone = FirstThatFits(zones, there, isStandard)) return {zone, ZoneReason::kStandard};
  const auto hasShown = [&](const char* zone) { return HasShown(zone, offsetSeconds); };
  if (const char* zone = FirstThatFits(zones, there, hasShown)) return {zone, ZoneReason::kFormer};
  return {nullptr, zones.empty() ? ZoneReason::kNoZone : ZoneReason::kOffsetOfNone};
}

const char* ZoneThere(int32_t packedLatitude, int32_t packedLongitude) {
  const std::vector<const char*> zones = ZonesNear(Degrees(packedLatitude), Degrees(packedLongitude));
  return zones.empty() ? nullptr : zones.front();
}

}  // namespace sun
