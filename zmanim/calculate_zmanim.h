#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>

#include "engine/core/clock_time.h"
#include "engine/core/records.h"

// Computes the zmanim of every day of a range at a place, together with the labels that say which zmanim they are; both
// replace and free what the document had, and the zmanim view shows them. In the user's own selection a custom time
// stored for the day and the place's name wins. A range of more than 32,000 days is cut, which is reported or not.
// Without memory the document has no zmanim.
void ComputeZmanim(HWND document, const Location& place, const DateRange& range, LongRange longRange);

// The same at CurrentLocation, reporting too long a range. Custom times are those of the document's place, which, like
// its range, is that of the document's properties.
void CalculateZmanim(HWND document, uint32_t startDay, uint32_t startMonth, uint32_t startYear, uint32_t endDay,
                     uint32_t endMonth, uint32_t endYear);

// What is calculated for a zman of the user's selection, by its description, on one day at a place, whether or not a
// custom time takes its place; nothing when it is not selected or does not occur.
std::optional<ClockTime> CalculatedZman(HWND document, const Location& place, const CalendarDate& date,
                                        const std::string& description);

// Computes the document's zmanim anew, from its own place and range and without a word, when the zmanim in use are not
// those that it has; whether it did. Called before they are shown, clicked, exported or printed. A document that was
// never computed is left alone; without memory it keeps what it has, times and labels alike, until the next call.
bool RenewZmanim(HWND document);
