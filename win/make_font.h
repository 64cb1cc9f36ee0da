#pragma once

#include <windows.h>

// A font of a face in points at the display's resolution, weight FW_DONTCARE or FW_BOLD, all else left to the system.
// The caller deletes it.
HFONT MakeFont(const char* face, int points, int weight);

// The same at a resolution, in dots per inch from top to bottom.
HFONT MakeFontAt(int dotsPerInch, const char* face, int points, int weight);
