// A document window: an MDI child for one place and one range of dates. All that belongs to it hangs on it as window
// properties (document/properties.h).
#pragma once

#include <windows.h>

LRESULT CALLBACK DocumentWindowProc(HWND document, UINT message, WPARAM wParam, LPARAM lParam);

// Whether one of the MDI client's children is minimised.
bool HasMinimisedDocument(HWND mdiClient);

// Sends a menu command to the frame that the window stands in; beeps when there is none.
void SendFrameCommand(HWND window, unsigned id);
