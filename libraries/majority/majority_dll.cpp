#include <algorithm>
#include <mutex>
#include <optional>

#include "companion/majority.h"
#include "libraries/calendar/gregorian.h"
#include "libraries/dialogs/today.h"
#include "libraries/majority/majority_dialog.h"

namespace {

constexpr int32_t kAgeAtFirst = 12;

std::mutex mutex;
std::optional<MajorityDialogData> lastClosed;

MajorityDialogData BoyOfTwelveToday() {
  const calendar::Date today = calendar::GregorianFromAbsolute(dialogs::Today());
  const int32_t year = today.year - kAgeAtFirst;
  const int32_t day = std::min(today.day, calendar::DaysInGregorianMonth(today.month, year));
  return {static_cast<uint32_t>(day), static_cast<uint32_t>(today.month), static_cast<uint32_t>(year), 0, 0};
}

MajorityDialogData LastClosed() {
  const std::lock_guard lock(mutex);
  return lastClosed ? *lastClosed : BoyOfTwelveToday();
}

// None for a date that does not exist.
std::optional<majority::Child> ChildOf(const MajorityDialogData& data) {
  if (!calendar::IsGregorianDate(data.day, data.month, data.year)) return std::nullopt;
  majority::Child child;
  child.birth.date = {static_cast<int32_t>(data.day), static_cast<int32_t>(data.month),
                      static_cast<int32_t>(data.year)};
  child.birth.afterSunset = data.afterSunset != 0;
  child.isGirl = data.isGirl != 0;
  if (!persons::IsDate(child.birth)) return std::nullopt;
  return child;
}

// A Jewish date that is no Gregorian one of the years that the record can hold leaves the record's date.
void Keep(const majority::Child& child, MajorityDialogData& data) {
  data.isGirl = child.isGirl ? 1 : 0;
  const std::optional<calendar::Date> date = persons::GregorianDateOf(child.birth);
  if (!date) return;
  data.day = static_cast<uint32_t>(date->day);
  data.month = static_cast<uint32_t>(date->month);
  data.year = static_cast<uint32_t>(date->year);
  data.afterSunset = child.birth.afterSunset ? 1 : 0;
}

}  // namespace

void MajorityInitDialogData(MajorityDialogData* data) {
  if (data) *data = LastClosed();
}

void MajorityDoDialog(HWND owner, MajorityDialogData* data) try {
  MajorityDialogData closed = data && ChildOf(*data) ? *data : LastClosed();
  const std::optional<majority::Child> child = ChildOf(closed);
  if (!child) return;  // the computer's date is centuries off
  Keep(majority::MajorityDialog(*child).Run(owner), closed);
  if (data) *data = closed;
  const std::lock_guard lock(mutex);
  lastClosed = closed;
} catch (...) {
  MessageBeep(MB_ICONSTOP);  // want of memory
}
