// The list of Daf Yomi in the finished program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/end_to_end/command_steps.h"
#include "tests/end_to_end/program_driver.h"

using testing::HasSubstr;
namespace fs = std::filesystem;

namespace {

constexpr unsigned kDafYomiButton = 14;
constexpr unsigned kDafYomi = 1135;
constexpr int kClose = 1;
constexpr int kCopy = 3;
constexpr int kSave = 4;
constexpr int kList = 101;

// Pages by @hebcal/learning 6.11.3, Jewish dates by ICU 78.
constexpr char kTwoDays[] =
    "04.01.2020 (7 Tevet 5780): Niddah 73 (cycle 13)\r\n"
    "05.01.2020 (8 Tevet 5780): Berachot 2 (cycle 14)\r\n";

class DafYomiEndToEndTest : public testing::Test {
 protected:
  static LRESULT Count(HWND dialog) { return SendDlgItemMessageA(dialog, kList, LB_GETCOUNT, 0, 0); }
  static std::string Line(HWND dialog, LRESULT index) {
    wchar_t line[256] = L"";
    SendDlgItemMessageW(dialog, kList, LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(line));
    return fs::path(line).string();
  }
  static HWND FocusIn(HWND window) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
    return info.hwndFocus;
  }
  static std::string Clipboard(const ProgramRun& program) {
    EXPECT_TRUE(program.Eventually([] { return OpenClipboard(nullptr) != FALSE; }));
    std::string text;
    if (const HANDLE block = GetClipboardData(CF_TEXT)) {
      text = static_cast<const char*>(GlobalLock(block));
      GlobalUnlock(block);
    }
    CloseClipboard();
    return text;
  }
  static void Confirm(const ProgramRun& program, const char* text) {
    const HWND box = program.WaitForDialog("Times/Readings");
    EXPECT_THAT(TextOf(GetDlgItem(box, 0xFFFF)), HasSubstr(text));
    Answer(box, IDOK);
    EXPECT_TRUE(program.Eventually([box] { return !IsWindow(box); }));
  }
  static void Close(const ProgramRun& program, HWND dialog) {
    Answer(dialog, kClose);
    EXPECT_TRUE(program.Eventually([dialog] { return !IsWindow(dialog); }));
  }

  TemporaryFolder settings_;
  TemporaryFolder exports_;
};

}  // namespace

TEST_F(DafYomiEndToEndTest, TheButtonListsTheDaysAndTheListIsCopiedAndSaved) {
  ProgramRun program(ProgramFolder(), settings_.path());
  const HWND document = OpenRange(program, "4.1.2020", "5.1.2020");
  const HWND frame = program.WaitForTopLevel("ShabbatMain");
  PostMessageA(document, WM_COMMAND, kDafYomiButton, 0);
  const HWND dialog = program.WaitForDialog("Daf Yomi List");
  EXPECT_EQ(Count(dialog), 2);
  EXPECT_FALSE(IsWindowEnabled(frame)) << "a second one cannot be opened over it";
  Answer(dialog, kCopy);
  Confirm(program, "Data was placed into the clipboard");
  EXPECT_EQ(Clipboard(program), kTwoDays);

  const fs::path file = exports_.path() / "daf";
  Answer(dialog, kSave);
  SaveAs(program, file);
  Confirm(program, "daf.txt was written successfully");
  EXPECT_EQ(ReadFileText(exports_.path() / "daf.txt"), kTwoDays);
  Answer(dialog, kSave);
  SaveAs(program, exports_.path());  // a folder: the dialog goes into it
  CancelSaving(program);
  Close(program, dialog);
  EXPECT_TRUE(IsWindowEnabled(frame));
  EXPECT_TRUE(program.Eventually([document] { return FocusIn(document) == GetDlgItem(document, 1); }))
      << "the list of the document has the focus again";
}

TEST_F(DafYomiEndToEndTest, TheMenuListsALongRangeOfTheActiveDocument) {
  ProgramRun program(ProgramFolder(), settings_.path());
  OpenRange(program, "1.1.1900", "13.8.1987");
  program.PostCommand(kDafYomi);
  const HWND dialog = program.WaitForDialog("Daf Yomi List");
  ASSERT_EQ(Count(dialog), 32001);
  EXPECT_EQ(Line(dialog, 0), "01.01.1900 (1 Shevat 5660): no Daf Yomi before 11 September 1923");
  // The seventh cycle is the last one whose Shekalim has 13 leaves.
  EXPECT_EQ(Line(dialog, 25319), "28.04.1969 (10 Iyar 5729): Shekalim 13 (cycle 7)");
  EXPECT_EQ(Line(dialog, 25320), "29.04.1969 (11 Iyar 5729): Yoma 2 (cycle 7)");
  Close(program, dialog);
}
