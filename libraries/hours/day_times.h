// The times of the day that it is at a place, as lists show them.
#pragma once

#include <cstdint>
#include <string>

#include "libraries/hours/zman_day.h"
#include "libraries/stamp/stamp_core.h"

namespace hours {

class DayTimes {
 public:
  // utcSeconds: now, since 1970-01-01.
  DayTimes(const sun::PlaceSettings& place, double utcSeconds, stamp::Form form);

  // The date at the place, on its own clock: "08.03.2024".
  std::string DateText() const;

  // As HoursCalculate2 answers, in the form of times: "05:28"; "----" when the zman does not occur.
  std::string TimeOf(const Definition& zman);

  // What no time is wider than.
  std::string WidestTime() const { return stamp::TimeText(22, 58, form_); }

 private:
  int32_t unixDay_;
  stamp::Form form_;
  ZmanDay day_;
};

}  // namespace hours
