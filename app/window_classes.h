#pragma once

#include <windows.h>

// Registers the program's fourteen window classes; false when one cannot be registered.
bool RegisterWindowClasses(HINSTANCE instance, HBRUSH tooltipBrush);
