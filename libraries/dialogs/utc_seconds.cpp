#include "libraries/dialogs/utc_seconds.h"

#include <windows.h>

namespace dialogs {

double UtcSeconds() {
  constexpr double kTicksPerSecond = 1e7;
  constexpr double kSecondsTo1970 = 11644473600;  // from 1601, with which the system's count begins
  FILETIME now;
  GetSystemTimeAsFileTime(&now);
  ULARGE_INTEGER ticks;
  ticks.LowPart = now.dwLowDateTime;
  ticks.HighPart = now.dwHighDateTime;
  return static_cast<double>(ticks.QuadPart) / kTicksPerSecond - kSecondsTo1970;
}

}  // namespace dialogs
