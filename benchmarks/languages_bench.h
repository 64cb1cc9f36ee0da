#pragma once

#include "tests/contract/settings_home.h"

// Measures the readings library's answers for many days in each language, and sets the slowest beside English. home is
// the settings folder in use.
void MeasureLanguages(const SettingsHome& home);
