// The font of readings in languages whose letters are not windows-1252's.
#pragma once

#include <cstdint>

namespace lections {

// One that every Windows has, with Hebrew, Greek, Cyrillic and Central European letters in it.
constexpr char kReadingsFace[] = "Times New Roman";
constexpr uint32_t kReadingsPoints = 12;

}  // namespace lections
