// What a writer process and the test that ends it share: PROGRAM MAPPING FIRST COUNT
//
// The writer makes COUNT writes, numbered FIRST, FIRST + 1 ... Its exit code is 0 when every one succeeded.
#pragma once

#include <windows.h>

#include <atomic>
#include <cstdlib>

// Lies in the shared memory named MAPPING, which outlives the writer.
struct WriterProgress {
  std::atomic<int> committed;  // writes that have answered success
};

// The main function of a writer; write is given a number and answers success.
template <typename Write>
int RunWriter(int argumentCount, char** arguments, Write write) {
  if (argumentCount != 4) return 2;
  const HANDLE mapping = OpenFileMappingA(FILE_MAP_WRITE, FALSE, arguments[1]);
  auto* const progress = static_cast<WriterProgress*>(MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, 0));
  if (!progress) return 2;
  const int first = std::atoi(arguments[2]);
  const int count = std::atoi(arguments[3]);
  for (int i = 0; i < count; ++i) {
    if (!write(first + i)) return 1;
    ++progress->committed;
  }
  return 0;
}
