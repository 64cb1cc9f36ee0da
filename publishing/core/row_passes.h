// Reading a table's rows from first to last, once or more often, and telling how far that is.
#pragma once

#include <cstddef>
#include <utility>

#include "publishing/core/progress.h"
#include "publishing/core/table.h"

namespace publishing {

class RowPasses {
 public:
  // passes: how often all rows will be read.
  RowPasses(const Table& table, std::size_t passes, const Progress& progress)
      : rows_(*table.rows), count_(rows_.Count()), all_(count_ * passes), progress_(progress) {}

  // One pass: calls with each row and its index. False when it was ended by progress.
  template <typename Function>
  bool ForEach(Function call) {
    for (std::size_t index = 0; index < count_; ++index, ++done_) {
      if (index % kRowsBetween == 0 && progress_ && !progress_(done_, all_)) return false;
      rows_.Read(index, row_);
      call(std::as_const(row_), index);
    }
    return true;
  }

 private:
  static constexpr std::size_t kRowsBetween = 256;

  const Rows& rows_;
  const std::size_t count_;
  const std::size_t all_;
  const Progress& progress_;
  std::size_t done_ = 0;
  Row row_;
};

}  // namespace publishing
