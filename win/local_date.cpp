#include "win/local_date.h"

#include <windows.h>

CalendarDate LocalDate() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return {now.wDay, now.wMonth, now.wYear};
}
