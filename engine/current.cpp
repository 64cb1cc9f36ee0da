#include "engine/current.h"

#include "engine/core/shabbat_rules.h"

LocationRecord CurrentLocation;
DateRange CurrentRange;
CandleOverrideRecord CandleOverride;

void ApplyCandleOverrideRule() {
  CandleOverride = CandleOverrideFor(CurrentLocation.name);
}
