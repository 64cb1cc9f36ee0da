#include "libraries/ownhours/own_times_file.h"

#include <utility>

#include "libraries/settings_folder/eight_bit_text.h"
#include "libraries/settings_folder/settings_folder_win.h"
#include "libraries/settings_folder/watched_file.h"
#include "libraries/settings_folder/whole_file.h"

namespace ownhours {

std::optional<OpenStore> OpenStore::Load() {
  using namespace settings_folder;
  std::string bytes;
  if (ReadWholeFile(PathNow(L"ownhours.txt"), Patience::kShort, &bytes) == ReadResult::kUnreadable) return std::nullopt;
  return OpenStore(OwnTimes(EightBitText(std::move(bytes))));
}

void OpenStore::Set(const Entry& entry) {
  times_.Set(entry);
  unsaved_.insert_or_assign(entry.occasion, entry.time);
}

bool OpenStore::Save() {
  settings_folder::WatchedFile file("ownhours.txt");
  const auto apply = [this](std::string& bytes) {
    bytes = Applied(unsaved_, bytes);
    return true;
  };
  if (!unsaved_.empty() && !file.Edit(apply)) return false;
  unsaved_.clear();
  return true;
}

}  // namespace ownhours
