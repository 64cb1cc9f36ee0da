#pragma once

#include <windows.h>

#include "engine/core/records.h"

// Adds a place of the user's own (name empty) or changes the place of a name; a built-in place becomes one of the
// user's own. True after a save: name is then the name that was saved.
bool RunLocationEditor(HWND owner, char (&name)[kTextSize]);
