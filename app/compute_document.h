// The one place that puts a document together: its place and range, zmanim, readings and Shabbat times.
#pragma once

#include <windows.h>

#include <cstdint>

#include "engine/core/records.h"

// Computes everything that a document shows; what it had is replaced and freed. Too long a range is reported once by
// each list that it is too long for.
void ComputeDocument(HWND document, const Location& place, const DateRange& range, const CandleOverrideRecord& candles);

// The same for the current location and the given days, both included.
void CalculateShabbatTimes(HWND document, uint32_t startDay, uint32_t startMonth, uint32_t startYear, uint32_t endDay,
                           uint32_t endMonth, uint32_t endYear);
