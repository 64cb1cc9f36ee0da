#pragma once

#include <cstdint>
#include <span>
#include <vector>

// A section's keys are read into a buffer of this many bytes; keys beyond it are not seen.
inline constexpr uint32_t kKeyListSize = 20480;

// The names in a list of zero-terminated names that an empty name ends. The names point into the list.
std::vector<const char*> KeyList(std::span<const char> list);
