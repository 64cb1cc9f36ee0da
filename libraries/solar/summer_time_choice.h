// What the user has chosen for the clock of a place, and what follows from it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "libraries/sun/place_settings.h"

namespace solar {

enum class Choice : uint8_t { kZoneFound, kOtherZone, kNoSummerTime };

struct SummerTimeChoice {
  Choice choice = Choice::kZoneFound;
  std::string zoneId;  // with kOtherZone: of the tz database
  bool isOffAnywhere = false;

  bool operator==(const SummerTimeChoice&) const = default;
};

// As solar.ini has it. A zone that the tz database does not know leaves the zone found.
SummerTimeChoice StoredChoice(const sun::SettingsReader& reader, const sun::PackedPlace& place);

// A change of a key in the clock's section.
struct KeyChange {
  std::string key;
  std::optional<std::string> value;  // nothing: the key goes

  bool operator==(const KeyChange&) const = default;
};

// What has to be written for a choice in place of what was stored, in order; nothing where they are the same. The key
// with the minutes' other sign goes when the place's choice changes.
std::vector<KeyChange> ChangesFor(const SummerTimeChoice& stored, const SummerTimeChoice& chosen,
                                  const sun::PackedPlace& place);

// Why a place has the clock that it has. The first five are those of sun::ZoneReason.
enum class ClockReason : uint8_t {
  kBuiltIn,
  kStandard,
  kFormer,
  kOffsetOfNone,
  kNoZone,
  kSetByUser,
  kNoneByUser,
  kOff,
};

struct ExplainedClock {
  sun::PlaceClock clock;
  ClockReason reason;
};

// The clock that sun::ReadPlaceSettings answers where the choice is stored.
ExplainedClock ClockBy(const SummerTimeChoice& choice, const sun::PackedPlace& place);

}  // namespace solar
