// Text for other programs.
#pragma once

#include <windows.h>

#include <string>

namespace dialogs {

// Whether the clipboard has the text now; another program may hold it. owner: the window that puts it there.
bool PutIntoClipboard(HWND owner, const std::wstring& text);

}  // namespace dialogs
