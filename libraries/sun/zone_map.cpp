#include "libraries/sun/zone_map.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "libraries/sun/zone_map_table.h"

namespace sun {
namespace {

using namespace zone_map_table;

class BitReader {
 public:
  explicit BitReader(uint32_t start) : next_(start) {}

  uint32_t Take(int count) {
    uint32_t number = 0;
    for (int i = 0; i < count; ++i, ++next_) number = number << 1 | (bits[next_ / 64] >> (63 - next_ % 64) & 1);
    return number;
  }

 private:
  size_t next_;
};

// Reads the cells under one of the root depth until it comes to the one with a point.
class CellReader {
 public:
  explicit CellReader(uint32_t start) : reader_(start) {}

  // x and y: of the smallest cell with the point, from the west and the south, within the root cell.
  ZoneSet SetAt(uint32_t x, uint32_t y) { return sets[Find(x, y, kRootDepth)]; }

 private:
  uint32_t Find(uint32_t x, uint32_t y, int depth) {
    if (depth == kDepth || !reader_.Take(1)) return TakeSet();
    const uint32_t half = 1u << (kDepth - depth - 1);
    const bool isEast = x & half;
    const bool isNorth = y & half;
    const int wanted = isNorth ? (isEast ? 0 : 1) : (isEast ? 3 : 2);
    for (int quarter = 0; quarter < wanted; ++quarter) Skip(depth + 1);
    return Find(x, y, depth + 1);
  }

  void Skip(int depth) {
    if (depth == kDepth || !reader_.Take(1)) {
      TakeSet();
      return;
    }
    for (int quarter = 0; quarter < 4; ++quarter) Skip(depth + 1);
  }

  uint32_t TakeSet() {
    size_t place = 0;
    while (place < recentCount_ && reader_.Take(1)) ++place;
    const bool isNew = place == recentCount_;
    const uint32_t set = isNew ? reader_.Take(kSetBits) : recent_[place];
    if (isNew) recentCount_ = std::min(recentCount_ + 1, recent_.size());
    place = std::min(place, recent_.size() - 1);
    std::copy_backward(recent_.begin(), recent_.begin() + place, recent_.begin() + place + 1);
    recent_[0] = set;
    return set;
  }

  BitReader reader_;
  std::array<uint32_t, kRecent> recent_ = {};
  size_t recentCount_ = 0;
};

// Which of the world's smallest cells of a row or a column a coordinate lies in.
uint32_t CellOf(double degrees, double least, double span) {
  constexpr double kCells = 1 << kDepth;
  if (std::isnan(degrees)) degrees = 0;
  return static_cast<uint32_t>(std::clamp((degrees - least) / span * kCells, 0.0, kCells - 1));
}

}  // namespace

ZonesOfPoint ZonesAt(double latitudeDegrees, double longitudeDegrees) {
  constexpr int kBelowRoot = kDepth - kRootDepth;
  const uint32_t x = CellOf(longitudeDegrees, -180, 360);
  const uint32_t y = CellOf(latitudeDegrees, -90, 180);
  const size_t root = size_t{y >> kBelowRoot} << kRootDepth | x >> kBelowRoot;
  return CellReader(starts[root]).SetAt(x, y);
}

}  // namespace sun
