#include "libraries/candles/candles_file.h"

#include <mutex>

#include "libraries/settings_folder/settings_folder_win.h"
#include "libraries/settings_folder/watched_file.h"

namespace candles {
namespace {

struct StoreFile {
  std::mutex mutex;
  settings_folder::WatchedFile watched{"candles.txt"};
  Store store;
};

StoreFile storeFile;

// The store as the file is known to be; the caller holds the mutex.
const Store& CurrentStore() {
  std::string text;
  if (storeFile.watched.Refresh(&text)) storeFile.store = Store(text);
  return storeFile.store;
}

}  // namespace

std::optional<Times> StoredTimes(std::string_view place, uint32_t day, uint32_t month, uint32_t year) {
  const std::lock_guard lock(storeFile.mutex);
  return CurrentStore().Find(place, day, month, year);
}

std::optional<Entries> StoredEntries() {
  const std::lock_guard lock(storeFile.mutex);
  storeFile.watched.Distrust();
  const Store& store = CurrentStore();
  if (!storeFile.watched.IsKnown()) return std::nullopt;
  return store.All();
}

bool WriteChanges(const Changes& changes) {
  const std::lock_guard lock(storeFile.mutex);
  std::string text;
  const auto apply = [&changes, &text](std::string& bytes) {
    bytes = Applied(changes, bytes);
    text = bytes;
    return true;
  };
  if (!storeFile.watched.Edit(apply)) return false;
  storeFile.store = Store(text);
  return true;
}

std::wstring StorePath() {
  return settings_folder::PathNow(L"candles.txt");
}

}  // namespace candles
