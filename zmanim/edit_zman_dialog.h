#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "engine/core/clock_time.h"
#include "engine/core/records.h"

// The dialog in which the user replaces a time of one zman on one day: the time typed, or nothing when cancelled. The
// description may be empty.
std::optional<ClockTime> EditZmanDialog(HWND document, const CalendarDate& date, const std::string& description,
                                        ClockTime current);
