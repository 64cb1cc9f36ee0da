#pragma once

#include <string>

#include "libraries/lections/language.h"

namespace lections {

// A number from 1 to 499, in decimal digits or in Hebrew letters (UTF-8, 15 and 16 as 9 + 6 and 9 + 7).
std::string Number(int number, Numerals numerals);

}  // namespace lections
