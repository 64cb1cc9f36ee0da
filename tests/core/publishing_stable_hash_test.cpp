// Values of the authors' own list of test vectors for FNV-1a of 64 bits (isthe.com/chongo/tech/comp/fnv, test_fnv.c).
#include "publishing/core/stable_hash.h"

#include <gtest/gtest.h>

TEST(StableHash, IsThatOfItsAuthors) {
  EXPECT_EQ(publishing::StableHash(""), 0xCBF29CE484222325u);
  EXPECT_EQ(publishing::StableHash("a"), 0xAF63DC4C8601EC8Cu);
  EXPECT_EQ(publishing::StableHash("foobar"), 0x85944171F73967E8u);
}

TEST(StableHash, DiffersByItsBasis) {
  EXPECT_NE(publishing::StableHash("a"), publishing::StableHash("a", publishing::kUsualBasis + 1));
}
