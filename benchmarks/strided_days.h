// Days of the years 1900 to 2100 in an order in which neighbouring dates do not follow each other.
#pragma once

#include <cstdint>

class StridedDays {
 public:
  // firstDay: the number of 1 January 1900 in the counting at hand.
  explicit StridedDays(int32_t firstDay) : firstDay_(firstDay) {}

  int32_t Next() {
    constexpr int32_t kDays = 73414;
    constexpr int32_t kStride = 12347;
    at_ = (at_ + kStride) % kDays;
    return firstDay_ + at_;
  }

 private:
  int32_t firstDay_;
  int32_t at_ = 0;
};
