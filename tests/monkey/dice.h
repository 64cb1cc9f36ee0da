// Chance that a seed repeats. The standard library's distributions differ from one to another, so they are not used.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

class Dice {
 public:
  explicit Dice(uint64_t seed) : engine_(seed) {}

  // 0 to count - 1; count is at least 1.
  std::size_t Below(std::size_t count) { return static_cast<std::size_t>(engine_() % count); }
  int Between(int first, int last) {
    return first + static_cast<int>(Below(static_cast<std::size_t>(last - first + 1)));
  }
  bool Chance(int percent) { return Between(1, 100) <= percent; }

  template <typename Row>
  const auto& Pick(const Row& row) {
    return row[Below(std::size(row))];
  }

 private:
  std::mt19937_64 engine_;
};
