// What the pages of a table are written on: a printer, the preview's window, or what a test records. Lengths are in
// dots of the page, whatever the device's own are.
#pragma once

#include <cstdint>
#include <string_view>

namespace publishing {

struct PageBox {
  int x;
  int y;
  int width;
  int height;

  int Right() const { return x + width; }
  int Bottom() const { return y + height; }
  friend bool operator==(const PageBox&, const PageBox&) = default;
};

// A sheet of paper; its corner is at 0, 0.
struct Sheet {
  int width;
  int height;
  PageBox body;  // inside the margins
};

enum class PageFont : uint8_t {
  kTitle,
  kHeading,  // bold, as large as a text
  kText,
  kSmall,
  kLarge,  // bold
};

// What a surface's fonts have before it is told otherwise, in thousandths.
constexpr int kUsualSize = 1000;

enum class Place : uint8_t { kLeft, kCenter, kRight };

enum class Rule : uint8_t {
  kThin,  // black
  kHair,  // finer, and grey
};

// How a line stands in its box.
struct LineStyle {
  PageFont font;
  Place place;
  bool rightToLeft;  // the direction of what it is a line of

  friend bool operator==(const LineStyle&, const LineStyle&) = default;
};

class PageSurface {
 public:
  PageSurface() = default;
  PageSurface(const PageSurface&) = delete;
  PageSurface& operator=(const PageSurface&) = delete;
  virtual ~PageSurface() = default;

  // Of all fonts from then on, in thousandths of their usual size.
  virtual void SetSize(int size) = 0;

  virtual int LineHeight(PageFont font) = 0;
  virtual int Width(PageFont font, std::u16string_view text) = 0;

  // The text is no wider than the box by Width.
  virtual void DrawLine(const PageBox& box, std::u16string_view text, const LineStyle& style) = 0;
  // A line across the page from the left to the right.
  virtual void DrawRule(int x, int y, int width, Rule rule) = 0;
};

}  // namespace publishing
