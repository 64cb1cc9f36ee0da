// The dialog that lists the entries.
#pragma once

#include <windows.h>

namespace candles {

void DoCandlesDialog(HWND owner);

}  // namespace candles
