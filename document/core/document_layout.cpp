#include "document/core/document_layout.h"

#include <algorithm>

namespace {

// Between the icon of a toolbar button and the toolbar's edges: the button's own edges, and air.
constexpr int kButtonEdges = 3;
constexpr int kToolbarAir = 4;

PaneRect Clamped(int x, int y, int width, int height) {
  return {x, y, std::max(width, 0), std::max(height, 0)};
}

}  // namespace

DocumentLayout LayOutDocument(int clientWidth, int clientHeight, const LayoutMeasures& measures) {
  const int toolbar = measures.iconHeight + kButtonEdges + 2 * measures.sizingFrameHeight + kToolbarAir;
  const int header = 2 * measures.lineHeight;
  const int indent = measures.averageCharacterWidth;
  return {
      .toolbar = Clamped(0, 0, clientWidth, toolbar),
      .header = Clamped(0, toolbar, clientWidth, header),
      .list = Clamped(indent, toolbar + header, clientWidth - indent, clientHeight - header - toolbar),
      .content = Clamped(0, toolbar, clientWidth, clientHeight - toolbar),
  };
}
