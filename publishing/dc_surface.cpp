#include "publishing/dc_surface.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace publishing {
namespace {

constexpr int kDefaultPoints = 10;
constexpr int kPointsInAnInch = 72;
constexpr int kLeastHeight = 4 * kDotsPerInch / kPointsInAnInch;
constexpr int kMostHeight = 72 * kDotsPerInch / kPointsInAnInch;

// Of the texts' size.
constexpr double kTitleSize = 1.4;
constexpr double kSmallSize = 0.85;
constexpr double kLargeSize = 1.25;

constexpr int kRuleDots = kDotsPerInch / 150;
constexpr int kHairDots = kDotsPerInch / 300;
constexpr COLORREF kHairColor = RGB(176, 176, 176);

// Fonts that are kept for when they are wanted again.
constexpr std::size_t kMostFonts = 64;

// A device rounds the widths of small letters up. Texts may then go on for a third of the gap to the next column, and
// those for which this is not enough are drawn smaller; widths that jump from size to size need more
// than one attempt.
constexpr int kSlackDots = kDotsPerInch / 24;
constexpr int kAttemptsToFit = 8;

int Rounded(double value) {
  return static_cast<int>(std::lround(value));
}

const wchar_t* Wide(std::u16string_view text) {
  return reinterpret_cast<const wchar_t*>(text.data());  // UTF-16 both
}

double SizeOf(PageFont font) {
  switch (font) {
    case PageFont::kTitle: return kTitleSize;
    case PageFont::kSmall: return kSmallSize;
    case PageFont::kLarge: return kLargeSize;
    case PageFont::kHeading:
    case PageFont::kText: return 1;
  }
  return 1;
}

bool IsBold(PageFont font) {
  return font != PageFont::kText && font != PageFont::kSmall;
}

int WidthIn(HDC dc, std::u16string_view text) {
  SIZE size{};
  GetTextExtentPoint32W(dc, Wide(text), static_cast<int>(text.size()), &size);
  return size.cx;
}

}  // namespace

LOGFONTW PageFontOf(const LOGFONTW& font) {
  const ScopedWindowDc screen(nullptr);
  const int dotsPerInch = GetDeviceCaps(screen.dc(), LOGPIXELSY);
  LOGFONTW onPage = font;
  const int height = MulDiv(std::abs(font.lfHeight), kDotsPerInch, std::max(dotsPerInch, 1));
  const int limited = std::clamp(height, kLeastHeight, kMostHeight);
  onPage.lfHeight = font.lfHeight == 0  ? -kDefaultPoints * kDotsPerInch / kPointsInAnInch
                    : font.lfHeight < 0 ? -limited
                                        : limited;
  onPage.lfWidth = 0;
  onPage.lfEscapement = 0;
  onPage.lfOrientation = 0;
  return onPage;
}

DcSurface::DcSurface(HDC dc, const LOGFONTW& font, const DeviceScale& scale)
    : dc_(dc), font_(font), scale_(scale), saved_(SaveDC(dc)) {
  SetBkMode(dc_, TRANSPARENT);
  SetTextColor(dc_, RGB(0, 0, 0));
  SetTextAlign(dc_, TA_LEFT | TA_BASELINE);
}

DcSurface::~DcSurface() {
  RestoreDC(dc_, saved_);
}

int DcSurface::DeviceX(int x) const {
  return scale_.corner.x + Rounded(x * scale_.x);
}

int DcSurface::DeviceY(int y) const {
  return scale_.corner.y + Rounded(y * scale_.y);
}

// With the sign of LOGFONT's lfHeight.
int DcSurface::DeviceHeight(PageFont font) const {
  const double height = font_.lfHeight * scale_.y * SizeOf(font) * size_ / kUsualSize;
  return std::abs(height) < 1 ? -1 : Rounded(height);
}

void DcSurface::Select(PageFont font, int height) {
  auto found = fonts_.find({font, height});
  if (found == fonts_.end()) {
    if (fonts_.size() >= kMostFonts) {
      SelectObject(dc_, GetStockObject(SYSTEM_FONT));  // what is selected cannot be deleted
      fonts_.clear();
    }
    LOGFONTW description = font_;
    description.lfHeight = height;
    if (IsBold(font)) description.lfWeight = std::max<LONG>(description.lfWeight, FW_BOLD);
    found = fonts_.try_emplace({font, height}, CreateFontIndirectW(&description)).first;
  }
  if (found->second.get()) SelectObject(dc_, found->second.get());
}

// Selects the font in a size in which the text is no wider than this; the text's width.
int DcSurface::SelectFitting(PageFont font, std::u16string_view text, int width) {
  int height = DeviceHeight(font);
  Select(font, height);
  int measured = WidthIn(dc_, text);
  for (int attempt = 0; attempt < kAttemptsToFit && measured > width && std::abs(height) > 1; ++attempt) {
    const int sign = height < 0 ? -1 : 1;
    const int smaller = static_cast<int>(static_cast<int64_t>(std::abs(height)) * std::max(width, 1) / measured);
    height = sign * std::max(std::min(smaller, std::abs(height) - 1), 1);
    Select(font, height);
    measured = WidthIn(dc_, text);
  }
  return measured;
}

int DcSurface::LineHeight(PageFont font) {
  Select(font, DeviceHeight(font));
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc_, &metrics);
  return Rounded((metrics.tmHeight + metrics.tmExternalLeading) / scale_.y);
}

int DcSurface::Width(PageFont font, std::u16string_view text) {
  Select(font, DeviceHeight(font));
  return static_cast<int>(std::ceil(WidthIn(dc_, text) / scale_.x));
}

void DcSurface::DrawLine(const PageBox& box, std::u16string_view text, const LineStyle& style) {
  Select(style.font, DeviceHeight(style.font));
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc_, &metrics);
  const int left = DeviceX(box.x);
  const int width = DeviceX(box.Right()) - left;
  const int slack = DeviceX(box.Right() + kSlackDots) - DeviceX(box.Right());
  const int free = width - SelectFitting(style.font, text, width + slack);
  const int x = style.place == Place::kLeft ? left : style.place == Place::kRight ? left + free : left + free / 2;
  ExtTextOutW(dc_, x, DeviceY(box.y) + metrics.tmAscent, style.rightToLeft ? ETO_RTLREADING : 0, nullptr, Wide(text),
              static_cast<UINT>(text.size()), nullptr);
}

void DcSurface::DrawRule(int x, int y, int width, Rule rule) {
  const bool isHair = rule == Rule::kHair;
  const int top = DeviceY(y);
  const int bottom = DeviceY(y + (isHair ? kHairDots : kRuleDots));
  const RECT box = {DeviceX(x), top, DeviceX(x + width), std::max(bottom, top + 1)};
  SetDCBrushColor(dc_, isHair ? kHairColor : RGB(0, 0, 0));
  FillRect(dc_, &box, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

}  // namespace publishing
