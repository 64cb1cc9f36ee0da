// What every export asks the system's save dialog for, and which name it offers.
#include <windows.h>

#include <cderr.h>
#include <commdlg.h>

#include <filesystem>

#include "app/active_document.h"
#include "app/compute_document.h"
#include "engine/current.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/program_fixture.h"
#include "zmanim/zmanim_in_use.h"

using testing::ElementsAre;
using testing::HasSubstr;
namespace fs = std::filesystem;

namespace {

class SaveDialogTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    Libraries().zmanimCount = 2;
    OpenFrame();
    CurrentRange = {{5, 1, 2007}, {6, 1, 2007}};
    CalculateShabbatTimes(ActiveDocument(), 5, 1, 2007, 6, 1, 2007);
    folder_ = fs::temp_directory_path() / ("save_dialog_test_" + std::to_string(GetCurrentProcessId()));
    fs::create_directories(folder_);
  }
  void TearDown() override {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
    ProgramTest::TearDown();
  }

  void Command(unsigned id) {
    SendMessageA(frame_, WM_COMMAND, id, 0);
    DispatchPendingMessages();
  }
  // Runs an export; the name that its save dialog offered.
  std::string OfferedBy(unsigned id, const std::string& chosen = "") {
    System().saveDialog = {};
    System().savedFile = chosen.empty() ? "" : (folder_ / chosen).string();
    Command(id);
    EXPECT_NE(System().saveDialog.size, 0u) << "no save dialog was shown";
    return System().saveDialog.offeredFile;
  }
  void ExpectDialog(HWND owner, const char* name, const char* pattern, const char* extension) {
    const SaveDialog& dialog = System().saveDialog;
    EXPECT_EQ(dialog.owner, owner);
    EXPECT_THAT(dialog.filter, ElementsAre(name, pattern, "All files (*.*)", "*.*"));
    EXPECT_EQ(dialog.filterIndex, 1u);
    EXPECT_EQ(dialog.size, 256u);
    EXPECT_EQ(dialog.extension, extension);
    EXPECT_EQ(dialog.flags, DWORD{OFN_OVERWRITEPROMPT | OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST});
  }
  void ExpectTextDialog(HWND owner) { ExpectDialog(owner, "Text files (*.txt)", "*.txt", "txt"); }
  void ExpectRtfDialog(HWND owner) { ExpectDialog(owner, "RTF files (*.rtf)", "*.rtf", "rtf"); }

  fs::path folder_;
};

// Browses in a dialog of the delimited exports; the name that is offered.
std::string OfferedByBrowse(HWND dialog, const std::string& chosen) {
  System().saveDialog = {};
  System().savedFile = chosen;
  Click(dialog, 200);
  return System().saveDialog.offeredFile;
}

}  // namespace

TEST_F(SaveDialogTest, EveryTextExportAsksForATextFile) {
  for (const unsigned view : {IDM_VIEW_SHABBAT_TIMES, IDM_VIEW_ZMANIM, IDM_VIEW_READINGS}) {
    Command(view);
    OfferedBy(IDM_EXPORT_TEXT);
    ExpectTextDialog(frame_);
  }
}

TEST_F(SaveDialogTest, EveryRtfExportAsksForAnRtfFile) {
  for (const unsigned view : {IDM_VIEW_SHABBAT_TIMES, IDM_VIEW_ZMANIM, IDM_VIEW_READINGS}) {
    Command(view);
    for (const unsigned id : {IDM_EXPORT_RTF_THREE_COLUMNS, IDM_EXPORT_RTF_TWO_COLUMNS}) {
      OfferedBy(id);
      ExpectRtfDialog(frame_);
    }
    if (view == IDM_VIEW_SHABBAT_TIMES) continue;
    OfferedBy(IDM_EXPORT_RTF);
    ExpectRtfDialog(frame_);
  }
}

TEST_F(SaveDialogTest, TheSameRowRtfExportAsksForAnRtfFile) {
  WithDialog([&] { Command(IDM_EXPORT_RTF); }, [](HWND dialog) { Click(dialog, IDOK); });
  ExpectRtfDialog(frame_);
}

TEST_F(SaveDialogTest, TheDelimitedExportsAskForATextFileOfTheirOwnDialog) {
  for (const unsigned id : {IDM_EXPORT_ZMANIM, IDM_EXPORT_DATES}) {
    WithDialog([&] { Command(id); },
               [&](HWND dialog) {
                 OfferedByBrowse(dialog, "");
                 ExpectTextDialog(dialog);
                 Click(dialog, IDCANCEL);
               });
  }
}

TEST_F(SaveDialogTest, ShabbatTimesAreOfferedNoName) {
  EXPECT_EQ(OfferedBy(IDM_EXPORT_TEXT, "times.txt"), "");
  EXPECT_EQ(OfferedBy(IDM_EXPORT_TEXT), "");
  EXPECT_EQ(OfferedBy(IDM_EXPORT_RTF_TWO_COLUMNS, "times.rtf"), "");
  EXPECT_EQ(OfferedBy(IDM_EXPORT_RTF_TWO_COLUMNS), "");
}

TEST_F(SaveDialogTest, ZmanimAndReadingsOfferTheLastNameOfTheirOwnTextAndRtfFiles) {
  const struct {
    unsigned view;
    unsigned secondLayout;
    std::string name;
  } exports[] = {{IDM_VIEW_ZMANIM, IDM_EXPORT_RTF_BY_DAY, "zmanim"},
                 {IDM_VIEW_READINGS, IDM_EXPORT_RTF_NARROW, "readings"}};
  for (const auto& row : exports) {
    Command(row.view);
    OfferedBy(IDM_EXPORT_TEXT, row.name + ".txt");
    OfferedBy(IDM_EXPORT_RTF, row.name + ".rtf");
  }
  for (const auto& row : exports) {
    Command(row.view);
    EXPECT_EQ(OfferedBy(IDM_EXPORT_TEXT), (folder_ / (row.name + ".txt")).string());
    EXPECT_EQ(OfferedBy(IDM_EXPORT_RTF), (folder_ / (row.name + ".rtf")).string());
    // Both layouts of a view share their name, and a cancelled dialog leaves it as it was.
    EXPECT_EQ(OfferedBy(row.secondLayout, row.name + "2.rtf"), (folder_ / (row.name + ".rtf")).string());
    EXPECT_EQ(OfferedBy(IDM_EXPORT_RTF), (folder_ / (row.name + "2.rtf")).string());
  }
}

TEST_F(SaveDialogTest, TheTwoDelimitedExportsShareTheNameTheyOffer) {
  const std::string chosen = (folder_ / "chosen.csv").string();
  WithDialog([&] { Command(IDM_EXPORT_ZMANIM); },
             [&](HWND dialog) {
               OfferedByBrowse(dialog, chosen);
               EXPECT_EQ(OfferedByBrowse(dialog, ""), chosen);
               Click(dialog, IDCANCEL);
             });
  WithDialog([&] { Command(IDM_EXPORT_DATES); },
             [&](HWND dialog) {
               EXPECT_EQ(FieldText(dialog, 101), "");
               EXPECT_EQ(OfferedByBrowse(dialog, ""), chosen);
               Click(dialog, IDCANCEL);
             });
}

TEST_F(SaveDialogTest, ANameThatIsTooLongIsExplainedAndACancelledDialogIsNot) {
  CallLog().clear();
  OfferedBy(IDM_EXPORT_TEXT);
  EXPECT_THAT(CallsWith("message box"), testing::IsEmpty());
  System().saveDialogError = FNERR_BUFFERTOOSMALL;
  OfferedBy(IDM_EXPORT_TEXT);
  EXPECT_THAT(CallsWith("message box"),
              ElementsAre("message box 'The file's name and folder together may have 255 characters.\nPlease choose a "
                          "shorter name or another folder.' caption 'Error' type 0x10 owner yes"));
}
