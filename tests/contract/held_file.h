// A file that another program keeps to itself, as long as this lives or until it is released.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>

class HeldFile {
 public:
  explicit HeldFile(const std::filesystem::path& path)
      : handle_(CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {
    EXPECT_NE(handle_, INVALID_HANDLE_VALUE);
  }
  ~HeldFile() { Release(); }
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;

  void Release() {
    if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(handle_);
    handle_ = INVALID_HANDLE_VALUE;
  }

 private:
  HANDLE handle_;
};
