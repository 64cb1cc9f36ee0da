#include "companion/candles.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/contract/settings_home.h"

namespace {

using Answer = std::array<int32_t, 5>;  // the result, then the four outputs

constexpr int32_t kUntouched = -99;
constexpr Answer kNone = {0, kUntouched, kUntouched, kUntouched, kUntouched};

Answer Ask(const char* location, uint32_t day, uint32_t month, uint32_t year) {
  Answer answer = kNone;
  answer[0] = CandlesGetTime(location, day, month, year, &answer[1], &answer[2], &answer[3], &answer[4]);
  return answer;
}

class CandlesContract : public testing::Test {
 protected:
  SettingsHome home_;
};

TEST_F(CandlesContract, WithoutAStoreThereAreNoTimes) {
  EXPECT_EQ(Ask("Jerusalem", 8, 3, 2024), kNone);
  EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
}

TEST_F(CandlesContract, AnswersStoredTimesAndOnlyThose) {
  home_.Put("candles.txt", "2024-03-08 17:25 18:31 Jerusalem\r\ndamaged\r\n2024-03-08 17:55 19:02 Z\xFCrich\r\n");
  EXPECT_EQ(Ask("Jerusalem", 8, 3, 2024), (Answer{1, 17, 25, 18, 31}));
  EXPECT_EQ(Ask("Z\xFCrich", 8, 3, 2024), (Answer{1, 17, 55, 19, 2}));
  EXPECT_EQ(Ask("jerusalem", 8, 3, 2024), kNone);
  EXPECT_EQ(Ask("Jerusalem", 15, 3, 2024), kNone);
  EXPECT_EQ(Ask("Jerusalem", 8, 3, 2025), kNone);
}

TEST_F(CandlesContract, StoreSavedAsUtf16IsRead) {
  std::string bytes = "\xFF\xFE";
  for (const char c : std::string("2024-03-08 17:55 19:02 Z\xFCrich\r\n")) bytes.append({c, '\0'});
  home_.Put("candles.txt", bytes);
  EXPECT_EQ(Ask("Z\xFCrich", 8, 3, 2024), (Answer{1, 17, 55, 19, 2}));
}

TEST_F(CandlesContract, ChangedStoreIsSeen) {
  home_.Put("candles.txt", "2024-03-08 17:25 18:31 a\n");
  EXPECT_EQ(Ask("a", 8, 3, 2024), (Answer{1, 17, 25, 18, 31}));
  home_.Put("candles.txt", "2024-03-08 07:25 08:31 a\n\n");
  WaitUntilSeen();
  EXPECT_EQ(Ask("a", 8, 3, 2024), (Answer{1, 7, 25, 8, 31}));
  std::filesystem::remove(home_.Path("candles.txt"));
  WaitUntilSeen();
  EXPECT_EQ(Ask("a", 8, 3, 2024), kNone);
}

TEST_F(CandlesContract, OtherHomeHasOtherTimes) {
  home_.Put("candles.txt", "2024-03-08 17:25 18:31 a\n");
  EXPECT_EQ(Ask("a", 8, 3, 2024), (Answer{1, 17, 25, 18, 31}));
  const SettingsHome other;
  EXPECT_EQ(Ask("a", 8, 3, 2024), kNone);
}

TEST_F(CandlesContract, NullArgumentsAnswerNothing) {
  home_.Put("candles.txt", "2024-03-08 17:25 18:31 a\n");
  EXPECT_EQ(Ask(nullptr, 8, 3, 2024), kNone);
  int32_t hour = kUntouched;
  EXPECT_EQ(CandlesGetTime("a", 8, 3, 2024, &hour, nullptr, &hour, &hour), 0);
  EXPECT_EQ(hour, kUntouched);
}

}  // namespace
