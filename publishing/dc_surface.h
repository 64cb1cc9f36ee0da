// Pages on a device context: of a printer, of a window, or of memory to measure in.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <utility>

#include "publishing/core/page_surface.h"
#include "win/scoped.h"

namespace publishing {

// The pages are laid out at this resolution whatever they are drawn on, so that the preview breaks lines and pages
// where the printer will.
constexpr int kDotsPerInch = 600;

// The font of a table's texts with its height in dots of the page. font: as chosen for the screen.
LOGFONTW PageFontOf(const LOGFONTW& font);

// A device context that has been created, not one of a window.
struct DeleteContext {
  using pointer = HDC;
  void operator()(HDC dc) const { DeleteDC(dc); }
};
using OwnedContext = std::unique_ptr<HDC, DeleteContext>;

// From dots of the page to the device's units.
struct DeviceScale {
  double x = 1;
  double y = 1;
  POINT corner = {};  // of the sheet
};

class DcSurface : public PageSurface {
 public:
  // The context's own fonts, colours and modes are restored at the end. font: of PageFontOf.
  DcSurface(HDC dc, const LOGFONTW& font, const DeviceScale& scale);
  ~DcSurface() override;

  void SetSize(int size) override { size_ = size; }
  int LineHeight(PageFont font) override;
  int Width(PageFont font, std::u16string_view text) override;
  void DrawLine(const PageBox& box, std::u16string_view text, const LineStyle& style) override;
  void DrawRule(int x, int y, int width, Rule rule) override;

 private:
  int DeviceX(int x) const;
  int DeviceY(int y) const;
  int DeviceHeight(PageFont font) const;
  void Select(PageFont font, int height);
  int SelectFitting(PageFont font, std::u16string_view text, int width);

  HDC dc_;
  LOGFONTW font_;
  DeviceScale scale_;
  int saved_;
  int size_ = kUsualSize;
  std::map<std::pair<PageFont, int>, ScopedGdiObject<HFONT>> fonts_;  // by their height in the device's units
};

}  // namespace publishing
