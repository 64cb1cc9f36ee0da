#include "win/file_sink.h"

namespace {

constexpr std::size_t kBufferSize = 64 * 1024;

}  // namespace

// Shared with readers: one that happens to look into the older file must not keep it from being replaced.
FileSink::FileSink(const char* path)
    : file_(CreateFileA(path, GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr)),
      failed_(file_ == INVALID_HANDLE_VALUE) {}

FileSink::~FileSink() {
  Close();
}

void FileSink::Write(std::string_view text) {
  buffer_ += text;
  if (buffer_.size() >= kBufferSize) Flush();
}

void FileSink::Flush() {
  DWORD written = 0;
  const DWORD size = static_cast<DWORD>(buffer_.size());
  if (!failed_) failed_ = !WriteFile(file_, buffer_.data(), size, &written, nullptr) || written != size;
  buffer_.clear();
}

bool FileSink::Close() {
  if (file_ == INVALID_HANDLE_VALUE) return !failed_;
  Flush();
  if (!CloseHandle(file_)) failed_ = true;
  file_ = INVALID_HANDLE_VALUE;
  return !failed_;
}
