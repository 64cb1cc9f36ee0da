#include "tests/publishing/spooler_double.h"

#include <commdlg.h>
#include <winspool.h>

#include <atomic>
#include <mutex>

namespace {

constexpr int kHundredthsInAnInch = 2540;

SpoolerScript spooler;
std::mutex callsMutex;  // the test looks at them while the job runs
std::vector<std::string> calls;
std::atomic<long> held = 0;

template <typename Function>
Function Real(const wchar_t* library, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(library), name)));
}
#define REAL(library, name) Real<decltype(&name)>(L##library, #name)

void Record(const std::string& call) {
  const std::lock_guard lock(callsMutex);
  calls.push_back(call);
}

int Answer(const std::string& call, int answer) {
  Record(call);
  if (answer < 1) SetLastError(spooler.lastError);
  return answer;
}

BOOL WINAPI FakePrintDlgW(PRINTDLGW* dialog) {
  if (spooler.isReal) return REAL("comdlg32", PrintDlgW)(dialog);
  const bool isQuestion = (dialog->Flags & PD_RETURNDEFAULT) == 0;
  if (!isQuestion || spooler.dialogError != 0 || !spooler.hasPrinters) return FALSE;
  Record("PrintDlg to " + std::to_string(dialog->nMaxPage));
  dialog->Flags |= spooler.dialogFlags;
  dialog->nFromPage = spooler.firstPage;
  dialog->nToPage = spooler.lastPage;
  dialog->hDC = CreateCompatibleDC(nullptr);
  return TRUE;
}

BOOL WINAPI FakePageSetupDlgW(PAGESETUPDLGW* dialog) {
  if (spooler.isReal) return REAL("comdlg32", PageSetupDlgW)(dialog);
  if (spooler.dialogError != 0) return FALSE;
  const int inch = (dialog->Flags & PSD_INTHOUSANDTHSOFINCHES) ? 1000 : kHundredthsInAnInch;
  std::string call = "PageSetupDlg with";
  for (const LONG margin :
       {dialog->rtMargin.left, dialog->rtMargin.top, dialog->rtMargin.right, dialog->rtMargin.bottom}) {
    call += " " + std::to_string(MulDiv(margin, kHundredthsInAnInch, inch));
  }
  Record(call);
  if (spooler.chosenMargins.empty()) return FALSE;
  const int chosen = MulDiv(spooler.chosenMargins.front(), inch, kHundredthsInAnInch);
  dialog->rtMargin = {chosen, chosen, chosen, chosen};
  spooler.chosenMargins.erase(spooler.chosenMargins.begin());
  return TRUE;
}

DWORD WINAPI FakeCommDlgExtendedError() {
  return spooler.isReal ? REAL("comdlg32", CommDlgExtendedError)() : spooler.dialogError;
}

int WINAPI FakeSetAbortProc(HDC dc, ABORTPROC procedure) {
  return spooler.isReal ? REAL("gdi32", SetAbortProc)(dc, procedure) : Answer("SetAbortProc", 1);
}
int WINAPI FakeStartDocW(HDC dc, const DOCINFOW* document) {
  if (spooler.isReal) return REAL("gdi32", StartDocW)(dc, document);
  const std::wstring name = document->lpszDocName;
  return Answer("StartDoc " + std::string(name.begin(), name.end()), spooler.startDocAnswer);
}
int WINAPI FakeStartPage(HDC dc) {
  if (spooler.isReal) return REAL("gdi32", StartPage)(dc);
  if (spooler.onStartPage) spooler.onStartPage();
  return Answer("StartPage", spooler.startPageAnswer);
}
int WINAPI FakeEndPage(HDC dc) {
  return spooler.isReal ? REAL("gdi32", EndPage)(dc) : Answer("EndPage", spooler.endPageAnswer);
}
int WINAPI FakeEndDoc(HDC dc) {
  return spooler.isReal ? REAL("gdi32", EndDoc)(dc) : Answer("EndDoc", spooler.endDocAnswer);
}
int WINAPI FakeAbortDoc(HDC dc) {
  return spooler.isReal ? REAL("gdi32", AbortDoc)(dc) : Answer("AbortDoc", 1);
}

HFONT WINAPI CountedCreateFontIndirectW(const LOGFONTW* font) {
  ++held;
  return REAL("gdi32", CreateFontIndirectW)(font);
}
HBITMAP WINAPI CountedCreateCompatibleBitmap(HDC dc, int width, int height) {
  ++held;
  return REAL("gdi32", CreateCompatibleBitmap)(dc, width, height);
}
HBITMAP WINAPI CountedCreateDIBSection(HDC dc, const BITMAPINFO* form, UINT usage, void** dots, HANDLE section,
                                       DWORD offset) {
  ++held;
  return REAL("gdi32", CreateDIBSection)(dc, form, usage, dots, section, offset);
}
HDC WINAPI CountedCreateCompatibleDC(HDC dc) {
  ++held;
  return REAL("gdi32", CreateCompatibleDC)(dc);
}
BOOL WINAPI CountedDeleteObject(HGDIOBJ object) {
  --held;
  return REAL("gdi32", DeleteObject)(object);
}
BOOL WINAPI CountedDeleteDC(HDC dc) {
  --held;
  return REAL("gdi32", DeleteDC)(dc);
}

}  // namespace

// The linker takes these pointers of the import tables before the import libraries'.
extern "C" {
decltype(&PrintDlgW) __imp_PrintDlgW = FakePrintDlgW;
decltype(&PageSetupDlgW) __imp_PageSetupDlgW = FakePageSetupDlgW;
decltype(&CommDlgExtendedError) __imp_CommDlgExtendedError = FakeCommDlgExtendedError;
decltype(&SetAbortProc) __imp_SetAbortProc = FakeSetAbortProc;
decltype(&StartDocW) __imp_StartDocW = FakeStartDocW;
decltype(&StartPage) __imp_StartPage = FakeStartPage;
decltype(&EndPage) __imp_EndPage = FakeEndPage;
decltype(&EndDoc) __imp_EndDoc = FakeEndDoc;
decltype(&AbortDoc) __imp_AbortDoc = FakeAbortDoc;
decltype(&CreateFontIndirectW) __imp_CreateFontIndirectW = CountedCreateFontIndirectW;
decltype(&CreateCompatibleBitmap) __imp_CreateCompatibleBitmap = CountedCreateCompatibleBitmap;
decltype(&CreateDIBSection) __imp_CreateDIBSection = CountedCreateDIBSection;
decltype(&CreateCompatibleDC) __imp_CreateCompatibleDC = CountedCreateCompatibleDC;
decltype(&DeleteObject) __imp_DeleteObject = CountedDeleteObject;
decltype(&DeleteDC) __imp_DeleteDC = CountedDeleteDC;
}

// Its header has it called directly, not by a pointer.
extern "C" BOOL WINAPI EnumPrintersW(DWORD flags, LPWSTR name, DWORD level, LPBYTE printers, DWORD size, LPDWORD needed,
                                     LPDWORD count) {
  if (spooler.isReal) return REAL("winspool.drv", EnumPrintersW)(flags, name, level, printers, size, needed, count);
  *needed = spooler.hasPrinters ? 100 : 0;
  return !spooler.hasPrinters;
}

SpoolerScript& Spooler() {
  return spooler;
}

void ResetSpooler() {
  spooler = {};
  const std::lock_guard lock(callsMutex);
  calls.clear();
}

std::vector<std::string> SpoolerCalls() {
  const std::lock_guard lock(callsMutex);
  return calls;
}

long HeldObjects() {
  return held;
}
