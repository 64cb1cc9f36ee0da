#include "libraries/candles/offered_places.h"

#include <cstdint>
#include <cstring>
#include <set>

#include "companion/profile.h"
#include "libraries/sun/places.h"

namespace candles {
namespace {

constexpr char kFile[] = "shabbat2.ini";
constexpr char kSection[] = "Locations";
constexpr uint32_t kUsualListSize = 4096;

bool HasValue(const char* key) {
  char value[2];
  return ProfileGetString(kSection, key, "", value, sizeof value, kFile) > 0;
}

// The section's keys, each ended by a zero, and one more zero.
std::vector<char> KeyList() {
  std::vector<char> keys(kUsualListSize);
  for (;;) {
    const auto size = static_cast<uint32_t>(keys.size());
    if (ProfileGetString(kSection, nullptr, "", keys.data(), size, kFile) < size - 2) return keys;
    keys.resize(keys.size() * 2);
  }
}

}  // namespace

std::vector<std::string> OfferedPlaces(const Entries& entries) {
  std::vector<std::string> places;
  std::set<std::string> known;
  const auto add = [&](const std::string& place) {
    if (known.insert(place).second) places.push_back(place);
  };
  const std::vector<char> keys = KeyList();
  for (const char* key = keys.data(); *key; key += std::strlen(key) + 1) {
    if (HasValue(key)) add(key);
  }
  for (const sun::BuiltInPlace& place : sun::BuiltInPlaces()) add(place.name);
  for (const auto& [occasion, times] : entries) add(occasion.place);
  return places;
}

}  // namespace candles
