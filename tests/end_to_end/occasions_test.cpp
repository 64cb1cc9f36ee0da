// The occasions of the year in the finished program, with their library and without it.
#include <windows.h>

#include <commctrl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "resources/ids.h"
#include "tests/end_to_end/command_steps.h"
#include "tests/end_to_end/program_driver.h"

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
namespace fs = std::filesystem;

namespace {

constexpr char kWindow[] = "Occasions of the Year - Aachen";
constexpr char kShownDialog[] = "Occasions: What Is Shown";
constexpr int kList = 107;
constexpr int kDays = IDC_DOCUMENT_FIRST_KIND + 2;

// The program's folder without the library.
class WithoutOccasions {
 public:
  WithoutOccasions() {
    fs::copy(ProgramFolder(), folder_.path(), fs::copy_options::recursive);
    fs::remove(folder_.path() / "occasions.dll");
  }
  const fs::path& path() const { return folder_.path(); }

 private:
  TemporaryFolder folder_;
};

class OccasionsEndToEndTest : public testing::Test {
 protected:
  void SetUp() override { WriteFileText(settings_.path() / "stamp.ini", "[Times]\r\nForm=24\r\n"); }

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
  // Opens a menu by its letter and takes a command by another.
  static void Choose(const ProgramRun& program, BYTE menu, BYTE command) {
    BringUp(program, program.WaitForTopLevel("ShabbatMain"));
    keybd_event(VK_MENU, 0, 0, 0);
    Press(menu);
    keybd_event(VK_MENU, 0, KEYEVENTF_KEYUP, 0);
    Press(command);
  }
  static bool IsGrey(const ProgramRun& program, unsigned id) {
    const HWND frame = program.WaitForTopLevel("ShabbatMain");
    SendMessageA(frame, WM_INITMENU, reinterpret_cast<WPARAM>(GetMenu(frame)), 0);
    return (GetMenuState(GetMenu(frame), id, MF_BYCOMMAND) & MF_GRAYED) != 0;
  }

  // A document's days as a file for spreadsheets.
  std::string SavedDays(const ProgramRun& program) {
    program.PostCommand(IDM_SAVE_DOCUMENT);
    const HWND dialog = program.WaitForDialog("Save as document");
    SendDlgItemMessageA(dialog, kDays, BM_CLICK, 0, 0);
    Answer(dialog, IDOK);
    SaveAs(program, folder_.path() / "days.csv");
    EXPECT_TRUE(program.Eventually([&] { return !IsWindow(dialog); }));
    return ReadFileText(folder_.path() / "days.csv");
  }

  TemporaryFolder settings_;
  TemporaryFolder folder_;
};

}  // namespace

TEST_F(OccasionsEndToEndTest, TheirWindowOpensFromTheMenuByKeyboardShowsRowsAndCloses) {
  const ProgramRun program(ProgramFolder(), settings_.path());
  ASSERT_NE(OpenRange(program, "5.1.2007", "6.1.2007"), nullptr);
  Choose(program, 'T', 'O');
  const HWND window = program.WaitForDialog(kWindow);
  ASSERT_NE(window, nullptr);
  EXPECT_FALSE(IsWindowEnabled(program.WaitForTopLevel("ShabbatMain")));
  EXPECT_TRUE(program.Eventually([&] { return SendDlgItemMessageA(window, kList, LVM_GETITEMCOUNT, 0, 0) > 0; }));
  BringUp(program, window);
  Press(VK_ESCAPE);
  EXPECT_TRUE(program.Eventually([&] { return !IsWindow(window); }));
  EXPECT_TRUE(program.Eventually([&] { return IsWindowEnabled(program.WaitForTopLevel("ShabbatMain")) != FALSE; }));
  EXPECT_EQ(program.WaitForDocuments(2).size(), 2u);
}

TEST_F(OccasionsEndToEndTest, WhatIsShownIsAskedForFromTheMenuByKeyboard) {
  const ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  Choose(program, 'S', 'W');
  const HWND dialog = program.WaitForDialog(kShownDialog);
  ASSERT_NE(dialog, nullptr);
  BringUp(program, dialog);
  Press(VK_ESCAPE);
  EXPECT_TRUE(program.Eventually([&] { return !IsWindow(dialog); }));
  EXPECT_FALSE(fs::exists(settings_.path() / "occasions.ini"));
}

// 16:27 and 17:31 are the Shabbat times of the same document, of which another test knows: they stand in their own
// columns alone. 31 December 2006 is 10 Tevet (Hebcal).
TEST_F(OccasionsEndToEndTest, DaysOfADocumentHaveThem) {
  const ProgramRun program(ProgramFolder(), settings_.path());
  ASSERT_NE(OpenRange(program, "31.12.2006", "6.1.2007"), nullptr);
  EXPECT_THAT(SavedDays(program), AllOf(HasSubstr(",Occasions\r\n"), HasSubstr("Fast of 10 Tevet: "),
                                        HasSubstr(",16:27,"), HasSubstr(",17:31,"), Not(HasSubstr("Shabbat: "))));
}

TEST_F(OccasionsEndToEndTest, TheProgramDoesWithoutTheLibrary) {
  const WithoutOccasions folder;
  ProgramRun program(folder.path(), settings_.path());
  ASSERT_NE(OpenRange(program, "5.1.2007", "6.1.2007"), nullptr);
  EXPECT_TRUE(IsGrey(program, IDM_OCCASIONS));
  EXPECT_TRUE(IsGrey(program, IDM_OCCASIONS_SHOWN));
  program.PostCommand(IDM_OCCASIONS);  // as a shortcut of someone else's might send it
  program.PostCommand(IDM_OCCASIONS_SHOWN);
  EXPECT_THAT(SavedDays(program), AllOf(HasSubstr(",End of Shabbat\r\n"), Not(HasSubstr("Occasions"))));
  EXPECT_FALSE(program.HasDialog(kWindow));
  PostMessageA(program.WaitForTopLevel("ShabbatMain"), WM_CLOSE, 0, 0);
  EXPECT_EQ(program.WaitForExit(), 0u);
}

// One that has another program's name, or that a disk has cut.
TEST_F(OccasionsEndToEndTest, TheProgramDoesWithoutALibraryThatIsNone) {
  const WithoutOccasions folder;
  WriteFileText(folder.path() / "occasions.dll", "not a library");
  const ProgramRun program(folder.path(), settings_.path());
  program.WaitForDocuments(1);
  EXPECT_TRUE(IsGrey(program, IDM_OCCASIONS));
  EXPECT_TRUE(IsGrey(program, IDM_OCCASIONS_SHOWN));
}

TEST_F(OccasionsEndToEndTest, TheProgramDoesWithoutEntriesThatALibraryLacks) {
  const WithoutOccasions folder;
  fs::copy_file(ProgramFolder() / "folio.dll", folder.path() / "occasions.dll");
  const ProgramRun program(folder.path(), settings_.path());
  ASSERT_NE(OpenRange(program, "5.1.2007", "6.1.2007"), nullptr);
  EXPECT_TRUE(IsGrey(program, IDM_OCCASIONS));
  EXPECT_THAT(SavedDays(program), Not(HasSubstr("Occasions")));
}

TEST_F(OccasionsEndToEndTest, TheProgramEndsWithCodeNoughtAfterTheyWereShown) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  program.PostCommand(IDM_OCCASIONS);
  const HWND window = program.WaitForDialog(kWindow);
  Answer(window, IDCANCEL);
  EXPECT_TRUE(program.Eventually([&] { return !IsWindow(window); }));
  PostMessageA(program.WaitForTopLevel("ShabbatMain"), WM_CLOSE, 0, 0);
  EXPECT_EQ(program.WaitForExit(), 0u);
}
