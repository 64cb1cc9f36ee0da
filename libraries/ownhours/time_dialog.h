// The dialog that asks for another time of an entry.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "libraries/ownhours/own_times.h"
#include "libraries/stamp/stamp_core.h"

namespace ownhours {

// what: the entry in words. The time that the user gave, or nothing.
std::optional<Time> AskForTime(HWND owner, const std::wstring& what, Time now, stamp::Form form);

}  // namespace ownhours
