#include "publishing/preview_window.h"

#include <commctrl.h>

#include <algorithm>
#include <new>

#include "publishing/laid_out_pages.h"
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

// In the order of Zoom.
constexpr const wchar_t* kZoomNames[] = {L"Whole page", L"Page width", L"75 %", L"100 %", L"150 %", L"200 %"};

// Buttons that leaf, which have keys too.
constexpr int kLeafingButtons[] = {IDC_PREVIEW_FIRST, IDC_PREVIEW_PREVIOUS, IDC_PREVIEW_NEXT, IDC_PREVIEW_LAST};

constexpr INT_PTR kShown = 1;  // of the dialog; 0 when it could not be made

class Preview {
 public:
  Preview(const PrintedTable& printed, PageSetup& setup)
      : printed_(printed),
        setup_(setup),
        printer_(setup, printed.layout == PaperLayout::kOnePage ? kOnePageMargins : kUsualMargins),
        laidOut_(printed) {}

  // Before it is shown. False: the user cancelled, or has been told why there is nothing to show.
  bool LayOutFirst(HWND owner);

  INT_PTR Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

 private:
  bool LayOutAgain(const Printer::Kept& before);
  void OnInitDialog(HWND dialog);
  void OnSize() const;
  void OnMinMaxInfo(MINMAXINFO& limits) const;
  bool OnCommand(int control, int notification);
  void GoTo(int page);
  void ShowCurrent();
  void OnSetup();
  void OnPrint();
  void PrintChosen(const Printer::Choice& choice);
  void SetStartSize() const;
  int PageCount() const { return laidOut_.pages().Count(); }
  HWND Control(int id) const { return GetDlgItem(dialog_, id); }

  const PrintedTable& printed_;
  PageSetup& setup_;
  Printer printer_;
  LaidOutPages laidOut_;
  HWND dialog_ = nullptr;
  SIZE least_ = {};  // of the window
  int pageTop_ = 0;  // of the view, in the client area
  int page_ = 0;     // from 0
  Zoom zoom_ = Zoom::kWholePage;
};

void ShowNoRoom(HWND owner) {
  MessageBoxW(owner,
              L"The table is too long for one page. Choose fewer days or columns, larger paper or smaller margins, or "
              L"print it on several pages.",
              L"Error", MB_OK | MB_ICONSTOP);
}

bool Preview::LayOutFirst(HWND owner) {
  LayingOut done = laidOut_.LayOut(owner, printer_.sheet());
  const Sheet& sheet = printer_.sheet();
  // Wide tables lie across, as long as the user does not choose otherwise.
  const bool mayTurn = setup_.orientation == Orientation::kAutomatic && sheet.width < sheet.height;
  if (done == LayingOut::kNarrowed && mayTurn && printer_.TurnPaper()) {
    done = laidOut_.LayOut(owner, printer_.sheet());
  }
  if (done == LayingOut::kNoRoom) ShowNoRoom(owner);
  return done == LayingOut::kDone || done == LayingOut::kNarrowed;
}

// For the paper as it is now. The preview closes when the user cancels, and keeps to the paper of before when this one
// is too small. Whether it has been done.
bool Preview::LayOutAgain(const Printer::Kept& before) {
  const LayingOut done = laidOut_.LayOut(dialog_, printer_.sheet());
  if (done == LayingOut::kCancelled) {
    EndDialog(dialog_, kShown);
    return false;
  }
  if (done == LayingOut::kNoRoom) {
    ShowNoRoom(dialog_);
    printer_.GoBackTo(before);
    return false;
  }
  page_ = std::min(page_, PageCount() - 1);
  ShowCurrent();
  return true;
}

// The buttons know the keys of the page too, so that these leaf wherever the focus is but in the list of sizes.
LRESULT CALLBACK LeafingButtonProc(HWND button, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
  const int command = message == WM_KEYDOWN ? LeafingCommand(wParam) : 0;
  if (command) return SendMessageW(GetParent(button), WM_COMMAND, static_cast<WPARAM>(command), 0);
  if (message == WM_NCDESTROY) RemoveWindowSubclass(button, LeafingButtonProc, kLeafingKeys);
  return DefSubclassProc(button, message, wParam, lParam);
}

// The help key opens the page of the owner's: the preview has no other.
void Preview::OnInitDialog(HWND dialog) {
  dialog_ = dialog;
  if (const HWND owner = GetWindow(dialog, GW_OWNER)) SetWindowContextHelpId(dialog, GetWindowContextHelpId(owner));
  SetWindowTextW(dialog, (printed_.documentName + L" - Print Preview").c_str());
  for (const wchar_t* name : kZoomNames) {
    SendMessageW(Control(IDC_PREVIEW_ZOOM), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
  }
  SendMessageW(Control(IDC_PREVIEW_ZOOM), CB_SETCURSEL, static_cast<WPARAM>(zoom_), 0);
  for (const int id : {IDC_PREVIEW_PRINT, IDC_PREVIEW_SETUP, IDC_PREVIEW_FIRST, IDC_PREVIEW_PREVIOUS, IDC_PREVIEW_NEXT,
                       IDC_PREVIEW_LAST, IDCANCEL}) {
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
  page = std::clamp(page, 0, PageCount() - 1);
  if (page == page_) return;
  page_ = page;
  ShowCurrent();
}

void Preview::ShowCurrent() {
  ShowPage(Control(IDC_PREVIEW_PAGE),
           {.pages = &laidOut_.pages(), .font = laidOut_.font(), .page = page_, .zoom = zoom_});
  const std::wstring number = L"Page " + std::to_wstring(page_ + 1) + L" of " + std::to_wstring(PageCount());
  SetWindowTextW(Control(IDC_PREVIEW_NUMBER), number.c_str());
  for (const int id : kLeafingButtons) {
    const bool isBack = id == IDC_PREVIEW_FIRST || id == IDC_PREVIEW_PREVIOUS;
    const bool isUsable = isBack ? page_ > 0 : page_ < PageCount() - 1;
    // A button that can no longer be pressed must not keep the focus.
    if (!isUsable && GetFocus() == Control(id)) {
      SendMessageW(dialog_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(IDC_PREVIEW_PAGE)), TRUE);
    }
    EnableWindow(Control(id), isUsable);
  }
}

void Preview::OnSetup() {
  const Printer::Kept before = printer_.Keep();
  if (printer_.AskSetup(dialog_)) LayOutAgain(before);
}

void Preview::OnPrint() {
  const Printer::Kept before = printer_.Keep();
  const Printer::Choice choice = printer_.Ask(dialog_, PageCount());
  // Another printer may have other paper.
  if (choice.dc && LayOutAgain(before)) PrintChosen(choice);
}

void Preview::PrintChosen(const Printer::Choice& choice) {
  const int last = choice.allPages ? PageCount() : std::min(choice.lastPage, PageCount());
  const int first = choice.allPages ? 1 : std::max(choice.firstPage, 1);
  if (first <= last) {
    Print(dialog_, {.printer = choice.dc.get(),
                    .pages = laidOut_.pages(),
                    .font = laidOut_.font(),
                    .documentName = printed_.documentName,
                    .toFile = choice.toFile,
                    .firstPage = first - 1,
                    .lastPage = last - 1});
  } else {
    const std::wstring text = L"On this paper the table has " + std::to_wstring(PageCount()) +
                              L" pages, and none of those that you chose. Choose among these and print again.";
    MessageBoxW(dialog_, text.c_str(), L"Error", MB_OK | MB_ICONSTOP);
  }
}

bool Preview::OnCommand(int control, int notification) {
  switch (control) {
    case IDC_PREVIEW_PRINT: OnPrint(); return true;
    case IDC_PREVIEW_SETUP: OnSetup(); return true;
    case IDC_PREVIEW_FIRST: GoTo(0); return true;
    case IDC_PREVIEW_PREVIOUS: GoTo(page_ - 1); return true;
    case IDC_PREVIEW_NEXT: GoTo(page_ + 1); return true;
    case IDC_PREVIEW_LAST: GoTo(PageCount() - 1); return true;
    case IDCANCEL: EndDialog(dialog_, kShown); return true;
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

void PreviewTable(HWND owner, const PrintedTable& printed, PageSetup& setup) {
  bool isShown = false;
  try {
    Preview preview(printed, setup);
    const auto state = reinterpret_cast<LPARAM>(&preview);
    isShown = RegisterPageView(ThisModule()) &&
              (!preview.LayOutFirst(owner) ||
               DialogBoxParamW(ThisModule(), MAKEINTRESOURCEW(IDD_PREVIEW), owner, PreviewProc, state) == kShown);
  } catch (const std::bad_alloc&) {
  }
  UnregisterPageView(ThisModule());
  if (isShown) return;
  MessageBoxW(owner, L"There is not enough memory to show the pages. Close other windows and try again.", L"Error",
              MB_OK | MB_ICONSTOP);
}

}  // namespace publishing
