#pragma once

#include <windows.h>

#include <cstdint>

// Computes the zmanim of every day of a range at CurrentLocation; the new block replaces and frees the document's old
// one, and the
// zmanim view scrolls by the new one. In the user's own selection a custom time stored for the day and the document's
// place wins. A range of more than 32,000 days is reported and cut.
void CalculateZmanim(HWND document, uint32_t startDay, uint32_t startMonth, uint32_t startYear, uint32_t endDay,
                     uint32_t endMonth, uint32_t endYear);
