// What the buttons of the window do with its entries.
#include <algorithm>
#include <optional>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/kinship/export_dialog.h"
#include "libraries/kinship/exported_file.h"
#include "libraries/kinship/kinship_window.h"
#include "libraries/kinship/person_dialog.h"
#include "libraries/kinship/person_table.h"
#include "libraries/kinship/persons_csv.h"
#include "publishing/preview_window.h"

namespace kinship {
namespace {

using persons::Person;

constexpr size_t kToldFaults = 10;

std::wstring Counted(size_t count, const wchar_t* one, const wchar_t* several) {
  return count == 1 ? std::wstring(L"1 ") + one : std::to_wstring(count) + L" " + several;
}

// What came of an import.
std::wstring Report(const Import& import) {
  std::wstring text = Counted(import.added.size(), L"entry was added.", L"entries were added.");
  if (import.alreadyThere > 0) {
    text += L"\n" + Counted(import.alreadyThere, L"was there already.", L"were there already.");
  }
  if (import.faults.empty()) return text;
  text += L"\n" + Counted(import.faults.size(), L"row could not be read and was not added:",
                          L"rows could not be read and were not added:");
  for (size_t i = 0; i < std::min(import.faults.size(), kToldFaults); ++i) {
    text += L"\n" + dialogs::FromUtf8(import.faults[i]);
  }
  if (import.faults.size() > kToldFaults) text += L"\n...";
  return text;
}

LOGFONTW PrintFont() {
  LOGFONTW font = {};
  GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
  font.lfHeight = 0;  // ten points
  return StoredFont().value_or(font);
}

}  // namespace

void KinshipWindow::Add() {
  const auto person = AskForNewPerson(dialog_, shown_, lastEntry_);
  if (!person) return;
  lastEntry_ = {person->kind, person->event.calendar};
  KeepLastEntry(lastEntry_);
  ShowEvenIfNotFound(editing_.Add({*person}));
}

void KinshipWindow::Change() {
  const std::vector<int> selected = list_.Selected();
  if (selected.size() != 1) return;
  const Id id = rows_.IdOf(selected.front());
  const Person old = rows_.PersonOf(selected.front());
  const auto person = AskForChangedPerson(dialog_, shown_, old);
  if (!person || *person == old) return;
  editing_.Change(id, *person);
  ShowEvenIfNotFound({id});
}

// No question: Undo takes it back.
void KinshipWindow::Remove() {
  const std::vector<int> selected = list_.Selected();
  if (selected.empty()) return;
  editing_.Remove(SelectedIds());
  Reckon();
  ShowRow(selected.front());
}

void KinshipWindow::Undo() {
  if (!editing_.CanUndo()) return;
  std::vector<Id> changed = editing_.Undo();
  std::erase_if(changed, [this](Id id) { return !editing_.Now().contains(id); });
  ShowEvenIfNotFound(changed);
}

void KinshipWindow::Import() {
  const auto path = AskForImportFile(dialog_);
  if (!path) return;
  const auto text = ImportedText(dialog_, *path);
  if (!text) return;
  const kinship::Import import = ImportedFrom(*text, rows_.People(true));
  if (!import.problem.empty()) {
    return dialogs::ShowError(dialog_,
                              L"The file\n" + *path + L"\ncannot be imported. " + dialogs::FromUtf8(import.problem));
  }
  if (!import.added.empty()) ShowEvenIfNotFound(editing_.Add(import.added));
  const UINT icon = import.faults.empty() ? MB_ICONINFORMATION : MB_ICONWARNING;
  MessageBoxW(dialog_, Report(import).c_str(), L"Import", MB_OK | icon);
}

void KinshipWindow::Export() {
  const size_t all = editing_.Now().size();
  const auto request = AskForExport(dialog_, shown_.year, all, static_cast<size_t>(rows_.Count()));
  if (!request) return;
  const std::vector<Person> people = rows_.People(request->choice.all);
  WriteExportedFile(dialog_, request->path, ExportedText(people, shown_, *request));
}

void KinshipWindow::Print() {
  const publishing::Table table = TableOf(rows_.People(false), shown_);
  publishing::PreviewTable(dialog_, {table, PrintFont(), L"Birthdays and Yahrzeit"});
}

}  // namespace kinship
