#pragma once

#include "tests/contract/settings_home.h"

// Measures what it takes to save the longest document with forty zmanim as a file of each type. home is the settings
// folder in use.
void MeasureDocuments(const SettingsHome& home);
