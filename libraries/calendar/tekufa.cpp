#include "libraries/calendar/tekufa.h"

#include "libraries/calendar/gregorian.h"

namespace calendar {
namespace {

constexpr int64_t kMinutesOfTekufa = 91 * kMinutesPerDay + 7 * 60 + 30;
constexpr int64_t kMinutesOfYear = 4 * kMinutesOfTekufa;

// The tekufa of Tishri 5770 was on 7 October 2009 at 9:00.
constexpr int32_t kKnownYear = 5770;
constexpr Date kKnownDate = {7, 10, 2009};
constexpr int64_t kKnownMinute = 9 * 60;

constexpr int64_t kNightfall = 18 * 60;

}  // namespace

int64_t TekufaMinute(Tekufa tekufa, int32_t year) {
  const int64_t known = AbsoluteFromGregorian(kKnownDate) * kMinutesPerDay + kKnownMinute;
  return known + (int64_t{year} - kKnownYear) * kMinutesOfYear + static_cast<int64_t>(tekufa) * kMinutesOfTekufa;
}

int32_t TekufaDay(Tekufa tekufa, int32_t year) {
  return static_cast<int32_t>((TekufaMinute(tekufa, year) + kMinutesPerDay - kNightfall) / kMinutesPerDay);
}

}  // namespace calendar
