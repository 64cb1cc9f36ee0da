#pragma once

#include <cstdint>

// A latitude or longitude in packed form: degrees x 100 + arc minutes, negative for south or west. Numbers too large
// for 32 bits wrap.
int32_t PackCoordinate(int32_t degrees, int32_t arcMinutes, bool southOrWest);
