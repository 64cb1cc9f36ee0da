// The dialog in which a zman of the user's own is written.
#pragma once

#include <windows.h>

#include <optional>

#include "libraries/hours/choice.h"
#include "libraries/hours/day_times.h"

namespace hours {

// A new zman (its number is 0), or a changed one that is one of the choice's own. None when the user cancels. times:
// what the zman's time is told by while it is written.
std::optional<OwnZman> AskForNewOwn(HWND owner, const Choice& choice, DayTimes& times);
std::optional<OwnZman> AskForChangedOwn(HWND owner, const Choice& choice, const OwnZman& zman, DayTimes& times);

}  // namespace hours
