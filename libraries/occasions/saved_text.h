// Occasions as the whole text of a file.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "libraries/occasions/taken.h"
#include "libraries/occasions/window_settings.h"

namespace occasions {

constexpr wchar_t kFace[] = L"Arial";  // of pages and of rich text: it has Hebrew letters on every Windows

// Of many rows a dialog tells how far it is. Nothing when the user ends that, or is told that there is nothing to
// write.
std::optional<std::string> SavedText(HWND owner, const Taken& taken, Format format);

}  // namespace occasions
