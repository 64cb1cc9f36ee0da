// The dialog of customs and of the kinds that are shown.
#pragma once

#include <windows.h>

namespace occasions {

// Modal over its owner, which may be null. Whether anything was stored. A file that cannot be read is named in a box,
// and the dialog opens when it can be read or not at all.
bool RunSettingsDialog(HWND owner);

}  // namespace occasions
