#pragma once

#include <windows.h>

#include "engine/core/records.h"

// Runs the modal dialog with the daily page of Talmud of every day of the range, from which the list can be copied and
// saved. Without a range it is empty.
void RunDafYomiDialog(HWND owner, const DateRange* range);
