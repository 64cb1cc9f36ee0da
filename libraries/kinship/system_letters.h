// What the system knows of the letters of all scripts.
#pragma once

#include "libraries/kinship/person_rows.h"

namespace kinship {

extern const Letters kSystemLetters;

}  // namespace kinship
