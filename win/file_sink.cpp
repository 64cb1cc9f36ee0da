#include "win/file_sink.h"

#include <array>
#include <cwchar>
#include <iterator>

namespace {

constexpr std::size_t kBufferSize = 64 * 1024;
constexpr ULONGLONG kPatienceMilliseconds = 500;
constexpr DWORD kRetryMilliseconds = 10;
constexpr DWORD kMostNames = 1000;
constexpr std::size_t kLongestNameBeside = 12;

constexpr wchar_t kWithoutLengthLimit[] = L"\\\\?\\";

struct FullPath {
  std::wstring path;
  std::wstring folder;  // with the backslash at its end
};

// The system takes paths as long as this only with a beginning of their own.
std::wstring Unlimited(const std::wstring& path) {
  if (path.size() < MAX_PATH - kLongestNameBeside || path.starts_with(kWithoutLengthLimit)) return path;
  return path.starts_with(L"\\\\") ? L"\\\\?\\UNC\\" + path.substr(2) : kWithoutLengthLimit + path;
}

// Empty where the whole path cannot be a file's: it is a folder's, or one that the system gives to a device.
FullPath PartsOf(const std::wstring& whole) {
  if (whole.empty() || whole.back() == L'\\' || whole.starts_with(L"\\\\.\\")) return {};
  const std::wstring path = Unlimited(whole);
  return {path, path.substr(0, path.rfind(L'\\') + 1)};
}

std::wstring Wide(const char* text) {
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text, -1, wide.data(), static_cast<int>(wide.size()));
  wide.resize(wide.find(L'\0'));
  return wide;
}

// Empty also where the name is too long for those of 8 bits.
FullPath FullPathOf(const char* name) {
  std::array<char, MAX_PATH> path{};
  char* file = nullptr;
  const DWORD length = GetFullPathNameA(name, path.size(), path.data(), &file);
  if (length == 0 || length >= path.size() || !file) return {};
  return PartsOf(Wide(path.data()));
}

FullPath FullPathOf(const wchar_t* name) {
  std::wstring path(GetFullPathNameW(name, 0, nullptr, nullptr), L'\0');
  const DWORD length = GetFullPathNameW(name, static_cast<DWORD>(path.size()), path.data(), nullptr);
  if (length == 0 || length >= path.size()) return {};
  path.resize(length);
  return PartsOf(path);
}

// A folder, a device, or write-protected. Not every file system keeps a rename from replacing these.
bool MayNotBeReplaced(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES &&
         (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) != 0;
}

// Short, of eight letters and three: wherever a folder can be, there is room for such a name.
std::wstring NameBeside(const std::wstring& folder, DWORD number) {
  wchar_t name[kLongestNameBeside + 1];
  std::swprintf(name, std::size(name), L"~tr%05lx.tmp", number & 0xFFFFF);
  return folder + name;
}

// Another program is reading the older file or looking through it for viruses.
bool MayPass(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
}

bool RenameOver(const std::wstring& from, const std::wstring& to) {
  const ULONGLONG end = GetTickCount64() + kPatienceMilliseconds;
  while (!MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
    if (!MayPass(GetLastError()) || GetTickCount64() >= end) return false;
    Sleep(kRetryMilliseconds);
  }
  return true;
}

}  // namespace

FileSink::FileSink(const char* path) {
  const FullPath full = FullPathOf(path);
  Open(full.path, full.folder);
}

FileSink::FileSink(const wchar_t* path) {
  const FullPath full = FullPathOf(path);
  Open(full.path, full.folder);
}

FileSink::~FileSink() {
  CloseFile();
  if (!beside_.empty()) DeleteFileW(beside_.c_str());
}

void FileSink::Open(const std::wstring& path, const std::wstring& folder) {
  if (!path.empty() && !MayNotBeReplaced(path)) CreateBeside(folder);
  path_ = path;
  failed_ = file_ == INVALID_HANDLE_VALUE;
}

void FileSink::CreateBeside(const std::wstring& folder) {
  const DWORD first = GetTickCount() ^ GetCurrentProcessId() << 8;
  for (DWORD number = first; number != first + kMostNames; ++number) {
    const std::wstring beside = NameBeside(folder, number);
    file_ = CreateFileW(beside.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
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
