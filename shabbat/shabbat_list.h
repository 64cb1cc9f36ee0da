#pragma once

#include <windows.h>

#include "engine/core/records.h"

// Puts the Shabbat times of every Friday of a range at a place on the document, in place of those that it has; without
// memory for them it has none. The user's own times win, then candles decides on candle lighting, and the preferences
// on the rest. Too many Fridays are reported, and the list is cut.
void ComputeShabbatTimes(HWND document, const Location& place, const DateRange& range,
                         const CandleOverrideRecord& candles);

// The same as a block of its own, which the caller frees; null without memory.
HGLOBAL MakeShabbatTimes(const Location& place, const DateRange& range, const CandleOverrideRecord& candles);
