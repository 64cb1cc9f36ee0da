// The zone whose clock a place keeps, by its coordinates and standard offset.
#pragma once

#include <cstdint>

namespace sun {

enum class ZoneReason : uint8_t {
  kBuiltIn,       // a built-in place stands there
  kStandard,      // the standard offset of a zone within 5 km is the given one
  kFormer,        // the clock of one has shown the given offset since 1970
  kOffsetOfNone,  // zones are there, but none has ever had the offset
  kNoZone,        // there are no zones within 5 km
};

struct ZoneOfPlace {
  const char* zoneId;  // null where there is none: the standard clock all year
  ZoneReason reason;
};

// Coordinates are packed as in BuiltInPlace, the offset is read as zone_offset.h says; any numbers are survived. Of
// several zones the one in which the place lies, and Asia/Jerusalem before Asia/Hebron where both hold. Takes up to a
// millisecond.
ZoneOfPlace FindZone(int32_t packedLatitude, int32_t packedLongitude, int32_t zoneHours, int32_t zoneMinutes);

// The zone in which the place lies, whatever its offset, for a dialog that says what is there; null for none.
const char* ZoneThere(int32_t packedLatitude, int32_t packedLongitude);

}  // namespace sun
