// Integers as they stand in settings files.
#pragma once

#include <cstdint>
#include <string_view>

// The decimal integer that text starts with: leading white space skipped, an optional sign, then digits up to the first
// other character. Text that does not start with a number is 0; a number beyond 32 bits is the nearest that fits.
int32_t LeadingInteger(std::string_view text);
