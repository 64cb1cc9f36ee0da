#pragma once

#include <cstdint>

// Which zmanim are in use, and how many.
struct ZmanimInUse {
  bool fromLibrary;  // the user's own selection, rather than the built-in table
  uint32_t count;    // at most kMostZmanim
};

// By the display flag as it stands now. Readers ask once per calculation, painting or export.
ZmanimInUse GetZmanimInUse();

// The number of zmanim in use.
uint32_t GetZmanimCount();

// Asks the library for the size of the user's selection, at start-up and after every change of the selection; until
// then it is what the library last answered. A selection larger than a day has room for counts as kMostZmanim.
void RefreshZmanimCount();
