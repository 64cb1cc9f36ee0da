// The geometry of the Shabbat-times list: one line a Shabbat, three columns.
#pragma once

struct ShabbatListGeometry {
  int clientWidth;
  int clientHeight;
  int lineHeight;

  // A third of the client width. The titles above use the list's width too, so that they line up.
  int ColumnWidth() const { return clientWidth / 3; }
  int ColumnX(int column) const { return column * ColumnWidth(); }
  int WholeLines() const { return lineHeight > 0 ? clientHeight / lineHeight : 0; }
  int LineY(int line) const { return line * lineHeight; }

  // Whether the line is drawn: a line that starts on the bottom edge still is.
  bool IsLineDrawn(int line) const { return LineY(line) <= clientHeight; }
};
