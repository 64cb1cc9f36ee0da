// The Hebrew names of zmanim, from the form in which they are drawn to Unicode.
#pragma once

#include <string>
#include <string_view>

// UTF-8 in reading order of bytes of the Hebrew display font: windows-1255 in reading order, but for numbers and Latin
// words, which are turned round, and brackets, which are swapped. Names without Hebrew letters are turned round whole.
std::string LogicalHebrew(std::string_view display);
