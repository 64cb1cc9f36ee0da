// The frame's commands: what each menu and toolbar command does.
#pragma once

#include <windows.h>

// Runs a command of the table; any other id is ignored.
void RunFrameCommand(HWND frame, unsigned id);

// Whether the table has the command. The menus grey those that it has not.
bool IsFrameCommand(unsigned id);
