// Small files read and written whole, so that neither a crash nor another process ever leaves or sees half of one.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace settings_folder {

// What tells one version of a file from the next without opening it.
struct FileStamp {
  bool exists = false;
  uint64_t sizeBytes = 0;
  uint64_t lastWriteTime = 0;  // FILETIME: 100 ns since 1601

  bool operator==(const FileStamp&) const = default;
};

FileStamp StampOf(const std::wstring& path);

enum class ReadResult { kRead, kMissing, kUnreadable };

// Whether to wait some milliseconds for another process that holds the file just now.
enum class Patience { kNone, kShort };

// The file's bytes into text, which only ReadResult::kRead touches. What others do with the file meanwhile is not
// hindered.
ReadResult ReadWholeFile(const std::wstring& path, Patience patience, std::string* text);

enum class ReplaceResult { kReplaced, kChangedMeanwhile, kFailed };

// Puts a new file in the place of the old one, if there is one: written beside it under the name with ".new" at the
// end, flushed to the disk, renamed over. old is the stamp by which the caller knows the old file; one that bears
// another stamp by now has been changed by a program that does not ask for the lock, and is left alone. Unless the
// result is kReplaced, the file is as others left it. A ".new" left by a crash is written over the next time. written:
// the new file's stamp, whose time is always later than the old one's; it may point to what old was copied from. The
// caller holds the lock.
ReplaceResult ReplaceWholeFile(const std::wstring& path, std::string_view text, FileStamp old, FileStamp* written);

// A file that the user chose, written whole under the writers' lock, whatever stood there before. path: as a dialog
// answers it. Whether it stands; if not, an older file is as it was.
bool WriteChosenFile(const std::wstring& path, std::string_view text);

// Keeps the writers of files, in whatever processes of the machine, from each other's way while it lives. One lock
// serves all files: a file may be known by several paths (short names, links, drive letters), and writing is quick.
class WriterLock {
 public:
  // Waits for the lock at most some seconds.
  WriterLock();
  ~WriterLock();
  WriterLock(const WriterLock&) = delete;
  WriterLock& operator=(const WriterLock&) = delete;

  bool Held() const { return held_; }

 private:
  HANDLE mutex_;
  bool held_;
};

}  // namespace settings_folder
