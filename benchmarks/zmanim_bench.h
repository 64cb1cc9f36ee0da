#pragma once

#include <cstdint>

#include "tests/contract/settings_home.h"

// Chooses so many zmanim, each by a depression of its own, and waits until the library has noticed; whether it has.
bool ChooseZmanim(const SettingsHome& home, uint32_t count);

// Measures a document's zmanim: the calculation of the longest range, the painting of a screen of the table and a step
// of scrolling. home is the settings folder in use. False when the program's windows do not come up.
bool MeasureZmanim(const SettingsHome& home);
