// The readings of a document's range, from the readings library.
#pragma once

#include <windows.h>

#include <cstdint>

// Puts the readings of the days from start to end, both Gregorian and included, on the document in place of those that
// it has. A range without any leaves them as they are. More days than a list may have are reported, and the list ends
// with the day that exceeded it.
void BuildReadingsList(HWND document, uint32_t startDay, uint32_t startMonth, uint32_t startYear, uint32_t endDay,
                       uint32_t endMonth, uint32_t endYear);
