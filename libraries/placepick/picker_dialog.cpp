#include "libraries/placepick/picker_dialog.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "companion/profile.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/resizable_dialog.h"
#include "libraries/placepick/last_used.h"
#include "libraries/placepick/picker_ids.h"
#include "libraries/placepick/place_columns.h"
#include "libraries/settings_folder/settings_folder_win.h"

namespace placepick {
namespace {

using dialogs::Anchor;
using dialogs::Follow;
using dialogs::ResizableDialog;

constexpr UINT_PTR kClockTimer = 1;
constexpr UINT kClockMilliseconds = 1000;

constexpr char kStartSection[] = "Preferences";
constexpr char kStartKey[] = "DefaultLocation";
constexpr wchar_t kCaption[] = L"Times / Readings";

constexpr Anchor kAnchors[] = {
    {IDC_TYPED, Follow::kGrow, Follow::kNo},    {IDC_COUNT, Follow::kGrow, Follow::kNo},
    {IDC_PLACES, Follow::kGrow, Follow::kGrow}, {IDC_START, Follow::kGrow, Follow::kMove},
    {IDOK, Follow::kMove, Follow::kMove},       {IDCANCEL, Follow::kMove, Follow::kMove},
};

// Keys that move the selection of the list while the user types in the edit.
bool MovesSelection(WPARAM key) {
  constexpr WPARAM kKeys[] = {VK_UP, VK_DOWN, VK_PRIOR, VK_NEXT, VK_HOME, VK_END};
  if (GetKeyState(VK_SHIFT) < 0 || GetKeyState(VK_CONTROL) < 0) return false;
  return std::ranges::find(kKeys, key) != std::end(kKeys);
}

// The edit gives such keys, and the wheel, to the list.
LRESULT CALLBACK TypedProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR list) {
  if ((message == WM_KEYDOWN && MovesSelection(wParam)) || message == WM_MOUSEWHEEL) {
    return SendMessageW(reinterpret_cast<HWND>(list), message, wParam, lParam);
  }
  if (message == WM_NCDESTROY) RemoveWindowSubclass(edit, TypedProc, id);
  return DefSubclassProc(edit, message, wParam, lParam);
}

class PickerDialog {
 public:
  PickerDialog(const PlaceIndex& places, std::string_view currentName)
      : places_(places), current_(places.Named(currentName)), lastUsed_(LastUsedPlaces(places)) {}

  std::optional<std::size_t> Run(HWND owner);

  // For dialogs::ClassDialogProc.
  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  INT_PTR OnInitDialog();
  INT_PTR OnSize();
  INT_PTR OnCommand(int control, int notification);
  INT_PTR OnNotify(NMHDR& header);
  void OnGetDisplayInfo(NMLVDISPINFOW& info) const;
  int OnFindItem(const NMLVFINDITEMW& find) const;
  LRESULT OnCustomDraw(NMLVCUSTOMDRAW& draw) const;

  void Search();
  void Select(std::size_t row) const;
  std::optional<std::size_t> SelectedPlace() const;
  bool IsStartPlace(const Place& place) const { return place.name == startPlace_; }
  void ShowSelection() const;
  void Accept();
  void KeepStartPlace(const Place& place) const;

  HWND Control(int id) const { return GetDlgItem(dialog_, id); }
  LRESULT SendList(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendDlgItemMessageW(dialog_, IDC_PLACES, message, wParam, lParam);
  }

  const PlaceIndex& places_;
  const std::optional<std::size_t> current_;
  const std::vector<std::size_t> lastUsed_;  // the newest first
  PlaceColumns columns_;
  std::u16string typed_;
  std::string startPlace_;           // the place that is kept for the start; empty when there is none
  std::optional<bool> startChoice_;  // what the user has made of the check box; none: it follows the selection
  std::vector<std::size_t> rows_;    // the numbers of the places in the list
  std::optional<std::size_t> picked_;
  HWND dialog_ = nullptr;
  ResizableDialog size_;
};

std::optional<std::size_t> PickerDialog::Run(HWND owner) {
  const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_LISTVIEW_CLASSES};
  InitCommonControlsEx(&classes);
  std::array<char, kNameSize> start = {};
  ProfileGetString(kStartSection, kStartKey, "", start.data(), static_cast<uint32_t>(start.size()), kStartFile);
  startPlace_ = start.data();
  dialogs::RunDialog(owner, IDD_PICKER, dialogs::ClassDialogProc<PickerDialog>, this);
  return picked_;
}

INT_PTR PickerDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog();
    case WM_SIZE: return OnSize();
    case WM_GETMINMAXINFO: size_.LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam)); return TRUE;
    case WM_EXITSIZEMOVE: size_.KeepSize(); return TRUE;
    case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
    case WM_NOTIFY: return OnNotify(*reinterpret_cast<NMHDR*>(lParam));
    case WM_TIMER:
      if (columns_.SetNow()) InvalidateRect(Control(IDC_PLACES), nullptr, FALSE);
      return TRUE;
  }
  return FALSE;
}

INT_PTR PickerDialog::OnInitDialog() {
  constexpr DWORD kListStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
  SendList(LVM_SETEXTENDEDLISTVIEWSTYLE, kListStyle, kListStyle);
  columns_.Add(Control(IDC_PLACES));
  size_.Start(dialog_, kAnchors, kPickerFile);
  OnSize();
  SendDlgItemMessageW(dialog_, IDC_TYPED, EM_LIMITTEXT, kNameSize - 1, 0);
  SetWindowSubclass(Control(IDC_TYPED), TypedProc, IDC_TYPED, reinterpret_cast<DWORD_PTR>(Control(IDC_PLACES)));
  SetTimer(dialog_, kClockTimer, kClockMilliseconds, nullptr);
  Search();
  return TRUE;
}

INT_PTR PickerDialog::OnSize() {
  size_.ArrangeControls();
  columns_.Fit(Control(IDC_PLACES));
  return TRUE;
}

INT_PTR PickerDialog::OnCommand(int control, int notification) {
  switch (control) {
    case IDOK: Accept(); return TRUE;
    case IDCANCEL: EndDialog(dialog_, IDCANCEL); return TRUE;
    case IDC_TYPED:
      if (notification == EN_CHANGE) Search();
      return TRUE;
    case IDC_START:
      if (notification == BN_CLICKED) startChoice_ = IsDlgButtonChecked(dialog_, IDC_START) == BST_CHECKED;
      return TRUE;
  }
  return FALSE;
}

INT_PTR PickerDialog::OnNotify(NMHDR& header) {
  if (header.idFrom != IDC_PLACES) return FALSE;
  switch (header.code) {
    case LVN_GETDISPINFOW: OnGetDisplayInfo(reinterpret_cast<NMLVDISPINFOW&>(header)); return TRUE;
    case LVN_ODFINDITEMW:
      SetWindowLongPtrW(dialog_, DWLP_MSGRESULT, OnFindItem(reinterpret_cast<const NMLVFINDITEMW&>(header)));
      return TRUE;
    case NM_CUSTOMDRAW:
      SetWindowLongPtrW(dialog_, DWLP_MSGRESULT, OnCustomDraw(reinterpret_cast<NMLVCUSTOMDRAW&>(header)));
      return TRUE;
    case LVN_ITEMCHANGED: ShowSelection(); return TRUE;
    case NM_DBLCLK:
      if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0) Accept();
      return TRUE;
  }
  return FALSE;
}

void PickerDialog::OnGetDisplayInfo(NMLVDISPINFOW& info) const {
  const auto row = static_cast<std::size_t>(info.item.iItem);
  if (!(info.item.mask & LVIF_TEXT) || row >= rows_.size()) return;
  const std::size_t number = rows_[row];
  std::wstring text = columns_.Text(places_[number], info.item.iSubItem);
  const std::u16string_view meant = info.item.iSubItem == 0 ? places_.MeantName(number, typed_) : u"";
  if (!meant.empty()) text += L" (" + std::wstring(meant.begin(), meant.end()) + L")";
  lstrcpynW(info.item.pszText, text.c_str(), info.item.cchTextMax);
}

// What the user types into the list itself moves the selection, around the end if need be.
int PickerDialog::OnFindItem(const NMLVFINDITEMW& find) const {
  if (!(find.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) || !find.lvfi.psz) return -1;
  const std::wstring_view wide = find.lvfi.psz;
  const std::u16string typed(wide.begin(), wide.end());
  const auto start = std::min(static_cast<std::size_t>(std::max(find.iStart, 0)), rows_.size());
  const std::span<const std::size_t> rows = rows_;
  const auto below = places_.FirstBeginningWith(typed, rows.subspan(start));
  if (below) return static_cast<int>(start + *below);
  const auto above = places_.FirstBeginningWith(typed, rows.first(start));
  return above ? static_cast<int>(*above) : -1;
}

// The list seldom has the focus, and its own colours for a selection without focus are next to none.
LRESULT PickerDialog::OnCustomDraw(NMLVCUSTOMDRAW& draw) const {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  if (!SendList(LVM_GETITEMSTATE, draw.nmcd.dwItemSpec, LVIS_SELECTED)) return CDRF_DODEFAULT;
  draw.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
  draw.clrText = GetSysColor(COLOR_HIGHLIGHTTEXT);
  draw.clrTextBk = GetSysColor(COLOR_HIGHLIGHT);
  return CDRF_NEWFONT;
}

// Lists what matches the typed text and selects the place that it most likely means.
void PickerDialog::Search() {
  wchar_t text[kNameSize];
  const UINT length = GetDlgItemTextW(dialog_, IDC_TYPED, text, std::size(text));
  typed_.assign(text, text + length);
  rows_ = places_.Matching(typed_, lastUsed_);
  // The one row that is selected: to tell all rows of thousands costs some milliseconds.
  LVITEMW unselected = {};
  unselected.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  const LRESULT before = SendList(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
  if (before >= 0) SendList(LVM_SETITEMSTATE, static_cast<WPARAM>(before), reinterpret_cast<LPARAM>(&unselected));
  SendList(LVM_SETITEMCOUNT, rows_.size(), 0);
  const auto current = std::ranges::find(rows_, current_, [](std::size_t row) { return std::optional(row); });
  const bool nothingTyped = Fold(typed_).text.empty();
  if (nothingTyped && current != rows_.end()) {
    Select(static_cast<std::size_t>(current - rows_.begin()));
  } else if (const auto best = places_.Best(typed_, rows_)) {
    Select(*best);
  }
  const std::wstring count = rows_.size() == 1 ? L"1 place" : std::to_wstring(rows_.size()) + L" places";
  SetDlgItemTextW(dialog_, IDC_COUNT, rows_.empty() ? L"No place matches" : count.c_str());
  ShowSelection();
}

void PickerDialog::Select(std::size_t row) const {
  LVITEMW selected = {};
  selected.state = selected.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  SendList(LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&selected));
  const auto rowsShown = static_cast<std::size_t>(SendList(LVM_GETCOUNTPERPAGE, 0, 0));
  SendList(LVM_ENSUREVISIBLE, std::min(row + rowsShown / 2, rows_.size() - 1), FALSE);
  SendList(LVM_ENSUREVISIBLE, row, FALSE);
}

std::optional<std::size_t> PickerDialog::SelectedPlace() const {
  const auto row = SendList(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
  if (row < 0 || static_cast<std::size_t>(row) >= rows_.size()) return std::nullopt;
  return rows_[static_cast<std::size_t>(row)];
}

void PickerDialog::ShowSelection() const {
  const std::optional<std::size_t> selected = SelectedPlace();
  EnableWindow(Control(IDOK), selected.has_value());
  EnableWindow(Control(IDC_START), selected.has_value());
  const bool atStart = startChoice_.value_or(selected && IsStartPlace(places_[*selected]));
  CheckDlgButton(dialog_, IDC_START, atStart ? BST_CHECKED : BST_UNCHECKED);
}

void PickerDialog::Accept() {
  const std::optional<std::size_t> selected = SelectedPlace();
  if (!selected) return;
  KeepStartPlace(places_[*selected]);
  KeepUsedPlace(places_[*selected].name);
  picked_ = selected;
  EndDialog(dialog_, IDOK);
}

void PickerDialog::KeepStartPlace(const Place& place) const {
  const bool wanted = IsDlgButtonChecked(dialog_, IDC_START) == BST_CHECKED;
  if (wanted == IsStartPlace(place)) return;
  if (ProfileWriteString(kStartSection, kStartKey, wanted ? place.name.c_str() : nullptr, kStartFile)) return;
  const std::wstring text = L"Your choice of the place at start could not be written to the file\n\n" +
                            settings_folder::PathNow(settings_folder::Wide(kStartFile)) +
                            L"\n\nThe selected place is used now; the place at start stays as it was.";
  MessageBoxW(dialog_, text.c_str(), kCaption, MB_OK | MB_ICONWARNING);
}

}  // namespace

std::optional<std::size_t> PickPlace(HWND owner, const PlaceIndex& places, std::string_view currentName) {
  return PickerDialog(places, currentName).Run(owner);
}

}  // namespace placepick
