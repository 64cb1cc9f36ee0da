#include "libraries/persons/persons_file.h"

#include <windows.h>

#include <utility>

#include "libraries/settings_folder/eight_bit_text.h"
#include "libraries/settings_folder/settings_folder_win.h"
#include "libraries/settings_folder/watched_file.h"
#include "libraries/settings_folder/whole_file.h"

namespace persons {
namespace {

using settings_folder::Patience;
using settings_folder::ReadResult;
using settings_folder::ReplaceResult;

constexpr int kVersions = 3;

std::wstring VersionPath(int version) {
  return PersonsPath() + L"." + std::to_wstring(version);
}

// Makes room for a new version 1, as far as older ones stand in its way.
bool ShiftVersions(int version) {
  const std::wstring path = VersionPath(version);
  if (version == kVersions || !settings_folder::StampOf(path).exists) return true;
  if (!ShiftVersions(version + 1)) return false;
  return MoveFileExW(path.c_str(), VersionPath(version + 1).c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}

// Keeps a text of the file as version 1. It may be kept already, by a run that was cut short, or when the file changed
// between the reading and the writing.
bool KeepVersion(const std::string& text) {
  if (text.empty()) return true;
  const std::wstring path = VersionPath(1);
  std::string newest;
  const ReadResult read = settings_folder::ReadWholeFile(path, Patience::kShort, &newest);
  if (read == ReadResult::kRead && newest == text) return true;
  if (read == ReadResult::kUnreadable || !ShiftVersions(1)) return false;
  settings_folder::FileStamp written;
  return settings_folder::ReplaceWholeFile(path, text, settings_folder::StampOf(path), &written) ==
         ReplaceResult::kReplaced;
}

}  // namespace

std::optional<Persons> StoredPersons() {
  std::string bytes;
  const ReadResult read = settings_folder::ReadWholeFile(PersonsPath(), Patience::kShort, &bytes);
  if (read == ReadResult::kUnreadable) return std::nullopt;
  return PersonsIn(settings_folder::Utf8Text(std::move(bytes)));
}

bool StoreChanges(const std::vector<Change>& changes, std::vector<Change>* missed) {
  settings_folder::WatchedFile file(kPersonsFile, settings_folder::Utf8Text);
  return file.Edit([&](std::string& text) {
    std::string changed = Applied(changes, text, missed);
    if (changed != text && !KeepVersion(text)) return false;
    text = std::move(changed);
    return true;
  });
}

std::wstring PersonsPath() {
  return settings_folder::PathNow(settings_folder::Wide(kPersonsFile));
}

}  // namespace persons
