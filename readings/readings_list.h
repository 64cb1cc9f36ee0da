// The readings of a document's range, from the readings library.
#pragma once

#include <windows.h>

#include <cstdint>

#include "engine/core/records.h"

// Puts the readings of the days of a range on the document in place of those that it has, together with the form that
// they are in (readings_form.h). A range without any leaves both as they are; without memory the document has none.
// More days than a list may have are reported or not, and the list ends with the day that exceeded it.
void ComputeReadings(HWND document, const DateRange& range, LongRange longRange);

// The same for the Gregorian days from start to end, both included, reporting too many.
void BuildReadingsList(HWND document, uint32_t startDay, uint32_t startMonth, uint32_t startYear, uint32_t endDay,
                       uint32_t endMonth, uint32_t endYear);

// Asks for the document's readings anew, of its own range and land and customs and without a word, when the language or
// font of readings is another than the document's; whether it did. Called before they are shown or exported. A document
// without readings is left alone; without memory it keeps what it has, form and all, until the next call.
bool RenewReadings(HWND document);

// Readings of a range by a choice (readings_form.h) as a block of its own, which the caller frees; null without any,
// and without memory. They are in the form that ReadingsFormNow answers.
HGLOBAL MakeReadings(const DateRange& range, uint32_t choice);
