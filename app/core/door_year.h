// The year that stands on the page for the refrigerator door.
#pragma once

#include <cstdint>
#include <optional>

#include "app/core/document_source.h"

enum class DoorYear : uint8_t { kJewish, kCivil };

// The days of a year; nothing where they are not all within the years that ranges may have (range_check.h).
std::optional<DateRange> DaysOfYear(const DocumentServices& services, DoorYear kind, uint32_t year);

// The year of a date.
uint32_t YearOf(const DocumentServices& services, DoorYear kind, const CalendarDate& date);

// The years that can be chosen.
struct YearLimits {
  uint32_t first;
  uint32_t last;
};
YearLimits LimitsOf(const DocumentServices& services, DoorYear kind);
