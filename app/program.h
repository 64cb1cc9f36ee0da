// Values that hold for the whole run of the program.
#pragma once

#include <windows.h>

#include "engine/core/records.h"

struct ProgramState {
  HINSTANCE instance;
  HBRUSH tooltipBrush;
  HHOOK mouseHook;  // of the tooltips, for this thread
  HWND mdiClient;
  char notice[kTextSize];  // for the About box
};

extern ProgramState Program;
