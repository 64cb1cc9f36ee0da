#pragma once

#include <string>

#include "engine/core/clock_time.h"

// A time of the zmanim block as it is shown: in the user's form, or a mark where there is none.
std::string ZmanTimeText(ClockTime time);
