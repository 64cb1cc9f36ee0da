// The zmanim view of a document: a container with a legend that names the numbered zmanim, a heading of their numbers
// and a table of days by zmanim. The panes keep nothing themselves; they read times, labels and fonts from their
// document whenever they paint.
#pragma once

#include <windows.h>

LRESULT CALLBACK ZmanimContainerProc(HWND container, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ZmanimHeadingPaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ZmanimTablePaneProc(HWND table, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ZmanimLegendPaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam);

// Sets both scroll ranges of the table for a client area of width x height pixels; the positions stay, lowered to the
// ranges' ends.
void SetupZmanimScroll(HWND table, int width, int height);

// Lays the view of a document out anew, sets its scrolling up and has it painted. A document without the view is
// ignored.
void RefreshZmanimView(HWND document);

// What each pane of the view does before it paints: where the zmanim in use are others than the document's, they are
// computed anew; where the form of times is another, the view is laid out anew. Whether what is to be seen has changed.
bool PrepareZmanimPane(HWND pane);
