#include "engine/current.h"

#include "engine/core/candle_rule.h"

Location CurrentLocation;
DateRange CurrentRange;
CandleOverrideRecord CandleOverride;

void ApplyCandleOverrideRule() {
  CandleOverride = CandleOverrideFor(CurrentLocation.name);
}
