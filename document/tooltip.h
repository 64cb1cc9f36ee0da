// The tooltip of the toolbar buttons: at most one exists in the process. A mouse hook of the thread shows it under the
// button that the mouse rests on and takes it away again.
#pragma once

#include <windows.h>

struct TooltipState {
  HWND window;   // the one that is shown, or null
  bool enabled;  // while the application is active
};

extern TooltipState Tooltip;

LRESULT CALLBACK TooltipProc(HWND tooltip, UINT message, WPARAM wParam, LPARAM lParam);

// The hook, for every mouse message of the thread. lParam points to the mouse position in screen coordinates.
LRESULT CALLBACK TooltipMouseHook(int code, WPARAM message, LPARAM lParam);

// On deactivation of the application the tooltip goes at once, and none is shown until it is active again.
void OnApplicationActivated(bool active);
