// The dialog that lists the times set by hand.
#pragma once

#include <windows.h>

#include "companion/ownhours.h"

namespace ownhours {

// Whether the user has changed the file. calculate may be null.
bool RunOwnTimesDialog(HWND owner, OwnHoursCalculate calculate);

}  // namespace ownhours
