// The finished program by real key presses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

#include "tests/end_to_end/program_driver.h"

using testing::HasSubstr;
namespace fs = std::filesystem;

namespace {

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

  TemporaryFolder settings_;
};

}  // namespace

// F1 becomes a request for help only when it comes from the keyboard. A page that is missing shows which was asked for.
TEST_F(KeyboardTest, TheHelpKeyAsksForHelpInTheFrameAndInADialog) {
  TemporaryFolder folder;
  fs::copy(ProgramFolder(), folder.path(), fs::copy_options::recursive);
  fs::remove_all(folder.path() / "help");
  ProgramRun program(folder.path(), settings_.path());
  program.WaitForDocuments(1);
  const auto expectHelp = [&](HWND window) {
    BringUp(program, window);
    Press(VK_F1);
    const HWND box = program.WaitForDialog("Times / Readings");
    EXPECT_THAT(TextOf(GetDlgItem(box, 0xFFFF)), HasSubstr("index.html"));
    PostMessageA(box, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(program.Eventually([&] { return !IsWindow(box); }));
  };
  expectHelp(program.WaitForTopLevel("ShabbatMain"));
  // A dialog of the program's own, and one of each library that has any.
  const std::pair<unsigned, const char*> dialogs[] = {{1003, "Shabbat Time Preferences"},
                                                      {1001, "Select Location"},
                                                      {1011, "Readings"},
                                                      {1015, "Language of Readings"},
                                                      {1014, "Zmanim Selection"},
                                                      {1016, "Custom Candle-Lighting Times"},
                                                      {1017, "Form of Times"}};
  for (const auto& [command, title] : dialogs) {
    program.PostCommand(command);
    const HWND dialog = program.WaitForDialog(title);
    expectHelp(dialog);
    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(program.Eventually([&] { return !IsWindow(dialog); })) << title;
  }
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
