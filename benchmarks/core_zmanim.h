#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "engine/core/records.h"

// What the program asks the libraries for, computed by their cores alone, without a call across a library's border: the
// zmanim that a text of hours.txt chooses, each in minutes after midnight or -1, of so many days from an absolute day
// on. As in the program, sunrise and sunset of every day come first, rounded as the solar library rounds them.
std::vector<int32_t> ZmanimByCore(std::string_view choice, const Location& location, int32_t firstDay, int32_t days);
