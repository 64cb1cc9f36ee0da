#pragma once

#include <windows.h>

#include <cstdint>

// Computes a document: puts CurrentLocation and the range on its window, has its zmanim computed, then builds its list
// of Shabbat times, which replaces and frees the old one. The dates are those of CurrentRange. A range of more than
// 32,000 Fridays is reported and cut.
void CalculateShabbatTimes(HWND document, uint32_t startDay, uint32_t startMonth, uint32_t startYear, uint32_t endDay,
                           uint32_t endMonth, uint32_t endYear);
