#include "libraries/occasions/occasions_window.h"

#include <array>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/dialogs/windows_1252.h"
#include "libraries/occasions/occasions_ids.h"
#include "libraries/occasions/system_fold.h"
#include "libraries/stamp/form_setting.h"

namespace occasions {
namespace {

using dialogs::Anchor;
using dialogs::Follow;

constexpr WPARAM kMostTypedLetters = 100;
constexpr WPARAM kDigitsOfYear = 4;
constexpr UINT_PTR kClockTimer = 1;
constexpr UINT kClockMilliseconds = 15'000;

constexpr Anchor kAnchors[] = {
    {IDC_TYPED, Follow::kGrow, Follow::kNo},       {IDC_NEXT_TEXT, Follow::kGrow, Follow::kNo},
    {IDC_OCCASIONS, Follow::kGrow, Follow::kGrow}, {IDC_STATE, Follow::kGrow, Follow::kMove},
    {IDC_REMARK, Follow::kGrow, Follow::kMove},    {IDC_NEXT, Follow::kNo, Follow::kMove},
    {IDC_HEBREW, Follow::kNo, Follow::kMove},      {IDC_COPY, Follow::kMove, Follow::kMove},
    {IDC_PRINT, Follow::kMove, Follow::kMove},     {IDC_SAVE, Follow::kMove, Follow::kMove},
    {IDC_SETTINGS, Follow::kMove, Follow::kMove},  {IDCANCEL, Follow::kMove, Follow::kMove},
};

// In the order of Column.
constexpr std::array<dialogs::ListColumn, kColumns> kListColumns = {
    {{L"Date", L"88.88.8888", 0},
     {L"Day", L"Wednesday", 0},
     {L"Jewish date", L"28 Cheshvan 5788", 0},
     {L"Occasion", L"Pesach, seventh day: candle lighting", 1},
     {L"Time", L"08:08 p.m.", 0},
     {L"Remark", L"Mmmmmmmmmm", 3}}};

// In the order of Span.
constexpr const wchar_t* kSpanTexts[kSpans] = {L"The document's range", L"Jewish year", L"Civil year"};

}  // namespace

OccasionsWindow::OccasionsWindow(const Request& request, const WindowChoice& choice)
    : request_(request),
      choice_(choice),
      rows_(FoldBySystem),
      form_(stamp::ChosenForm(stamp::StoredChoice(), stamp::RegionalForm())) {}

void OccasionsWindow::Run(HWND owner) {
  const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_LISTVIEW_CLASSES | ICC_UPDOWN_CLASS};
  InitCommonControlsEx(&classes);
  dialogs::RunDialog(owner, IDD_OCCASIONS, dialogs::ClassDialogProc<OccasionsWindow>, this);
}

INT_PTR OccasionsWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog();
    case WM_SIZE: return OnSize();
    case WM_GETMINMAXINFO: size_.LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam)); return TRUE;
    case WM_EXITSIZEMOVE: size_.KeepSize(); return TRUE;
    case WM_TIMER: ShowNext(); return TRUE;
    case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_NOTIFY: return OnNotify(*reinterpret_cast<NMHDR*>(lParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
  }
  return FALSE;
}

INT_PTR OccasionsWindow::OnInitDialog() {
  SetWindowTextW(dialog_, (L"Occasions of the Year - " + dialogs::Wide(request_.place)).c_str());
  list_.Start(Control(IDC_OCCASIONS), kListColumns);
  FillBoxes();
  Send(IDC_TYPED, EM_LIMITTEXT, kMostTypedLetters, 0);
  Send(IDC_YEAR, EM_LIMITTEXT, kDigitsOfYear, 0);
  CheckDlgButton(dialog_, IDC_HEBREW, choice_.hebrew ? BST_CHECKED : BST_UNCHECKED);
  size_.Start(dialog_, kAnchors, kCustomsFile);
  OnSize();
  ShowSpan(choice_.span, YearOfDay(choice_.span, request_.range.first));
  if (const ClockMoment now = Now(); days_.Contain(now.day)) SelectRow(rows_.FirstToCome(now));
  SetTimer(dialog_, kClockTimer, kClockMilliseconds, nullptr);
  SetFocus(list_.Window());
  return FALSE;
}

void OccasionsWindow::FillBoxes() const {
  for (const wchar_t* const text : kSpanTexts) Send(IDC_SPAN, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
  Send(IDC_KIND, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"All that are shown"));
  for (int kind = 0; kind < kKinds; ++kind) {
    const std::wstring name = dialogs::FromUtf8(KindName(static_cast<Kind>(kind), Language::kEnglish));
    Send(IDC_KIND, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
  }
  Send(IDC_KIND, CB_SETCURSEL, 0, 0);
}

INT_PTR OccasionsWindow::OnSize() {
  size_.ArrangeControls();
  if (list_.Window()) list_.FitColumns();
  return TRUE;
}

INT_PTR OccasionsWindow::OnCommand(int control, int notification) {
  if (isFilling_) return FALSE;
  switch (control) {
    case IDC_SPAN:
      if (notification == CBN_SELCHANGE) OnSpanChosen();
      return TRUE;
    case IDC_YEAR: return OnYear(notification);
    case IDC_KIND:
      if (notification == CBN_SELCHANGE) OnKindChosen();
      return TRUE;
    case IDC_TYPED:
      if (notification == EN_CHANGE) Search();
      return TRUE;
  }
  return OnButton(control);
}

INT_PTR OccasionsWindow::OnYear(int notification) {
  if (notification == EN_CHANGE) OnYearTyped();
  if (notification == EN_KILLFOCUS) OnYearLeft();
  return TRUE;
}

INT_PTR OccasionsWindow::OnButton(int control) {
  switch (control) {
    case IDC_NEXT: GoToNext(); return TRUE;
    case IDC_YEAR_BACK: TurnYear(-1); return TRUE;
    case IDC_YEAR_ON: TurnYear(1); return TRUE;
    case IDC_HEBREW: OnHebrew(); return TRUE;
    case IDC_COPY: Copy(); return TRUE;
    case IDC_PRINT: Print(); return TRUE;
    case IDC_SAVE: Save(); return TRUE;
    case IDC_SETTINGS: ChangeSettings(); return TRUE;
    case IDCANCEL: KeepWindowChoice(choice_); return EndDialog(dialog_, IDCANCEL);
  }
  return FALSE;
}

INT_PTR OccasionsWindow::OnNotify(NMHDR& header) {
  if (header.idFrom != IDC_OCCASIONS) return FALSE;
  switch (header.code) {
    case LVN_GETDISPINFOW: OnGetDisplayInfo(reinterpret_cast<NMLVDISPINFOW&>(header)); return TRUE;
    case LVN_ODFINDITEMW: {
      const auto& find = reinterpret_cast<const NMLVFINDITEMW&>(header);
      const bool byText = (find.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) && find.lvfi.psz;
      const int row = byText ? rows_.Beginning(dialogs::ToUtf8(find.lvfi.psz), find.iStart) : -1;
      SetWindowLongPtrW(dialog_, DWLP_MSGRESULT, row);
      return TRUE;
    }
    case LVN_ITEMCHANGED:
    case LVN_ODSTATECHANGED: ShowRemark(); return TRUE;
    case LVN_KEYDOWN: OnListKey(reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey); return TRUE;
  }
  return FALSE;
}

void OccasionsWindow::OnListKey(WORD key) {
  if (GetKeyState(VK_CONTROL) >= 0) return;
  if (key == 'A') list_.SelectAll();
  if (key == 'C') Copy();
  // Once the list has done with the key itself.
  if (key == VK_PRIOR) PostMessageW(dialog_, WM_COMMAND, IDC_YEAR_BACK, 0);
  if (key == VK_NEXT) PostMessageW(dialog_, WM_COMMAND, IDC_YEAR_ON, 0);
}

void OccasionsWindow::OnGetDisplayInfo(NMLVDISPINFOW& info) const {
  const LVITEMW& item = info.item;
  if (!(item.mask & LVIF_TEXT) || item.iItem < 0 || item.iItem >= rows_.Count() || item.iSubItem >= kColumns) return;
  const auto column = static_cast<Column>(item.iSubItem);
  const std::string text = CellOf(rows_.question(), rows_.At(item.iItem), column, WordingNow());
  lstrcpynW(item.pszText, dialogs::FromUtf8(text).c_str(), item.cchTextMax);
}

void RunOccasionsWindow(HWND owner, const Request& request) {
  if (!dialogs::IsKnownIni(owner, kCustomsFile)) return;
  OccasionsWindow(request, StoredWindowChoice()).Run(owner);
}

}  // namespace occasions
