#pragma once

#include <windows.h>

namespace kinship {

// From now on an edit control of one line takes all of a pasted text of several lines, with blanks between them; the
// system would take the first line alone.
void TakePastedLines(HWND edit);

}  // namespace kinship
