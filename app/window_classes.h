#pragma once

#include <windows.h>

// Registers the program's fourteen window classes; the name of the one that cannot be registered, null when all are.
const char* RegisterWindowClasses(HINSTANCE instance, HBRUSH tooltipBrush);
