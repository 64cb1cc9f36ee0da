// The times of the day that it is at a place, as lists show them.
#pragma once

#include <cstdint>
#include <string>

#include "libraries/hours/zman_day.h"

namespace hours {

class DayTimes {
 public:
  // utcSeconds: now, since 1970-01-01.
  DayTimes(const sun::PlaceSettings& place, double utcSeconds);

  // The date at the place, on its own clock: "08.03.2024".
  std::string DateText() const;

  // As HoursCalculate2 answers: "05:28"; "----" when the zman does not occur.
  std::string TimeOf(const Definition& zman);

 private:
  int32_t unixDay_;
  ZmanDay day_;
};

}  // namespace hours
