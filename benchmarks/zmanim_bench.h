#pragma once

#include "tests/contract/settings_home.h"

// Measures a document's zmanim: the calculation of the longest range, the painting of a screen of the table and a step
// of scrolling. home is the settings folder in use. False when the program's windows do not come up.
bool MeasureZmanim(const SettingsHome& home);
