// How wide texts are, measured once for each: times, names and words come again and again.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "publishing/core/page_surface.h"

namespace publishing {

struct TextWidth {
  int whole;       // of its widest line when it is not wrapped
  int widestWord;  // what must have room if no word is to be broken
  bool isOneLine;  // it has no line ends of its own
};

class TextWidths {
 public:
  TextWidths(PageSurface& surface, PageFont font) : surface_(surface), font_(font) {}

  // text: UTF-8, of a table.
  TextWidth Of(const std::string& text);

  // After a change of the surface's size.
  void Forget() { known_.clear(); }

  int Measure(std::u16string_view text) const { return text.empty() ? 0 : surface_.Width(font_, text); }

 private:
  int WidestWord(std::u16string_view text) const;

  PageSurface& surface_;
  PageFont font_;
  std::unordered_map<std::string, TextWidth> known_;
};

}  // namespace publishing
