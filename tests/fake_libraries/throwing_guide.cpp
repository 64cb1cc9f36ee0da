// A help library that brings the program down: no exception may cross its boundary.
#include <windows.h>

#include <stdexcept>

#include "companion/guide.h"

void GuideGo(HWND, const char*) {
  throw std::runtime_error("thrown by a test");
}
