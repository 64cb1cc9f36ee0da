// The readings of a week as a language writes them, for choosing among languages.
#pragma once

#include <cstdint>
#include <string>

#include "libraries/lections/own_readings.h"
#include "libraries/lections/settings.h"

namespace lections {

// The days with readings from the Sunday to the Shabbat of the week that today (an absolute day) is in, in UTF-8: the
// civil date, the Torah readings and the haftarot, a line each, and an empty line between two days. A week in which one
// day alone has readings shows those of its Monday and Thursday too.
// own: the user's own texts; null for none.
std::string SampleWeek(int32_t today, const Settings& settings, const OwnReadings* own = nullptr);

}  // namespace lections
