#include "libraries/calendar/molad.h"

#include "libraries/calendar/jewish.h"

namespace calendar {

int64_t MoladParts(int32_t month, int32_t year) {
  const int32_t monthsToNisan = MonthsInJewishYear(year) - kElul;
  const int32_t sinceTishri = month >= kTishri ? month - kTishri : monthsToNisan + month - kNisan;
  return kEpoch * kPartsPerDay + kBaharad + (MonthsBefore(year) + sinceTishri) * kPartsPerMonth;
}

}  // namespace calendar
