// Settings files that are there but cannot be read. What is read of them answers defaults, which must not be written
// over what the files hold.
#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <vector>

// Those of the files that cannot be read now. A profile library that does not tell leaves none.
std::vector<std::string> UnreadSettings(std::span<const char* const> files);

// Whether a dialog that edits the files may open. While one of them cannot be read, the user is told which and may have
// it tried again.
bool MayEditSettings(HWND owner, std::span<const char* const> files);
