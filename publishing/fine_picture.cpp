#include "publishing/fine_picture.h"

#include <algorithm>

namespace publishing {
namespace {

constexpr uint32_t kWhite = 0xFFFFFF;

BITMAPINFO FormOf(int width, int height) {
  BITMAPINFO form{};
  form.bmiHeader.biSize = sizeof form.bmiHeader;
  form.bmiHeader.biWidth = width;
  form.bmiHeader.biHeight = -height;  // from the top
  form.bmiHeader.biPlanes = 1;
  form.bmiHeader.biBitCount = 32;
  form.bmiHeader.biCompression = BI_RGB;
  return form;
}

HBITMAP CreateDots(int width, int height, uint32_t*& dots) {
  const BITMAPINFO form = FormOf(width, height);
  void* memory = nullptr;
  const HBITMAP bitmap = CreateDIBSection(nullptr, &form, DIB_RGB_COLORS, &memory, nullptr, 0);
  dots = static_cast<uint32_t*>(memory);
  return bitmap;
}

}  // namespace

FinePicture::FinePicture(int width, int height, int fineness)
    : width_(width),
      height_(height),
      fineness_(fineness),
      dc_(CreateCompatibleDC(nullptr)),
      bitmap_(CreateDots(width * fineness, height * fineness, dots_)),
      select_(dc_.get(), bitmap_.get()) {
  if (dots_) std::fill_n(dots_, static_cast<std::size_t>(width) * height * fineness * fineness, kWhite);
}

uint32_t FinePicture::MeanOf(const uint32_t* dots) const {
  const int stride = width_ * fineness_;
  const auto count = static_cast<uint32_t>(fineness_ * fineness_);
  uint32_t red = 0;
  uint32_t green = 0;
  uint32_t blue = 0;
  for (int y = 0; y < fineness_; ++y) {
    for (int x = 0; x < fineness_; ++x) {
      const uint32_t dot = dots[y * stride + x];
      red += dot >> 16 & 0xFF;
      green += dot >> 8 & 0xFF;
      blue += dot & 0xFF;
    }
  }
  return (red / count) << 16 | (green / count) << 8 | blue / count;
}

// Pixels are written over dots that have been read already.
void FinePicture::Show(HDC target, int x, int y) {
  if (!dots_) return;
  GdiFlush();
  for (int row = 0; row < height_; ++row) {
    const uint32_t* const from = dots_ + static_cast<std::ptrdiff_t>(row) * fineness_ * width_ * fineness_;
    uint32_t* const to = dots_ + static_cast<std::ptrdiff_t>(row) * width_ * fineness_;
    for (int column = 0; column < width_; ++column) to[column] = MeanOf(from + column * fineness_);
  }
  BitBlt(target, x, y, width_, height_, dc_.get(), 0, 0, SRCCOPY);
}

}  // namespace publishing
