#pragma once

#include <string>

#include "engine/core/records.h"

// The caption of a document: "Jerusalem (1.3.2007 - 1.4.2007)", days and months without padding.
std::string DocumentTitle(const char* locationName, const DateRange& range);
