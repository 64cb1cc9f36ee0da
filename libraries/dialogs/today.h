// The day by the computer's date.
#pragma once

#include <cstdint>

namespace dialogs {

// An absolute day.
int32_t Today();

}  // namespace dialogs
