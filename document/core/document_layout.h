// Where the children of a document window stand in its client area, in pixels.
#pragma once

#include "win/core/pane_rect.h"

struct LayoutMeasures {
  int lineHeight;             // of the document's font
  int averageCharacterWidth;  // of the document's font
  int iconHeight;             // system metric
  int sizingFrameHeight;      // system metric, of a horizontal border
};

struct DocumentLayout {
  PaneRect toolbar;
  PaneRect header;   // the Shabbat-times titles
  PaneRect list;     // the Shabbat times, indented by one average character
  PaneRect content;  // the zmanim pane and the readings pane, one at a time
};

// Areas that the client area has no room for get size 0.
DocumentLayout LayOutDocument(int clientWidth, int clientHeight, const LayoutMeasures& measures);
