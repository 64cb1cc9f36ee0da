#include "engine/core/library_count.h"

#include <gtest/gtest.h>

namespace {

TEST(LibraryCount, CountsThatNoLibraryCanMeanAreNone) {
  for (const uint32_t count : {0u, 1u, 100000u}) EXPECT_EQ(LibraryCount(count), count);
  for (const int64_t count : {int64_t{-1}, int64_t{-100000}, int64_t{INT32_MIN}, int64_t{100001}, int64_t{INT32_MAX}}) {
    EXPECT_EQ(LibraryCount(static_cast<uint32_t>(count)), 0u) << count;
  }
}

}  // namespace
