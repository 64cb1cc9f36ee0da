// Moments of Jerusalem's mean clock as they are announced.
#pragma once

#include <string>

#include "libraries/occasions/occasion_texts.h"

namespace occasions {

// The molad and the days of Rosh Chodesh of a row whose number is a month, and which is at most ten days before that
// begins, or in its first days: "Thursday, 35 minutes and 14 chalakim after 11 in the morning"; "Sunday and Monday".
std::string MoladInWords(const Row& row, Language language);
std::string RoshChodeshInWords(const Row& row, Language language);

// The season that begins on the row's day or one beside it: "Wednesday, 9 in the morning".
std::string TekufaInWords(const Row& row, Language language);

}  // namespace occasions
