#include "libraries/sun/place_settings.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string_view>

#include "libraries/sun/clock_rules.h"
#include "libraries/sun/zone_of_place.h"

namespace sun {
namespace {

constexpr char kElevationFile[] = "almanacelevation.ini";
constexpr char kElevationSection[] = "Elevation";

char LowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsOff(const PlaceTexts& texts) {
  return IsWord(texts.mode.data(), kModeOff);
}

int32_t ReadElevation(const SettingsReader& reader, const PackedPlace& place, const PlaceKey& key,
                      const PlaceKey& otherKey) {
  const bool hasOwnDefault = place.latitude == 4854 && place.longitude == 842 && place.zoneHours == 1;
  const int32_t byDefault = hasOwnDefault ? 263 : 0;
  const auto read = [&reader](const PlaceKey& of, int32_t otherwise) {
    return reader.readInt(kElevationSection, of.data(), otherwise, kElevationFile);
  };
  if (otherKey[0] == '\0') return read(key, byDefault);
  constexpr int32_t kMissing = std::numeric_limits<int32_t>::min();
  const int32_t metres = read(key, kMissing);
  return metres != kMissing ? metres : read(otherKey, byDefault);
}

PlaceTexts ReadTexts(const SettingsReader& reader, const PackedPlace& place, const PlaceKey& key,
                     const PlaceKey& otherKey) {
  PlaceTexts texts = {};
  texts.elevationMetres = ReadElevation(reader, place, key, otherKey);
  texts.mode = ReadClockText(reader, kModeKey);
  if (IsOff(texts)) return texts;
  texts.zone = ReadClockText(reader, key.data());
  if (texts.zone[0] == '\0' && otherKey[0] != '\0') texts.zone = ReadClockText(reader, otherKey.data());
  return texts;
}

PlaceSettings SettingsOf(const PackedPlace& place, const PlaceTexts& texts) {
  PlaceSettings settings = {SiteFromPacked(place.latitude, place.longitude, place.zoneHours, place.zoneMinutes),
                            static_cast<double>(std::max(texts.elevationMetres, 0)),
                            {}};
  PlaceClock& clock = settings.clock;
  clock.standardOffsetSeconds = settings.site.standardOffsetMinutes * 60;
  if (IsOff(texts) || IsWord(texts.zone.data(), kNoSummerTime)) return settings;
  if (IsKnownZone(texts.zone.data())) {
    clock.zoneId = texts.zone;
  } else if (const char* zone = FindZone(place.latitude, place.longitude, place.zoneHours, place.zoneMinutes).zoneId) {
    std::snprintf(clock.zoneId.data(), clock.zoneId.size(), "%s", zone);
  }
  return settings;
}

}  // namespace

bool IsWord(const char* text, const char* word) {
  return std::ranges::equal(std::string_view(text), std::string_view(word), {}, LowerCase, LowerCase);
}

std::array<char, 64> ReadClockText(const SettingsReader& reader, const char* key) {
  std::array<char, 64> text = {};
  reader.readText(kClockSection, key, "", text.data(), static_cast<uint32_t>(text.size()), kClockFile);
  text.back() = '\0';
  return text;
}

PlaceKey KeyOf(const PackedPlace& place) {
  PlaceKey key = {};
  std::snprintf(key.data(), key.size(), "%d-%d-%d-%d-%d-%d", std::abs(place.latitude / 100),
                std::abs(place.latitude % 100), std::abs(place.longitude / 100), std::abs(place.longitude % 100),
                place.zoneHours, place.zoneMinutes);
  return key;
}

PlaceKey OtherKeyOf(const PackedPlace& place) {
  constexpr int32_t kHasNoOpposite = std::numeric_limits<int32_t>::min();
  if (place.zoneHours == 0 || place.zoneMinutes == 0 || place.zoneMinutes == kHasNoOpposite) return {};
  PackedPlace other = place;
  other.zoneMinutes = -place.zoneMinutes;
  return KeyOf(other);
}

PlaceSettings ReadPlaceSettings(const SettingsReader& reader, const PackedPlace& place) {
  return SettingsOf(place, ReadTexts(reader, place, KeyOf(place), OtherKeyOf(place)));
}

const PlaceSettings& KnownPlace::Read(const SettingsReader& reader, const PackedPlace& place) {
  const bool isSamePlace = place == place_;
  if (!isSamePlace) {
    place_.reset();
    key_ = KeyOf(place);
    otherKey_ = OtherKeyOf(place);
  }
  const PlaceTexts texts = ReadTexts(reader, place, key_, otherKey_);
  if (!isSamePlace || texts != texts_) settings_ = SettingsOf(place, texts);
  place_ = place;
  texts_ = texts;
  return settings_;
}

}  // namespace sun
