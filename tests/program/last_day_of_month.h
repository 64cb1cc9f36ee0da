// The bound calendar's answer to how many days a Gregorian month has.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>

inline uint32_t LastDayOfMonth(uint32_t month, uint32_t year) {
  constexpr uint32_t kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  EXPECT_TRUE(month >= 1 && month <= 12) << "the calendar is asked for month " << month;
  return month == 2 && year % 4 == 0 && (year % 100 != 0 || year % 400 == 0) ? 29 : kDays[(month - 1) % 12];
}
