// The dialog in which one entry is written.
#pragma once

#include <windows.h>

#include <optional>

#include "libraries/candles/candles_core.h"

namespace candles {

// A new entry, its place preset, and the first Friday from today on that the place has no times for. An entry that
// replaces one of the entries there has been asked about. None when the user cancels.
std::optional<Entry> AskForNewEntry(HWND owner, const Entries& entries, const std::string& place);

// The same for an entry to be changed, which is one of the entries.
std::optional<Entry> AskForChangedEntry(HWND owner, const Entries& entries, const Entry& entry);

}  // namespace candles
