// A surface that writes down what is drawn on it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "publishing/core/page_surface.h"
#include "publishing/core/unicode.h"

namespace publishing {

struct DrawnLine {
  PageBox box;
  std::u16string text;
  LineStyle style;
  int size = kUsualSize;
};

struct PageRecord {
  std::vector<std::u16string> Texts() const {
    std::vector<std::u16string> texts;
    for (const DrawnLine& line : lines) texts.push_back(line.text);
    return texts;
  }

  // The line with a text; the test fails when there is none.
  DrawnLine Line(std::u16string_view text) const {
    for (const DrawnLine& line : lines) {
      if (line.text == text) return line;
    }
    ADD_FAILURE() << "no such text";
    return {};
  }

  std::vector<DrawnLine> lines;
  std::vector<PageBox> rules;
  std::vector<PageBox> hairs;
};

// Characters are 10 wide and 20 high, in headings 12 wide; those of the title are 20 wide and 30 high, small ones 8 and
// 16, large ones 15 and 25.
class RecordedPage : public PageSurface, public PageRecord {
 public:
  void SetSize(int size) override { size_ = size; }
  int LineHeight(PageFont font) override { return Scaled(HeightOf(font)); }
  int Width(PageFont font, std::u16string_view text) override {
    const auto count = std::count_if(text.begin(), text.end(), [](char16_t unit) { return !IsCombining(unit); });
    return Scaled(static_cast<int>(count) * WidthOf(font));
  }
  void DrawLine(const PageBox& box, std::u16string_view text, const LineStyle& style) override {
    EXPECT_LE(Width(style.font, text), std::max(box.width, Scaled(12))) << size_;
    lines.push_back({box, std::u16string(text), style, size_});
  }
  void DrawRule(int x, int y, int width, Rule rule) override {
    (rule == Rule::kThin ? rules : hairs).push_back({x, y, width, 1});
  }

 private:
  static int HeightOf(PageFont font) {
    return font == PageFont::kTitle ? 30 : font == PageFont::kSmall ? 16 : font == PageFont::kLarge ? 25 : 20;
  }
  static int WidthOf(PageFont font) {
    switch (font) {
      case PageFont::kTitle: return 20;
      case PageFont::kHeading: return 12;
      case PageFont::kText: return 10;
      case PageFont::kSmall: return 8;
      case PageFont::kLarge: return 15;
    }
    return 10;
  }
  int Scaled(int length) const { return length * size_ / kUsualSize; }

  int size_ = kUsualSize;
};

}  // namespace publishing
