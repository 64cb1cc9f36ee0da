// Definitions in words.
#pragma once

#include <string>

#include "libraries/hours/zman.h"

namespace hours {

// What the zman is and how it is rounded, a sentence without a full stop in windows-1252: "3 of the 12 hours from
// sunrise to sunset, rounded down".
std::string DefinitionText(const Definition& zman);

// The same as a line of its own, with a capital and a full stop.
std::string DefinitionSentence(const Definition& zman);

}  // namespace hours
