// The geometry of the readings view from the fonts of a document.
#pragma once

#include <windows.h>

#include "readings/core/readings_geometry.h"

// Of a pane as wide and high as the client area of listPane, its texts drawn in textFont and its dates in programFont.
ReadingsGeometry MeasureReadings(HWND listPane, HFONT textFont, HFONT programFont);
