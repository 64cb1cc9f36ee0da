#pragma once

#include "tests/contract/settings_home.h"

// Reports what the window of ten thousand persons takes to open, for a key of its search and for another year, each
// until it is painted.
void MeasureKinship(const SettingsHome& home);
