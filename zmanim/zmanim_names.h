#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "zmanim/zmanim_count.h"

// The description of a zman of the library; empty when it has none.
std::string LibraryZmanName(uint32_t zman);

// The descriptions of the zmanim in use.
std::vector<std::string> ZmanNames(const ZmanimInUse& inUse);

// The library's Hebrew descriptions of the first count zmanim, in reading order; empty where it has none.
std::vector<std::string> HebrewZmanNames(uint32_t count);
