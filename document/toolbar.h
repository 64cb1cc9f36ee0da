// The toolbar of a document window: a row of icon buttons whose ids are the document's commands.
#pragma once

#include <windows.h>

LRESULT CALLBACK ToolbarProc(HWND toolbar, UINT message, WPARAM wParam, LPARAM lParam);

// Creates the thirteen buttons; one that cannot be created is left out. The Print button is hidden at first.
void CreateToolbarButtons(HWND toolbar);

// Gives every button the text of its tooltip, and takes it away.
void DescribeToolbarButtons(HWND toolbar);
void ReleaseToolbarDescriptions(HWND toolbar);
