#include "zmanim/printer_surface.h"

#include "companion/glyphs.h"
#include "win/make_font.h"

namespace {

constexpr char kFace[] = "Times New Roman";
constexpr int kTextPoints = 10;
constexpr int kTitlePoints = 14;
constexpr int kHebrewPoints = 15;

TEXTMETRICA MetricsOf(HDC dc) {
  TEXTMETRICA metrics{};
  GetTextMetricsA(dc, &metrics);
  return metrics;
}

HFONT MakePrintFont(HDC printer, const char* face, int points, int weight) {
  return MakeFontAt(GetDeviceCaps(printer, LOGPIXELSY), face, points, weight);
}

}  // namespace

PrinterPage MeasurePage(HDC printer) {
  return {.width = GetDeviceCaps(printer, HORZRES),
          .height = GetDeviceCaps(printer, VERTRES),
          .dotsPerInchX = GetDeviceCaps(printer, LOGPIXELSX),
          .dotsPerInchY = GetDeviceCaps(printer, LOGPIXELSY)};
}

PrinterSurface::PrinterSurface(HDC printer, const char* hebrewFace)
    : printer_(printer),
      oldFont_(GetCurrentObject(printer, OBJ_FONT)),
      times_(MakePrintFont(printer, kFace, kTextPoints, FW_NORMAL)),
      bold_(MakePrintFont(printer, kFace, kTextPoints, FW_BOLD)),
      title_(MakePrintFont(printer, kFace, kTitlePoints, FW_BOLD)),
      hebrew_(MakePrintFont(printer, hebrewFace, kHebrewPoints, FW_DONTCARE)) {}

PrinterSurface::~PrinterSurface() {
  SelectObject(printer_, oldFont_);
}

HFONT PrinterSurface::FontOf(PrintFont font) const {
  switch (font) {
    case PrintFont::kTimes: return times_.get();
    case PrintFont::kBold: return bold_.get();
    case PrintFont::kTitle: return title_.get();
    case PrintFont::kHebrew: return hebrew_.get();
  }
  return nullptr;
}

void PrinterSurface::UseFont(PrintFont font) {
  SelectObject(printer_, FontOf(font));
}

int PrinterSurface::LineHeight() {
  return MetricsOf(printer_).tmHeight;
}

int PrinterSurface::AverageCharacterWidth() {
  return MetricsOf(printer_).tmAveCharWidth;
}

TextSize PrinterSurface::Measure(std::string_view text) {
  SIZE size{};
  GlyphsGetTextExtentPoint(printer_, text.data(), static_cast<int>(text.size()), &size);
  return {size.cx, size.cy};
}

void PrinterSurface::Draw(int x, int y, std::string_view text) {
  GlyphsTextOut(printer_, x, y, text.data(), static_cast<int>(text.size()));
}

void PrinterSurface::DrawClipped(int x, int y, std::string_view text, const PaneRect& clip) {
  const RECT rectangle{clip.x, clip.y, clip.Right(), clip.Bottom()};
  GlyphsExtTextOut(printer_, x, y, ETO_CLIPPED, &rectangle, text.data(), static_cast<UINT>(text.size()), nullptr);
}
