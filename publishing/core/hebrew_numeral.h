// Numbers as Hebrew texts write them.
#pragma once

#include <cstdint>
#include <string>

namespace publishing {

// A number from 1 to 999 in Hebrew letters (UTF-8), with geresh or gershayim; 15 and 16 as 9 and 6, 9 and 7. Any other
// in digits.
std::string HebrewNumeral(uint32_t number);

}  // namespace publishing
