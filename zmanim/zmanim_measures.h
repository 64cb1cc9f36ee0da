#pragma once

#include <windows.h>

#include "zmanim/core/zmanim_geometry.h"

// The geometry of the table as it stands, or, in its own font, of the heading above it. block is the document's
// ZmanimTimes and may be null.
ZmanimGeometry MeasureZmanimTable(HWND table, HDC dc, HFONT font, HGLOBAL block);
