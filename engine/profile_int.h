#pragma once

#include <cstdint>

// An integer setting: the default when the key is missing or empty, else the decimal integer that its text starts with.
int32_t ReadProfileInt(const char* section, const char* key, int32_t defaultValue, const char* file);
