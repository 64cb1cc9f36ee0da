#pragma once

#include <windows.h>

#include "zmanim/core/zmanim_geometry.h"

// Lets the user replace a time of the document's zmanim by one of their own, stores it and puts it into the document's
// block; whether the block has changed. In the built-in zmanim it explains instead that times cannot be replaced. A
// failure to store is reported and leaves the block as it was.
bool EditCustomZman(HWND document, const ZmanimCell& cell);
