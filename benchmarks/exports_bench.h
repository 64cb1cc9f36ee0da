#pragma once

#include "tests/contract/settings_home.h"

// Measures the exports of the longest document and what memory they take beyond it, and the list of readings. home is
// the settings folder in use.
void MeasureExports(const SettingsHome& home);
