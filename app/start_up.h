#pragma once

#include <windows.h>

// The whole run of the program: starts it in order, opens the frame, runs the message loop, releases everything in
// order. Answers the process's exit code: 0 when start-up stopped (its message has been shown), else the quit message's
// parameter.
int RunProgram(HINSTANCE instance, HINSTANCE previousInstance, LPSTR commandLine, int showState);
