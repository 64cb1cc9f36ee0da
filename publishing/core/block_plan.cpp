#include "publishing/core/block_plan.h"

#include <algorithm>
#include <cstdint>

namespace publishing {
namespace {

// Rows that stand in one block.
struct Unit {
  std::size_t first;
  int64_t height;    // where a block begins with it
  int64_t gapAbove;  // where it does not
};

std::vector<Unit> UnitsOf(const std::vector<BlockRow>& rows, const BlockRoom& room) {
  std::vector<Unit> units;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const bool followsGroup = row > 0 && rows[row - 1].isGroup;
    const bool staysTogether = room.keepsGroupsWhole ? !rows[row].isGroup || followsGroup : followsGroup;
    const int gap = rows[row].isGroup ? room.groupGap : 0;
    if (row > 0 && staysTogether) {
      units.back().height += gap + rows[row].height;
    } else {
      units.push_back({row, rows[row].height, gap});
    }
  }
  return units;
}

}  // namespace

std::optional<std::vector<std::size_t>> FillBlocks(const std::vector<BlockRow>& rows, const BlockRoom& room) {
  std::vector<std::size_t> starts;
  int64_t left = 0;
  for (const Unit& unit : UnitsOf(rows, room)) {
    if (unit.height > room.height) return std::nullopt;
    if (starts.empty() || unit.gapAbove + unit.height > left) {
      if (starts.size() == room.blocks) return std::nullopt;
      starts.push_back(unit.first);
      left = room.height - unit.height;
    } else {
      left -= unit.gapAbove + unit.height;
    }
  }
  return starts;
}

std::optional<std::vector<std::size_t>> FillEvenly(const std::vector<BlockRow>& rows, BlockRoom& room) {
  if (!FillBlocks(rows, room)) return std::nullopt;
  int tooLow = -1;
  while (room.height - tooLow > 1) {
    BlockRoom lower = room;
    lower.height = tooLow + (room.height - tooLow) / 2;
    if (FillBlocks(rows, lower)) {
      room.height = lower.height;
    } else {
      tooLow = lower.height;
    }
  }
  return FillBlocks(rows, room);
}

}  // namespace publishing
