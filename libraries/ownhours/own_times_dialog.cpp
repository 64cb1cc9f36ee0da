#include "libraries/ownhours/own_times_dialog.h"

#include <commctrl.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/dialogs/resizable_dialog.h"
#include "libraries/dialogs/row_list.h"
#include "libraries/dialogs/save_changes.h"
#include "libraries/dialogs/windows_1252.h"
#include "libraries/ownhours/own_times_editing.h"
#include "libraries/ownhours/own_times_file.h"
#include "libraries/ownhours/ownhours_ids.h"
#include "libraries/ownhours/time_dialog.h"
#include "libraries/ownhours/time_rows.h"
#include "libraries/stamp/form_setting.h"

namespace ownhours {
namespace {

using dialogs::Anchor;
using dialogs::Follow;
using dialogs::ResizableDialog;

constexpr char kSizeFile[] = "ownhours.ini";
constexpr WPARAM kMostTypedLetters = 100;

constexpr Anchor kAnchors[] = {
    {IDC_TYPED, Follow::kNo, Follow::kNo},     {IDC_COUNT, Follow::kMove, Follow::kNo},
    {IDC_TIMES, Follow::kGrow, Follow::kGrow}, {IDC_CHANGE, Follow::kMove, Follow::kNo},
    {IDC_REMOVE, Follow::kMove, Follow::kNo},  {IDC_REMOVE_PLACE, Follow::kMove, Follow::kNo},
    {IDC_UNDO, Follow::kMove, Follow::kNo},    {IDOK, Follow::kMove, Follow::kMove},
    {IDCANCEL, Follow::kMove, Follow::kMove},
};

constexpr dialogs::ListColumn kListColumns[kColumns] = {{L"Place", L"Mmmmmmmmm", 2},
                                                        {L"Date", L"88.88.8888", 0},
                                                        {L"Zman", L"Mmmmmmmmmmmm", 3},
                                                        {L"Set to", L"88:88 p.m.", 0},
                                                        {L"Calculated", L"88:88 p.m.", 0}};

std::wstring CountText(int shown, size_t all) {
  if (all == 0) return L"No times are set by hand";
  const std::wstring total = all == 1 ? L"1 time" : std::to_wstring(all) + L" times";
  return static_cast<size_t>(shown) == all ? total : std::to_wstring(shown) + L" of " + total;
}

class OwnTimesDialog {
 public:
  OwnTimesDialog(Entries stored, OwnHoursCalculate calculate, stamp::Form form)
      : editing_(std::move(stored)), rows_(calculate, form), form_(form) {}

  // Whether the file was changed.
  bool Run(HWND owner);

  // For dialogs::ClassDialogProc.
  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  INT_PTR OnInitDialog();
  INT_PTR OnSize();
  INT_PTR OnCommand(int control, int notification);
  INT_PTR OnNotify(NMHDR& header);
  void OnListKey(WORD key);
  void OnGetDisplayInfo(NMLVDISPINFOW& info);

  void SortBy(int column);
  void Refill();
  void Show(const std::vector<Occasion>& occasions);
  void ShowRow(int row);
  std::vector<Occasion> SelectedOccasions() const;
  void UpdateButtons() const;

  void Change();
  void Remove();
  void RemovePlace();
  void Undo();
  void Accept();
  void Cancel();

  HWND Control(int id) const { return GetDlgItem(dialog_, id); }

  Editing editing_;
  TimeRows rows_;
  const stamp::Form form_;
  int sortColumn_ = kPlaceColumn;
  bool descending_ = false;
  bool isFilling_ = false;  // the buttons are seen to afterwards
  HWND dialog_ = nullptr;
  dialogs::RowList list_;
  ResizableDialog size_;
};

bool OwnTimesDialog::Run(HWND owner) {
  const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_LISTVIEW_CLASSES | ICC_DATE_CLASSES};
  InitCommonControlsEx(&classes);
  return dialogs::RunDialog(owner, IDD_OWN_TIMES, dialogs::ClassDialogProc<OwnTimesDialog>, this) == IDOK;
}

INT_PTR OwnTimesDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog();
    case WM_SIZE: return OnSize();
    case WM_GETMINMAXINFO: size_.LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam)); return TRUE;
    case WM_EXITSIZEMOVE: size_.KeepSize(); return TRUE;
    case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_NOTIFY: return OnNotify(*reinterpret_cast<NMHDR*>(lParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
  }
  return FALSE;
}

INT_PTR OwnTimesDialog::OnInitDialog() {
  list_.Start(Control(IDC_TIMES), kListColumns);
  size_.Start(dialog_, kAnchors, kSizeFile);
  OnSize();
  SendDlgItemMessageW(dialog_, IDC_TYPED, EM_LIMITTEXT, kMostTypedLetters, 0);
  Refill();
  ShowRow(0);
  SetFocus(list_.Window());
  return FALSE;
}

INT_PTR OwnTimesDialog::OnSize() {
  size_.ArrangeControls();
  list_.FitColumns();
  return TRUE;
}

INT_PTR OwnTimesDialog::OnCommand(int control, int notification) {
  switch (control) {
    case IDC_CHANGE: Change(); return TRUE;
    case IDC_REMOVE: Remove(); return TRUE;
    case IDC_REMOVE_PLACE: RemovePlace(); return TRUE;
    case IDC_UNDO: Undo(); return TRUE;
    case IDOK: Accept(); return TRUE;
    case IDCANCEL: Cancel(); return TRUE;
    case IDC_TYPED:
      if (notification == EN_CHANGE) {
        const std::vector<Occasion> selected = SelectedOccasions();
        Refill();
        Show(selected);
      }
      return TRUE;
  }
  return FALSE;
}

INT_PTR OwnTimesDialog::OnNotify(NMHDR& header) {
  if (header.idFrom != IDC_TIMES) return FALSE;
  switch (header.code) {
    case LVN_GETDISPINFOW: OnGetDisplayInfo(reinterpret_cast<NMLVDISPINFOW&>(header)); return TRUE;
    case LVN_ODFINDITEMW: {
      const auto& find = reinterpret_cast<const NMLVFINDITEMW&>(header);
      const bool byText = (find.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) && find.lvfi.psz;
      SetWindowLongPtrW(dialog_, DWLP_MSGRESULT, byText ? rows_.Beginning(find.lvfi.psz, find.iStart) : -1);
      return TRUE;
    }
    case LVN_COLUMNCLICK: SortBy(reinterpret_cast<const NMLISTVIEW&>(header).iSubItem); return TRUE;
    case LVN_KEYDOWN: OnListKey(reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey); return TRUE;
    case LVN_ITEMCHANGED:
    case LVN_ODSTATECHANGED: UpdateButtons(); return TRUE;
    case NM_DBLCLK: Change(); return TRUE;
  }
  return FALSE;
}

void OwnTimesDialog::OnListKey(WORD key) {
  const bool control = GetKeyState(VK_CONTROL) < 0;
  if (key == VK_DELETE) Remove();
  if (key == 'Z' && control) Undo();
  if (key == 'A' && control) list_.SelectAll();
}

void OwnTimesDialog::OnGetDisplayInfo(NMLVDISPINFOW& info) {
  const LVITEMW& item = info.item;
  if (!(item.mask & LVIF_TEXT) || item.iItem < 0 || item.iItem >= rows_.Count() || item.iSubItem >= kColumns) return;
  lstrcpynW(item.pszText, rows_.Text(item.iItem, item.iSubItem).c_str(), item.cchTextMax);
}

// A second click on a heading turns the order round.
void OwnTimesDialog::SortBy(int column) {
  if (column == kCalculatedColumn) return;
  descending_ = column == sortColumn_ && !descending_;
  sortColumn_ = column;
  const std::vector<Occasion> selected = SelectedOccasions();
  Refill();
  Show(selected);
}

// No row is selected then.
void OwnTimesDialog::Refill() {
  isFilling_ = true;
  rows_.Fill(editing_.Now(), dialogs::TextOf(Control(IDC_TYPED)), sortColumn_, descending_);
  list_.SetCount(rows_.Count());
  SetDlgItemTextW(dialog_, IDC_COUNT, CountText(rows_.Count(), editing_.Now().size()).c_str());
  isFilling_ = false;
  UpdateButtons();
}

// Selects the rows of those that the list shows, or its first row.
void OwnTimesDialog::Show(const std::vector<Occasion>& occasions) {
  const std::vector<int> shown = rows_.RowsOf(occasions);
  if (shown.empty()) return ShowRow(0);
  isFilling_ = true;
  list_.SelectOnly(shown);
  isFilling_ = false;
  UpdateButtons();
}

// Selects a row, or the last one where there are fewer.
void OwnTimesDialog::ShowRow(int row) {
  if (rows_.Count() > 0) list_.SelectOnly({std::min(row, rows_.Count() - 1)});
  UpdateButtons();
}

std::vector<Occasion> OwnTimesDialog::SelectedOccasions() const {
  std::vector<Occasion> occasions;
  for (const int row : list_.Selected()) occasions.push_back(rows_.EntryOf(row).occasion);
  return occasions;
}

// With one entry selected, Enter in the list changes it. A button that is disabled must not keep the focus.
void OwnTimesDialog::UpdateButtons() const {
  if (isFilling_) return;
  const int count = list_.SelectedCount();
  const struct {
    int control;
    bool isUsable;
  } buttons[] = {{IDC_CHANGE, count == 1},
                 {IDC_REMOVE, count > 0},
                 {IDC_REMOVE_PLACE, count == 1},
                 {IDC_UNDO, editing_.CanUndo()}};
  for (const auto& [control, isUsable] : buttons) {
    if (!isUsable && GetFocus() == Control(control)) {
      SendMessageW(dialog_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(list_.Window()), TRUE);
    }
    EnableWindow(Control(control), isUsable);
  }
  SendMessageW(dialog_, DM_SETDEFID, count == 1 ? IDC_CHANGE : IDOK, 0);
}

void OwnTimesDialog::Change() {
  const std::vector<int> selected = list_.Selected();
  if (selected.size() != 1) return;
  const Entry old = rows_.EntryOf(selected.front());
  const std::optional<Time> time = AskForTime(dialog_, InWords(old.occasion), old.time, form_);
  if (!time) return;
  editing_.Set(old.occasion, *time);
  Refill();
  Show({old.occasion});
}

// No question: Undo takes it back.
void OwnTimesDialog::Remove() {
  const std::vector<int> selected = list_.Selected();
  if (selected.empty()) return;
  editing_.Remove(SelectedOccasions());
  Refill();
  ShowRow(selected.front());
}

// Entries that the search does not show go too, so this asks.
void OwnTimesDialog::RemovePlace() {
  const std::vector<int> selected = list_.Selected();
  if (selected.size() != 1) return;
  const std::string place = rows_.EntryOf(selected.front()).occasion.place;
  const std::vector<Occasion> all = editing_.OfPlace(place);
  const std::wstring times = all.size() == 1 ? L"the only time" : L"all " + std::to_wstring(all.size()) + L" times";
  if (!dialogs::IsConfirmed(dialog_, L"Remove " + times + L" set by hand for " + dialogs::Wide(place) + L"?")) return;
  editing_.Remove(all);
  Refill();
  ShowRow(selected.front());
}

// What comes back is shown, though a search may have hidden it.
void OwnTimesDialog::Undo() {
  if (!editing_.CanUndo()) return;
  const std::vector<Occasion> changed = editing_.Undo();
  Refill();
  if (rows_.RowsOf(changed).empty()) SetDlgItemTextW(dialog_, IDC_TYPED, L"");  // fills the list anew
  Show(changed);
}

void OwnTimesDialog::Accept() {
  if (editing_.Unsaved().empty()) return void(EndDialog(dialog_, IDCANCEL));
  const auto write = [this](const Changes& changes, bool replaceOthers, std::vector<Occasion>* conflicts) {
    return WriteChanges(changes, editing_.Stored(), replaceOthers, conflicts);
  };
  const auto drop = [](Changes& changes, const std::vector<Occasion>& conflicts) {
    for (const Occasion& occasion : conflicts) changes.erase(occasion);
  };
  if (dialogs::SaveOrTell(dialog_, editing_.Unsaved(), write, InWords, {L"times", StorePath()}, drop)) {
    EndDialog(dialog_, IDOK);
  }
}

void OwnTimesDialog::Cancel() {
  if (editing_.Unsaved().empty() || dialogs::IsConfirmed(dialog_, L"Discard the changes?")) {
    EndDialog(dialog_, IDCANCEL);
  }
}

}  // namespace

bool RunOwnTimesDialog(HWND owner, OwnHoursCalculate calculate) {
  std::optional<Entries> stored;
  const auto read = [&stored] { return (stored = StoredEntries()).has_value(); };
  if (!dialogs::IsKnown(owner, StorePath(), read)) return false;
  const stamp::Form form = stamp::ChosenForm(stamp::StoredChoice(), stamp::RegionalForm());
  return OwnTimesDialog(std::move(*stored), calculate, form).Run(owner);
}

}  // namespace ownhours
