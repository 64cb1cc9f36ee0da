#include "libraries/lections/own_readings_file.h"

#include <mutex>
#include <utility>

#include "libraries/settings_folder/eight_bit_text.h"
#include "libraries/settings_folder/settings_folder_win.h"
#include "libraries/settings_folder/table_editing.h"
#include "libraries/settings_folder/watched_file.h"
#include "libraries/settings_folder/whole_file.h"

namespace lections {
namespace {

struct Kept {
  std::mutex mutex;
  settings_folder::WatchedFile file{kOwnReadingsFile, settings_folder::Utf8Text};
  std::shared_ptr<const OwnReadings> readings = std::make_shared<const OwnReadings>();
};

Kept kept;

}  // namespace

std::shared_ptr<const OwnReadings> StoredOwnReadings() {
  const std::lock_guard lock(kept.mutex);
  std::string text;
  if (kept.file.Refresh(&text)) kept.readings = std::make_shared<const OwnReadings>(OwnFileIn(text).texts);
  return kept.readings;
}

std::optional<OwnFile> OwnFileNow() {
  using namespace settings_folder;
  std::string bytes;
  if (ReadWholeFile(OwnReadingsPath(), Patience::kShort, &bytes) == ReadResult::kUnreadable) return std::nullopt;
  return OwnFileIn(Utf8Text(std::move(bytes)));
}

bool WriteOwnChanges(const OwnChanges& changes, const OwnTexts& stored, bool replaceOthers,
                     std::vector<OwnPlace>* conflicts) {
  const std::lock_guard lock(kept.mutex);
  std::string written;
  const bool isWritten = kept.file.Edit([&](std::string& text) {
    conflicts->clear();
    if (!replaceOthers) *conflicts = settings_folder::Conflicts(changes, stored, OwnFileIn(text).texts);
    if (!conflicts->empty()) return false;
    text = Applied(changes, text);
    written = text;
    return true;
  });
  if (isWritten) kept.readings = std::make_shared<const OwnReadings>(OwnFileIn(written).texts);
  return isWritten;
}

std::wstring OwnReadingsPath() {
  return settings_folder::PathNow(settings_folder::Wide(kOwnReadingsFile));
}

}  // namespace lections
