// Bar and bat mitzvah in the finished program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/end_to_end/command_steps.h"
#include "tests/end_to_end/program_driver.h"

using testing::HasSubstr;

namespace {

constexpr unsigned kBarMitzvahButton = 13;
constexpr unsigned kBarMitzvah = 1137;
constexpr char kCaption[] = "Bar and Bat Mitzvah";
constexpr int kDay = 101;
constexpr int kYear = 103;
constexpr int kResult = 112;
constexpr int kName = 113;
constexpr int kTakeOver = 114;

}  // namespace

TEST(BarMitzvahEndToEnd, TheButtonOpensItOverTheFrameAndItTakesABirthdayOver) {
  const TemporaryFolder settings;
  WriteFileText(settings.path() / "lections.ini", "[Readings]\r\nLand=Israel\r\nCustom=Ashkenazi\r\n");
  ProgramRun program(ProgramFolder(), settings.path());
  const HWND document = program.WaitForDocuments(1).at(0);
  const HWND frame = program.WaitForTopLevel("ShabbatMain");
  PostMessageA(document, WM_COMMAND, kBarMitzvahButton, 0);
  const HWND dialog = program.WaitForDialog(kCaption);
  EXPECT_FALSE(IsWindowEnabled(frame)) << "a second one cannot be opened over it";
  EXPECT_EQ(GetWindow(dialog, GW_OWNER), frame);
  SetText(dialog, kYear, "2007");
  SetText(dialog, kDay, "1");
  EXPECT_TRUE(program.Eventually(
      [dialog] { return TextOf(GetDlgItem(dialog, kResult)).find("Bar mitzvah at 13: ") != std::string::npos; }));
  SetText(dialog, kName, "Sara");
  Answer(dialog, kTakeOver);
  // The box has the dialog's caption.
  EXPECT_TRUE(program.Eventually([dialog] { return !IsWindowEnabled(dialog); }));
  const HWND box = program.WaitForDialog(kCaption);
  EXPECT_THAT(TextOf(GetDlgItem(box, 0xFFFF)), HasSubstr("Sara, born on "));
  Answer(box, IDOK);
  EXPECT_THAT(ReadFileText(settings.path() / "persons.txt"), HasSubstr("|Sara|"));
  EXPECT_TRUE(program.Eventually([box] { return !IsWindow(box); }));
  Answer(dialog, IDCANCEL);
  EXPECT_TRUE(program.Eventually([&] { return !IsWindow(dialog) && IsWindowEnabled(frame); }));

  program.PostCommand(kBarMitzvah);
  const HWND again = program.WaitForDialog(kCaption);
  EXPECT_EQ(TextOf(GetDlgItem(again, kYear)), "2007") << "it opens as it was closed";
  Answer(again, IDCANCEL);
  EXPECT_TRUE(program.Eventually([&] { return !IsWindow(again); }));
}
