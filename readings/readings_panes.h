// The readings view: a container with a blue band of titles and a list of five lines an entry. The panes keep nothing
// themselves; they read fonts and readings from the document, the container's parent, whenever they paint.
#pragma once

#include <windows.h>

LRESULT CALLBACK ReadingsContainerProc(HWND container, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ReadingsHeaderPaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ReadingsListPaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam);

// Sets the list pane's scroll range by its height; the position stays, lowered to the range's end.
void SetReadingsScrollRange(HWND listPane);

// Sets the scrolling of a document's view up and has it painted. A document without the view is ignored.
void RefreshReadingsView(HWND document);
