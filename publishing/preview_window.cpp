#include "publishing/preview_window.h"

#include <commctrl.h>

#include <algorithm>
#include <memory>
#include <new>

#include "publishing/core/table_pages.h"
#include "publishing/dc_surface.h"
#include "publishing/module.h"
#include "publishing/page_view.h"
#include "publishing/preview_ids.h"
#include "publishing/print_job.h"
#include "publishing/printer.h"
#include "win/scoped.h"

namespace publishing {
namespace {

constexpr UINT_PTR kLeafingKeys = 1;  // of the subclass

// Of the work area, for a start.
constexpr int kWidthPercent = 65;
constexpr int kHeightPercent = 90;

constexpr const wchar_t* kZoomNames[] = {L"Whole page", L"Page width", L"100 %"};

// Buttons that leaf, which have keys too.
constexpr int kLeafingButtons[] = {IDC_PREVIEW_FIRST, IDC_PREVIEW_PREVIOUS, IDC_PREVIEW_NEXT, IDC_PREVIEW_LAST};

class Preview {
 public:
  explicit Preview(const PrintedTable& printed) : printed_(printed), font_(PageFontOf(printed.font)) {
    LayOut();
    // Wide tables lie across, as long as the user does not choose otherwise in the print dialog.
    const Sheet& sheet = printer_.sheet();
    if (pages_->IsNarrowed() && sheet.width < sheet.height && printer_.TurnPaper()) LayOut();
  }

  INT_PTR Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

 private:
  void LayOut();
  void OnInitDialog(HWND dialog);
  void OnSize() const;
  void OnMinMaxInfo(MINMAXINFO& limits) const;
  bool OnCommand(int control, int notification);
  void GoTo(int page);
  void ShowCurrent();
  void OnPrint();
  void SetStartSize() const;
  HWND Control(int id) const { return GetDlgItem(dialog_, id); }

  const PrintedTable& printed_;
  LOGFONTW font_;
  Printer printer_;
  std::unique_ptr<TablePages> pages_;
  HWND dialog_ = nullptr;
  SIZE least_ = {};  // of the window
  int pageTop_ = 0;  // of the view, in the client area
  int page_ = 0;     // from 0
  Zoom zoom_ = Zoom::kWholePage;
};

void Preview::LayOut() {
  const ScopedWaitCursor wait;
  const OwnedContext memory(CreateCompatibleDC(nullptr));
  DcSurface surface(memory.get(), font_, {});
  pages_ = std::make_unique<TablePages>(printed_.table, printer_.sheet(), kDotsPerInch, surface);
}

// The buttons know the keys of the page too, so that these leaf wherever the focus is but in the list of sizes.
LRESULT CALLBACK LeafingButtonProc(HWND button, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
  const int command = message == WM_KEYDOWN ? LeafingCommand(wParam) : 0;
  if (command) return SendMessageW(GetParent(button), WM_COMMAND, static_cast<WPARAM>(command), 0);
  if (message == WM_NCDESTROY) RemoveWindowSubclass(button, LeafingButtonProc, kLeafingKeys);
  return DefSubclassProc(button, message, wParam, lParam);
}

void Preview::OnInitDialog(HWND dialog) {
  dialog_ = dialog;
  SetWindowTextW(dialog, (printed_.documentName + L" - Print Preview").c_str());
  for (const wchar_t* name : kZoomNames) {
    SendMessageW(Control(IDC_PREVIEW_ZOOM), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
  }
  SendMessageW(Control(IDC_PREVIEW_ZOOM), CB_SETCURSEL, static_cast<WPARAM>(zoom_), 0);
  for (const int id :
       {IDC_PREVIEW_PRINT, IDC_PREVIEW_FIRST, IDC_PREVIEW_PREVIOUS, IDC_PREVIEW_NEXT, IDC_PREVIEW_LAST, IDCANCEL}) {
    SetWindowSubclass(Control(id), LeafingButtonProc, kLeafingKeys, 0);
  }
  RECT window{};
  GetWindowRect(dialog, &window);
  RECT view{};
  GetWindowRect(Control(IDC_PREVIEW_PAGE), &view);
  least_ = {window.right - window.left, (window.bottom - window.top) / 2};
  MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&view), 2);
  pageTop_ = view.top;
  SetStartSize();
  OnSize();
  ShowCurrent();
  SetFocus(Control(IDC_PREVIEW_PAGE));
}

// Over the middle of the owner's screen.
void Preview::SetStartSize() const {
  const HWND owner = GetWindow(dialog_, GW_OWNER);
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(owner ? owner : dialog_, MONITOR_DEFAULTTONEAREST), &monitor);
  const RECT& work = monitor.rcWork;
  const LONG workWidth = work.right - work.left;
  const LONG workHeight = work.bottom - work.top;
  const LONG width = std::min(std::max(least_.cx, workWidth * kWidthPercent / 100), workWidth);
  const LONG height = std::min(std::max(least_.cy, workHeight * kHeightPercent / 100), workHeight);
  SetWindowPos(dialog_, nullptr, work.left + (workWidth - width) / 2, work.top + (workHeight - height) / 2, width,
               height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void Preview::OnSize() const {
  RECT client{};
  GetClientRect(dialog_, &client);
  const int height = std::max<int>(client.bottom - pageTop_, 0);
  SetWindowPos(Control(IDC_PREVIEW_PAGE), nullptr, 0, pageTop_, client.right, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void Preview::OnMinMaxInfo(MINMAXINFO& limits) const {
  limits.ptMinTrackSize = {std::max(limits.ptMinTrackSize.x, least_.cx), std::max(limits.ptMinTrackSize.y, least_.cy)};
}

void Preview::GoTo(int page) {
  page = std::clamp(page, 0, pages_->Count() - 1);
  if (page == page_) return;
  page_ = page;
  ShowCurrent();
}

void Preview::ShowCurrent() {
  ShowPage(Control(IDC_PREVIEW_PAGE), {.pages = pages_.get(), .font = font_, .page = page_, .zoom = zoom_});
  const std::wstring number = L"Page " + std::to_wstring(page_ + 1) + L" of " + std::to_wstring(pages_->Count());
  SetWindowTextW(Control(IDC_PREVIEW_NUMBER), number.c_str());
  for (const int id : kLeafingButtons) {
    const bool isBack = id == IDC_PREVIEW_FIRST || id == IDC_PREVIEW_PREVIOUS;
    const bool isUsable = isBack ? page_ > 0 : page_ < pages_->Count() - 1;
    // A button that can no longer be pressed must not keep the focus.
    if (!isUsable && GetFocus() == Control(id)) {
      SendMessageW(dialog_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(IDC_PREVIEW_PAGE)), TRUE);
    }
    EnableWindow(Control(id), isUsable);
  }
}

void Preview::OnPrint() {
  const Printer::Choice choice = printer_.Ask(dialog_, pages_->Count());
  if (!choice.dc) return;
  // Another printer may have other paper.
  LayOut();
  page_ = std::min(page_, pages_->Count() - 1);
  ShowCurrent();
  const int last = choice.allPages ? pages_->Count() : std::min(choice.lastPage, pages_->Count());
  const int first = choice.allPages ? 1 : std::max(choice.firstPage, 1);
  if (first <= last) {
    Print(dialog_, {.printer = choice.dc.get(),
                    .pages = *pages_,
                    .font = font_,
                    .documentName = printed_.documentName,
                    .toFile = choice.toFile,
                    .firstPage = first - 1,
                    .lastPage = last - 1});
  } else {
    const std::wstring text = L"On this paper the table has " + std::to_wstring(pages_->Count()) +
                              L" pages, and none of those that you chose. Choose among these and print again.";
    MessageBoxW(dialog_, text.c_str(), L"Error", MB_OK | MB_ICONSTOP);
  }
}

bool Preview::OnCommand(int control, int notification) {
  switch (control) {
    case IDC_PREVIEW_PRINT: OnPrint(); return true;
    case IDC_PREVIEW_FIRST: GoTo(0); return true;
    case IDC_PREVIEW_PREVIOUS: GoTo(page_ - 1); return true;
    case IDC_PREVIEW_NEXT: GoTo(page_ + 1); return true;
    case IDC_PREVIEW_LAST: GoTo(pages_->Count() - 1); return true;
    case IDCANCEL: EndDialog(dialog_, IDCANCEL); return true;
    case IDC_PREVIEW_ZOOM:
      if (notification != CBN_SELCHANGE) return false;
      zoom_ = static_cast<Zoom>(SendMessageW(Control(IDC_PREVIEW_ZOOM), CB_GETCURSEL, 0, 0));
      ShowCurrent();
      return true;
  }
  return false;
}

INT_PTR Preview::Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: OnInitDialog(dialog); return FALSE;  // the focus has been set
    case WM_SIZE: OnSize(); return TRUE;
    case WM_GETMINMAXINFO: OnMinMaxInfo(*reinterpret_cast<MINMAXINFO*>(lParam)); return TRUE;
    case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_MOUSEWHEEL: SendMessageW(Control(IDC_PREVIEW_PAGE), message, wParam, lParam); return TRUE;
    case WM_HELP:  // F1 is answered by the last of the owners
      if (const HWND owner = GetWindow(dialog, GW_OWNER)) SendMessageW(owner, message, wParam, lParam);
      return TRUE;
  }
  return FALSE;
}

// An exception can only be want of memory: a preview that is being opened closes, an open one stays and sounds.
INT_PTR CALLBACK PreviewProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) try {
  if (message == WM_INITDIALOG) SetWindowLongPtrW(dialog, DWLP_USER, lParam);
  auto* const preview = reinterpret_cast<Preview*>(GetWindowLongPtrW(dialog, DWLP_USER));
  return preview ? preview->Handle(dialog, message, wParam, lParam) : FALSE;
} catch (...) {
  if (message == WM_INITDIALOG) EndDialog(dialog, 0);  // no success
  MessageBeep(MB_ICONSTOP);
  return TRUE;
}

}  // namespace

void PreviewTable(HWND owner, const PrintedTable& printed) {
  PageSetup setup;
  PreviewTable(owner, printed, setup);
}

void PreviewTable(HWND owner, const PrintedTable& printed, PageSetup&) {
  bool isShown = false;
  try {
    Preview preview(printed);
    const auto state = reinterpret_cast<LPARAM>(&preview);
    isShown = RegisterPageView(ThisModule()) &&
              DialogBoxParamW(ThisModule(), MAKEINTRESOURCEW(IDD_PREVIEW), owner, PreviewProc, state) > 0;
  } catch (const std::bad_alloc&) {
  }
  UnregisterPageView(ThisModule());
  if (isShown) return;
  MessageBoxW(owner, L"There is not enough memory to show the pages. Close other windows and try again.", L"Error",
              MB_OK | MB_ICONSTOP);
}

}  // namespace publishing
