#include "libraries/settings_folder/watched_file.h"

#include <utility>

#include "libraries/settings_folder/settings_folder.h"
#include "libraries/settings_folder/settings_folder_win.h"

namespace settings_folder {
namespace {

constexpr std::chrono::milliseconds kAskInterval(kAskIntervalMilliseconds);
// Some editors delete the old file before they put the new one in its place.
constexpr DWORD kGoneWaitMilliseconds = 10;
// How often a change is made anew because another program changed the file meanwhile.
constexpr int kMostAttempts = 5;

}  // namespace

WatchedFile::WatchedFile(const char* name, std::string (*decode)(std::string bytes))
    : name_(Wide(name)), decode_(decode), isBare_(IsBareName(name_)) {}

std::wstring WatchedFile::Place() const {
  return isBare_ ? HomeNow() : FullPath(name_);
}

// The file's text and the stamp that it bore before it was read: a change in between makes it look unseen.
ReadResult WatchedFile::ReadNow(const std::wstring& path, Patience patience, FileStamp* stamp,
                                std::string* text) const {
  *stamp = StampOf(path);
  ReadResult result = ReadWholeFile(path, patience, text);
  const bool wasThere = stamp->exists || (path == path_ && seen_.exists);
  if (result == ReadResult::kMissing && wasThere) {
    Sleep(kGoneWaitMilliseconds);
    *stamp = StampOf(path);
    result = ReadWholeFile(path, patience, text);
  }
  *text = decode_(std::move(*text));
  return result;
}

bool WatchedFile::Refresh(std::string* text) {
  // Settings are read by the million, and to ask for an environment variable takes a microsecond or more.
  const uint32_t tick = GetTickCount();
  if (isBare_ && !distrusted_ && tick == tick_) return false;
  tick_ = tick;
  const auto now = std::chrono::steady_clock::now();
  std::wstring place = Place();
  if (!distrusted_ && place == place_ && now - asked_ < kAskInterval) return false;
  asked_ = now;
  distrusted_ = false;
  place_.swap(place);

  const std::wstring path = PathNow(name_);
  const bool isSameFile = path == path_;
  if (isSameFile && StampOf(path) == seen_ && !unreadable_) return false;

  text->clear();
  FileStamp stamp;
  const ReadResult result = ReadNow(path, unreadable_ ? Patience::kNone : Patience::kShort, &stamp, text);
  path_ = path;
  unreadable_ = result == ReadResult::kUnreadable;
  if (unreadable_ && isSameFile) return false;
  seen_ = stamp;
  return true;
}

ReplaceResult WatchedFile::EditOnce(const std::wstring& path, const Change& change, FileStamp* seen) const {
  std::string before;
  if (ReadNow(path, Patience::kShort, seen, &before) == ReadResult::kUnreadable) return ReplaceResult::kFailed;
  std::string after = before;
  if (!change(after)) return ReplaceResult::kFailed;
  if (after == before) return ReplaceResult::kReplaced;
  if (isBare_ && !MakeFolder(path.substr(0, path.find_last_of(L'\\')))) return ReplaceResult::kFailed;
  return ReplaceWholeFile(path, after, *seen, seen);
}

bool WatchedFile::Edit(const Change& change) {
  const WriterLock lock;
  if (!lock.Held()) return false;
  std::wstring place = Place();
  std::wstring path = PathNow(name_);
  FileStamp seen;
  ReplaceResult result = ReplaceResult::kChangedMeanwhile;
  for (int attempt = 0; attempt < kMostAttempts && result == ReplaceResult::kChangedMeanwhile; ++attempt) {
    result = EditOnce(path, change, &seen);
  }
  if (result != ReplaceResult::kReplaced) return false;
  asked_ = std::chrono::steady_clock::now();
  place_.swap(place);
  path_.swap(path);
  seen_ = seen;
  unreadable_ = false;
  distrusted_ = false;
  return true;
}

}  // namespace settings_folder
