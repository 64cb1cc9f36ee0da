#pragma once

#include <windows.h>

#include <string>

#include "output/text_sink.h"

// A file that is created, or emptied, to be written from start to end.
class FileSink : public TextSink {
 public:
  explicit FileSink(const char* path);
  ~FileSink() override;
  FileSink(const FileSink&) = delete;
  FileSink& operator=(const FileSink&) = delete;

  void Write(std::string_view text) override;

  // Writes what is left and closes the file; whether all of it could be created and written.
  bool Close();

 private:
  void Flush();

  HANDLE file_;
  std::string buffer_;
  bool failed_;
};
