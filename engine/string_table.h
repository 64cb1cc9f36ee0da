// The program's texts, loaded once at start-up from its string table.
#pragma once

#include <windows.h>

// Fills the texts of ids 1 to IDS_LAST from the resources of instance.
void LoadStringTable(HINSTANCE instance);

// The text of an id of resources/ids.h (IDS_...); empty for an id that is not in use.
const char* TableString(unsigned id);
