// Where the readings view draws what, in pixels of the pane, and how it scrolls. One entry takes five text lines.
#pragma once

struct ReadingsGeometry {
  int paneWidth;
  int paneHeight;
  int indent;           // the average character of the font of the texts
  int dateWidth;        // a date in the program's font, and a gap
  int lineHeight;       // of the font of the texts
  int rangeLineHeight;  // of the program's font

  static constexpr int kLinesPerEntry = 5;
  // Deliberate: a page step counts four lines to an entry where the range counts five, so that a part of the old page
  // stays in sight.
  static constexpr int kLinesPerPageStep = 4;

  constexpr int DateX() const { return indent; }
  constexpr int TorahX() const { return indent + dateWidth; }
  constexpr int HaftarahX() const { return TorahX() + (paneWidth - dateWidth - indent) / 2; }

  constexpr int EntryHeight() const { return kLinesPerEntry * lineHeight; }
  // index counts from the first entry shown; line from 0.
  constexpr int LineY(int index, int line) const { return index * EntryHeight() + line * lineHeight; }
  constexpr bool IsEntryDrawn(int index) const { return LineY(index, 0) <= paneHeight; }

  constexpr int WholeEntries() const { return paneHeight / (kLinesPerEntry * rangeLineHeight); }
  constexpr int PageStep() const { return paneHeight / (kLinesPerPageStep * lineHeight) - 1; }
};

// The last scroll position of a list; the end of the list may be scrolled two entries into the page.
constexpr int LastReadingsPosition(int count, int wholeEntries) {
  const int last = count - wholeEntries + 2;
  return count == 0 || last < 0 ? 0 : last;
}

// The container's two panes; a band of the header's height stays empty between them.
struct ReadingsLayout {
  int headerHeight;
  int listY;
  int listHeight;
};

constexpr ReadingsLayout LayOutReadings(int height, int boldLineHeight) {
  const int listHeight = height - 2 * boldLineHeight;
  return {boldLineHeight, 2 * boldLineHeight, listHeight < 0 ? 0 : listHeight};
}

// "Five millimetres", as the views count them on a display of so many dots an inch.
constexpr int DateGap(int dotsPerInch) {
  return 5 * dotsPerInch * 10 / 254;
}
