// The system's tooltips over the heading and the times of the zmanim view: what a zman is called and how it is defined,
// and whether a time was set by hand. A view has one tooltip window, made when the mouse first comes over a zman, with
// one tool at most: the cell under the mouse. Its text is made when the tooltip is about to show.
#pragma once

#include <windows.h>

#include <optional>

// For every message of the heading and the table, before they handle it. Mouse messages move the tooltip and are not
// answered; the tooltip's own questions are.
std::optional<LRESULT> ZmanimTooltipMessage(HWND pane, UINT message, WPARAM wParam, LPARAM lParam);

// After the view has scrolled: another cell may have come under the mouse.
void FollowMouseOverZmanim(HWND container);

// Before the view shows other zmanim: the tooltip goes until the mouse moves.
void DropZmanimTooltip(HWND container);

void DestroyZmanimTooltip(HWND container);
