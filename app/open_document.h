#pragma once

#include <windows.h>

// Opens a document for CurrentLocation and CurrentRange; null on failure. Its results are still to be computed.
HWND OpenDocument(HWND frame);

// Opens a document, computes its Shabbat times, zmanim and readings, and shows them. Follows every change of settings.
void OpenAndCompute(HWND frame);
