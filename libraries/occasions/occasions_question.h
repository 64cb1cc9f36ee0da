// What the settings say of a place at this moment.
#pragma once

#include <string>

#include "libraries/occasions/occasions_core.h"

namespace occasions {

// Settings are those of at most 50 ms ago. place: windows-1252.
Question QuestionOf(const std::string& place, const sun::PackedPlace& packed);

Customs StoredCustoms();

}  // namespace occasions
