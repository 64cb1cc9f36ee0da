// The finished program by real key presses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/end_to_end/program_driver.h"

using testing::HasSubstr;
namespace fs = std::filesystem;

namespace {

// The program's folder without its pages: one that is missing shows which was asked for.
class WithoutHelp {
 public:
  WithoutHelp() {
    fs::copy(ProgramFolder(), folder_.path(), fs::copy_options::recursive);
    fs::remove_all(folder_.path() / "help");
  }
  const fs::path& path() const { return folder_.path(); }

 private:
  TemporaryFolder folder_;
};

class KeyboardTest : public testing::Test {
 protected:
  // Keys go to the window in the foreground.
  static void BringUp(const ProgramRun& program, HWND window) {
    EXPECT_TRUE(program.Eventually([window] {
      SetForegroundWindow(window);
      return GetForegroundWindow() == window;
    }));
  }
  static void Press(BYTE key) {
    keybd_event(key, 0, 0, 0);
    keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
  }

  // program: one without its pages.
  static void ExpectHelp(const ProgramRun& program, HWND window, const char* page) {
    BringUp(program, window);
    Press(VK_F1);
    const HWND box = program.WaitForDialog("Times / Readings");
    EXPECT_THAT(TextOf(GetDlgItem(box, 0xFFFF)), HasSubstr(page));
    EXPECT_EQ(GetWindow(box, GW_OWNER), window) << page;
    PostMessageA(box, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(program.Eventually([&] { return !IsWindow(box) && IsWindowEnabled(window); })) << page;
  }

  static void PressWithShift(BYTE key) {
    keybd_event(VK_SHIFT, 0, 0, 0);
    Press(key);
    keybd_event(VK_SHIFT, 0, KEYEVENTF_KEYUP, 0);
  }
  static void Type(const char* digits) {
    for (const char* digit = digits; *digit; ++digit) Press(static_cast<BYTE>(*digit));
  }

  TemporaryFolder settings_;
};

}  // namespace

// F1 becomes a request for help only when it comes from the keyboard.
TEST_F(KeyboardTest, TheHelpKeyOpensThePageOfTheViewOrTheDialog) {
  const WithoutHelp folder;
  const ProgramRun program(folder.path(), settings_.path());
  program.WaitForDocuments(1);
  const HWND frame = program.WaitForTopLevel("ShabbatMain");
  ExpectHelp(program, frame, "shabbat_times.html");
  program.PostCommand(1112);
  EXPECT_TRUE(program.Eventually([&] { return IsWindowVisible(GetDlgItem(program.WaitForDocuments(1)[0], 4)) != 0; }));
  ExpectHelp(program, frame, "zmanim.html");
  // Dialogs of the program's own, and one of each library that has any.
  struct Case {
    unsigned command;
    const char* title;
    const char* page;
  };
  const Case dialogs[] = {{1003, "Shabbat Time Preferences", "shabbat_times.html"},
                          {1002, "Select Range", "index.html"},
                          {1001, "Select Location", "places.html"},
                          {1011, "Readings", "readings.html"},
                          {1015, "Language of Readings", "readings.html"},
                          {1014, "Zmanim Selection", "zmanim.html"},
                          {1135, "Daf Yomi List", "persons.html"},
                          {1137, "Bar and Bat Mitzvah", "persons.html"},
                          {1016, "Custom Candle-Lighting Times", "shabbat_times.html"},
                          {1107, "Occasions of the Year - Aachen", "occasions.html"},
                          {1108, "Occasions: What Is Shown", "occasions.html"},
                          {1017, "Form of Times", "shabbat_times.html"}};
  for (const auto& [command, title, page] : dialogs) {
    program.PostCommand(command);
    const HWND dialog = program.WaitForDialog(title);
    ExpectHelp(program, dialog, page);
    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(program.Eventually([&] { return !IsWindow(dialog); })) << title;
  }
}

TEST_F(KeyboardTest, TheHelpKeyOpensThePageOfADialogThatALibrarysDialogOpens) {
  constexpr int kPrint = 112;
  constexpr int kSave = 113;
  constexpr int kWhatIsShown = 114;
  const WithoutHelp folder;
  const ProgramRun program(folder.path(), settings_.path());
  program.WaitForDocuments(1);
  program.PostCommand(1107);
  const HWND window = program.WaitForDialog("Occasions of the Year - Aachen");
  const std::pair<int, const char*> dialogs[] = {
      {kPrint, "Print Occasions"}, {kSave, "Save Occasions"}, {kWhatIsShown, "Occasions: What Is Shown"}};
  for (const auto& [button, title] : dialogs) {
    Click(window, button);
    const HWND dialog = program.WaitForDialog(title);
    ExpectHelp(program, dialog, "occasions.html");
    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(program.Eventually([&] { return !IsWindow(dialog) && IsWindowEnabled(window); })) << title;
  }
  ExpectHelp(program, window, "occasions.html");
}

TEST_F(KeyboardTest, AMenuCommandIsReachedByItsLettersAndEscapeLeavesItsDialog) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  BringUp(program, program.WaitForTopLevel("ShabbatMain"));
  keybd_event(VK_MENU, 0, 0, 0);
  Press('T');
  keybd_event(VK_MENU, 0, KEYEVENTF_KEYUP, 0);
  Press('R');
  const HWND dialog = program.WaitForDialog("Select Range");
  BringUp(program, dialog);
  Press(VK_ESCAPE);
  EXPECT_TRUE(program.Eventually([&] { return !IsWindow(dialog); }));
}

// Aachen, the place of the first document: the sunset of 22 June 2027 by PyEphem (see tools/sun_reference.py).
TEST_F(KeyboardTest, TheSunsetOfADayIsFoundWithoutAMouse) {
  constexpr unsigned kSunsetOfADay = 1004;
  constexpr int kDay = 101;
  constexpr int kMonth = 103;
  constexpr int kYear = 105;
  constexpr int kTime = 107;
  WriteFileText(settings_.path() / "stamp.ini", "[Times]\r\nForm=24\r\n");
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  program.PostCommand(kSunsetOfADay);
  const HWND dialog = program.WaitForDialog("Sunset time of a day");
  BringUp(program, dialog);
  const auto text = [dialog](int control) { return TextOf(GetDlgItem(dialog, control)); };
  const auto expectDate = [&](const std::string& date) {
    EXPECT_TRUE(program.Eventually([&] { return text(kDay) + "." + text(kMonth) + "." + text(kYear) == date; }))
        << text(kDay) << "." << text(kMonth) << "." << text(kYear);
  };
  const auto tab = [](int times) {
    for (int i = 0; i < times; ++i) Press(VK_TAB);
  };
  Type("22");  // each field is selected as it gets the focus, and has two arrows behind it
  tab(3);
  Type("6");
  tab(3);
  Type("2027");
  expectDate("22.6.2027");
  EXPECT_TRUE(program.Eventually([&] { return text(kTime) == "21:53"; })) << text(kTime);
  tab(1);
  Press(VK_SPACE);  // the year's upper arrow
  expectDate("22.6.2028");
  tab(1);
  Press(VK_SPACE);
  expectDate("22.6.2027");
  PressWithShift(VK_TAB);
  PressWithShift(VK_TAB);
  Press(VK_DOWN);
  expectDate("22.6.2026");
  Type("20");
  EXPECT_TRUE(program.Eventually([&] { return text(kYear) == "20" && text(kTime).empty(); })) << text(kTime);
  Press(VK_ESCAPE);
  EXPECT_TRUE(program.Eventually([&] { return !IsWindow(dialog); }));
  EXPECT_EQ(program.WaitForDocuments(1).size(), 1u);
}
