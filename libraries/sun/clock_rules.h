// Clock time by the tz database: the offset from UTC of a zone at a moment, summer time included.
#pragma once

#include <cstddef>
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

// The offset of the zone's standard time by its standing rule: the lower one where it has summer time (or, like Dublin
// and Casablanca, a winter time of its own). Nothing for an unknown zone.
std::optional<int32_t> StandingOffsetSeconds(std::string_view zoneId);

// A change of a zone's clock: the moment from which on it shows the offset after, and the offsets in seconds.
struct ClockChange {
  int64_t unixSeconds;
  int32_t offsetBefore;
  int32_t offsetAfter;

  bool operator==(const ClockChange&) const = default;
};

// The first change of the zone's clock later than a moment (from 1970 on; earlier ones count as its first second).
// Nothing when there is none to come, and for an unknown zone.
std::optional<ClockChange> NextClockChange(std::string_view zoneId, int64_t unixSeconds);

// The zones and links of the tz database in the order of their names, byte by byte; an index beyond the last answers
// an empty name.
size_t ZoneCount();
std::string_view ZoneId(size_t index);

// Whether the zone's clock has shown the offset at some moment since 1970.
bool HasShown(std::string_view zoneId, int64_t offsetSeconds);

}  // namespace sun
