#include "win/file_sink.h"

#include <array>
#include <cstdio>

namespace {

constexpr std::size_t kBufferSize = 64 * 1024;
constexpr ULONGLONG kPatienceMilliseconds = 500;
constexpr DWORD kRetryMilliseconds = 10;
constexpr DWORD kMostNames = 1000;

struct FullPath {
  std::string path;
  std::string folder;  // with the backslash at its end
};

// Empty where the name cannot be that of a file: too long, a folder's, or one that the system gives to a device.
FullPath FullPathOf(const char* name) {
  std::array<char, MAX_PATH> path{};
  char* file = nullptr;
  const DWORD length = GetFullPathNameA(name, path.size(), path.data(), &file);
  if (length == 0 || length >= path.size() || !file) return {};
  const std::string full = path.data();
  if (full.starts_with("\\\\.\\")) return {};
  return {full, full.substr(0, static_cast<std::size_t>(file - path.data()))};
}

// A folder, a device, or write-protected. Not every file system keeps a rename from replacing these.
bool MayNotBeReplaced(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES &&
         (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) != 0;
}

// Short, of eight letters and three: wherever a folder can be, there is room for such a name.
std::string NameBeside(const std::string& folder, DWORD number) {
  char name[16];
  std::snprintf(name, sizeof name, "~tr%05lx.tmp", number & 0xFFFFF);
  return folder + name;
}

// Another program is reading the older file or looking through it for viruses.
bool MayPass(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
}

bool RenameOver(const std::string& from, const std::string& to) {
  const ULONGLONG end = GetTickCount64() + kPatienceMilliseconds;
  while (!MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
    if (!MayPass(GetLastError()) || GetTickCount64() >= end) return false;
    Sleep(kRetryMilliseconds);
  }
  return true;
}

}  // namespace

FileSink::FileSink(const char* path) {
  Open(path);
  failed_ = file_ == INVALID_HANDLE_VALUE;
}

FileSink::~FileSink() {
  CloseFile();
  if (!beside_.empty()) DeleteFileA(beside_.c_str());
}

void FileSink::Open(const char* path) {
  const FullPath full = FullPathOf(path);
  if (full.path.empty() || MayNotBeReplaced(full.path)) return;
  path_ = full.path;
  const DWORD first = GetTickCount() ^ GetCurrentProcessId() << 8;
  for (DWORD number = first; number != first + kMostNames; ++number) {
    const std::string beside = NameBeside(full.folder, number);
    file_ = CreateFileA(beside.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file_ != INVALID_HANDLE_VALUE) beside_ = beside;
    if (file_ != INVALID_HANDLE_VALUE || GetLastError() != ERROR_FILE_EXISTS) return;
  }
}

void FileSink::Write(std::string_view text) {
  buffer_ += text;
  if (buffer_.size() >= kBufferSize) WriteBuffer();
}

void FileSink::WriteBuffer() {
  DWORD written = 0;
  const DWORD size = static_cast<DWORD>(buffer_.size());
  if (!failed_) failed_ = !WriteFile(file_, buffer_.data(), size, &written, nullptr) || written != size;
  buffer_.clear();
}

void FileSink::CloseFile() {
  if (file_ == INVALID_HANDLE_VALUE) return;
  if (!CloseHandle(file_)) failed_ = true;
  file_ = INVALID_HANDLE_VALUE;
}

bool FileSink::Commit() {
  if (file_ == INVALID_HANDLE_VALUE) return !failed_;
  WriteBuffer();
  if (!failed_) failed_ = !FlushFileBuffers(file_);
  CloseFile();
  if (!failed_) failed_ = !RenameOver(beside_, path_);
  if (!failed_) beside_.clear();
  return !failed_;
}
