// A table of any texts.
#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <string>
#include <utility>
#include <vector>

#include "publishing/core/table.h"

inline std::vector<std::string> AnyTexts(FuzzedDataProvider& input, std::size_t most) {
  std::vector<std::string> texts(input.ConsumeIntegralInRange<std::size_t>(0, most));
  for (std::string& text : texts) text = input.ConsumeRandomLengthString(40);
  return texts;
}

// With a column or more, and its rows beside it.
inline std::pair<publishing::Table, std::vector<publishing::Row>> AnyTable(FuzzedDataProvider& input) {
  constexpr publishing::Direction kDirections[] = {publishing::Direction::kNeutral, publishing::Direction::kLeftToRight,
                                                   publishing::Direction::kRightToLeft};
  publishing::Table table;
  table.columns.resize(input.ConsumeIntegralInRange<std::size_t>(1, 4));
  std::vector<publishing::Row> rows(input.ConsumeIntegralInRange<std::size_t>(0, 5));
  table.title = input.ConsumeRandomLengthString(40);
  table.remarks = AnyTexts(input, 2);
  table.notes = AnyTexts(input, 2);
  table.rightToLeft = input.ConsumeBool();
  table.language = input.ConsumeRandomLengthString(5);
  for (publishing::Column& column : table.columns) {
    column = {input.ConsumeRandomLengthString(20), publishing::Align{input.ConsumeBool()},
              input.PickValueInArray(kDirections)};
  }
  for (publishing::Row& row : rows) {
    row = {.kind = publishing::RowKind{input.ConsumeBool()},
           .isBold = input.ConsumeBool(),
           .beginsPage = input.ConsumeBool()};
    const std::size_t cells = input.ConsumeIntegralInRange<std::size_t>(0, table.columns.size() + 1);
    for (std::size_t cell = 0; cell < cells; ++cell) row.cells.push_back(input.ConsumeRandomLengthString(60));
  }
  table.rows = publishing::Listed(rows);
  return {table, rows};
}
