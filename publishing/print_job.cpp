#include "publishing/print_job.h"

#include "publishing/dc_surface.h"
#include "publishing/printer.h"
#include "publishing/progress_box.h"

namespace publishing {
namespace {

// Answers of the spooler below this one are failures.
constexpr int kFirstSuccess = 1;

std::wstring SystemText(DWORD error) {
  wchar_t text[512] = {};
  FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0, text,
                 static_cast<DWORD>(std::size(text)), nullptr);
  return text;
}

// Why the spooler refused, in words that say how to go on. answer: the spooler's.
std::wstring ReasonOf(int answer, DWORD error) {
  switch (answer) {
    case SP_OUTOFDISK: return L"The disk has no room for the print job. Make room on it and print again.";
    case SP_OUTOFMEMORY: return L"There is not enough memory for the print job. Close other programs and print again.";
  }
  const std::wstring told = error == ERROR_SUCCESS ? L"" : SystemText(error);
  const std::wstring remedy = L"See whether the printer is on and has paper, and print again.";
  return told.empty() ? remedy : L"The system says: " + told + L"\n" + remedy;
}

bool IsUsersWish(int answer, DWORD error) {
  return answer == SP_USERABORT || error == ERROR_CANCELLED || error == ERROR_PRINT_CANCELLED;
}

int StartDocument(const PrintJob& job) {
  DOCINFOW document{};
  document.cbSize = sizeof document;
  document.lpszDocName = job.documentName.c_str();
  document.lpszOutput = job.toFile ? L"FILE:" : nullptr;
  return StartDocW(job.printer, &document);
}

// The spooler's answer for the last of its calls that was made.
int PrintPages(const PrintJob& job, ProgressBox& progress) {
  const std::wstring last = std::to_wstring(job.lastPage + 1);
  int answer = kFirstSuccess;
  for (int page = job.firstPage; page <= job.lastPage && answer >= kFirstSuccess; ++page) {
    progress.Show(L"Page " + std::to_wstring(page + 1) + L" of " + last);
    if (progress.IsCancelled()) return SP_USERABORT;
    answer = StartPage(job.printer);
    if (answer < kFirstSuccess) return answer;
    {
      // The page begins with the context's own settings, so the fonts are chosen anew.
      DcSurface surface(job.printer, job.font, ScaleOf(job.printer));
      job.pages.Draw(surface, page);
    }
    answer = EndPage(job.printer);
  }
  return answer;
}

}  // namespace

bool Print(HWND owner, const PrintJob& job) {
  ProgressBox progress(owner, L"Printing");
  SetAbortProc(job.printer, ProgressBox::AbortProc);
  SetLastError(ERROR_SUCCESS);
  int answer = StartDocument(job);
  const bool isStarted = answer >= kFirstSuccess;
  if (isStarted) answer = PrintPages(job, progress);
  if (answer >= kFirstSuccess) answer = EndDoc(job.printer);
  const DWORD error = GetLastError();
  if (answer >= kFirstSuccess) return true;
  if (isStarted) AbortDoc(job.printer);
  progress.Close();
  if (!progress.IsCancelled() && !IsUsersWish(answer, error)) {
    const std::wstring text = L"\"" + job.documentName + L"\" cannot be printed. " + ReasonOf(answer, error);
    MessageBoxW(owner, text.c_str(), L"Error", MB_OK | MB_ICONSTOP);
  }
  return false;
}

}  // namespace publishing
