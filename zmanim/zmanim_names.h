#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "zmanim/zmanim_count.h"

// The description of a zman of the library; empty when it has none.
std::string LibraryZmanName(uint32_t zman);

// The descriptions of the zmanim in use.
std::vector<std::string> ZmanNames(const ZmanimInUse& inUse);

// Whether legends name the zmanim in use in Hebrew: when the user wants it, and the zmanim are the library's. The
// built-in ones have English names only, and the library's Hebrew ones would name other times.
bool LegendIsHebrew(const ZmanimInUse& inUse);

// The library's Hebrew descriptions of the first count zmanim, in reading order; empty where it has none.
std::vector<std::string> HebrewZmanNames(uint32_t count);
