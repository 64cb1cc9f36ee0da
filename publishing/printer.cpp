#include "publishing/printer.h"

#include <cderr.h>
#include <commdlg.h>
#include <winspool.h>

#include <algorithm>
#include <string>
#include <utility>

#include "win/scoped.h"

namespace publishing {
namespace {

constexpr int kMargin = kDotsPerInch * 3 / 4;

constexpr double kMillimetre = kDotsPerInch / 25.4;

int Dots(double millimetres) {
  return static_cast<int>(millimetres * kMillimetre);
}

PageBox BodyIn(int width, int height, const RECT& printable) {
  const int left = std::max<int>(kMargin, printable.left);
  const int top = std::max<int>(kMargin, printable.top);
  const int right = std::min<int>(width - kMargin, printable.right);
  const int bottom = std::min<int>(height - kMargin, printable.bottom);
  return {left, top, std::max(right - left, 1), std::max(bottom - top, 1)};
}

OwnedContext CreateInformationContext(HGLOBAL mode, HGLOBAL names) {
  const ScopedGlobalLock<const DEVNAMES> locked(names);
  const ScopedGlobalLock<const DEVMODEW> lockedMode(mode);
  if (!locked) return nullptr;
  const auto* const texts = reinterpret_cast<const wchar_t*>(locked.get());
  return OwnedContext(CreateICW(texts + locked->wDriverOffset, texts + locked->wDeviceOffset,
                                texts + locked->wOutputOffset, lockedMode.get()));
}

// Asked first, because the print dialog may have a box of its own for it whatever its flags.
bool HasPrinters() {
  DWORD size = 0;
  DWORD count = 0;
  const DWORD everywhere = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
  EnumPrintersW(everywhere, nullptr, 4, nullptr, 0, &size, &count);
  return size > 0;
}

void ShowNoPrinter(HWND owner, DWORD error) {
  const bool hasNone = error == PDERR_NODEFAULTPRN || error == PDERR_NODEVICES;
  const std::wstring text =
      hasNone
          ? L"No printer is installed. Install one in the system's settings, under Printers, and print again."
          : L"The printer does not answer. See in the system's settings, under Printers, whether it is still there, "
            L"or choose another one.";
  MessageBoxW(owner, text.c_str(), L"Error", MB_OK | MB_ICONSTOP);
}

}  // namespace

DeviceScale ScaleOf(HDC printer) {
  return {static_cast<double>(GetDeviceCaps(printer, LOGPIXELSX)) / kDotsPerInch,
          static_cast<double>(GetDeviceCaps(printer, LOGPIXELSY)) / kDotsPerInch,
          {-GetDeviceCaps(printer, PHYSICALOFFSETX), -GetDeviceCaps(printer, PHYSICALOFFSETY)}};
}

Printer::Printer() {
  const ScopedWaitCursor wait;  // a printer of the network may take its time
  PRINTDLGW defaults{};
  defaults.lStructSize = sizeof defaults;
  defaults.Flags = PD_RETURNDEFAULT | PD_RETURNIC | PD_NOWARNING;
  const bool hasDefault = PrintDlgW(&defaults) != FALSE;
  const OwnedContext dc(hasDefault ? defaults.hDC : nullptr);
  mode_ = defaults.hDevMode;
  names_ = defaults.hDevNames;
  MeasureSheet(dc.get());
}

Printer::~Printer() {
  if (mode_) GlobalFree(mode_);
  if (names_) GlobalFree(names_);
}

void Printer::MeasureSheet(HDC dc) {
  if (!dc) return TakeUsualPaper();
  const DeviceScale scale = ScaleOf(dc);
  if (scale.x <= 0 || scale.y <= 0) return TakeUsualPaper();
  const auto caps = [dc](int index) { return GetDeviceCaps(dc, index); };
  const int width = static_cast<int>(caps(PHYSICALWIDTH) / scale.x);
  const int height = static_cast<int>(caps(PHYSICALHEIGHT) / scale.y);
  if (width <= 2 * kMargin || height <= 2 * kMargin) return TakeUsualPaper();
  const RECT printable = {static_cast<LONG>(-scale.corner.x / scale.x), static_cast<LONG>(-scale.corner.y / scale.y),
                          static_cast<LONG>((caps(HORZRES) - scale.corner.x) / scale.x),
                          static_cast<LONG>((caps(VERTRES) - scale.corner.y) / scale.y)};
  sheet_ = {width, height, BodyIn(width, height, printable)};
}

void Printer::TakeUsualPaper() {
  // LOCALE_IPAPERSIZE: 1 letter, 5 legal, 8 A3, 9 A4. Whoever is used to legal or A3 prints tables on its smaller form.
  wchar_t paper[3] = {};
  GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_IPAPERSIZE, paper, static_cast<int>(std::size(paper)));
  const bool isLetter = paper[0] == L'1' || paper[0] == L'5';
  const int width = isLetter ? kDotsPerInch * 17 / 2 : Dots(210);
  const int height = isLetter ? kDotsPerInch * 11 : Dots(297);
  sheet_ = {width, height, BodyIn(width, height, {0, 0, width, height})};
}

bool Printer::TurnPaper() {
  if (!names_) {  // without a printer
    std::swap(sheet_.width, sheet_.height);
    sheet_.body = BodyIn(sheet_.width, sheet_.height, {0, 0, sheet_.width, sheet_.height});
    return true;
  }
  {
    const ScopedGlobalLock<DEVMODEW> mode(mode_);
    if (!mode || !(mode->dmFields & DM_ORIENTATION)) return false;
    mode->dmOrientation = DMORIENT_LANDSCAPE;
  }
  const OwnedContext dc(CreateInformationContext(mode_, names_));
  if (!dc) return false;
  MeasureSheet(dc.get());
  return true;
}

Printer::Choice Printer::Ask(HWND owner, int pageCount) {
  if (!HasPrinters()) {
    ShowNoPrinter(owner, PDERR_NODEVICES);
    return {};
  }
  constexpr int kMostPages = 0xFFFF;  // that the dialog can count
  PRINTDLGW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.hDevMode = mode_;
  dialog.hDevNames = names_;
  dialog.Flags = PD_RETURNDC | PD_NOSELECTION | PD_USEDEVMODECOPIESANDCOLLATE | PD_NOWARNING;
  dialog.nMinPage = dialog.nFromPage = 1;
  dialog.nMaxPage = dialog.nToPage = static_cast<WORD>(std::min(pageCount, kMostPages));
  const bool chosen = PrintDlgW(&dialog) != FALSE;
  mode_ = dialog.hDevMode;
  names_ = dialog.hDevNames;
  if (!chosen) {
    if (const DWORD error = CommDlgExtendedError()) ShowNoPrinter(owner, error);
    return {};
  }
  MeasureSheet(dialog.hDC);
  return {.dc = OwnedContext(dialog.hDC),
          .firstPage = dialog.nFromPage,
          .lastPage = dialog.nToPage,
          .allPages = (dialog.Flags & PD_PAGENUMS) == 0,
          .toFile = (dialog.Flags & PD_PRINTTOFILE) != 0};
}

}  // namespace publishing
