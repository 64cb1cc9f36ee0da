// Texts that join the readings of several services or customs are divided over the slots of their day.
#pragma once

#include <cstdint>

#include "readings/core/readings_record.h"

// Languages of the readings library that the rules know.
inline constexpr uint32_t kFinnish = 7;   // its texts are never divided
inline constexpr uint32_t kSpanish = 10;  // has a rule of its own

// Applies every rule once, in order, each to what the rules before it have left. A text is divided at the first place
// where a separator is followed by at least one more character; cut and rest are bytes.
void SplitReadings(ReadingsEntry& entry, uint32_t language);
