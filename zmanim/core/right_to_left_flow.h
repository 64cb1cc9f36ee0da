// Text that flows from the right edge of an area to its left edge, word by word, and on in the next line. Measuring and
// drawing are the same flow, with and without something that draws.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "win/core/pane_rect.h"

// Whether the bytes of each word are turned round before it is drawn: reading order becomes the order from left to
// right that the Hebrew display font is drawn in.
enum class WordBytes { kAsTheyStand, kReversed };

class RightToLeftFlow {
 public:
  using MeasureWord = std::function<int(std::string_view word)>;
  using DrawWord = std::function<void(int x, int y, std::string_view word)>;

  // The pen starts at the top right corner of the area. Nothing is drawn when draw is empty.
  RightToLeftFlow(const PaneRect& area, int lineHeight, MeasureWord measure, DrawWord draw);

  void Flow(std::string_view text, WordBytes bytes);

  // The top of the line that the pen is in.
  int y() const { return y_; }

 private:
  void Place(const std::string& word);

  PaneRect area_;
  int lineHeight_;
  MeasureWord measure_;
  DrawWord draw_;
  int x_;
  int y_;
};

// The legend of zmanim in Hebrew: numbers and descriptions, joined by commas. Descriptions are in reading order; a
// blank one is left out.
void FlowHebrewLegend(RightToLeftFlow& flow, const std::vector<std::string>& names);
