#include "tests/doubles/call_log.h"

#include <cstdarg>
#include <cstdio>

std::vector<std::string>& CallLog() {
  static std::vector<std::string> calls;
  return calls;
}

void LogCall(const char* format, ...) {
  char line[1024];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(line, sizeof line, format, arguments);
  va_end(arguments);
  CallLog().push_back(line);
}
