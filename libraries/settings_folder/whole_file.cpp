#include "libraries/settings_folder/whole_file.h"

#include <algorithm>

#include "libraries/settings_folder/settings_folder.h"
#include "libraries/settings_folder/settings_folder_win.h"

namespace settings_folder {
namespace {

constexpr DWORD kLockWaitMilliseconds = 2000;
constexpr ULONGLONG kReadPatienceMilliseconds = 50;
constexpr ULONGLONG kWritePatienceMilliseconds = 500;  // a file cannot be renamed over while another reads it
constexpr DWORD kReadChunkBytes = 1 << 16;
constexpr size_t kWriteChunkBytes = 1 << 20;

class FileHandle {
 public:
  explicit FileHandle(HANDLE handle) : handle_(handle) {}
  ~FileHandle() { Close(); }
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;

  HANDLE Get() const { return handle_; }
  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  bool Close() {
    const bool closed = IsOpen() && CloseHandle(handle_);
    handle_ = INVALID_HANDLE_VALUE;
    return closed;
  }

 private:
  HANDLE handle_;
};

// The time that repeated attempts may take.
class Retries {
 public:
  explicit Retries(ULONGLONG milliseconds) : end_(GetTickCount64() + milliseconds) {}

  // Waits a moment; false when there is no time left. The moments are unequal: of two processes in step, one would find
  // the file in the other's hands every time.
  bool Wait() {
    if (GetTickCount64() >= end_) return false;
    Sleep(waits_++ % 3);
    return true;
  }

 private:
  ULONGLONG end_;
  DWORD waits_ = 0;
};

uint64_t Joined64(DWORD high, DWORD low) {
  return uint64_t{high} << 32 | low;
}

// Another process is renaming over the file, scanning it, or holding it for itself.
bool MayPass(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
}

bool IsMissing(DWORD error) {
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

bool ReadAll(HANDLE file, std::string* text) {
  std::string bytes;
  DWORD count = 0;
  do {
    const size_t before = bytes.size();
    bytes.resize(before + kReadChunkBytes);
    if (!ReadFile(file, bytes.data() + before, kReadChunkBytes, &count, nullptr)) return false;
    bytes.resize(before + count);
  } while (count > 0);
  text->swap(bytes);
  return true;
}

bool WriteAll(HANDLE file, std::string_view text) {
  while (!text.empty()) {
    const DWORD size = static_cast<DWORD>(std::min(text.size(), kWriteChunkBytes));
    DWORD count = 0;
    if (!WriteFile(file, text.data(), size, &count, nullptr) || count != size) return false;
    text.remove_prefix(size);
  }
  return true;
}

// The stamp of the file just written. Two writes within one tick of the file system's clock would be told apart by
// nothing when the sizes are equal, so a time that is not later than the old one's is moved there.
FileStamp StampLaterThan(const FileStamp& old, HANDLE file, uint64_t sizeBytes) {
  FILETIME time = {};
  GetFileTime(file, nullptr, nullptr, &time);
  if (old.exists && Joined64(time.dwHighDateTime, time.dwLowDateTime) <= old.lastWriteTime) {
    const uint64_t later = old.lastWriteTime + 1;
    time = {static_cast<DWORD>(later), static_cast<DWORD>(later >> 32)};
    SetFileTime(file, nullptr, nullptr, &time);
  }
  return {true, sizeBytes, Joined64(time.dwHighDateTime, time.dwLowDateTime)};
}

bool HasAttribute(const std::wstring& path, DWORD mask) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & mask);
}

HANDLE CreateNewFile(const std::wstring& path) {
  Retries retries(HasAttribute(path, FILE_ATTRIBUTE_DIRECTORY) ? 0 : kWritePatienceMilliseconds);
  for (;;) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE | GENERIC_READ, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE || !MayPass(GetLastError()) || !retries.Wait()) return file;
  }
}

bool WriteNewFile(const std::wstring& path, std::string_view text, const FileStamp& old, FileStamp* written) {
  FileHandle file(CreateNewFile(path));
  if (!file.IsOpen() || !WriteAll(file.Get(), text)) return false;
  *written = StampLaterThan(old, file.Get(), text.size());
  return FlushFileBuffers(file.Get()) && file.Close();
}

ReplaceResult RenameOver(const std::wstring& from, const std::wstring& to, const FileStamp& old) {
  Retries retries(kWritePatienceMilliseconds);
  do {
    if (StampOf(to) != old) return ReplaceResult::kChangedMeanwhile;
    if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
      return ReplaceResult::kReplaced;
    }
  } while (MayPass(GetLastError()) && retries.Wait());
  return ReplaceResult::kFailed;
}

// A mutex of the whole machine, open to every user of it: the same settings may be in use by two sessions, or by an
// elevated process beside a plain one.
HANDLE OpenWriterMutex() {
  SECURITY_DESCRIPTOR everyone;
  InitializeSecurityDescriptor(&everyone, SECURITY_DESCRIPTOR_REVISION);
  SetSecurityDescriptorDacl(&everyone, TRUE, nullptr, FALSE);
  SECURITY_ATTRIBUTES attributes = {sizeof attributes, &everyone, FALSE};
  return CreateMutexW(&attributes, FALSE, L"Global\\TimesReadings.Files");
}

}  // namespace

FileStamp StampOf(const std::wstring& path) {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) return {};
  return {true, Joined64(data.nFileSizeHigh, data.nFileSizeLow),
          Joined64(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime)};
}

ReadResult ReadWholeFile(const std::wstring& path, Patience patience, std::string* text) {
  Retries retries(patience == Patience::kShort ? kReadPatienceMilliseconds : 0);
  do {
    const FileHandle file(CreateFileW(path.c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    if (file.IsOpen() && ReadAll(file.Get(), text)) return ReadResult::kRead;
    if (!file.IsOpen() && IsMissing(GetLastError())) return ReadResult::kMissing;
  } while (!HasAttribute(path, FILE_ATTRIBUTE_DIRECTORY) && retries.Wait());
  return ReadResult::kUnreadable;
}

ReplaceResult ReplaceWholeFile(const std::wstring& path, std::string_view text, FileStamp old, FileStamp* written) {
  // Renaming over these must fail; not every file system sees to it.
  if (HasAttribute(path, FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) return ReplaceResult::kFailed;
  const std::wstring beside = path + L".new";
  const ReplaceResult result =
      WriteNewFile(beside, text, old, written) ? RenameOver(beside, path, old) : ReplaceResult::kFailed;
  if (result != ReplaceResult::kReplaced) DeleteFileW(beside.c_str());
  return result;
}

bool WriteChosenFile(const std::wstring& path, std::string_view text) {
  const std::wstring file = WithoutLengthLimit(FullPath(path));
  const WriterLock lock;
  FileStamp written;
  return lock.Held() && ReplaceWholeFile(file, text, StampOf(file), &written) == ReplaceResult::kReplaced;
}

WriterLock::WriterLock() : mutex_(OpenWriterMutex()) {
  // An abandoned lock is as good as a free one: whoever died holding it left the file whole.
  const DWORD wait = mutex_ ? WaitForSingleObject(mutex_, kLockWaitMilliseconds) : WAIT_FAILED;
  held_ = wait == WAIT_OBJECT_0 || wait == WAIT_ABANDONED;
}

WriterLock::~WriterLock() {
  if (held_) ReleaseMutex(mutex_);
  if (mutex_) CloseHandle(mutex_);
}

}  // namespace settings_folder
