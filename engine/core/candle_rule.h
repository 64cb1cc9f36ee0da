#pragma once

#include <cstdint>
#include <string_view>

#include "engine/core/records.h"

// In Jerusalem candles are lit 40 minutes before sunset (the custom of the city, Luach Eretz Yisrael).
inline constexpr int32_t kJerusalemCandleMinutes = 40;

// The rule that holds whenever a location becomes the current one. The name is compared exactly, letter case included.
CandleOverrideRecord CandleOverrideFor(std::string_view locationName);
