// Backing all settings up, as the user sees it.
#pragma once

#include <windows.h>

namespace safekeep {

inline constexpr wchar_t kFileFilter[] = L"Backups of settings (*.zip)\0*.zip\0All files (*.*)\0*.*\0";

// Whether the backup stands.
bool BackUp(HWND owner);

}  // namespace safekeep
