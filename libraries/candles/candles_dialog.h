// The dialog that lists the entries.
#pragma once

#include <windows.h>

#include <string>

namespace candles {

// place: what new entries are preset with; empty: the place of the entry that is selected.
void DoCandlesDialog(HWND owner, const std::string& place);

}  // namespace candles
