#include "tests/profile_store/ini_writer.h"

#include <windows.h>

#include <cstdlib>
#include <string>

#include "companion/profile.h"

int main(int argumentCount, char** arguments) {
  if (argumentCount != 4) return 2;
  const HANDLE mapping = OpenFileMappingA(FILE_MAP_WRITE, FALSE, arguments[1]);
  auto* const progress = static_cast<WriterProgress*>(MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, 0));
  if (!progress) return 2;
  const int first = std::atoi(arguments[2]);
  const int count = std::atoi(arguments[3]);
  for (int i = 0; i < count; ++i) {
    const std::string number = std::to_string(first + i);
    if (!ProfileWriteString(kWrittenSection, number.c_str(), number.c_str(), kWrittenFile)) return 1;
    ++progress->committed;
  }
  return 0;
}
