#include "libraries/kinship/kinship_window.h"

#include <algorithm>
#include <optional>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/dialogs/today.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/kinship/kinship_ids.h"
#include "libraries/kinship/pasted_line.h"
#include "libraries/kinship/person_texts.h"
#include "libraries/kinship/system_letters.h"
#include "libraries/persons/persons_file.h"

namespace kinship {
namespace {

using dialogs::Anchor;
using dialogs::Follow;

constexpr WPARAM kMostTypedLetters = 100;
constexpr WPARAM kDigitsOfYear = 4;

constexpr Anchor kAnchors[] = {
    {IDC_COUNT, Follow::kMove, Follow::kNo},    {IDC_PERSONS, Follow::kGrow, Follow::kGrow},
    {IDC_ADD, Follow::kNo, Follow::kMove},      {IDC_CHANGE, Follow::kNo, Follow::kMove},
    {IDC_REMOVE, Follow::kNo, Follow::kMove},   {IDC_UNDO, Follow::kNo, Follow::kMove},
    {IDC_IMPORT, Follow::kMove, Follow::kMove}, {IDC_EXPORT, Follow::kMove, Follow::kMove},
    {IDC_PRINT, Follow::kMove, Follow::kMove},  {IDC_DAMAGED, Follow::kGrow, Follow::kMove},
    {IDOK, Follow::kMove, Follow::kMove},       {IDCANCEL, Follow::kMove, Follow::kMove},
    {IDC_APPLY, Follow::kMove, Follow::kMove},
};

}  // namespace

KinshipWindow::KinshipWindow(const persons::Persons& stored, int32_t year)
    : editing_(stored.persons),
      damagedLines_(stored.damagedLines),
      shown_{year, dialogs::Today(), StoredCustom()},
      storedCustom_(shown_.ofYahrzeit),
      lastEntry_(StoredLastEntry()),
      rows_(kSystemLetters) {}

void KinshipWindow::Run(HWND owner) {
  const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_LISTVIEW_CLASSES | ICC_UPDOWN_CLASS};
  InitCommonControlsEx(&classes);
  dialogs::RunDialog(owner, IDD_KINSHIP, dialogs::ClassDialogProc<KinshipWindow>, this);
}

INT_PTR KinshipWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog();
    case WM_SIZE: return OnSize();
    case WM_GETMINMAXINFO: size_.LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam)); return TRUE;
    case WM_EXITSIZEMOVE: size_.KeepSize(); return TRUE;
    case WM_ACTIVATE:
      if (LOWORD(wParam) != WA_INACTIVE) OnActivate();
      return FALSE;
    case WM_QUERYENDSESSION: return OnQueryEndSession();
    case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_NOTIFY: return OnNotify(*reinterpret_cast<NMHDR*>(lParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
  }
  return FALSE;
}

INT_PTR KinshipWindow::OnInitDialog() {
  list_.Start(Control(IDC_PERSONS), shown_);
  list_.ShowOrder(sortColumn_, descending_);
  FillLists();
  Send(IDC_TYPED, EM_LIMITTEXT, kMostTypedLetters, 0);
  Send(IDC_YEAR, EM_LIMITTEXT, kDigitsOfYear, 0);
  TakePastedLines(Control(IDC_TYPED));
  Send(IDC_YEAR_SPIN, UDM_SETRANGE32, persons::kFirstGregorianYear, persons::kLastGregorianYear);
  SetDlgItemInt(dialog_, IDC_YEAR, static_cast<UINT>(shown_.year), FALSE);
  ShowDamaged();
  size_.Start(dialog_, kAnchors, kSettingsFile);
  OnSize();
  isFilling_ = false;
  Reckon();
  ShowRow(0);
  SetFocus(list_.Window());
  return FALSE;
}

void KinshipWindow::FillLists() const {
  constexpr const wchar_t* kColumnNames[kColumns] = {L"Name",  L"Occasion",   L"Jewish date", L"Next",       L"Day",
                                                     L"Years", L"First year", L"Second year", L"Third year", L"Notes"};
  for (const wchar_t* const name : kColumnNames) Send(IDC_SORT, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
  Send(IDC_SORT, CB_SETCURSEL, static_cast<WPARAM>(sortColumn_), 0);
  for (const auto custom : {persons::AdarCustom::kAdarI, persons::AdarCustom::kAdarII, persons::AdarCustom::kBoth}) {
    Send(IDC_CUSTOM, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(dialogs::FromUtf8(AdarName(custom)).c_str()));
  }
  Send(IDC_CUSTOM, CB_SETCURSEL, static_cast<WPARAM>(shown_.ofYahrzeit), 0);
}

INT_PTR KinshipWindow::OnSize() {
  size_.ArrangeControls();
  if (list_.Window()) list_.FitColumns();
  return TRUE;
}

INT_PTR KinshipWindow::OnCommand(int control, int notification) {
  if (isFilling_) return FALSE;
  switch (control) {
    case IDC_TYPED:
      if (notification == EN_CHANGE) Search();
      return TRUE;
    case IDC_YEAR:
      if (notification == EN_CHANGE) OnYearTyped();
      if (notification == EN_KILLFOCUS) SetDlgItemInt(dialog_, IDC_YEAR, static_cast<UINT>(shown_.year), FALSE);
      return TRUE;
    case IDC_SORT:
      if (notification == CBN_SELCHANGE) SortBy(static_cast<Column>(Send(IDC_SORT, CB_GETCURSEL, 0, 0)));
      return TRUE;
    case IDC_CUSTOM:
      if (notification == CBN_SELCHANGE) OnCustomChosen();
      return TRUE;
  }
  return OnButton(control);
}

INT_PTR KinshipWindow::OnButton(int control) {
  switch (control) {
    case IDC_ADD: Add(); return TRUE;
    case IDC_CHANGE: Change(); return TRUE;
    case IDC_REMOVE: Remove(); return TRUE;
    case IDC_UNDO: Undo(); return TRUE;
    case IDC_IMPORT: Import(); return TRUE;
    case IDC_EXPORT: Export(); return TRUE;
    case IDC_PRINT: Print(); return TRUE;
    case IDC_APPLY: Apply(); return TRUE;
    case IDOK: Accept(); return TRUE;
    case IDCANCEL: Cancel(); return TRUE;
  }
  return FALSE;
}

INT_PTR KinshipWindow::OnNotify(NMHDR& header) {
  if (header.idFrom != IDC_PERSONS) return FALSE;
  switch (header.code) {
    case LVN_GETDISPINFOW: OnGetDisplayInfo(reinterpret_cast<NMLVDISPINFOW&>(header)); return TRUE;
    case LVN_ODFINDITEMW:
      SetWindowLongPtrW(dialog_, DWLP_MSGRESULT, RowBeginning(reinterpret_cast<const NMLVFINDITEMW&>(header)));
      return TRUE;
    case LVN_COLUMNCLICK:
      SortBy(static_cast<Column>(reinterpret_cast<const NMLISTVIEW&>(header).iSubItem));
      return TRUE;
    case LVN_KEYDOWN: OnListKey(reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey); return TRUE;
    case LVN_ITEMCHANGED:
    case LVN_ODSTATECHANGED: UpdateButtons(); return TRUE;
    case NM_DBLCLK: Change(); return TRUE;
  }
  return FALSE;
}

int KinshipWindow::RowBeginning(const NMLVFINDITEMW& find) const {
  const bool byText = (find.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) && find.lvfi.psz;
  return byText ? rows_.Beginning(dialogs::ToUtf8(find.lvfi.psz), find.iStart) : -1;
}

// With Ctrl, the digits sort by the columns from the left, 0 by the tenth.
void KinshipWindow::OnListKey(WORD key) {
  if (key == VK_INSERT) return Add();
  if (key == VK_DELETE) return Remove();
  if (GetKeyState(VK_CONTROL) >= 0) return;
  if (key == 'Z') Undo();
  if (key == 'A') list_.SelectAll();
  if (key >= '0' && key <= '9') SortBy(static_cast<Column>((key - '0' + kColumns - 1) % kColumns));
}

void KinshipWindow::OnGetDisplayInfo(NMLVDISPINFOW& info) const {
  const LVITEMW& item = info.item;
  if (!(item.mask & LVIF_TEXT) || item.iItem < 0 || item.iItem >= rows_.Count() || item.iSubItem >= kColumns) return;
  const std::wstring text = dialogs::FromUtf8(rows_.Text(item.iItem, static_cast<Column>(item.iSubItem)));
  lstrcpynW(item.pszText, text.c_str(), item.cchTextMax);
}

void RunKinshipWindow(HWND owner, uint32_t year) {
  std::optional<persons::Persons> stored;
  const auto read = [&stored] { return (stored = persons::StoredPersons()).has_value(); };
  if (!dialogs::IsKnown(owner, persons::PersonsPath(), read) || !dialogs::IsKnownIni(owner, kSettingsFile)) return;
  constexpr uint32_t kFirst = persons::kFirstGregorianYear;
  constexpr uint32_t kLast = persons::kLastGregorianYear;
  KinshipWindow(*stored, static_cast<int32_t>(std::clamp(year, kFirst, kLast))).Run(owner);
}

}  // namespace kinship
