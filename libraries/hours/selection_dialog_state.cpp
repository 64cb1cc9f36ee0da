// What the dialog shows: its lists, what is known of the selected zman, and which of its buttons act.
#include <algorithm>
#include <utility>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/hours/choice_editing.h"
#include "libraries/hours/definition_text.h"
#include "libraries/hours/hours_ids.h"
#include "libraries/hours/selection_dialog.h"

namespace hours {

using dialogs::Wide;

std::string SelectionDialog::OfferedIdAt(std::optional<size_t> row) const {
  if (!row || offeredRows_[*row].isHeading) return {};
  return offered_[offeredRows_[*row].number].id;
}

std::string SelectionDialog::ChosenIdAt(std::optional<size_t> row) const {
  return row && *row < choice_.chosen.size() ? choice_.chosen[*row] : std::string();
}

ShownRow SelectionDialog::RowOf(const ListedZman& zman) {
  return {{}, Wide(zman.description), Wide(times_.TimeOf(zman.definition))};
}

// Lists what matches the typed text and selects the zman with the id; the first one when it is not there.
void SelectionDialog::ShowOffered(const std::string& selectedId) {
  const std::wstring typed = dialogs::TextOf(Control(IDC_TYPED));
  // No zman has letters outside of windows-1252, nor a word of this one.
  offeredRows_ = offered_.Matching(dialogs::Narrow(typed).value_or("\xFF\xFF"));
  std::vector<ShownRow> rows;
  size_t zmanim = 0;
  size_t selected = 1;  // below the first heading
  for (const ListRow& row : offeredRows_) {
    if (row.isHeading) {
      rows.push_back({{}, Wide(OfferedList::GroupName(row.number)), {}, true});
      continue;
    }
    const ListedZman& zman = offered_[row.number];
    if (zman.id == selectedId) selected = rows.size();
    rows.push_back(RowOf(zman));
    rows.back().isPale = IsChosen(choice_, zman.id);
    ++zmanim;
  }
  isFilling_ = true;
  offeredList_.Show(std::move(rows));
  if (zmanim > 0) offeredList_.Select(selected);
  isFilling_ = false;
  SetText(IDC_OFFERED_LABEL, zmanim == 0 ? "&Zmanim: none matches" : "&Zmanim: " + std::to_string(zmanim));
  OnSelected(OfferedIdAt(offeredList_.Selected()));
}

// selected: the row to select, the last one when there are fewer.
void SelectionDialog::ShowChosen(std::optional<size_t> selected) {
  std::vector<ShownRow> rows;
  for (const std::string& id : choice_.chosen) {
    rows.push_back(RowOf(*offered_.Find(id)));
    rows.back().number = std::to_wstring(rows.size());
  }
  isFilling_ = true;
  chosenList_.Show(std::move(rows));
  if (selected && !choice_.chosen.empty()) chosenList_.Select(std::min(*selected, choice_.chosen.size() - 1));
  isFilling_ = false;
  for (size_t row = 0; row < offeredRows_.size(); ++row) {
    if (!offeredRows_[row].isHeading) offeredList_.MakePale(row, IsChosen(choice_, OfferedIdAt(row)));
  }
  const std::string count = std::to_string(choice_.chosen.size());
  SetText(IDC_CHOSEN_LABEL, "&Chosen: " + count + (HasRoom(choice_) ? "" : ", the most there can be"));
  const bool isInUse = GetFocus() == chosenList_.Window() || drag_.IsUnderWay();
  OnSelected(isInUse ? ChosenIdAt(chosenList_.Selected()) : current_);
}

void SelectionDialog::ShowPresetInUse() const {
  const std::optional<size_t> number = PresetInUse(choice_);
  SendDlgItemMessageW(dialog_, IDC_PRESET, CB_SETCURSEL, number.value_or(static_cast<size_t>(-1)), 0);
}

// The buttons are not told: the next thing shown tells them, and they are not to lose the focus in between.
void SelectionDialog::SelectNextToChoose() {
  isFilling_ = true;
  const std::optional<size_t> selected = offeredList_.Selected();
  for (size_t row = selected.value_or(0); row < offeredRows_.size(); ++row) {
    if (!offeredRows_[row].isHeading && !IsChosen(choice_, OfferedIdAt(row))) {
      offeredList_.Select(row);
      break;
    }
  }
  isFilling_ = false;
  current_ = OfferedIdAt(offeredList_.Selected());
}

void SelectionDialog::OnSelected(const std::string& id) {
  if (isFilling_) return;
  current_ = id;
  ShowState();
}

void SelectionDialog::Enable(int control, bool isEnabled) const {
  const HWND window = Control(control);
  if (!isEnabled && GetFocus() == window) {  // lest the focus be nowhere
    Focus(control == IDC_ADD || control == IDC_CHANGE || control == IDC_DELETE ? IDC_OFFERED : IDC_CHOSEN);
  }
  EnableWindow(window, isEnabled);
}

void SelectionDialog::ShowState() {
  const std::string offeredId = OfferedIdAt(offeredList_.Selected());
  const std::optional<size_t> chosenRow = chosenList_.Selected();
  Enable(IDC_ADD, !offeredId.empty() && HasRoom(choice_) && !IsChosen(choice_, offeredId));
  Enable(IDC_REMOVE, chosenRow.has_value());
  Enable(IDC_UP, chosenRow && *chosenRow > 0);
  Enable(IDC_DOWN, chosenRow && *chosenRow + 1 < choice_.chosen.size());
  const bool isOwn = FindOwn(choice_, current_) != nullptr;
  Enable(IDC_CHANGE, isOwn);
  Enable(IDC_DELETE, isOwn);
  Enable(IDC_USE_PRESET, SendDlgItemMessageW(dialog_, IDC_PRESET, CB_GETCURSEL, 0, 0) >= 0);
  const ListedZman* const zman = offered_.Find(current_);
  SetText(IDC_DEFINITION,
          zman ? zman->description + ": " + DefinitionText(zman->definition) + ".\r\n" + zman->authority + "." : "");
}

}  // namespace hours
