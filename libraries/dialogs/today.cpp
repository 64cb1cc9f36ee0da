#include "libraries/dialogs/today.h"

#include <windows.h>

#include "libraries/calendar/gregorian.h"

namespace dialogs {

int32_t Today() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return calendar::AbsoluteFromGregorian({now.wDay, now.wMonth, now.wYear});
}

}  // namespace dialogs
