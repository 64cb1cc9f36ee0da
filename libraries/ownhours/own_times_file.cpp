#include "libraries/ownhours/own_times_file.h"

#include <utility>

#include "libraries/settings_folder/eight_bit_text.h"
#include "libraries/settings_folder/settings_folder_win.h"
#include "libraries/settings_folder/table_editing.h"
#include "libraries/settings_folder/watched_file.h"
#include "libraries/settings_folder/whole_file.h"

namespace ownhours {

namespace {

constexpr char kFile[] = "ownhours.txt";

std::optional<OwnTimes> ReadTimes() {
  using namespace settings_folder;
  std::string bytes;
  if (ReadWholeFile(StorePath(), Patience::kShort, &bytes) == ReadResult::kUnreadable) return std::nullopt;
  return OwnTimes(EightBitText(std::move(bytes)));
}

}  // namespace

std::optional<OpenStore> OpenStore::Load() {
  std::optional<OwnTimes> times = ReadTimes();
  if (!times) return std::nullopt;
  return OpenStore(std::move(*times));
}

void OpenStore::Set(const Entry& entry) {
  times_.Set(entry);
  unsaved_.insert_or_assign(entry.occasion, entry.time);
}

bool OpenStore::Save() {
  settings_folder::WatchedFile file(kFile);
  const auto apply = [this](std::string& bytes) {
    bytes = Applied(unsaved_, bytes);
    return true;
  };
  if (!unsaved_.empty() && !file.Edit(apply)) return false;
  unsaved_.clear();
  return true;
}

std::optional<Entries> StoredEntries() {
  const std::optional<OwnTimes> times = ReadTimes();
  if (!times) return std::nullopt;
  return times->All();
}

bool WriteChanges(const Changes& changes, const Entries& stored, bool replaceOthers, std::vector<Occasion>* conflicts) {
  settings_folder::WatchedFile file(kFile);
  return file.Edit([&](std::string& bytes) {
    conflicts->clear();
    if (!replaceOthers) *conflicts = settings_folder::Conflicts(changes, stored, OwnTimes(bytes).All());
    if (!conflicts->empty()) return false;
    bytes = Applied(changes, bytes);
    return true;
  });
}

std::wstring StorePath() {
  return settings_folder::PathNow(settings_folder::Wide(kFile));
}

}  // namespace ownhours
