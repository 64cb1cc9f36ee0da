// Takes the rows that are wanted; whoever makes rows asks it before looking at the sun.
#pragma once

#include <vector>

#include "libraries/occasions/occasions_core.h"
#include "libraries/occasions/sky.h"

namespace occasions {

class RowCollector {
 public:
  RowCollector(const Customs& customs, int32_t firstDay, int32_t lastDay)
      : customs_(customs), firstDay_(firstDay), lastDay_(lastDay) {}

  // Whether a row of the occasion might be wanted whose moment is around a day: the day before, on it, or the day
  // after.
  bool Wants(Occasion occasion, int32_t day) const { return IsAround(day) && IsShown(customs_, KindOf(occasion)); }

  // The same of any occasion.
  bool IsAround(int32_t day) const { return day >= firstDay_ - 1 && day <= lastDay_ + 1; }

  void AddDay(int32_t day, Row row) {
    row.day = day;
    Add(row);
  }

  void AddMoment(const ClockMinute& moment, Row row) {
    row.day = moment.Day();
    row.minute = static_cast<int32_t>(moment.minute % kMinutesPerDay);
    row.offsetSeconds = moment.offsetSeconds;
    Add(row);
  }

  // In their order.
  std::vector<Row> Take();

 private:
  void Add(const Row& row) {
    if (row.day >= firstDay_ && row.day <= lastDay_ && IsShown(customs_, row)) rows_.push_back(row);
  }

  const Customs& customs_;
  int32_t firstDay_;
  int32_t lastDay_;
  std::vector<Row> rows_;
};

}  // namespace occasions
