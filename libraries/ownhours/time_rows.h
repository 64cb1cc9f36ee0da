// The rows of the list of times set by hand.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "companion/ownhours.h"
#include "libraries/ownhours/own_times.h"
#include "libraries/stamp/stamp_core.h"

namespace ownhours {

enum Column { kPlaceColumn, kDateColumn, kZmanColumn, kTimeColumn, kCalculatedColumn };
inline constexpr int kColumns = 5;

class TimeRows {
 public:
  TimeRows(OwnHoursCalculate calculate, stamp::Form form) : calculate_(calculate), form_(form) {}

  // Takes the entries of which each word that was typed stands somewhere in place, date, zman or time, letters' case
  // aside, in the order of a column (any but the calculated one), by place, date and zman where that is equal.
  void Fill(const Entries& entries, const std::wstring& typed, int column, bool descending);

  int Count() const { return static_cast<int>(rows_.size()); }
  const Entry& EntryOf(int row) const { return rows_[static_cast<size_t>(row)].entry; }
  // From the top, the rows of those that have one.
  std::vector<int> RowsOf(const std::vector<Occasion>& occasions) const;

  // The calculated time is asked for when it is first shown; empty when there is none.
  const std::wstring& Text(int row, int column);

  // The first row from start on, or from the top, whose place begins with what is typed; -1 when there is none.
  int Beginning(const std::wstring& typed, int start) const;

 private:
  struct Row {
    Entry entry;
    std::wstring texts[kColumns];
    bool isCalculated = false;
  };

  std::wstring Calculated(const Occasion& occasion) const;

  OwnHoursCalculate calculate_;
  stamp::Form form_;
  std::vector<Row> rows_;
};

// "Jerusalem, 08.03.2024: Shkia"
std::wstring InWords(const Occasion& occasion);

}  // namespace ownhours
