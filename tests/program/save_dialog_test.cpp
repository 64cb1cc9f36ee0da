// What every export asks the system's save dialog for, and which name it offers.
#include <windows.h>

#include <cderr.h>
#include <commdlg.h>

#include <filesystem>

#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/exports_fixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
namespace fs = std::filesystem;

namespace {

class SaveDialogTest : public ExportsFixture {
 protected:
  // Runs an export; the name that its save dialog offered.
  std::string OfferedBy(unsigned id, const std::string& chosen = "") {
    System().saveDialog = {};
    System().savedFile = chosen.empty() ? "" : (folder_ / chosen).string();
    Command(id);
    EXPECT_NE(System().saveDialog.size, 0u) << "no save dialog was shown";
    return System().saveDialog.offeredFile;
  }
  void ExpectDialog(HWND owner, const std::vector<std::string>& filter, const char* extension) {
    const SaveDialog& dialog = System().saveDialog;
    EXPECT_EQ(dialog.owner, owner);
    EXPECT_EQ(dialog.filter, filter);
    EXPECT_EQ(dialog.filterIndex, 1u);
    EXPECT_EQ(dialog.size, 256u);
    EXPECT_EQ(dialog.extension, extension);
    EXPECT_EQ(dialog.flags, DWORD{OFN_OVERWRITEPROMPT | OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST});
  }
  void ExpectTextDialog(HWND owner) {
    ExpectDialog(owner, {"Text files (*.txt)", "*.txt", "All files (*.*)", "*.*"}, "txt");
  }
  void ExpectRtfDialog(HWND owner) {
    ExpectDialog(
        owner, {"RTF files (*.rtf)", "*.rtf", "RTF for all word processors (*.rtf)", "*.rtf", "All files (*.*)", "*.*"},
        "rtf");
  }
  // Exports as RTF, with a type chosen in the dialog; the file.
  std::string ExportedAs(DWORD type, unsigned id) {
    System().chosenType = type;
    return Exported(id, "table.rtf");
  }
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

TEST_F(SaveDialogTest, EveryViewOffersItsLastNameWithTheExtensionOfTheFormat) {
  const struct {
    unsigned view;
    unsigned rtf;
    const char* name;
  } exports[] = {{IDM_VIEW_SHABBAT_TIMES, IDM_EXPORT_RTF_TWO_COLUMNS, "times"},
                 {IDM_VIEW_ZMANIM, IDM_EXPORT_RTF, "zmanim"},
                 {IDM_VIEW_READINGS, IDM_EXPORT_RTF, "readings"}};
  for (const auto& row : exports) {
    Command(row.view);
    OfferedBy(IDM_EXPORT_TEXT, row.name + std::string(".txt"));
  }
  for (const auto& row : exports) {
    Command(row.view);
    const std::string base = PathOf(row.name);
    EXPECT_EQ(OfferedBy(IDM_EXPORT_TEXT), base + ".txt");
    EXPECT_EQ(OfferedBy(row.rtf), base + ".rtf");
    // A second layout shares the name, and a cancelled dialog leaves it as it was.
    EXPECT_EQ(OfferedBy(IDM_EXPORT_RTF_THREE_COLUMNS, row.name + std::string("2.rtf")), base + ".rtf");
    EXPECT_EQ(OfferedBy(row.rtf), base + "2.rtf");
    EXPECT_EQ(OfferedBy(IDM_EXPORT_TEXT), base + "2.txt");
  }
}

TEST_F(SaveDialogTest, ANameThatTheDialogRefusesIsNotOfferedAgain) {
  OfferedBy(IDM_EXPORT_TEXT, "times.txt");
  System().savedFile.clear();
  System().saveDialogError = FNERR_INVALIDFILENAME;
  std::vector<std::string> offered;
  System().whileSaving = [&] { offered.push_back(System().saveDialog.offeredFile); };
  Command(IDM_EXPORT_TEXT);
  EXPECT_THAT(offered, ElementsAre(PathOf("times.txt"), ""));
}

TEST_F(SaveDialogTest, TheSecondTypeIsRtfForAllWordProcessors) {
  const unsigned commands[] = {IDM_EXPORT_RTF_THREE_COLUMNS, IDM_EXPORT_RTF_TWO_COLUMNS};
  for (const unsigned view : {IDM_VIEW_SHABBAT_TIMES, IDM_VIEW_ZMANIM, IDM_VIEW_READINGS}) {
    Command(view);
    for (const unsigned id : commands) {
      EXPECT_THAT(ExportedAs(1, id), Not(HasSubstr("\\trowd"))) << view;
      EXPECT_THAT(ExportedAs(2, id), HasSubstr("\\trowd\\cellx")) << view;
    }
    if (view == IDM_VIEW_SHABBAT_TIMES) continue;
    EXPECT_THAT(ExportedAs(1, IDM_EXPORT_RTF), Not(HasSubstr("\\trowd"))) << view;
    EXPECT_THAT(ExportedAs(2, IDM_EXPORT_RTF), HasSubstr("\\trowd\\cellx")) << view;
  }
}

TEST_F(SaveDialogTest, TheSecondTypeOfTheSameRowExportIsForAllWordProcessorsToo) {
  System().chosenType = 2;
  System().savedFile = PathOf("table.rtf");
  WithDialog([&] { Command(IDM_EXPORT_RTF); }, [](HWND dialog) { Click(dialog, IDOK); });
  EXPECT_THAT(Bytes(PathOf("table.rtf")), HasSubstr("\\trowd\\cellx"));
}

TEST_F(SaveDialogTest, TheChosenTypeIsRememberedForItsViewAlone) {
  Command(IDM_VIEW_ZMANIM);
  ExportedAs(2, IDM_EXPORT_RTF);
  EXPECT_EQ(Libraries().settings.Stored("shab30.ini|RtfForAllWordProcessors|Zmanim"), "1");
  System().chosenType = 0;
  OfferedBy(IDM_EXPORT_RTF_BY_DAY);
  EXPECT_EQ(System().saveDialog.filterIndex, 2u);
  Command(IDM_VIEW_READINGS);
  OfferedBy(IDM_EXPORT_RTF);
  EXPECT_EQ(System().saveDialog.filterIndex, 1u);
  Command(IDM_VIEW_ZMANIM);
  ExportedAs(1, IDM_EXPORT_RTF);
  EXPECT_EQ(Libraries().settings.Stored("shab30.ini|RtfForAllWordProcessors|Zmanim"), "0");
  System().chosenType = 0;
  OfferedBy(IDM_EXPORT_RTF);
  EXPECT_EQ(System().saveDialog.filterIndex, 1u);
}

TEST_F(SaveDialogTest, AmongAllFilesTheRememberedTypeIsWrittenAndStays) {
  Command(IDM_VIEW_READINGS);
  EXPECT_THAT(ExportedAs(3, IDM_EXPORT_RTF), Not(HasSubstr("\\trowd")));
  EXPECT_EQ(Libraries().settings.Stored("shab30.ini|RtfForAllWordProcessors|Readings"), "(none)");
  Libraries().settings["shab30.ini|RtfForAllWordProcessors|Readings"] = "1";
  EXPECT_THAT(ExportedAs(3, IDM_EXPORT_RTF), HasSubstr("\\trowd"));
  EXPECT_EQ(Libraries().settings.Stored("shab30.ini|RtfForAllWordProcessors|Readings"), "1");
}

TEST_F(SaveDialogTest, ACancelledDialogRemembersNoType) {
  Command(IDM_VIEW_READINGS);
  System().chosenType = 2;
  OfferedBy(IDM_EXPORT_RTF);
  EXPECT_EQ(Libraries().settings.Stored("shab30.ini|RtfForAllWordProcessors|Readings"), "(none)");
}

TEST_F(SaveDialogTest, AFileIsWrittenThoughItsTypeCannotBeRemembered) {
  Command(IDM_VIEW_READINGS);
  Libraries().writesFail = true;
  EXPECT_THAT(ExportedAs(2, IDM_EXPORT_RTF), HasSubstr("\\trowd"));
  EXPECT_THAT(CallsWith("message box"), testing::IsEmpty());
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
