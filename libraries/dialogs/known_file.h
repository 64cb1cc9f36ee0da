// Before a dialog opens that edits a file: a dialog that showed defaults in place of what it could not read would write
// them over the user's settings.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace dialogs {

// Whether the dialog may open. While what the file holds is not known, the user is told which file it is and may have
// it tried again. path: for the message. owner may be null.
bool IsKnown(HWND owner, const std::wstring& path, const std::function<bool()>& isKnown);

// The same for a file that is read through the profile library, by name as there.
bool IsKnownIni(HWND owner, const char* file);

}  // namespace dialogs
