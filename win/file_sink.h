#pragma once

#include <windows.h>

#include <string>

#include "output/text_sink.h"

// A file that is written from start to end. It grows beside its place, under a name of its own, and takes the place
// only when all of it is on the disk: until then an older file stays whole, and without Commit nothing is left behind.
class FileSink : public TextSink {
 public:
  // In the system's 8-bit characters, and no longer than their functions take.
  explicit FileSink(const char* path);
  // In any script, of any length.
  explicit FileSink(const wchar_t* path);
  ~FileSink() override;
  FileSink(const FileSink&) = delete;
  FileSink& operator=(const FileSink&) = delete;

  void Write(std::string_view text) override;

  // Writes what is left and puts the file in its place; whether all of that could be done. A place that is a folder, a
  // device, or a read-only file is not taken. While another program holds the older file, waits half a second.
  bool Commit();

 private:
  void Open(const std::wstring& path, const std::wstring& folder);
  void CreateBeside(const std::wstring& folder);
  void WriteBuffer();
  void CloseFile();

  std::wstring path_;    // whole, as the system reads the name
  std::wstring beside_;  // while it is there
  HANDLE file_ = INVALID_HANDLE_VALUE;
  std::string buffer_;
  bool failed_ = false;
};
