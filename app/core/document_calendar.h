// A document as a calendar file.
#pragma once

#include <cstdint>

#include "app/core/document_table.h"
#include "output/text_sink.h"
#include "publishing/core/icalendar.h"
#include "publishing/core/progress.h"

enum class CalendarResult : uint8_t { kWritten, kNoEvents, kCancelled };

// The kinds in order of days. Shabbat times: two events a week, at the moments of candle lighting and of the end.
// Zmanim: one for each that is chosen. Weeks, days and readings: one for each row, that lasts the whole day. What has
// no time has no event. An event has the same name whenever it is written, in whichever language and for whatever
// range. reminderMinutes: before candles are lit, 0 for none. With another result than kWritten the sink holds no file.
CalendarResult WriteDocumentCalendar(const DocumentSource& source, const DocumentChoice& choice,
                                     int32_t reminderMinutes, const publishing::UtcMoment& now, TextSink& sink,
                                     const publishing::Progress& progress = {});
