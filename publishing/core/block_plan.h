// Which rows of a table stand in which of the blocks that lie side by side on one page.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace publishing {

struct BlockRow {
  int height;
  bool isGroup = false;  // stays with the row after it
};

struct BlockRoom {
  std::size_t blocks;
  int height;             // of each
  int groupGap;           // above a row that names a group, unless a block begins with it
  bool keepsGroupsWhole;  // blocks begin with groups only
};

// The first row of each block, as many blocks as are needed; nothing where the rows do not fit.
std::optional<std::vector<std::size_t>> FillBlocks(const std::vector<BlockRow>& rows, const BlockRoom& room);

// The same with blocks as low as they can be: the room's height is made the least that is enough.
std::optional<std::vector<std::size_t>> FillEvenly(const std::vector<BlockRow>& rows, BlockRoom& room);

}  // namespace publishing
