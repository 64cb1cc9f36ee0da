#include "tests/doubles/printing_calls.h"

#include <commdlg.h>

#include <utility>

#include "tests/doubles/call_log.h"
#include "tests/doubles/real_call.h"
#include "tests/doubles/system_calls.h"
#include "win/unicode_text.h"

namespace {

HDC printer = nullptr;

BOOL WINAPI FakePrintDlgA(LPPRINTDLGA dialog) {
  LogCall("print dialog flags 0x%lx owner %s", dialog->Flags, dialog->hwndOwner ? "yes" : "none");
  if (!Printer().chosen) return FALSE;
  dialog->hDevMode = GlobalAlloc(GMEM_MOVEABLE, 1);
  dialog->hDevNames = GlobalAlloc(GMEM_MOVEABLE, 1);
  if (Printer().printsToFile) dialog->Flags |= PD_PRINTTOFILE;
  if ((dialog->Flags & PD_RETURNDC) && Printer().givesPrinter) {
    printer = CreateCompatibleDC(nullptr);
    ++Printer().devices;
    dialog->hDC = printer;
  }
  return TRUE;
}

int WINAPI FakeGetDeviceCaps(HDC dc, int index) {
  static const auto real = REAL("gdi32.dll", GetDeviceCaps);
  if (dc != printer || Printer().devices == 0) return real(dc, index);
  switch (index) {
    case HORZRES: return Printer().width;
    case VERTRES: return Printer().height;
    case LOGPIXELSX: return Printer().dotsPerInchX;
    case LOGPIXELSY: return Printer().dotsPerInchY;
  }
  return real(dc, index);
}

int WINAPI FakeSetAbortProc(HDC, ABORTPROC procedure) {
  LogCall("SetAbortProc");
  Printer().abortProc = procedure;
  return Printer().setAbortProcAnswer;
}

int WINAPI FakeStartDocA(HDC, const DOCINFOA* document) {
  LogCall("StartDoc '%s' to %s", document->lpszDocName, document->lpszOutput ? document->lpszOutput : "the printer");
  return Printer().startDocAnswer;
}

int WINAPI FakeStartPage(HDC) {
  const int page = ++Printer().startedPages;
  LogCall("StartPage");
  Libraries().printedDraws.clear();
  if (Printer().onStartPage) Printer().onStartPage(page);
  return Printer().startPageAnswer;
}

int WINAPI FakeEndPage(HDC) {
  LogCall("EndPage");
  Printer().pages.push_back(std::exchange(Libraries().printedDraws, {}));
  if (Printer().onEndPage) Printer().onEndPage(Printer().startedPages);
  return Printer().endPageAnswer;
}

int WINAPI FakeEndDoc(HDC) {
  LogCall("EndDoc");
  return Printer().endDocAnswer;
}

int WINAPI FakeAbortDoc(HDC) {
  LogCall("AbortDoc");
  return 1;
}

BOOL WINAPI FakeDeleteDC(HDC dc) {
  static const auto real = REAL("gdi32.dll", DeleteDC);
  LogCall("DeleteDC");
  if (dc == printer) --Printer().devices;
  return real(dc);
}

// Asked only for the default printer.
BOOL WINAPI FakePrintDlgW(LPPRINTDLGW) {
  return FALSE;
}

BOOL WINAPI FakePageSetupDlgW(LPPAGESETUPDLGW dialog) {
  constexpr int kHundredthsInAnInch = 2540;
  const int inch = (dialog->Flags & PSD_INTHOUSANDTHSOFINCHES) ? 1000 : kHundredthsInAnInch;
  LogCall("page setup with margins of %d", MulDiv(dialog->rtMargin.left, kHundredthsInAnInch, inch));
  const int chosen = MulDiv(Printer().chosenMargin, inch, kHundredthsInAnInch);
  dialog->rtMargin = {chosen, chosen, chosen, chosen};
  return chosen != 0;
}

BOOL WINAPI NotedExtTextOutW(HDC dc, int x, int y, UINT options, const RECT* box, LPCWSTR text, UINT length,
                             const INT* widths) {
  static const auto real = REAL("gdi32.dll", ExtTextOutW);
  Printer().shownTexts.push_back(Utf8Of({text, length}));
  return real(dc, x, y, options, box, text, length, widths);
}

}  // namespace

extern "C" {
decltype(&PrintDlgA) __imp_PrintDlgA = FakePrintDlgA;
decltype(&GetDeviceCaps) __imp_GetDeviceCaps = FakeGetDeviceCaps;
decltype(&SetAbortProc) __imp_SetAbortProc = FakeSetAbortProc;
decltype(&StartDocA) __imp_StartDocA = FakeStartDocA;
decltype(&StartPage) __imp_StartPage = FakeStartPage;
decltype(&EndPage) __imp_EndPage = FakeEndPage;
decltype(&EndDoc) __imp_EndDoc = FakeEndDoc;
decltype(&AbortDoc) __imp_AbortDoc = FakeAbortDoc;
decltype(&PrintDlgW) __imp_PrintDlgW = FakePrintDlgW;
decltype(&PageSetupDlgW) __imp_PageSetupDlgW = FakePageSetupDlgW;
decltype(&ExtTextOutW) __imp_ExtTextOutW = NotedExtTextOutW;
decltype(&DeleteDC) __imp_DeleteDC = FakeDeleteDC;
}

// Its header, which would rename ResetPrinter, has it called directly, not by a pointer. There is always a printer.
extern "C" BOOL WINAPI EnumPrintersW(DWORD, LPWSTR, DWORD, LPBYTE, DWORD, LPDWORD size, LPDWORD count) {
  *size = 100;
  *count = 0;
  return FALSE;
}

PrinterScript& Printer() {
  static PrinterScript script;
  return script;
}

void ResetPrinter() {
  Printer() = {};
}
