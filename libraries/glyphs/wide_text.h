// 8-bit text in the charset of a font becomes UTF-16 for the system's wide text calls.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

// The text as UTF-16. A byte that the charset does not have becomes the system's replacement character.
std::wstring WideText(int charset, const char* text, int count);

// Spacing per UTF-16 unit from spacing per byte: a character of two bytes takes the widths of both.
std::vector<int> WideSpacing(int charset, const char* text, int count, const int* spacing);
