#include "libraries/solar/summer_time_choice.h"

#include <algorithm>
#include <cstdio>

#include "libraries/sun/clock_rules.h"
#include "libraries/sun/zone_of_place.h"

namespace solar {
namespace {

ClockReason ReasonOf(sun::ZoneReason reason) {
  switch (reason) {
    case sun::ZoneReason::kBuiltIn: return ClockReason::kBuiltIn;
    case sun::ZoneReason::kStandard: return ClockReason::kStandard;
    case sun::ZoneReason::kFormer: return ClockReason::kFormer;
    case sun::ZoneReason::kOffsetOfNone: return ClockReason::kOffsetOfNone;
    case sun::ZoneReason::kNoZone: break;
  }
  return ClockReason::kNoZone;
}

std::optional<std::string> ValueOf(const SummerTimeChoice& choice) {
  switch (choice.choice) {
    case Choice::kZoneFound: return std::nullopt;
    case Choice::kOtherZone: return choice.zoneId;
    case Choice::kNoSummerTime: break;
  }
  return sun::kNoSummerTime;
}

void SetZone(sun::PlaceClock& clock, const char* zoneId) {
  std::snprintf(clock.zoneId.data(), clock.zoneId.size(), "%s", zoneId);
}

}  // namespace

SummerTimeChoice StoredChoice(const sun::SettingsReader& reader, const sun::PackedPlace& place) {
  SummerTimeChoice stored;
  stored.isOffAnywhere = sun::IsWord(sun::ReadClockText(reader, sun::kModeKey).data(), sun::kModeOff);
  const sun::PlaceKey otherKey = sun::OtherKeyOf(place);
  std::array<char, 64> text = sun::ReadClockText(reader, sun::KeyOf(place).data());
  if (text[0] == '\0' && otherKey[0] != '\0') text = sun::ReadClockText(reader, otherKey.data());
  if (sun::IsWord(text.data(), sun::kNoSummerTime)) {
    stored.choice = Choice::kNoSummerTime;
  } else if (sun::IsKnownZone(text.data())) {
    stored.choice = Choice::kOtherZone;
    stored.zoneId = text.data();
  }
  return stored;
}

std::vector<KeyChange> ChangesFor(const SummerTimeChoice& stored, const SummerTimeChoice& chosen,
                                  const sun::PackedPlace& place) {
  std::vector<KeyChange> changes;
  if (ValueOf(chosen) != ValueOf(stored)) {
    const sun::PlaceKey key = sun::KeyOf(place);
    changes.push_back({key.data(), ValueOf(chosen)});
    const sun::PlaceKey otherKey = sun::OtherKeyOf(place);
    if (otherKey[0] != '\0') changes.push_back({otherKey.data(), std::nullopt});
  }
  if (chosen.isOffAnywhere != stored.isOffAnywhere) {
    changes.push_back({sun::kModeKey, chosen.isOffAnywhere ? sun::kModeOff : "Automatic"});
  }
  return changes;
}

ExplainedClock ClockBy(const SummerTimeChoice& choice, const sun::PackedPlace& place) {
  const sun::Site site = sun::SiteFromPacked(place.latitude, place.longitude, place.zoneHours, place.zoneMinutes);
  ExplainedClock explained = {{site.standardOffsetMinutes * 60, {}}, ClockReason::kOff};
  if (choice.isOffAnywhere) return explained;
  if (choice.choice == Choice::kNoSummerTime) {
    explained.reason = ClockReason::kNoneByUser;
  } else if (choice.choice == Choice::kOtherZone) {
    explained.reason = ClockReason::kSetByUser;
    SetZone(explained.clock, choice.zoneId.c_str());
  } else {
    const sun::ZoneOfPlace found = sun::FindZone(place.latitude, place.longitude, place.zoneHours, place.zoneMinutes);
    explained.reason = ReasonOf(found.reason);
    if (found.zoneId) SetZone(explained.clock, found.zoneId);
  }
  return explained;
}

}  // namespace solar
