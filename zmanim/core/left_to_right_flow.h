// Text that flows from the left edge of an area to its right edge, word by word, and on in the next line.
#pragma once

#include <functional>
#include <string_view>

#include "win/core/pane_rect.h"

// A word takes the spaces that follow it along. One that would pass the right edge begins the next line, also when it
// is wider than a whole line. Nothing is drawn when draw is empty. The number of lines, at least one.
int FlowLeftToRight(const PaneRect& area, int lineHeight, std::string_view text,
                    const std::function<int(std::string_view word)>& measure,
                    const std::function<void(int x, int y, std::string_view word)>& draw);
