// What the buttons of the dialog of own texts do.
#include "libraries/dialogs/chosen_file.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/save_changes.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/lections/lections_ids.h"
#include "libraries/lections/own_readings_dialog.h"
#include "libraries/lections/own_readings_file.h"
#include "libraries/lections/own_remark.h"
#include "libraries/lections/own_text_dialog.h"
#include "libraries/lections/single_date_dialog.h"

namespace lections {
namespace {

using dialogs::FromUtf8;

constexpr wchar_t kFilter[] = L"Own texts of readings (*.txt)\0*.txt\0All files\0*.*\0";

void ShowInformation(HWND dialog, const std::wstring& text) {
  MessageBoxW(dialog, text.c_str(), dialogs::TextOf(dialog).c_str(), MB_OK | MB_ICONINFORMATION);
}

std::wstring Texts(size_t count) {
  return count == 1 ? L"1 text" : std::to_wstring(count) + L" texts";
}

}  // namespace

void OwnReadingsDialog::Add() {
  Write(nullptr);
}

void OwnReadingsDialog::Change() {
  const std::vector<OwnPlace> selected = SelectedPlaces();
  if (selected.size() == 1) Write(&selected.front());
}

// old: null for a new text.
void OwnReadingsDialog::Write(const OwnPlace* old) {
  const std::optional<When> when = SelectedWhen();
  if (!when) return;
  const std::optional<OwnEntry> entry = AskForOwnText(dialog_, {*when, editing_.Now(), settings_, old, today_});
  if (!entry) return;
  OwnChanges changes;
  if (old && *old != entry->place) {
    changes.emplace(*old, std::nullopt);
    const auto earlier = movedFrom_.find(*old);
    movedFrom_.insert_or_assign(entry->place, earlier == movedFrom_.end() ? *old : earlier->second);
  }
  changes.insert_or_assign(entry->place, entry->text);
  editing_.Make(changes);
  rows_.Renew(editing_.Now());
  Refill(when);
  for (size_t row = 0; row < places_.size(); ++row) {
    if (places_[row] == entry->place) ownTexts_.SelectOnly({static_cast<int>(row)});
  }
}

// No question: Undo takes it back.
void OwnReadingsDialog::Restore() {
  const std::vector<OwnPlace> selected = SelectedPlaces();
  if (selected.empty()) return;
  editing_.Remove(selected);
  rows_.Renew(editing_.Now());
  Refill(selected.front().when);
}

void OwnReadingsDialog::RestoreAll() {
  const std::wstring question =
      L"Give up all your own texts (" + Texts(editing_.Now().size()) +
      L") and have the program's everywhere? Undo can still take it back until you choose OK.";
  if (!dialogs::IsConfirmed(dialog_, question)) return;
  std::vector<OwnPlace> all;
  for (const auto& [place, text] : editing_.Now()) all.push_back(place);
  editing_.Remove(all);
  rows_.Renew(editing_.Now());
  Refill(SelectedWhen());
}

void OwnReadingsDialog::Undo() {
  const std::vector<OwnPlace> changed = editing_.Undo();
  if (changed.empty()) return;
  rows_.Renew(editing_.Now());
  Reveal(changed.front().when);
}

// Selects a reading, though a search may have hidden it.
void OwnReadingsDialog::Reveal(const When& when) {
  Refill(when);
  if (SelectedWhen() == when) return;
  SendDlgItemMessageW(dialog_, IDC_OWN_KINDS, CB_SETCURSEL, 0, 0);
  SetDlgItemTextW(dialog_, IDC_OWN_TYPED, L"");
  Refill(when);
}

void OwnReadingsDialog::OfferSingleDate() {
  const std::optional<When> date = AskForSingleDate(dialog_);
  if (!date) return;
  rows_.Offer(*date);
  rows_.Renew(editing_.Now());
  SendDlgItemMessageW(dialog_, IDC_OWN_KINDS, CB_SETCURSEL, static_cast<WPARAM>(ShownKinds::kDates), 0);
  SetDlgItemTextW(dialog_, IDC_OWN_TYPED, L"");
  Refill(date);
  SetFocus(readings_.Window());
}

// The file's texts replace those for the same places; one step for Undo.
void OwnReadingsDialog::Import() {
  const std::wstring path = dialogs::AskForFileToRead(dialog_, {L"Import Custom Readings", kFilter, nullptr});
  if (path.empty()) return;
  const auto text = dialogs::TextOfFileOrTell(dialog_, path, L"a file of readings");
  if (!text) return;
  const OwnFile file = OwnFileIn(*text);
  const std::wstring damaged =
      file.damagedLines.empty() ? L""
                                : L"\n\nNot understood, and left out: " + FromUtf8(LinesText(file.damagedLines)) + L".";
  if (file.texts.empty()) {
    return dialogs::ShowError(
        dialog_, L"The file\n" + path + L"\nhas no texts of readings as this program exports them." + damaged);
  }
  OwnChanges changes;
  size_t replaced = 0;
  for (const auto& [place, own] : file.texts) {
    const auto old = editing_.Now().find(place);
    replaced += old != editing_.Now().end() && old->second != own ? 1 : 0;
    changes.emplace(place, own);
  }
  const std::wstring question = L"The file has " + Texts(file.texts.size()) + L", of which " +
                                std::to_wstring(replaced) +
                                L" would replace yours. Take them over? Undo can take it back." + damaged;
  if (!dialogs::IsConfirmed(dialog_, question)) return;
  editing_.Make(changes);
  rows_.Renew(editing_.Now());
  Reveal(file.texts.begin()->first.when);
}

void OwnReadingsDialog::Export() const {
  const std::wstring path =
      dialogs::AskForFileToWrite(dialog_, {L"Export Custom Readings", kFilter, L"txt"}, L"Custom readings.txt");
  if (path.empty()) return;
  if (dialogs::IsSamePath(path, OwnReadingsPath())) {
    return dialogs::ShowError(dialog_, L"The file\n" + path +
                                           L"\nis the one that the program keeps the texts in. Choose another one to "
                                           L"export to.");
  }
  OwnChanges all;
  for (const auto& [place, text] : editing_.Now()) all.emplace(place, text);
  if (dialogs::WriteOrTell(dialog_, path, Applied(all, {}), L"export again")) {
    ShowInformation(dialog_, Texts(all.size()) + L" written to\n" + path);
  }
}

void OwnReadingsDialog::Accept() {
  if (editing_.Unsaved().empty()) return void(EndDialog(dialog_, IDCANCEL));
  const auto write = [this](const OwnChanges& changes, bool replaceOthers, std::vector<OwnPlace>* conflicts) {
    return WriteOwnChanges(changes, editing_.Stored(), replaceOthers, conflicts);
  };
  // A text that may not go to its new place stays at its old one.
  const auto drop = [this](OwnChanges& changes, const std::vector<OwnPlace>& conflicts) {
    for (const OwnPlace& place : conflicts) {
      changes.erase(place);
      if (const auto old = movedFrom_.find(place); old != movedFrom_.end()) changes.erase(old->second);
    }
  };
  if (dialogs::SaveOrTell(dialog_, editing_.Unsaved(), write, InWords, {L"texts", OwnReadingsPath()}, drop)) {
    EndDialog(dialog_, IDOK);
  }
}

void OwnReadingsDialog::Cancel() {
  if (editing_.Unsaved().empty() || dialogs::IsConfirmed(dialog_, L"Discard the changes?")) {
    EndDialog(dialog_, IDCANCEL);
  }
}

}  // namespace lections
