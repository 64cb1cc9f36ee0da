// The one place and the one range that the next document is for. Start-up, the frame's commands and the location and
// range dialogs write them; calculations are handed what they need of them.
#pragma once

#include "engine/core/records.h"

extern Location CurrentLocation;
extern DateRange CurrentRange;
extern CandleOverrideRecord CandleOverride;

// Settles CandleOverride by the name of CurrentLocation. Whoever sets CurrentLocation calls it.
void ApplyCandleOverrideRule();
