// The dialog that asks for one date, in either calendar.
#pragma once

#include <windows.h>

#include <optional>

#include "libraries/lections/when.h"

namespace lections {

// The date of its year; none when cancelled.
std::optional<When> AskForSingleDate(HWND owner);

}  // namespace lections
