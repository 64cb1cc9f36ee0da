// The frame: the program's main window, which holds the documents.
#pragma once

#include <windows.h>

LRESULT CALLBACK FrameWindowProc(HWND frame, UINT message, WPARAM wParam, LPARAM lParam);

// Creates the frame over the whole screen and shows it. Null on failure.
HWND CreateFrameWindow(int showState);
