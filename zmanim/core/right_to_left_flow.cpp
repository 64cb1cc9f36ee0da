#include "zmanim/core/right_to_left_flow.h"

#include <utility>

#include "output/text_layout.h"

RightToLeftFlow::RightToLeftFlow(const PaneRect& area, int lineHeight, MeasureWord measure, DrawWord draw)
    : area_(area),
      lineHeight_(lineHeight),
      measure_(std::move(measure)),
      draw_(std::move(draw)),
      x_(area.Right()),
      y_(area.y) {}

void RightToLeftFlow::Flow(std::string_view text, WordBytes bytes) {
  while (!text.empty()) {
    const std::string_view word = FirstWord(text);
    text.remove_prefix(word.size());
    Place(bytes == WordBytes::kReversed ? ReverseText(word) : std::string(word));
  }
}

void RightToLeftFlow::Place(const std::string& word) {
  const int width = measure_(word);
  if (x_ - width < area_.x) {
    x_ = area_.Right();
    y_ += lineHeight_;
  }
  x_ -= width;
  if (draw_) draw_(x_, y_, word);
}

void FlowHebrewLegend(RightToLeftFlow& flow, const std::vector<std::string>& names) {
  unsigned number = 0;
  bool first = true;
  for (const std::string& name : names) {
    ++number;
    if (IsBlank(name)) continue;
    if (!first) flow.Flow(", ", WordBytes::kReversed);
    flow.Flow(std::to_string(number) + " = ", WordBytes::kAsTheyStand);
    flow.Flow(name, WordBytes::kReversed);
    first = false;
  }
}
