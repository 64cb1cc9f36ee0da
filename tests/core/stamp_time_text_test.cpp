#include <gtest/gtest.h>

#include <limits>

#include "libraries/stamp/stamp_core.h"

namespace stamp {
namespace {

TEST(StampTimeText, TwentyFourHourForm) {
  EXPECT_EQ(TimeText(18, 47, Form::kTwentyFourHours), "18:47");
  EXPECT_EQ(TimeText(0, 0, Form::kTwentyFourHours), "00:00");
  EXPECT_EQ(TimeText(7, 5, Form::kTwentyFourHours), "07:05");
  EXPECT_EQ(TimeText(23, 59, Form::kTwentyFourHours), "23:59");
}

TEST(StampTimeText, TwelveHourForm) {
  EXPECT_EQ(TimeText(18, 47, Form::kTwelveHours), "06:47 p.m.");
  EXPECT_EQ(TimeText(7, 5, Form::kTwelveHours), "07:05 a.m.");
  EXPECT_EQ(TimeText(11, 59, Form::kTwelveHours), "11:59 a.m.");
  EXPECT_EQ(TimeText(13, 0, Form::kTwelveHours), "01:00 p.m.");
  EXPECT_EQ(TimeText(23, 59, Form::kTwelveHours), "11:59 p.m.");
}

TEST(StampTimeText, MidnightAndNoonAreTwelve) {
  EXPECT_EQ(TimeText(0, 0, Form::kTwelveHours), "12:00 a.m.");
  EXPECT_EQ(TimeText(0, 30, Form::kTwelveHours), "12:30 a.m.");
  EXPECT_EQ(TimeText(12, 0, Form::kTwelveHours), "12:00 p.m.");
  EXPECT_EQ(TimeText(12, 59, Form::kTwelveHours), "12:59 p.m.");
}

TEST(StampTimeText, EveryTimeFillsItsColumn) {
  for (int hour = 0; hour <= 47; ++hour) {
    for (int minute = 0; minute <= 59; ++minute) {
      ASSERT_EQ(TimeText(hour, minute, Form::kTwentyFourHours).size(), 5u);
      ASSERT_EQ(TimeText(hour, minute, Form::kTwelveHours).size(), 10u);
    }
  }
}

// The end of Shabbat of 30.5.2026 in Helsinki by 8.5 degrees stands as 25:18 in the program's list.
TEST(StampTimeText, HoursUpTo47AreTheNextDays) {
  EXPECT_EQ(TimeText(25, 18, Form::kTwentyFourHours), "01:18");
  EXPECT_EQ(TimeText(25, 18, Form::kTwelveHours), "01:18 a.m.");
  EXPECT_EQ(TimeText(24, 0, Form::kTwentyFourHours), "00:00");
  EXPECT_EQ(TimeText(24, 0, Form::kTwelveHours), "12:00 a.m.");
  EXPECT_EQ(TimeText(36, 30, Form::kTwelveHours), "12:30 p.m.");
  EXPECT_EQ(TimeText(47, 59, Form::kTwentyFourHours), "23:59");
  EXPECT_EQ(TimeText(47, 59, Form::kTwelveHours), "11:59 p.m.");
}

TEST(StampTimeText, OtherNumbersArePrintedAsTheyStand) {
  for (const Form form : {Form::kTwentyFourHours, Form::kTwelveHours}) {
    EXPECT_EQ(TimeText(48, 5, form), "48:05");
    EXPECT_EQ(TimeText(25, -3, form), "25:-3");
    EXPECT_EQ(TimeText(25, 60, form), "25:60");
    EXPECT_EQ(TimeText(19, -3, form), "19:-3");
    EXPECT_EQ(TimeText(-1, 30, form), "-1:30");
    EXPECT_EQ(TimeText(5, 60, form), "05:60");
    EXPECT_EQ(TimeText(1000, 0, form), "1000:00");
    constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
    EXPECT_EQ(TimeText(kLeast, kLeast, form), "-2147483648:-2147483648");
  }
}

TEST(StampForm, IsTheUsersChoiceElseTheRegions) {
  for (const Form regional : {Form::kTwentyFourHours, Form::kTwelveHours}) {
    EXPECT_EQ(ChosenForm("12", regional), Form::kTwelveHours);
    EXPECT_EQ(ChosenForm("24", regional), Form::kTwentyFourHours);
    for (const char* other : {"", "1", "120", "12h", "am"}) EXPECT_EQ(ChosenForm(other, regional), regional) << other;
  }
}

}  // namespace
}  // namespace stamp
