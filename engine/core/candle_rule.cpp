#include "engine/core/candle_rule.h"

CandleOverrideRecord CandleOverrideFor(std::string_view locationName) {
  if (locationName == "Jerusalem") return {false, kJerusalemCandleMinutes};
  return {true, 0};
}
