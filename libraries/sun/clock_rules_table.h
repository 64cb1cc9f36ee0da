// The layout of the generated table of clock rules. Read by clock_rules.cpp only.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace sun::clock_rules_table {

// A zone or link by its exact name, and the index of its history, which links and like zones share.
struct Zone {
  std::string_view id;
  uint16_t history;
};

// The changes of a zone's offset since 1970: a run of changeMoments and offsetsAfter. Before the first change
// offsetAt1970 holds, from the last one on the standing rule.
struct History {
  uint16_t firstChange;
  uint16_t changeCount;
  uint8_t offsetAt1970;  // index into offsetsSeconds
  uint8_t standingRule;  // index into standingRules
};

// A day that a standing rule names: the given weekday (0 = Sunday) of the month, week 1 to 4 its first to fourth
// occurrence, week 5 its last; and the clock reading of the change, counted from that day's midnight by the clock in
// force before it, which may be negative or more than a day.
struct RuleDay {
  uint8_t month;
  uint8_t week;
  uint8_t weekday;
  int32_t secondsAfterMidnight;
};

// Equal offsets mean that there is no summer time, and the days mean nothing. Summer time may cross the year's end.
struct StandingRule {
  int32_t standardOffsetSeconds;
  int32_t summerOffsetSeconds;
  RuleDay summerStart;
  RuleDay summerEnd;
};

extern const std::span<const Zone> zones;  // ascending by id, byte-wise
extern const std::span<const History> histories;
extern const std::span<const StandingRule> standingRules;
extern const std::span<const int32_t> offsetsSeconds;  // east of UTC
extern const std::span<const uint32_t> changeMoments;  // seconds since 1970-01-01T00:00Z, ascending within a history
extern const std::span<const uint8_t> offsetsAfter;    // index into offsetsSeconds, in force from the moment on

}  // namespace sun::clock_rules_table
