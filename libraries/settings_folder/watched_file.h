// A file of the program's that is read often and changed rarely, by this process or another.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

#include "libraries/settings_folder/eight_bit_text.h"
#include "libraries/settings_folder/whole_file.h"

namespace settings_folder {

// How often the file itself is asked at most, and how long after a change whoever calls Refresh surely sees it: that
// and a tick of the system's clock.
inline constexpr uint32_t kAskIntervalMilliseconds = 50;
inline constexpr uint32_t kSeenWithinMilliseconds = kAskIntervalMilliseconds + 16;

// Knows which version of the file its owner has seen. The bytes it hands over are 8-bit text, whatever encoding an
// editor left. Not for use by several threads at once.
class WatchedFile {
 public:
  // name: 8-bit, bare or with a path; see PathNow. decode: what makes the file's bytes the text that is handed over.
  explicit WatchedFile(const char* name, std::string (*decode)(std::string bytes) = EightBitText);

  // Whether the owner must take up the file anew; text then holds its bytes (none when there is no file). The file
  // itself is asked at most every 50 ms, unless TIMES_READINGS_HOME or the current folder makes the name another file;
  // TIMES_READINGS_HOME counts as it stood at the last tick of the system's clock, 10 to 16 ms ago at most.
  // A file that cannot be read, because another process holds it, counts as unchanged; seen for the first time, as
  // empty.
  bool Refresh(std::string* text);

  // The next Refresh asks the file itself.
  void Distrust() { distrusted_ = true; }

  // Whether the last Refresh or Edit knew the file as it stood then; a file that is not there counts as known.
  bool IsKnown() const { return !unreadable_; }

  // Alters a file's bytes; whether they may be written so.
  using Change = std::function<bool(std::string& bytes)>;

  // Changes the file as it stands on the disk, under the writers' lock. When another program changes it before ours is
  // in its place, the change is made anew. Nothing is written when the bytes stay the same. The folder of a bare name
  // is made. Whether the file now holds what the change made last, which counts as seen; if not, it is as others left
  // it.
  bool Edit(const Change& change);

 private:
  std::wstring Place() const;
  ReadResult ReadNow(const std::wstring& path, Patience patience, FileStamp* stamp, std::string* text) const;
  ReplaceResult EditOnce(const std::wstring& path, const Change& change, FileStamp* seen) const;

  std::wstring name_;
  std::string (*decode_)(std::string bytes);
  bool isBare_;
  std::wstring place_;  // what decided the path when it was last made: TIMES_READINGS_HOME, or the full path itself
  std::wstring path_;
  FileStamp seen_;
  uint32_t tick_ = 0;  // when it was last looked at
  bool distrusted_ = true;
  bool unreadable_ = false;
  std::chrono::steady_clock::time_point asked_;
};

}  // namespace settings_folder
