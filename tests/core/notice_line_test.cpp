#include "app/core/notice_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>

using testing::HasSubstr;

TEST(NoticeLine, TellsPurposeLicenceAndWarrantyInOneBuffer) {
  std::array<char, 256> buffer;
  buffer.fill('#');
  ProduceNoticeLine(buffer);
  const std::string notice(buffer.data(), strnlen(buffer.data(), buffer.size()));
  EXPECT_THAT(notice, HasSubstr("Shabbat times, zmanim and readings"));
  EXPECT_THAT(notice, HasSubstr("MIT licence"));
  EXPECT_THAT(notice, HasSubstr("without any warranty"));
  EXPECT_LT(notice.size(), buffer.size());
}

TEST(NoticeLine, IsCutToAShortBuffer) {
  std::array<char, 9> buffer;
  buffer.fill('#');
  ProduceNoticeLine(std::span(buffer).first(8));
  EXPECT_STREQ(buffer.data(), "Shabbat");
  EXPECT_EQ(buffer[8], '#');
  ProduceNoticeLine(std::span(buffer).first(1));
  EXPECT_STREQ(buffer.data(), "");
  ProduceNoticeLine({});
}
