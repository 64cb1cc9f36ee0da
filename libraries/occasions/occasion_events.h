// Occasions as a calendar file: an event for each moment.
#pragma once

#include <cstdint>
#include <optional>

#include "libraries/occasions/taken.h"
#include "output/text_sink.h"
#include "publishing/core/icalendar.h"
#include "publishing/core/progress.h"

namespace occasions {

// A whole day, or something without length at its moment. None for a moment that does not occur. The same row of the
// same place has the same uid in whatever language and range.
std::optional<publishing::Event> EventOf(const Taken& taken, const Row& row);

enum class CalendarResult : uint8_t { kWritten, kNoEvents, kCancelled };

// What the sink got is a file only when it is written. now: when the file is made.
CalendarResult WriteCalendar(const Taken& taken, const publishing::UtcMoment& now, TextSink& sink,
                             const publishing::Progress& progress = {});

}  // namespace occasions
