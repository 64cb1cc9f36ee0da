// The settings in the file "lections.ini", kept for as long as they may be. May be used by several threads at once.
#pragma once

#include <string>

#include "libraries/lections/settings.h"

namespace lections {

// As the file said at most 50 ms ago.
Settings StoredSettings();

// As the file says now, for a dialog.
Settings StoredSettingsNow();

// Writes what differs from the file. False when that fails; what was written before stays.
bool StoreSettings(const Settings& settings);

// The file's full path, for messages.
std::wstring SettingsPath();

}  // namespace lections
