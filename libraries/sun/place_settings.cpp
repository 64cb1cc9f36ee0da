#include "libraries/sun/place_settings.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "libraries/sun/clock_rules.h"

namespace sun {
namespace {

constexpr char kElevationFile[] = "almanacelevation.ini";
constexpr char kElevationSection[] = "Elevation";
constexpr char kClockFile[] = "solar.ini";
constexpr char kClockSection[] = "SummerTime";

char LowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool EqualsIgnoringCase(std::string_view left, std::string_view right) {
  return std::ranges::equal(left, right, {}, LowerCase, LowerCase);
}

// The text of a key of the clock section, "" when it is missing; what does not fit is no mode and no zone either.
std::array<char, 64> ReadClockText(const SettingsReader& reader, const char* key) {
  std::array<char, 64> text = {};
  reader.readText(kClockSection, key, "", text.data(), static_cast<uint32_t>(text.size()), kClockFile);
  text.back() = '\0';
  return text;
}

}  // namespace

std::array<char, 80> PlaceKey(const PackedPlace& place) {
  std::array<char, 80> key = {};
  std::snprintf(key.data(), key.size(), "%d-%d-%d-%d-%d-%d", std::abs(place.latitude / 100),
                std::abs(place.latitude % 100), std::abs(place.longitude / 100), std::abs(place.longitude % 100),
                place.zoneHours, place.zoneMinutes);
  return key;
}

double ReadElevationMetres(const SettingsReader& reader, const PackedPlace& place) {
  const bool hasOwnDefault = place.latitude == 4854 && place.longitude == 842 && place.zoneHours == 1;
  const int32_t metres =
      reader.readInt(kElevationSection, PlaceKey(place).data(), hasOwnDefault ? 263 : 0, kElevationFile);
  return std::max(metres, 0);
}

PlaceClock ReadPlaceClock(const SettingsReader& reader, const PackedPlace& place) {
  const Site site = SiteFromPacked(place.latitude, place.longitude, place.zoneHours, place.zoneMinutes);
  PlaceClock clock = {site.standardOffsetMinutes * 60, {}};
  if (EqualsIgnoringCase(ReadClockText(reader, "Mode").data(), "Off")) return clock;
  const std::array<char, 64> named = ReadClockText(reader, PlaceKey(place).data());
  if (EqualsIgnoringCase(named.data(), "none")) return clock;
  if (IsKnownZone(named.data())) {
    clock.zoneId = named;
  } else if (const char* nearest = NearestZone(place.latitude, place.longitude, place.zoneHours, place.zoneMinutes)) {
    std::snprintf(clock.zoneId.data(), clock.zoneId.size(), "%s", nearest);
  }
  return clock;
}

PlaceSettings ReadPlaceSettings(const SettingsReader& reader, const PackedPlace& place) {
  return {SiteFromPacked(place.latitude, place.longitude, place.zoneHours, place.zoneMinutes),
          ReadElevationMetres(reader, place), ReadPlaceClock(reader, place)};
}

}  // namespace sun
