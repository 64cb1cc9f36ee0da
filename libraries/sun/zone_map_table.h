// The layout of the generated map of zones. Read by zone_map.cpp only.
//
// A quadtree of the world, 180 degrees west to east and 90 south to north. A cell's quarters come in the order
// north-east, north-west, south-west, south-east. The cells of kRootDepth stand in rows from the south, each row from
// the west; starts has the bit with which each begins. A cell begins with a bit that says whether it is divided, but
// for those of kDepth, which are not; then come its quarters, or its set of zones: as many ones as its place in the
// list of the sets last met under the same root cell, the last one first, and a zero; or, where it is none of them, as
// many ones as the list is long and its number in sets, kSetBits bits. The list is kRecent long at most. Bits are read
// from the highest of each word.
#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace sun::zone_map_table {

constexpr int kDepth = 14;
constexpr int kRootDepth = 6;
constexpr int kSetBits = 9;
constexpr int kRecent = 4;

// The ids of the zones that hold in a place, both where two are in use; null: none.
using ZoneSet = std::array<const char*, 2>;

extern const std::span<const ZoneSet> sets;
extern const std::span<const uint32_t> starts;
extern const std::span<const uint64_t> bits;

}  // namespace sun::zone_map_table
