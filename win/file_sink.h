#pragma once

#include <windows.h>

#include <string>

#include "output/text_sink.h"

// A file that is written from start to end. It grows beside its place, under a name of its own, and takes the place
// only when all of it is on the disk: until then an older file stays whole, and without Commit nothing is left behind.
class FileSink : public TextSink {
 public:
  explicit FileSink(const char* path);
  ~FileSink() override;
  FileSink(const FileSink&) = delete;
  FileSink& operator=(const FileSink&) = delete;

  void Write(std::string_view text) override;

  // Writes what is left and puts the file in its place; whether all of that could be done. A place that is a folder, a
  // device, or a read-only file is not taken. While another program holds the older file, waits half a second.
  bool Commit();

 private:
  void Open(const char* path);
  void WriteBuffer();
  void CloseFile();

  std::string path_;    // whole, as the system reads the name
  std::string beside_;  // while it is there
  HANDLE file_ = INVALID_HANDLE_VALUE;
  std::string buffer_;
  bool failed_ = false;
};
