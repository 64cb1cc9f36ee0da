#include "companion/stamp.h"

#include <gtest/gtest.h>

#include <string>

#include "companion/profile.h"
#include "tests/contract/regional_form.h"
#include "tests/contract/settings_home.h"

namespace {

std::string Text(int32_t hour, int32_t minute) {
  char text[STAMP_TEXT_SIZE];
  StampConvert(hour, minute, text);
  return text;
}

class StampContract : public testing::Test {
 protected:
  SettingsHome home_;
};

TEST_F(StampContract, UsersChoiceDecidesTheForm) {
  home_.Put("stamp.ini", "[Times]\r\nForm=12\r\n");
  EXPECT_NE(StampIsAmPm(), 0);
  EXPECT_EQ(Text(18, 47), "06:47 p.m.");
  EXPECT_EQ(Text(0, 0), "12:00 a.m.");
  EXPECT_EQ(Text(25, 18), "01:18 a.m.");
  EXPECT_EQ(Text(48, 10), "48:10");
  EXPECT_EQ(Text(19, -3), "19:-3");
}

TEST_F(StampContract, ChangedChoiceCountsAtOnce) {
  ProfileWriteString("Times", "Form", "24", "stamp.ini");
  EXPECT_EQ(StampIsAmPm(), 0);
  EXPECT_EQ(Text(18, 47), "18:47");
  EXPECT_EQ(Text(25, 18), "01:18");
  ProfileWriteString("Times", "Form", "12", "stamp.ini");
  EXPECT_NE(StampIsAmPm(), 0);
  EXPECT_EQ(Text(18, 47), "06:47 p.m.");
}

TEST_F(StampContract, WithoutAChoiceTheRegionDecides) {
  {
    const RegionalForm twelveHours("0");
    EXPECT_NE(StampIsAmPm(), 0);
    EXPECT_EQ(Text(7, 5), "07:05 a.m.");
  }
  const RegionalForm twentyFourHours("1");
  EXPECT_EQ(StampIsAmPm(), 0);
  EXPECT_EQ(Text(7, 5), "07:05");
}

TEST_F(StampContract, UnknownChoiceIsNone) {
  home_.Put("stamp.ini", "[Times]\r\nForm=12h\r\n");
  const RegionalForm twentyFourHours("1");
  EXPECT_EQ(StampIsAmPm(), 0);
}

TEST_F(StampContract, CheckWritesNothing) {
  char commandLine[] = "";
  StampCheck(GetModuleHandleW(nullptr), nullptr, commandLine, SW_SHOWNORMAL);
  EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
}

TEST_F(StampContract, LongestTextFitsTheBuffer) {
  constexpr int32_t kLeast = -2147483647 - 1;
  EXPECT_EQ(Text(kLeast, kLeast), "-2147483648:-2147483648");
}

}  // namespace
