// The list of Daf Yomi: its lines, the clipboard and the file.
#include <windows.h>

#include <commdlg.h>

#include <cderr.h>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "app/active_document.h"
#include "app/open_document.h"
#include "engine/bound_entries.h"
#include "engine/current.h"
#include "engine/properties.h"
#include "readings/daf_yomi_dialog.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/last_day_of_month.h"
#include "tests/program/program_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
namespace fs = std::filesystem;

namespace {

constexpr int kClose = 1;
constexpr int kCancel = 2;
constexpr int kCopy = 3;
constexpr int kSave = 4;
constexpr int kList = 101;
constexpr int kExplanation = 300;

// Asked as the part of the Jewish calendar that the list needs.
void MonthNameEx(uint32_t month, uint32_t reserved, char* name, uint32_t size, uint32_t year, uint32_t language) {
  EXPECT_EQ(reserved, 0u);
  EXPECT_EQ(size, 256u);
  EXPECT_EQ(language, 1u);
  std::snprintf(name, size, "month %u of %u", month, year);
}

std::vector<std::string> LinesOf(HWND dialog) {
  const HWND list = GetDlgItem(dialog, kList);
  std::vector<std::string> lines;
  for (WPARAM i = 0; i < static_cast<WPARAM>(SendMessageA(list, LB_GETCOUNT, 0, 0)); ++i) {
    std::string line(static_cast<std::size_t>(SendMessageA(list, LB_GETTEXTLEN, i, 0)) + 1, '\0');
    line.resize(static_cast<std::size_t>(SendMessageA(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(line.data()))));
    lines.push_back(line);
  }
  return lines;
}

std::string TextOfFile(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(stream), {});
}

class DafYomiDialogTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    CivilCalendar.DatefilterGetLastDayOfMonth = LastDayOfMonth;
    LunarCalendar.DatefilterGetMonthNameEx = MonthNameEx;
    Libraries().unknownSettingsAreMissing = true;
    OpenFrame();
    CallLog().clear();
    folder_ = fs::temp_directory_path() / ("daf_yomi_" + std::to_string(GetCurrentProcessId()));
    fs::create_directories(folder_);
  }
  void TearDown() override {
    fs::remove_all(folder_);
    ProgramTest::TearDown();
  }

  // What is left open is closed by its button.
  void Open(const DateRange& range, const std::function<void(HWND)>& drive) {
    WithDialog([&] { RunDafYomiDialog(frame_, &range); },
               [&](HWND dialog) {
                 drive(dialog);
                 Click(dialog, kClose);
               });
  }
  std::vector<std::string> Lines(const DateRange& range) {
    std::vector<std::string> lines;
    Open(range, [&lines](HWND dialog) { lines = LinesOf(dialog); });
    return lines;
  }
  void Save(const std::string& file) {
    System().savedFile = file;
    Open(kTwoDays, [](HWND dialog) { Click(dialog, kSave); });
  }

  static constexpr DateRange kTwoDays = {{31, 12, 2006}, {1, 1, 2007}};
  static constexpr char kTwoLines[] =
      "31.12.2006 (31 month 12 of 5766 5766): page 31.12.2006\r\n"
      "01.01.2007 (1 month 1 of 5767 5767): page 1.1.2007\r\n";

  fs::path folder_;
};

}  // namespace

TEST_F(DafYomiDialogTest, HasItsCaptionTextsAndButtons) {
  Open(kTwoDays, [](HWND dialog) {
    EXPECT_EQ(TextOf(dialog), "Daf Yomi List");
    EXPECT_EQ(FieldText(dialog, kExplanation),
              "After copying the list into the clipboard by clicking on the button 'Copy to clipboard!', it can be "
              "pasted into a word processor by pressing Ctrl+V and, for example, printed out.\n\nBy clicking on 'Save "
              "as file...', the list is saved as a Windows ANSI text file which can be viewed with NotePad or imported "
              "into your word processor.");
    EXPECT_EQ(FieldText(dialog, kClose), "Close");
    EXPECT_EQ(FieldText(dialog, kCopy), "&Copy to clipboard!");
    EXPECT_EQ(FieldText(dialog, kSave), "&Save as file...");
    EXPECT_EQ(LOWORD(SendMessageA(dialog, DM_GETDEFID, 0, 0)), kClose);
    EXPECT_EQ(GetWindowLongA(GetDlgItem(dialog, kList), GWL_STYLE) & LBS_SORT, 0);
    EXPECT_EQ(GetFocus(), GetDlgItem(dialog, kList)) << "the keys scroll the list at once";
  });
}

TEST_F(DafYomiDialogTest, ALongListScrolls) {
  Open({{1, 1, 2007}, {31, 12, 2007}}, [](HWND dialog) {
    const HWND list = GetDlgItem(dialog, kList);
    EXPECT_NE(GetWindowLongA(list, GWL_STYLE) & WS_VSCROLL, 0);
    EXPECT_EQ(SendMessageA(list, LB_GETCOUNT, 0, 0), 365);
    for (const WPARAM key : {VK_DOWN, VK_END}) SendMessageA(list, WM_KEYDOWN, key, 0);
    EXPECT_EQ(SendMessageA(list, LB_GETCURSEL, 0, 0), 364);
    EXPECT_GT(SendMessageA(list, LB_GETTOPINDEX, 0, 0), 300);
  });
}

TEST_F(DafYomiDialogTest, ALineHasBothDatesAndThePage) {
  EXPECT_THAT(Lines({{5, 1, 2007}, {5, 1, 2007}}), ElementsAre("05.01.2007 (5 month 1 of 5767 5767): page 5.1.2007"));
}

TEST_F(DafYomiDialogTest, DaysFollowOneAnotherOverTheEndsOfMonthsAndYears) {
  const auto lines = Lines({{27, 2, 2004}, {1, 3, 2005}});
  ASSERT_EQ(lines.size(), 369u);  // 27 February 2004 to 1 March 2005, by the standard library's calendar
  EXPECT_THAT(lines[2], StartsWith("29.02.2004 ("));
  EXPECT_THAT(lines[3], StartsWith("01.03.2004 ("));
  EXPECT_THAT(lines[308], StartsWith("31.12.2004 ("));
  EXPECT_THAT(lines[309], StartsWith("01.01.2005 ("));
  EXPECT_THAT(lines[368], StartsWith("01.03.2005 ("));
}

TEST_F(DafYomiDialogTest, ARangeGivenEndBeforeStartHasTheSameLines) {
  const auto lines = Lines({{28, 12, 2006}, {3, 1, 2007}});
  EXPECT_EQ(lines.size(), 7u);
  EXPECT_EQ(Lines({{3, 1, 2007}, {28, 12, 2006}}), lines);
}

TEST_F(DafYomiDialogTest, ARangeWhoseEndDoesNotExistEndsAllTheSame) {
  EXPECT_FALSE(Lines({{27, 2, 2007}, {0, 3, 2007}}).empty());
  EXPECT_EQ(Lines({{0, 0, 0}, {0, 0, 0}}).size(), 1u);
}

TEST_F(DafYomiDialogTest, WithoutARangeItIsEmpty) {
  WithDialog([&] { RunDafYomiDialog(frame_, nullptr); },
             [](HWND dialog) {
               EXPECT_THAT(LinesOf(dialog), IsEmpty());
               EXPECT_EQ(FieldText(dialog, kExplanation), "");
               Click(dialog, kClose);
             });
}

TEST_F(DafYomiDialogTest, TheProcedureAnswersItsTwoMessagesAndLeavesTheOthers) {
  Open(kTwoDays, [](HWND dialog) {
    const auto procedure = reinterpret_cast<DLGPROC>(GetWindowLongPtrA(dialog, DWLP_DLGPROC));
    EXPECT_EQ(CallWindowProcA(reinterpret_cast<WNDPROC>(procedure), dialog, WM_COMMAND, 4711, 0), 1);
    EXPECT_EQ(CallWindowProcA(reinterpret_cast<WNDPROC>(procedure), dialog, WM_INITDIALOG, 0, 0), 1);
    for (const UINT message : {WM_PAINT, WM_CLOSE, WM_HELP, WM_KEYDOWN, WM_CTLCOLORDLG, WM_SIZE}) {
      EXPECT_EQ(CallWindowProcA(reinterpret_cast<WNDPROC>(procedure), dialog, message, 0, 0), 0) << message;
    }
    EXPECT_TRUE(IsWindowVisible(dialog));
  });
}

TEST_F(DafYomiDialogTest, CloseAndEscapeEndIt) {
  for (const int control : {kClose, kCancel}) {
    WithDialog([&] { RunDafYomiDialog(frame_, &kTwoDays); },
               [control](HWND dialog) { SendMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(control), 0); });
  }
  EXPECT_THAT(CallLog(), IsEmpty());
}

TEST_F(DafYomiDialogTest, CopyPutsEveryLineWithItsEndIntoTheClipboard) {
  Open(kTwoDays, [](HWND dialog) {
    Click(dialog, kCopy);
    EXPECT_EQ(System().clipboardText, kTwoLines);
    EXPECT_EQ(System().clipboardOwner, dialog);
    EXPECT_TRUE(IsWindowVisible(dialog)) << "it stays open";
  });
  EXPECT_THAT(CallsWith("message box"),
              ElementsAre("message box 'Data was placed into the clipboard' caption 'Times/Readings' type 0x40 owner "
                          "yes"));
  EXPECT_FALSE(OpenClipboard(nullptr) == FALSE || CloseClipboard() == FALSE) << "the clipboard is free again";
}

TEST_F(DafYomiDialogTest, AClipboardThatTakesNothingKeepsNoMemory) {
  const auto blocks = System().blocks;
  System().clipboardRefuses = true;
  Open(kTwoDays, [](HWND dialog) { Click(dialog, kCopy); });
  EXPECT_EQ(System().blocks, blocks);
  System().clipboardRefuses = false;
  System().failingBlock = 1;
  Open(kTwoDays, [](HWND dialog) { Click(dialog, kCopy); });
  EXPECT_EQ(System().blocks, blocks);
  EXPECT_EQ(System().clipboardText, "");
}

TEST_F(DafYomiDialogTest, SaveWritesEveryLineWithItsEnd) {
  const fs::path file = folder_ / "daf.txt";
  std::ofstream(file)
      << "an older and much longer file, of which nothing is left when the list has been saved over it, "
         "neither its beginning nor its end";
  Save(file.string());
  EXPECT_EQ(TextOfFile(file), kTwoLines);
  EXPECT_THAT(CallsWith("message box"), ElementsAre("message box 'File " + file.string() +
                                                    " was written successfully' caption 'Times/Readings' type 0x40 "
                                                    "owner yes"));
}

TEST_F(DafYomiDialogTest, SaveAsksForATextFileAndOffersTheLastNameAgain) {
  const std::string file = (folder_ / "first.txt").string();
  Save(file);
  System().savedFile.clear();
  Open(kTwoDays, [](HWND dialog) {
    Click(dialog, kSave);
    EXPECT_EQ(System().saveDialog.owner, dialog);
  });
  const SaveDialog& asked = System().saveDialog;
  EXPECT_THAT(asked.filter, ElementsAre("Text files (*.txt)", "*.txt", "All files (*.*)", "*.*"));
  EXPECT_EQ(asked.offeredFile, file);
  EXPECT_EQ(asked.size, 256u);
  EXPECT_EQ(asked.extension, "txt");
  EXPECT_EQ(asked.flags, DWORD{OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_NOCHANGEDIR});
  EXPECT_EQ(CallsWith("message box").size(), 1u) << "cancelled: nothing is said";
  Open(kTwoDays, [](HWND dialog) { Click(dialog, kSave); });
  EXPECT_EQ(System().saveDialog.offeredFile, file) << "what was cancelled changes nothing";
}

TEST_F(DafYomiDialogTest, ANameThatIsTooLongIsReported) {
  System().saveDialogError = FNERR_BUFFERTOOSMALL;
  Save("");
  EXPECT_THAT(CallsWith("message box"), ElementsAre(testing::HasSubstr("may have 255 characters")));
}

TEST_F(DafYomiDialogTest, AFileThatCannotBeCreatedIsNamed) {
  System().createError = ERROR_ACCESS_DENIED;
  Save("C:\\no\\daf.txt");
  EXPECT_THAT(CallsWith("message box"),
              ElementsAre("message box 'File C:\\no\\daf.txt could not be created' caption 'Times/Readings' type 0x10 "
                          "owner yes"));
}

// Deliberate, as the dialog's own source tells.
TEST_F(DafYomiDialogTest, AFullDiskIsNotReported) {
  System().diskIsFull = true;
  Save((folder_ / "full.txt").string());
  EXPECT_THAT(CallsWith("message box"), ElementsAre(testing::HasSubstr("was written successfully")));
}

TEST_F(DafYomiDialogTest, TheCommandListsTheDaysOfTheActiveDocument) {
  CurrentRange = kTwoDays;
  OpenAndCompute(frame_);
  CurrentRange = {{1, 1, 2020}, {2, 1, 2020}};
  WithDialog([&] { SendMessageA(ActiveDocument(), WM_COMMAND, IDB_DAF_YOMI, 0); },
             [this](HWND dialog) {
               const auto lines = LinesOf(dialog);
               ASSERT_EQ(lines.size(), 2u);
               EXPECT_THAT(lines[0], StartsWith("31.12.2006 ("));
               EXPECT_EQ(GetWindow(dialog, GW_OWNER), frame_);
               EXPECT_FALSE(IsWindowEnabled(frame_));
               Click(dialog, kClose);
             });
  EXPECT_TRUE(IsWindowEnabled(frame_));
}

TEST_F(DafYomiDialogTest, AHundredCopiesHoldOnToNothing) {
  Open(kTwoDays, [](HWND dialog) {
    const auto blocks = System().blocks;
    for (int i = 0; i < 100; ++i) Click(dialog, kCopy);
    EXPECT_EQ(System().blocks, blocks);
    EXPECT_EQ(System().locks, 0);
  });
}
