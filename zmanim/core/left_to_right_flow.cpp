#include "zmanim/core/left_to_right_flow.h"

#include "output/text_layout.h"

int FlowLeftToRight(const PaneRect& area, int lineHeight, std::string_view text,
                    const std::function<int(std::string_view word)>& measure,
                    const std::function<void(int x, int y, std::string_view word)>& draw) {
  int x = area.x;
  int lines = 1;
  while (!text.empty()) {
    const std::string_view word = FirstWord(text);
    text.remove_prefix(word.size());
    const int width = measure(word);
    if (x + width > area.Right()) {
      x = area.x;
      ++lines;
    }
    if (draw) draw(x, area.y + (lines - 1) * lineHeight, word);
    x += width;
  }
  return lines;
}
