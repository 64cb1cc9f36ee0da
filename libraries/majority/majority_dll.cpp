#include <algorithm>

#include "companion/majority.h"
#include "libraries/calendar/gregorian.h"

namespace {

constexpr int32_t kAgeAtFirst = 12;

}  // namespace

void MajorityInitDialogData(MajorityDialogData* data) {
  if (!data) return;
  SYSTEMTIME now;
  GetLocalTime(&now);
  const int32_t year = now.wYear - kAgeAtFirst;
  const auto lastDay = static_cast<uint32_t>(calendar::DaysInGregorianMonth(now.wMonth, year));
  *data = {std::min<uint32_t>(now.wDay, lastDay), now.wMonth, static_cast<uint32_t>(year), 0, 0};
}

void MajorityDoDialog(HWND, MajorityDialogData*) {}
