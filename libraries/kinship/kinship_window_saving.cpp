// How the window's entries get into their file.
#include <algorithm>
#include <optional>
#include <set>
#include <string>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/kinship/kinship_window.h"
#include "libraries/kinship/person_texts.h"
#include "libraries/persons/persons_file.h"

namespace kinship {
namespace {

using persons::Person;

constexpr size_t kToldChanges = 5;

constexpr wchar_t kRemedy[] =
    L"\n\nSee to it that it can be written (no other program holds it, it is not read-only, the disk is not full), "
    L"then try again. Nothing that you have entered is lost meanwhile.";

// Whether they are the same, in whatever order.
bool AreSame(const std::map<persons::Editing::Id, Person>& now, const std::vector<Person>& stored) {
  if (now.size() != stored.size()) return false;
  std::multiset<std::string> lines;
  for (const auto& [id, person] : now) lines.insert(persons::LineOf(person));
  return std::ranges::all_of(stored, [&lines](const Person& person) {
    const auto found = lines.find(persons::LineOf(person));
    if (found == lines.end()) return false;
    lines.erase(found);
    return true;
  });
}

std::wstring InWords(const persons::Change& change) {
  const Person& person = change.after ? *change.after : *change.before;
  return dialogs::FromUtf8(person.name + " (" + OccasionOf(person) + ")") +
         (change.after ? L"" : L", which you have removed");
}

}  // namespace

bool KinshipWindow::Save() {
  if (shown_.ofYahrzeit != storedCustom_) {
    if (!StoreCustom(shown_.ofYahrzeit)) {
      dialogs::ShowError(dialog_, L"The Adar of yahrzeit could not be saved in the file\n" + SettingsPath() + kRemedy);
      return false;
    }
    storedCustom_ = shown_.ofYahrzeit;
  }
  const std::vector<persons::Change> changes = editing_.Unsaved();
  if (changes.empty()) return true;
  std::vector<persons::Change> missed;
  if (!persons::StoreChanges(changes, &missed)) {
    dialogs::ShowError(dialog_, L"The dates could not be saved in the file\n" + persons::PersonsPath() + kRemedy);
    return false;
  }
  editing_.WasSaved();
  if (!missed.empty()) TellMissed(missed);
  return true;
}

void KinshipWindow::TellMissed(const std::vector<persons::Change>& missed) const {
  std::wstring text = L"Meanwhile another program has changed or removed entries that you have changed too:\n";
  for (size_t i = 0; i < std::min(missed.size(), kToldChanges); ++i) text += L"\n" + InWords(missed[i]);
  if (missed.size() > kToldChanges) text += L"\n...";
  text += L"\n\nNothing is lost: the other version and yours are both kept now. Remove the one that is not right.";
  MessageBoxW(dialog_, text.c_str(), dialogs::TextOf(dialog_).c_str(), MB_OK | MB_ICONINFORMATION);
}

// What another copy of the program has stored meanwhile is shown; where there is nothing, steps can still be taken
// back.
void KinshipWindow::TakeUpFile() {
  const std::optional<persons::Persons> stored = persons::StoredPersons();
  if (!stored) return;
  damagedLines_ = stored->damagedLines;
  ShowDamaged();
  if (AreSame(editing_.Now(), stored->persons)) return;
  std::set<std::string> selected;
  for (const int row : list_.Selected()) selected.insert(persons::LineOf(rows_.PersonOf(row)));
  editing_ = persons::Editing(stored->persons);
  Reckon();
  std::vector<Id> ids;
  for (const auto& [id, person] : editing_.Now()) {
    if (selected.contains(persons::LineOf(person))) ids.push_back(id);
  }
  Show(ids);
}

void KinshipWindow::Apply() {
  const bool isSaved = Save();
  if (isSaved) TakeUpFile();
  isSaved_ = editing_.IsSaved();
  UpdateButtons();
}

void KinshipWindow::Accept() {
  if (Save()) EndDialog(dialog_, IDOK);
}

void KinshipWindow::Cancel() {
  if (!IsUnsaved() || dialogs::IsConfirmed(dialog_, L"Discard the changes?")) EndDialog(dialog_, IDCANCEL);
}

// With something unsaved the system asks the user whether to go on, and shows this window's title.
INT_PTR KinshipWindow::OnQueryEndSession() const {
  SetWindowLongPtrW(dialog_, DWLP_MSGRESULT, !IsUnsaved());
  return TRUE;
}

}  // namespace kinship
