// Where the panes of the zmanim view stand.
#pragma once

#include <algorithm>

#include "win/core/pane_rect.h"

struct ZmanimLayout {
  PaneRect legend;  // indented by one average character
  PaneRect heading;
  PaneRect table;
};

// The lines of the view's own font that the legend has room for. The Hebrew one is written in larger letters.
constexpr int LegendLines(bool zmanimFromLibrary, bool hebrew) {
  return zmanimFromLibrary || hebrew ? 8 : 6;
}

// lineHeight and characterWidth are those of the view's own font. Areas that the view has no room for get size 0.
constexpr ZmanimLayout LayOutZmanim(int width, int height, int lineHeight, int characterWidth, int legendLines) {
  const int heading = lineHeight * legendLines;
  const int table = heading + lineHeight;
  return {.legend = {characterWidth, 0, std::max(width - characterWidth, 0), heading},
          .heading = {0, heading, width, lineHeight},
          .table = {0, table, width, std::max(height - table, 0)}};
}
