// What the panes of all views do alike: stand in a container, paint, and scroll by whole lines.
#pragma once

#include <windows.h>

#include <span>

#include "win/core/pane_rect.h"

// A child window: its class, its id, and its style besides WS_CHILD.
struct ChildPane {
  const char* className;
  int id;
  DWORD style;
};

// Whether the child could be created; it has no size yet.
bool CreateChildPane(HWND parent, const ChildPane& child);

void PlaceChildPane(HWND parent, int id, const PaneRect& rect);

// How a pane paints. prepare, if there is one, runs before the painting begins and may change what is shown, in other
// panes too; what it answers does not matter here.
struct PanePainting {
  bool (*prepare)(HWND pane);
  void (*paint)(HWND pane, HDC dc, const RECT& area);
};

// The answers to the messages of a pane that only paints.
LRESULT PaintingPaneMessage(const PanePainting& painting, HWND pane, UINT message, WPARAM wParam, LPARAM lParam);

// How far a list scrolls.
struct ListSteps {
  int page;        // lines
  int linePixels;  // the height of a line
};

// A pane that shows a list of lines and has a vertical scroll bar.
struct ListPane {
  PanePainting painting;
  void (*resize)(HWND pane, int width, int height);
  ListSteps (*steps)(HWND pane);
};

LRESULT ListPaneMessage(const ListPane& list, HWND pane, UINT message, WPARAM wParam, LPARAM lParam);

// A window that only holds panes.
struct PaneContainer {
  std::span<const ChildPane> panes;  // all visible, in the order of creation
  void (*layOut)(HWND container, int width, int height);
  int focus;  // the pane that takes the container's focus
};

LRESULT PaneContainerMessage(const PaneContainer& panes, HWND container, UINT message, WPARAM wParam, LPARAM lParam);
