// A printer to write zmanim on, with the fonts of their pages.
#pragma once

#include <windows.h>

#include "win/scoped.h"
#include "zmanim/core/zmanim_page.h"

// The size and resolution of the printer's page.
PrinterPage MeasurePage(HDC printer);

class PrinterSurface : public PageSurface {
 public:
  PrinterSurface(HDC printer, const char* hebrewFace);
  ~PrinterSurface() override;

  // Whether there is a font for Hebrew names.
  bool CanDrawHebrew() const { return hebrew_.get() != nullptr; }

  void UseFont(PrintFont font) override;
  int LineHeight() override;
  int AverageCharacterWidth() override;
  TextSize Measure(std::string_view text) override;
  void Draw(int x, int y, std::string_view text) override;
  void DrawClipped(int x, int y, std::string_view text, const PaneRect& clip) override;

 private:
  HFONT FontOf(PrintFont font) const;

  HDC printer_;
  HGDIOBJ oldFont_;
  ScopedGdiObject<HFONT> times_;
  ScopedGdiObject<HFONT> bold_;
  ScopedGdiObject<HFONT> title_;
  ScopedGdiObject<HFONT> hebrew_;
};
