// What a writer process and the test that ends it share: ini_writer MAPPING FIRST COUNT
//
// The writer sets keys FIRST, FIRST + 1 ... to their own numbers, COUNT of them, in section "Keys" of kWrittenFile. Its
// exit code is 0 when every write succeeded.
#pragma once

#include <atomic>

inline constexpr char kWrittenFile[] = "written.ini";
inline constexpr char kWrittenSection[] = "Keys";

// Lies in the shared memory named MAPPING, which outlives the writer.
struct WriterProgress {
  std::atomic<int> committed;  // writes that have answered success
};
