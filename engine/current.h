// The one place and the one range that everything is computed for. Start-up, the frame's commands and the location and
// range dialogs write them; the calculations read them.
#pragma once

#include "engine/core/records.h"

extern LocationRecord CurrentLocation;
extern DateRange CurrentRange;
extern CandleOverrideRecord CandleOverride;

// Settles CandleOverride by the name of CurrentLocation. Whoever sets CurrentLocation calls it.
void ApplyCandleOverrideRule();
