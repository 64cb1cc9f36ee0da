// The fonts of a document window, kept under its font properties.
#pragma once

#include <windows.h>

// Makes a regular and a bold font of a face and puts them under name and "Bold" + name; fonts that were there are
// deleted. Sizes are in points.
void MakeFontPair(HWND window, const char* name, const char* face, int points, int boldPoints);

// The three pairs of a document.
void MakeDocumentFonts(HWND document);
