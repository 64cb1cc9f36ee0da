// Clock time by the tz database: the offset from UTC of a zone at a moment, summer time included.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace sun {

// Whether the tz database has a zone or a link of exactly this name, e.g. "Asia/Jerusalem".
bool IsKnownZone(std::string_view zoneId);

// The offset of the zone's clock from UTC, in seconds, positive east, at a moment given in seconds since
// 1970-01-01T00:00Z. The standing rules go on for ever after the last change that the table lists. Nothing for an
// unknown zone or a moment before 1970. Takes about 0.1 microseconds.
std::optional<int32_t> UtcOffsetSeconds(std::string_view zoneId, int64_t unixSeconds);

// The zone of the built-in place that is nearest by great circle among those whose standard offset is the given one
// (zone_offset.h); null when there is none. Coordinates are packed as in BuiltInPlace; any numbers are
// survived.
const char* NearestZone(int32_t packedLatitude, int32_t packedLongitude, int32_t zoneHours, int32_t zoneMinutes);

}  // namespace sun
