// The store's file "candles.txt". May be used by several threads at once.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "libraries/candles/candle_changes.h"
#include "libraries/candles/candles_core.h"

namespace candles {

// As Store::Find, in a store that is at most 50 ms old.
std::optional<Times> StoredTimes(std::string_view place, uint32_t day, uint32_t month, uint32_t year);

// The entries as they are in the file now; nothing when the file cannot be read.
std::optional<Entries> StoredEntries();

// Makes the changes in the file as it is now, at once and whole; false when that fails, and the file is as it was.
bool WriteChanges(const Changes& changes);

// The file's full path, for messages.
std::wstring StorePath();

}  // namespace candles
