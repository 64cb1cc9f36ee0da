// The finished program from its start to its first document and its end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <optional>

#include "companion/solar.h"
#include "tests/end_to_end/program_driver.h"
#include "tests/end_to_end/recorded_drawing.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
namespace fs = std::filesystem;

namespace {

using namespace std::chrono;

struct Title {
  std::string place;
  sys_days start;
  sys_days end;
};

// "Aachen (21.11.2026 - 22.12.2026)"
Title ReadTitle(const std::string& text) {
  int startDay, startMonth, startYear, endDay, endMonth, endYear;
  const std::size_t bracket = text.rfind(" (");
  EXPECT_NE(bracket, std::string::npos) << text;
  EXPECT_EQ(std::sscanf(text.c_str() + bracket, " (%d.%d.%d - %d.%d.%d)", &startDay, &startMonth, &startYear, &endDay,
                        &endMonth, &endYear),
            6)
      << text;
  return {text.substr(0, bracket), sys_days(year(startYear) / startMonth / startDay),
          sys_days(year(endYear) / endMonth / endDay)};
}

std::vector<std::string> DrawnTexts(const fs::path& settings) {
  std::vector<std::string> texts;
  for (const RecordedDraw& draw : ReadDraws(settings)) texts.push_back(draw.text);
  return texts;
}

class FirstDocumentTest : public testing::Test {
 protected:
  void SetUp() override { Set("stamp.ini", "[Times]\r\nForm=24\r\n"); }
  void Set(const char* file, const std::string& text) { WriteFileText(settings_.path() / file, text); }
  TemporaryFolder settings_;
};

}  // namespace

TEST_F(FirstDocumentTest, ShowsAachenForTodayAndThe31DaysAfterIt) {
  ProgramRun program(ProgramFolder(), settings_.path());
  const HWND frame = program.WaitForTopLevel("ShabbatMain");
  EXPECT_EQ(TextOf(frame), "Times / Readings");
  const auto documents = program.WaitForDocuments(1);
  ASSERT_EQ(documents.size(), 1u);
  const Title title = ReadTitle(TextOf(documents[0]));
  EXPECT_EQ(title.place, "Aachen");
  EXPECT_EQ(title.end - title.start, days(31));
  EXPECT_EQ(reinterpret_cast<INT_PTR>(GetPropA(documents[0], "Latitude")), 5047);
}

TEST_F(FirstDocumentTest, ShowsTheConfiguredPlace) {
  Set("almanac13.ini", "[Preferences]\r\nDefaultLocation=Jerusalem\r\n");
  ProgramRun program(ProgramFolder(), settings_.path());
  const auto documents = program.WaitForDocuments(1);
  ASSERT_EQ(documents.size(), 1u);
  EXPECT_THAT(TextOf(documents[0]), StartsWith("Jerusalem ("));
}

TEST_F(FirstDocumentTest, ShowsAUserPlaceOfTheConfiguredName) {
  Set("almanac13.ini", "[Preferences]\r\nDefaultLocation=Jerusalem\r\n");
  Set("shabbat2.ini", "[Locations]\r\nJerusalem=Available\r\n");
  Set("shabloc2.ini",
      "[Jerusalem]\r\nLatitudeDegrees=33\r\nLatitudeHours=52\r\nLatitudeFlag=1\r\nLongitudeDegrees=151\r\n"
      "LongitudeHours=12\r\nLongitudeFlag=0\r\nTimeZone=10\r\nTimeZoneMin=0\r\n");
  ProgramRun program(ProgramFolder(), settings_.path());
  const auto documents = program.WaitForDocuments(1);
  ASSERT_EQ(documents.size(), 1u);
  EXPECT_TRUE(program.Eventually([&] { return reinterpret_cast<INT_PTR>(GetPropA(documents[0], "TimeZone")) == 10; }));
  EXPECT_EQ(reinterpret_cast<INT_PTR>(GetPropA(documents[0], "Latitude")), -3352);
}

TEST_F(FirstDocumentTest, ListsEveryFridayWithTheTimesOfTheSolarLibrary) {
  TemporaryFolder program;
  MakeRecordingProgram(program.path());
  Set("shabbat2.ini", "[Shabbat]\r\nCandleLighting=20\r\nEnd=50\r\n");
  Title title;
  std::vector<std::string> texts;
  {
    ProgramRun run(program.path(), settings_.path());
    const auto documents = run.WaitForDocuments(1);
    ASSERT_EQ(documents.size(), 1u);
    title = ReadTitle(TextOf(documents[0]));
    // Three titles, and three texts for each of the four or five Fridays.
    EXPECT_TRUE(run.Eventually([&] { return (texts = DrawnTexts(settings_.path())).size() >= 3 + 4 * 3; }));
    PostMessageA(run.WaitForTopLevel("ShabbatMain"), WM_CLOSE, 0, 0);
    EXPECT_EQ(run.WaitForExit(), 0u);
  }
  texts = DrawnTexts(settings_.path());

  const HMODULE solar =
      LoadLibraryExA((ProgramFolder() / "solar.dll").string().c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  ASSERT_NE(solar, nullptr);
  const auto sunsetOf = reinterpret_cast<decltype(&SolarGetSunsetSunrise)>(
      reinterpret_cast<void*>(GetProcAddress(solar, "SolarGetSunsetSunrise")));
  const auto clock = [&](sys_days date, int minutes) {
    const year_month_day day(date);
    int32_t hour = 0, minute = 0;
    sunsetOf(unsigned(day.day()), unsigned(day.month()), static_cast<uint32_t>(int(day.year())), SOLAR_SUNSET, 5047,
             605, 1, 0, &hour, &minute);
    char text[16];
    const int total = hour * 60 + minute + minutes;
    std::snprintf(text, sizeof text, "%02d:%02d", total / 60, total % 60);
    return std::string(text);
  };

  std::vector<std::string> expected = {"Date", "Candle Lighting", "End of Shabbat"};
  for (sys_days date = title.start; date <= title.end; date += days(1)) {
    if (weekday(date) != Friday) continue;
    const year_month_day day(date);
    char text[16];
    std::snprintf(text, sizeof text, "%02u.%02u.%04d", unsigned(day.day()), unsigned(day.month()), int(day.year()));
    expected.push_back(text);
    expected.push_back(clock(date, -20));
    expected.push_back(clock(date + days(1), 50));
  }
  for (const std::string& text : expected) EXPECT_THAT(texts, testing::Contains(text));
  EXPECT_THAT(texts, testing::Each(testing::AnyOfArray(expected)));
  FreeLibrary(solar);
}

TEST_F(FirstDocumentTest, EndsCleanlyWhenTheFrameIsClosed) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  PostMessageA(program.WaitForTopLevel("ShabbatMain"), WM_CLOSE, 0, 0);
  EXPECT_EQ(program.WaitForExit(), 0u);
}

TEST_F(FirstDocumentTest, EndsByTheExitCommand) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  PostMessageA(program.WaitForTopLevel("ShabbatMain"), WM_COMMAND, 1010, 0);
  EXPECT_EQ(program.WaitForExit(), 0u);
}

TEST_F(FirstDocumentTest, StoresTheLanguageOfZmanimAndKeepsWhatElseTheFileHolds) {
  const fs::path file = settings_.path() / "shab30.ini";
  WriteFileText(file, "; mine\r\n[Settings]\r\nEnableZmanim=0\r\n");
  for (const auto& [command, line] : {std::pair{1018, "Hebrew=1"}, std::pair{1019, "Hebrew=0"}}) {
    ProgramRun program(ProgramFolder(), settings_.path());
    program.WaitForDocuments(1);
    SendMessageA(program.WaitForTopLevel("ShabbatMain"), WM_COMMAND, static_cast<WPARAM>(command), 0);
    EXPECT_THAT(ReadFileText(file), StartsWith("; mine\r\n[Settings]\r\nEnableZmanim=0\r\n"));
    EXPECT_THAT(ReadFileText(file), HasSubstr(line));
  }
}

TEST_F(FirstDocumentTest, TwoCopiesRunSideBySide) {
  ProgramRun first(ProgramFolder(), settings_.path());
  first.WaitForDocuments(1);
  ProgramRun second(ProgramFolder(), settings_.path());
  second.WaitForDocuments(1);
  PostMessageA(first.WaitForTopLevel("ShabbatMain"), WM_CLOSE, 0, 0);
  EXPECT_EQ(first.WaitForExit(), 0u);
  EXPECT_EQ(second.WaitForDocuments(1).size(), 1u);
}

TEST_F(FirstDocumentTest, AUserPlaceInOtherLetterCaseDoesNotHideTheBuiltInOne) {
  Set("shabbat2.ini", "[Locations]\r\nAACHEN=Available\r\n");
  Set("shabloc2.ini", "[AACHEN]\r\nLatitudeDegrees=10\r\n");
  ProgramRun program(ProgramFolder(), settings_.path());
  const auto documents = program.WaitForDocuments(1);
  ASSERT_EQ(documents.size(), 1u);
  EXPECT_THAT(TextOf(documents[0]), StartsWith("Aachen ("));
  EXPECT_TRUE(program.Eventually([&] { return GetPropA(documents[0], "Latitude") != nullptr; }));
  EXPECT_EQ(reinterpret_cast<INT_PTR>(GetPropA(documents[0], "Latitude")), 5047);
}

TEST_F(FirstDocumentTest, PreferencesAreSavedThoughTheSiblingsCopyCannotBeWritten) {
  fs::create_directories(settings_.path() / "almanachlp2.ini");
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  program.PostCommand(1003);
  const HWND dialog = program.WaitForDialog("Shabbat Time Preferences");
  SetText(dialog, 101, "20");
  Click(dialog, IDOK);
  EXPECT_EQ(program.WaitForDocuments(2).size(), 2u);
  EXPECT_THAT(ReadFileText(settings_.path() / "shabbat2.ini"), HasSubstr("CandleLighting=20\r\n"));
}
