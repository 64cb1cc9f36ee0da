#include "companion/ownhours.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <string>

#include "tests/contract/settings_home.h"

namespace {

using Answer = std::array<int32_t, 3>;  // the result, then the two outputs

constexpr int32_t kUntouched = -99;
constexpr Answer kNone = {0, kUntouched, kUntouched};

class OwnHoursContract : public testing::Test {
 protected:
  ~OwnHoursContract() override { OwnHoursDone(&handle_); }

  Answer Ask(const OwnHoursHandle& handle, const char* description, const char* location, uint32_t day = 8) {
    Answer answer = kNone;
    answer[0] = OwnHoursGet(&handle, day, 3, 2024, description, location, &answer[1], &answer[2]);
    return answer;
  }

  SettingsHome home_;
  OwnHoursHandle handle_ = {};
};

TEST_F(OwnHoursContract, AMissingFileIsAnEmptyStore) {
  ASSERT_NE(OwnHoursLoad(&handle_), 0);
  EXPECT_EQ(Ask(handle_, "Shkia", "Jerusalem"), kNone);
  EXPECT_NE(OwnHoursStore(&handle_), 0);
  EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
}

TEST_F(OwnHoursContract, AnswersStoredTimesAndOnlyThose) {
  home_.Put("ownhours.txt", "2024-03-08 17:25 Shkia|Jerusalem\r\ndamaged\r\n2024-03-08 05:01 Shkia|Z\xFCrich\r\n");
  ASSERT_NE(OwnHoursLoad(&handle_), 0);
  EXPECT_EQ(Ask(handle_, "Shkia", "Jerusalem"), (Answer{1, 17, 25}));
  EXPECT_EQ(Ask(handle_, "Shkia", "Z\xFCrich"), (Answer{1, 5, 1}));
  EXPECT_EQ(Ask(handle_, "Shkia", "Jerusalem", 9), kNone);
  EXPECT_EQ(Ask(handle_, "Chatzot", "Jerusalem"), kNone);
  EXPECT_EQ(Ask(handle_, "Shkia", "jerusalem"), kNone);
}

TEST_F(OwnHoursContract, WhatIsSetIsAnsweredAtOnceAndStoredOnDemand) {
  ASSERT_NE(OwnHoursLoad(&handle_), 0);
  EXPECT_NE(OwnHoursSet(&handle_, 8, 3, 2024, "Alot (16.1\xB0)", "Jerusalem", 4, 5), 0);
  EXPECT_EQ(Ask(handle_, "Alot (16.1\xB0)", "Jerusalem"), (Answer{1, 4, 5}));
  EXPECT_FALSE(std::filesystem::exists(home_.Path("ownhours.txt")));
  EXPECT_NE(OwnHoursStore(&handle_), 0);
  EXPECT_EQ(home_.Bytes("ownhours.txt"), "2024-03-08 04:05 Alot (16.1\xB0)|Jerusalem\r\n");

  OwnHoursHandle other = {};
  ASSERT_NE(OwnHoursLoad(&other), 0);
  EXPECT_EQ(Ask(other, "Alot (16.1\xB0)", "Jerusalem"), (Answer{1, 4, 5}));
  OwnHoursDone(&other);
}

TEST_F(OwnHoursContract, ALaterTimeReplacesTheEarlier) {
  home_.Put("ownhours.txt", "# mine\n2024-03-08 17:25 Shkia|Jerusalem\nrubbish\n");
  ASSERT_NE(OwnHoursLoad(&handle_), 0);
  EXPECT_NE(OwnHoursSet(&handle_, 8, 3, 2024, "Shkia", "Jerusalem", 17, 26), 0);
  EXPECT_NE(OwnHoursSet(&handle_, 8, 3, 2024, "Shkia", "Jerusalem", 17, 27), 0);
  EXPECT_EQ(Ask(handle_, "Shkia", "Jerusalem"), (Answer{1, 17, 27}));
  EXPECT_NE(OwnHoursStore(&handle_), 0);
  EXPECT_EQ(home_.Bytes("ownhours.txt"), "# mine\n2024-03-08 17:27 Shkia|Jerusalem\nrubbish\n");
}

TEST_F(OwnHoursContract, WhatOthersStoredMeanwhileStays) {
  OwnHoursHandle other = {};
  ASSERT_NE(OwnHoursLoad(&handle_), 0);
  ASSERT_NE(OwnHoursLoad(&other), 0);
  EXPECT_NE(OwnHoursSet(&other, 8, 3, 2024, "Shkia", "Aachen", 1, 1), 0);
  EXPECT_NE(OwnHoursStore(&other), 0);
  OwnHoursDone(&other);
  EXPECT_EQ(Ask(handle_, "Shkia", "Aachen"), kNone);  // as it stood when it was loaded
  EXPECT_NE(OwnHoursSet(&handle_, 8, 3, 2024, "Shkia", "Jerusalem", 2, 2), 0);
  EXPECT_NE(OwnHoursStore(&handle_), 0);
  EXPECT_EQ(home_.Bytes("ownhours.txt"), "2024-03-08 01:01 Shkia|Aachen\r\n2024-03-08 02:02 Shkia|Jerusalem\r\n");
}

TEST_F(OwnHoursContract, WhatWasStoredIsNotStoredAgain) {
  ASSERT_NE(OwnHoursLoad(&handle_), 0);
  EXPECT_NE(OwnHoursSet(&handle_, 8, 3, 2024, "Shkia", "Jerusalem", 2, 2), 0);
  EXPECT_NE(OwnHoursStore(&handle_), 0);
  home_.Put("ownhours.txt", "# emptied by its owner\n");
  EXPECT_NE(OwnHoursStore(&handle_), 0);
  EXPECT_EQ(home_.Bytes("ownhours.txt"), "# emptied by its owner\n");
}

TEST_F(OwnHoursContract, AFileSavedAsUtf16IsRead) {
  std::string bytes = "\xFF\xFE";
  for (const char c : std::string("2024-03-08 17:55 Shkia|Z\xFCrich\r\n")) bytes.append({c, '\0'});
  home_.Put("ownhours.txt", bytes);
  ASSERT_NE(OwnHoursLoad(&handle_), 0);
  EXPECT_EQ(Ask(handle_, "Shkia", "Z\xFCrich"), (Answer{1, 17, 55}));
}

// A folder of the file's name can neither be read nor written, whoever runs the test.
TEST_F(OwnHoursContract, AFileThatCannotBeReadFailsAndLeavesAHandleThatEverythingAccepts) {
  std::filesystem::create_directories(home_.Path("ownhours.txt"));
  handle_.store = &home_;  // whatever the caller's stack held
  EXPECT_EQ(OwnHoursLoad(&handle_), 0);
  EXPECT_EQ(handle_.store, nullptr);
  EXPECT_EQ(Ask(handle_, "Shkia", "Jerusalem"), kNone);
  EXPECT_EQ(OwnHoursSet(&handle_, 8, 3, 2024, "Shkia", "Jerusalem", 1, 1), 0);
  EXPECT_EQ(OwnHoursStore(&handle_), 0);
  OwnHoursDone(&handle_);
}

TEST_F(OwnHoursContract, AFileThatCannotBeWrittenKeepsTheTimesForAnotherTry) {
  ASSERT_NE(OwnHoursLoad(&handle_), 0);
  EXPECT_NE(OwnHoursSet(&handle_, 8, 3, 2024, "Shkia", "Jerusalem", 1, 1), 0);
  std::filesystem::create_directories(home_.Path("ownhours.txt"));
  EXPECT_EQ(OwnHoursStore(&handle_), 0);
  std::filesystem::remove(home_.Path("ownhours.txt"));
  EXPECT_NE(OwnHoursStore(&handle_), 0);
  EXPECT_EQ(home_.Bytes("ownhours.txt"), "2024-03-08 01:01 Shkia|Jerusalem\r\n");
}

TEST_F(OwnHoursContract, WhatIsNoDateOrTimeCannotBeKept) {
  ASSERT_NE(OwnHoursLoad(&handle_), 0);
  EXPECT_EQ(OwnHoursSet(&handle_, 29, 2, 2023, "a", "b", 1, 1), 0);
  EXPECT_EQ(OwnHoursSet(&handle_, 8, 3, 10000, "a", "b", 1, 1), 0);
  EXPECT_EQ(OwnHoursSet(&handle_, 8, 3, 2024, "", "b", 1, 1), 0);
  EXPECT_EQ(OwnHoursSet(&handle_, 8, 3, 2024, nullptr, "b", 1, 1), 0);
  EXPECT_EQ(OwnHoursSet(&handle_, 8, 3, 2024, "a", nullptr, 1, 1), 0);
  EXPECT_EQ(OwnHoursSet(&handle_, 8, 3, 2024, "a", "b", 24, 1), 0);
  EXPECT_EQ(OwnHoursSet(&handle_, 8, 3, 2024, "a", "b", 1, -1), 0);
  EXPECT_NE(OwnHoursStore(&handle_), 0);
  EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
}

TEST_F(OwnHoursContract, NullArgumentsAnswerNothing) {
  home_.Put("ownhours.txt", "2024-03-08 17:25 a|b\n");
  ASSERT_NE(OwnHoursLoad(&handle_), 0);
  int32_t number = kUntouched;
  EXPECT_EQ(OwnHoursGet(&handle_, 8, 3, 2024, nullptr, "b", &number, &number), 0);
  EXPECT_EQ(OwnHoursGet(&handle_, 8, 3, 2024, "a", nullptr, &number, &number), 0);
  EXPECT_EQ(OwnHoursGet(&handle_, 8, 3, 2024, "a", "b", nullptr, &number), 0);
  EXPECT_EQ(OwnHoursGet(&handle_, 8, 3, 2024, "a", "b", &number, nullptr), 0);
  EXPECT_EQ(OwnHoursGet(nullptr, 8, 3, 2024, "a", "b", &number, &number), 0);
  EXPECT_EQ(number, kUntouched);
  EXPECT_EQ(OwnHoursLoad(nullptr), 0);
  EXPECT_EQ(OwnHoursSet(nullptr, 8, 3, 2024, "a", "b", 1, 1), 0);
  EXPECT_EQ(OwnHoursStore(nullptr), 0);
  OwnHoursDone(nullptr);
}

}  // namespace
