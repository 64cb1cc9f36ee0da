// The finished program by real key presses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
  program.PostCommand(1003);
  expectHelp(program.WaitForDialog("Shabbat Time Preferences"));
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
