// The list of the window: its order, its years, what of it is searched and selected.
#include <algorithm>
#include <optional>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/today.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/kinship/kinship_ids.h"
#include "libraries/kinship/kinship_window.h"
#include "libraries/persons/persons_file.h"

namespace kinship {
namespace {

constexpr size_t kNamedLines = 10;  // of those that are damaged

std::wstring CountText(int shown, size_t all) {
  if (all == 0) return L"No dates yet";
  const std::wstring total = std::to_wstring(all);
  return static_cast<size_t>(shown) == all ? total : std::to_wstring(shown) + L" of " + total;
}

}  // namespace

// The same column again turns the order round.
void KinshipWindow::SortBy(Column column) {
  descending_ = column == sortColumn_ && !descending_;
  sortColumn_ = column;
  Send(IDC_SORT, CB_SETCURSEL, static_cast<WPARAM>(column), 0);
  const std::vector<Id> selected = SelectedIds();
  rows_.Sort(sortColumn_, descending_);
  list_.ShowOrder(sortColumn_, descending_);
  Fill();
  Show(selected);
}

void KinshipWindow::ShowYear(int32_t year) {
  if (year == shown_.year) return;
  shown_.year = year;
  list_.ShowHeadings(shown_);
  Renew();
}

// Only whole years count; the field is put right when the user leaves it.
void KinshipWindow::OnYearTyped() {
  const auto year = static_cast<int32_t>(GetDlgItemInt(dialog_, IDC_YEAR, nullptr, FALSE));
  if (year >= persons::kFirstGregorianYear && year <= persons::kLastGregorianYear) ShowYear(year);
}

void KinshipWindow::OnCustomChosen() {
  shown_.ofYahrzeit = static_cast<persons::AdarCustom>(Send(IDC_CUSTOM, CB_GETCURSEL, 0, 0));
  Renew();
}

// The window may have been open over midnight.
void KinshipWindow::OnActivate() {
  if (isFilling_) return;
  const int32_t today = dialogs::Today();
  if (today == shown_.today) return;
  shown_.today = today;
  Renew();
}

// Of several entries that are selected the first stays so: thousands would cost more than a key may.
void KinshipWindow::Search() {
  const int first = list_.FirstSelected();
  std::vector<Id> selected;
  if (first >= 0) selected.push_back(rows_.IdOf(first));
  Fill();
  Show(selected);
}

// What is shown of all entries, after they or the years have changed. No row is selected then.
void KinshipWindow::Reckon() {
  isSaved_ = editing_.IsSaved();
  rows_.Take(editing_.Now(), shown_);
  rows_.Sort(sortColumn_, descending_);
  Fill();
}

// The rows that are searched for, in the order that they have. No row is selected then.
void KinshipWindow::Fill() {
  isFilling_ = true;
  rows_.Search(dialogs::ToUtf8(dialogs::TextOf(Control(IDC_TYPED))));
  list_.SetCount(rows_.Count());
  SetDlgItemTextW(dialog_, IDC_COUNT, CountText(rows_.Count(), editing_.Now().size()).c_str());
  isFilling_ = false;
  UpdateButtons();
}

void KinshipWindow::Renew() {
  const std::vector<Id> selected = SelectedIds();
  Reckon();
  Show(selected);
}

// Selects the rows of those that the list shows, or its first row.
void KinshipWindow::Show(const std::vector<Id>& ids) {
  const std::vector<int> rows = rows_.RowsOf(ids);
  if (rows.empty()) return ShowRow(0);
  isFilling_ = true;
  list_.SelectOnly(rows);
  isFilling_ = false;
  UpdateButtons();
}

// Selects a row, or the last one where there are fewer.
void KinshipWindow::ShowRow(int row) {
  isFilling_ = true;
  if (rows_.Count() > 0) list_.SelectOnly({std::min(row, rows_.Count() - 1)});
  isFilling_ = false;
  UpdateButtons();
}

// What is new or comes back is shown, though a search may hide it.
void KinshipWindow::ShowEvenIfNotFound(const std::vector<Id>& ids) {
  Reckon();
  if (!ids.empty() && rows_.RowsOf(ids).empty()) SetDlgItemTextW(dialog_, IDC_TYPED, L"");  // fills the list anew
  Show(ids);
}

void KinshipWindow::ShowDamaged() const {
  std::wstring text;
  if (!damagedLines_.empty()) {
    const size_t count = damagedLines_.size();
    text = count == 1
               ? L"1 line of the file could not be read and is kept as it is (line "
               : std::to_wstring(count) + L" lines of the file could not be read and are kept as they are (lines ";
    for (size_t i = 0; i < std::min(count, kNamedLines); ++i) {
      text += (i == 0 ? L"" : L", ") + std::to_wstring(damagedLines_[i]);
    }
    text += std::wstring(count > kNamedLines ? L" ..." : L"") + L" of " + persons::PersonsPath() + L").";
  }
  SetDlgItemTextW(dialog_, IDC_DAMAGED, text.c_str());
}

std::vector<KinshipWindow::Id> KinshipWindow::SelectedIds() const {
  std::vector<Id> ids;
  for (const int row : list_.Selected()) ids.push_back(rows_.IdOf(row));
  return ids;
}

// With one entry selected, Enter in the list changes it. A button that is disabled must not keep the focus.
void KinshipWindow::UpdateButtons() const {
  if (isFilling_) return;
  const int count = list_.SelectedCount();
  const bool hasEntries = !editing_.Now().empty();
  const struct {
    int control;
    bool isUsable;
  } buttons[] = {{IDC_CHANGE, count == 1}, {IDC_REMOVE, count > 0}, {IDC_UNDO, editing_.CanUndo()},
                 {IDC_EXPORT, hasEntries}, {IDC_PRINT, hasEntries}, {IDC_APPLY, IsUnsaved()}};
  for (const auto& [control, isUsable] : buttons) {
    if (!isUsable && GetFocus() == Control(control)) {
      SendMessageW(dialog_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(list_.Window()), TRUE);
    }
    EnableWindow(Control(control), isUsable);
  }
  SendMessageW(dialog_, DM_SETDEFID, count == 1 ? IDC_CHANGE : IDOK, 0);
}

}  // namespace kinship
