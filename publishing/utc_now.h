// The moment that calendar files are stamped with.
#pragma once

#include <windows.h>

#include "publishing/core/icalendar.h"

namespace publishing {

inline UtcMoment UtcNow() {
  SYSTEMTIME now;
  GetSystemTime(&now);
  return {{now.wYear, now.wMonth, now.wDay}, now.wHour, now.wMinute, now.wSecond};
}

}  // namespace publishing
