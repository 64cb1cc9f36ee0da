#include "zmanim/print_zmanim.h"

#include <commdlg.h>

#include <string>
#include <vector>

#include "engine/properties.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "win/message_box.h"
#include "win/scoped.h"
#include "zmanim/calculate_zmanim.h"
#include "zmanim/core/zmanim_page.h"
#include "zmanim/core/zmanim_print_plan.h"
#include "zmanim/print_abort_dialog.h"
#include "zmanim/printer_surface.h"
#include "zmanim/zmanim_export_data.h"

namespace {

constexpr char kErrorCaption[] = "Error";
constexpr char kDocumentName[] = "Zmanim Times";

// Answers of the spooler below this one are failures.
constexpr int kFirstSuccess = 1;

// Says for its scope that a job runs. The abort dialog does not tell: it goes when the user cancels, before the job has
// ended.
class ScopedPrintJob {
 public:
  ScopedPrintJob() { running_ = true; }
  ~ScopedPrintJob() { running_ = false; }
  ScopedPrintJob(const ScopedPrintJob&) = delete;
  ScopedPrintJob& operator=(const ScopedPrintJob&) = delete;
  static bool IsRunning() { return running_; }

 private:
  static inline bool running_ = false;
};

struct PrinterChoice {
  HDC printer;  // null: cancelled
  bool toFile;  // the system then asks for the file when the document starts
};

// Runs the system's print dialog and gives back the blocks that describe the choice.
PrinterChoice RunPrintDialog(HWND owner, DWORD flags) {
  PRINTDLGA dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.Flags = flags;
  const bool chosen = PrintDlgA(&dialog) != FALSE;
  if (dialog.hDevMode) GlobalFree(dialog.hDevMode);
  if (dialog.hDevNames) GlobalFree(dialog.hDevNames);
  return {chosen ? dialog.hDC : nullptr, (dialog.Flags & PD_PRINTTOFILE) != 0};
}

bool StartDocument(HWND owner, const PrinterChoice& choice) {
  if (SetAbortProc(choice.printer, AbortPrinting) < kFirstSuccess) {
    ShowStop(owner, "SHABBAT.InitPrinting: SetAbortProc failed", kErrorCaption);
    return false;
  }
  DOCINFOA document{};
  document.cbSize = sizeof document;
  document.lpszDocName = kDocumentName;
  document.lpszOutput = choice.toFile ? "FILE:" : nullptr;
  if (StartDocA(choice.printer, &document) < kFirstSuccess) {
    ShowStop(owner, "SHABBAT.InitPrinting: StartDoc failed", kErrorCaption);
    return false;
  }
  return true;
}

void HandleWaitingMessages(HDC printer) {
  AbortPrinting(printer, 0);
}

// What all pages of a job have in common.
struct PrintJob {
  HDC printer;
  PrinterPage page;
  const ZmanimExport& data;
  PrinterSurface& surface;
  ZmanTexts& texts;
};

void PrintPage(const PrintJob& job, const PrintedPage& content) {
  if (StartPage(job.printer) < kFirstSuccess) {
    ShowStop(nullptr, "SHABBAT.PrintZmanimPaper: StartPage failed", kErrorCaption);
    return;
  }
  HandleWaitingMessages(job.printer);
  const int headingHeight = PassHeading(job.surface, job.page, job.data, content.zmanim, HeadingPass::kDraw);
  HandleWaitingMessages(job.printer);
  DrawTable(job.surface, job.page, job.data, content, job.texts, TableTop(job.page, headingHeight));
  // The end of a page that was cancelled meanwhile is refused, which is no failure.
  if (EndPage(job.printer) < kFirstSuccess && !PrintAbort.aborted) {
    ShowStop(nullptr, "SHABBAT.PrintZmanimPaper: EndPage failed", kErrorCaption);
  }
}

void ShowPageNumber(unsigned number) {
  SetDlgItemTextA(PrintAbort.dialog, IDC_ABORT_PROGRESS, ("Page " + std::to_string(number)).c_str());
  RedrawWindow(PrintAbort.dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

std::vector<ZmanimDay> DaysOf(HWND document) {
  const ScopedGlobalLock<const ZmanimBlock> block(GetBlockProperty(document, property::kZmanimTimes));
  if (!block) return {};
  return {block->days, block->days + block->count};
}

void PrintPages(HDC printer, HWND document) {
  const ScopedWaitCursor wait;
  const std::vector<ZmanimDay> days = DaysOf(document);
  ZmanimExport data = DescribeZmanim(document);
  data.days = days;
  PrinterSurface surface(printer, data.hebrewFont.c_str());
  data.hebrew = data.hebrew && surface.CanDrawHebrew();
  ZmanTexts texts(data.formatTime);
  const PrintJob job{printer, MeasurePage(printer), data, surface, texts};
  unsigned number = 0;
  for (const PrintedPage& content :
       PlanZmanimPages(static_cast<uint32_t>(days.size()), static_cast<uint32_t>(data.names.size()),
                       RowsPerPage(surface, job.page, data), data.amPm)) {
    ShowPageNumber(++number);
    PrintPage(job, content);
    if (PrintAbort.aborted) break;
  }
}

void FinishDocument(HWND owner, HDC printer) {
  if (PrintAbort.aborted) {
    AbortDoc(printer);
  } else if (EndDoc(printer) < kFirstSuccess) {
    ShowStop(owner, "SHABBAT.DonePrinting: EndDoc failed", kErrorCaption);
  }
  ClosePrintAbortDialog();
  DeleteDC(printer);
}

}  // namespace

void PrintZmanim(HWND owner, HWND document) {
  if (ScopedPrintJob::IsRunning()) return;
  const ScopedPrintJob running;
  const PrinterChoice choice =
      RunPrintDialog(owner, PD_RETURNDC | PD_NOSELECTION | PD_NOPAGENUMS | PD_USEDEVMODECOPIESANDCOLLATE);
  if (!choice.printer) return;
  RenewZmanim(document);
  OpenPrintAbortDialog(owner);
  if (StartDocument(owner, choice)) {
    PrintPages(choice.printer, document);
  } else {
    PrintAbort.aborted = true;
  }
  FinishDocument(owner, choice.printer);
  if (PrintAbort.aborted) ShowInformation(owner, TableString(IDS_PRINTING_CANCELLED), TableString(IDS_TITLE));
}

void PrinterSetup(HWND owner) {
  RunPrintDialog(owner, PD_PRINTSETUP);
}

BOOL CALLBACK AbortPrinting(HDC, int) {
  MSG message;
  while (!PrintAbort.aborted && PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // The program ends: the main loop is to see that too.
      PostQuitMessage(static_cast<int>(message.wParam));
      PrintAbort.aborted = true;
    } else if (!PrintAbort.dialog || !IsDialogMessageA(PrintAbort.dialog, &message)) {
      TranslateMessage(&message);
      DispatchMessageA(&message);
    }
  }
  return !PrintAbort.aborted;
}
