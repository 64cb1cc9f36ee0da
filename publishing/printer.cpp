#include "publishing/printer.h"

#include <cderr.h>
#include <commdlg.h>
#include <winspool.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "win/scoped.h"

namespace publishing {
namespace {

// Parts of an inch, of which the margins have 1/100 mm.
constexpr int kHundredthsInAnInch = 2540;

constexpr double kMillimetre = kDotsPerInch / 25.4;

// What margins have to leave of a sheet each way, unless it has less: 5 cm.
constexpr int kLeastBody = 5000 * kDotsPerInch / kHundredthsInAnInch;

int Dots(double millimetres) {
  return static_cast<int>(millimetres * kMillimetre);
}

int DotsOfHundredths(int hundredths) {
  return MulDiv(hundredths, kDotsPerInch, kHundredthsInAnInch);
}

PageBox BodyIn(int width, int height, const RECT& printable, const PageMargins& margins) {
  const int left = std::max<int>(DotsOfHundredths(margins.left), printable.left);
  const int top = std::max<int>(DotsOfHundredths(margins.top), printable.top);
  const int right = std::min<int>(width - DotsOfHundredths(margins.right), printable.right);
  const int bottom = std::min<int>(height - DotsOfHundredths(margins.bottom), printable.bottom);
  return {left, top, std::max(right - left, 1), std::max(bottom - top, 1)};
}

bool LeaveRoom(const PageBox& body, int width, int height) {
  return body.width >= std::min(kLeastBody, width / 2) && body.height >= std::min(kLeastBody, height / 2);
}

bool HasInches() {
  wchar_t system[2] = {};
  GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_IMEASURE, system, static_cast<int>(std::size(system)));
  return system[0] == L'1';
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
          ? L"No printer is installed. Install one in the system's settings, under Printers, and try again."
          : L"The printer does not answer. See in the system's settings, under Printers, whether it is still there, "
            L"or choose another one.";
  MessageBoxW(owner, text.c_str(), L"Error", MB_OK | MB_ICONSTOP);
}

std::vector<char> BytesOf(HGLOBAL block) {
  const ScopedGlobalLock<const char> bytes(block);
  if (!bytes) return {};
  return {bytes.get(), bytes.get() + GlobalSize(block)};
}

// Without memory the block stays as it is.
void Replace(HGLOBAL& block, const std::vector<char>& bytes) {
  const HGLOBAL replacement = bytes.empty() ? nullptr : GlobalAlloc(GMEM_MOVEABLE, bytes.size());
  if (!bytes.empty() && !replacement) return;
  if (const ScopedGlobalLock<char> locked(replacement); locked) std::ranges::copy(bytes, locked.get());
  if (block) GlobalFree(block);
  block = replacement;
}

}  // namespace

bool IsLetterUsual() {
  // LOCALE_IPAPERSIZE: 1 letter, 5 legal, 8 A3, 9 A4.
  wchar_t usual[3] = {};
  GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_IPAPERSIZE, usual, static_cast<int>(std::size(usual)));
  return usual[0] == L'1' || usual[0] == L'5';
}

DeviceScale ScaleOf(HDC printer) {
  return {static_cast<double>(GetDeviceCaps(printer, LOGPIXELSX)) / kDotsPerInch,
          static_cast<double>(GetDeviceCaps(printer, LOGPIXELSY)) / kDotsPerInch,
          {-GetDeviceCaps(printer, PHYSICALOFFSETX), -GetDeviceCaps(printer, PHYSICALOFFSETY)}};
}

Printer::Printer(PageSetup& setup, const PageMargins& usual) : setup_(setup), usual_(usual) {
  const ScopedWaitCursor wait;  // a printer of the network may take its time
  PRINTDLGW defaults{};
  defaults.lStructSize = sizeof defaults;
  defaults.Flags = PD_RETURNDEFAULT | PD_NOWARNING;
  PrintDlgW(&defaults);
  mode_ = defaults.hDevMode;
  names_ = defaults.hDevNames;
  Use(setup);
}

Printer::~Printer() {
  if (mode_) GlobalFree(mode_);
  if (names_) GlobalFree(names_);
}

Printer::Kept Printer::Keep() const {
  return {setup_, BytesOf(mode_), BytesOf(names_)};
}

void Printer::GoBackTo(const Kept& kept) {
  setup_ = kept.setup;
  Replace(mode_, kept.mode);
  Replace(names_, kept.names);
  Measure();
}

void Printer::Use(const PageSetup& setup) {
  setup_ = setup;
  SetPaper(setup.paper, setup.orientation);
  Measure();
}

// What is not chosen stays as it is.
void Printer::SetPaper(int paper, Orientation orientation) {
  const ScopedGlobalLock<DEVMODEW> mode(mode_);
  if (!mode) return;
  if (paper != 0 && (mode->dmFields & DM_PAPERSIZE)) {
    mode->dmPaperSize = static_cast<short>(paper);
    mode->dmFields &= ~static_cast<DWORD>(DM_PAPERWIDTH | DM_PAPERLENGTH | DM_FORMNAME);  // which would name another
  }
  if (orientation != Orientation::kAutomatic && (mode->dmFields & DM_ORIENTATION)) {
    mode->dmOrientation = orientation == Orientation::kLandscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
  }
}

Printer::Paper Printer::PaperNow() const {
  const ScopedGlobalLock<const DEVMODEW> mode(mode_);
  if (!mode) return {};
  return {(mode->dmFields & DM_PAPERSIZE) ? static_cast<WORD>(mode->dmPaperSize) : 0,
          (mode->dmFields & DM_ORIENTATION) ? mode->dmOrientation : 0};
}

// What a dialog has left as it was is no choice.
void Printer::StorePaper(const Paper& before) {
  const Paper now = PaperNow();
  if (now.size != before.size) setup_.paper = now.size;
  if (now.orientation != before.orientation) {
    setup_.orientation = now.orientation == DMORIENT_LANDSCAPE ? Orientation::kLandscape : Orientation::kPortrait;
  }
}

void Printer::Measure() {
  const OwnedContext dc(CreateInformationContext(mode_, names_));
  MeasureSheet(dc.get());
}

Sheet Printer::WithMargins(int width, int height, const RECT& printable) const {
  PageBox body = BodyIn(width, height, printable, MarginsOf(setup_, usual_));
  // They may be meant for other paper.
  if (!LeaveRoom(body, width, height)) body = BodyIn(width, height, printable, usual_);
  return {width, height, body};
}

void Printer::MeasureSheet(HDC dc) {
  if (!dc) return TakeUsualPaper();
  const DeviceScale scale = ScaleOf(dc);
  if (scale.x <= 0 || scale.y <= 0) return TakeUsualPaper();
  const auto caps = [dc](int index) { return GetDeviceCaps(dc, index); };
  const int width = static_cast<int>(caps(PHYSICALWIDTH) / scale.x);
  const int height = static_cast<int>(caps(PHYSICALHEIGHT) / scale.y);
  if (width <= kLeastBody || height <= kLeastBody) return TakeUsualPaper();
  const RECT printable = {static_cast<LONG>(-scale.corner.x / scale.x), static_cast<LONG>(-scale.corner.y / scale.y),
                          static_cast<LONG>((caps(HORZRES) - scale.corner.x) / scale.x),
                          static_cast<LONG>((caps(VERTRES) - scale.corner.y) / scale.y)};
  const Sheet sheet = WithMargins(width, height, printable);
  if (!LeaveRoom(sheet.body, width, height)) return TakeUsualPaper();
  sheet_ = sheet;
}

void Printer::TakeUsualPaper() {
  const bool isLetter = setup_.paper == DMPAPER_LETTER || (IsLetterUsual() && setup_.paper != DMPAPER_A4);
  int width = isLetter ? kDotsPerInch * 17 / 2 : Dots(210);
  int height = isLetter ? kDotsPerInch * 11 : Dots(297);
  if (setup_.orientation == Orientation::kLandscape) std::swap(width, height);
  sheet_ = WithMargins(width, height, {0, 0, width, height});
}

bool Printer::TurnPaper() {
  if (!names_) {  // without a printer
    const int width = sheet_.height;
    const int height = sheet_.width;
    sheet_ = WithMargins(width, height, {0, 0, width, height});
    return true;
  }
  {
    const ScopedGlobalLock<DEVMODEW> mode(mode_);
    if (!mode || !(mode->dmFields & DM_ORIENTATION)) return false;
    mode->dmOrientation = DMORIENT_LANDSCAPE;
  }
  Measure();
  return true;
}

bool Printer::HasRoom() const {
  const PageBox body =
      BodyIn(sheet_.width, sheet_.height, {0, 0, sheet_.width, sheet_.height}, MarginsOf(setup_, usual_));
  return LeaveRoom(body, sheet_.width, sheet_.height);
}

bool Printer::AskSetup(HWND owner) {
  if (!HasPrinters()) {
    ShowNoPrinter(owner, PDERR_NODEVICES);
    return false;
  }
  const Paper before = PaperNow();
  const Kept kept = Keep();
  const int unitsInAnInch = HasInches() ? 1000 : kHundredthsInAnInch;
  const auto toDialog = [&](int hundredths) { return MulDiv(hundredths, unitsInAnInch, kHundredthsInAnInch); };
  const auto fromDialog = [&](LONG units) {
    return std::clamp(MulDiv(units, kHundredthsInAnInch, unitsInAnInch), 0, kMostMargin);
  };
  for (;;) {
    const PageMargins margins = MarginsOf(setup_, usual_);
    PAGESETUPDLGW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.hDevMode = mode_;
    dialog.hDevNames = names_;
    dialog.Flags = PSD_MARGINS | PSD_NOWARNING |
                   static_cast<DWORD>(HasInches() ? PSD_INTHOUSANDTHSOFINCHES : PSD_INHUNDREDTHSOFMILLIMETERS);
    dialog.rtMargin = {toDialog(margins.left), toDialog(margins.top), toDialog(margins.right),
                       toDialog(margins.bottom)};
    const bool chosen = PageSetupDlgW(&dialog) != FALSE;
    mode_ = dialog.hDevMode;
    names_ = dialog.hDevNames;
    if (!chosen) {
      if (const DWORD error = CommDlgExtendedError()) ShowNoPrinter(owner, error);
      if (setup_ != kept.setup) GoBackTo(kept);
      return false;
    }
    const RECT& told = dialog.rtMargin;
    setup_.margins =
        PageMargins{fromDialog(told.left), fromDialog(told.top), fromDialog(told.right), fromDialog(told.bottom)};
    if (setup_.margins == usual_) setup_.margins.reset();
    StorePaper(before);
    Measure();
    if (HasRoom()) return true;
    MessageBoxW(owner,
                L"The margins leave no room for the table on this paper. Choose margins that leave at least 5 cm "
                L"(2 inches) each way.",
                L"Error", MB_OK | MB_ICONSTOP);
  }
}

Printer::Choice Printer::Ask(HWND owner, int pageCount) {
  if (!HasPrinters()) {
    ShowNoPrinter(owner, PDERR_NODEVICES);
    return {};
  }
  const Paper before = PaperNow();
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
  StorePaper(before);
  MeasureSheet(dialog.hDC);
  return {.dc = OwnedContext(dialog.hDC),
          .firstPage = dialog.nFromPage,
          .lastPage = dialog.nToPage,
          .allPages = (dialog.Flags & PD_PAGENUMS) == 0,
          .toFile = (dialog.Flags & PD_PRINTTOFILE) != 0};
}

}  // namespace publishing
