#pragma once

#include <windows.h>

// Lists every place, to select one or to add, change and remove places of the user's own. It starts from the place and
// range of a document; without one (null) from the first built-in place and a year from today. True after Select:
// CurrentLocation and CurrentRange then want a new document.
bool RunLocationManager(HWND owner, HWND document);
