#pragma once

#include <windows.h>

#include "zmanim/core/zmanim_geometry.h"

// The geometry of the table as it stands, or, in its own font, of the heading above it. block and labels are the
// document's ZmanimTimes and ZmanimLabels and may be null.
ZmanimGeometry MeasureZmanimTable(HWND table, HDC dc, HFONT font, HGLOBAL block, HGLOBAL labels);
