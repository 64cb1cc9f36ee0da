// Which export a command runs by the visible view, what it writes, and the two dialogs of the delimited exports. The
// formats themselves are tested as cores.
#include <filesystem>

#include "app/active_document.h"
#include "app/compute_document.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/exports_fixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
namespace fs = std::filesystem;

namespace {

class ExportsTest : public ExportsFixture {
 protected:
  bool IsEnabled(unsigned id) {
    SendMessageA(frame_, WM_INITMENU, reinterpret_cast<WPARAM>(GetMenu(frame_)), 0);
    return (GetMenuState(GetMenu(frame_), id, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED)) == 0;
  }
  // Fills the dialog's fields, clicks OK and expects a complaint, the focus in its field and the dialog still there.
  static void ExpectComplaint(HWND dialog, const char* complaint, int field) {
    CallLog().clear();
    Click(dialog, IDOK);
    EXPECT_THAT(CallsWith("message box"),
                ElementsAre("message box '" + std::string(complaint) + "' caption 'Error' type 0x10 owner yes"));
    EXPECT_EQ(GetFocus(), GetDlgItem(dialog, field));
  }
};

}  // namespace

TEST_F(ExportsTest, TheZmanimViewExportsItsZmanim) {
  Command(IDM_VIEW_ZMANIM);
  EXPECT_THAT(Exported(IDM_EXPORT_TEXT, "zmanim.txt"),
              testing::AllOf(HasSubstr("Zmanim of Aachen\r\n"), HasSubstr("1 = Zman 0,  2 = Zman 1"),
                             HasSubstr("05.01.2007 <6:0> <6:10>\r\n")));
  EXPECT_THAT(Exported(IDM_EXPORT_RTF, "columns.rtf"), HasSubstr("05.01.2007\\par\r\n06.01.2007\\par\r\n\\cell\r\n"));
  EXPECT_THAT(Exported(IDM_EXPORT_RTF_THREE_COLUMNS, "rows.rtf"), HasSubstr("05.01.2007\\cell\r\n<6:0>\\cell\r\n"));
  EXPECT_THAT(Exported(IDM_EXPORT_RTF_TWO_COLUMNS, "rows2.rtf"), HasSubstr("05.01.2007\\cell\r\n<6:0>\\cell\r\n"));
  EXPECT_THAT(Exported(IDM_EXPORT_RTF_BY_DAY, "rows3.rtf"), HasSubstr("05.01.2007\\cell\r\n<6:0>\\cell\r\n"));
}

TEST_F(ExportsTest, TheBuiltInZmanimHaveTheirOwnNames) {
  Libraries().settings["shab30.ini|Settings|EnableZmanim"] = "0";
  CalculateShabbatTimes(ActiveDocument(), 5, 1, 2007, 6, 1, 2007);
  Command(IDM_VIEW_ZMANIM);
  const std::string text = Exported(IDM_EXPORT_TEXT, "zmanim.txt");
  EXPECT_THAT(text, HasSubstr("1 = Alot HaShachar (Rabbi Moshe Feinstein),  2 = "));
  EXPECT_THAT(text, HasSubstr("\r\nDate       11    12    13    14    15    16    17    18    19   \r\n"));
}

TEST_F(ExportsTest, TheHebrewLegendIsWrittenWhenItIsSet) {
  Libraries().settings["shab30.ini|Zmanim|Hebrew"] = "1";
  Libraries().hebrewZmanNames[0] = "abc";
  Command(IDM_VIEW_ZMANIM);
  EXPECT_THAT(Exported(IDM_EXPORT_TEXT, "zmanim.txt"), HasSubstr("\r\n1 = cba\r\n"));
}

// "15 = " and shkia turned round.
TEST_F(ExportsTest, TheHebrewLegendOfTheBuiltInZmanimIsWrittenToo) {
  Libraries().settings["shab30.ini|Settings|EnableZmanim"] = "0";
  Libraries().settings["shab30.ini|Zmanim|Hebrew"] = "1";
  Command(IDM_VIEW_ZMANIM);
  EXPECT_THAT(Exported(IDM_EXPORT_TEXT, "zmanim.txt"), HasSubstr("15 = \xE4\xF2\xE9\xF7\xF9\r\n"));
  EXPECT_THAT(Exported(IDM_EXPORT_RTF_BY_DAY, "zmanim.rtf"), HasSubstr("15 = "));
}

TEST_F(ExportsTest, TheWidthOfTimesFollowsTheFormInForce) {
  Libraries().amPm = true;
  Command(IDM_VIEW_ZMANIM);
  EXPECT_THAT(Exported(IDM_EXPORT_TEXT, "zmanim.txt"), HasSubstr("05.01.2007 <6:0>      <6:10>    \r\n"));
}

TEST_F(ExportsTest, TheReadingsViewExportsItsReadings) {
  Command(IDM_VIEW_READINGS);
  EXPECT_THAT(Exported(IDM_EXPORT_TEXT, "readings.txt"), StartsWith("Date        Parashioth" + std::string(85, ' ') +
                                                                    "  Haphtaroth" + std::string(85, ' ') + "\r\n"));
  EXPECT_THAT(Exported(IDM_EXPORT_RTF, "wide.rtf"),
              testing::AllOf(HasSubstr("\\cellx1300\\cellx4970\\cellx8640"), HasSubstr("Extra\\par\r\n")));
  for (const unsigned id : {IDM_EXPORT_RTF_THREE_COLUMNS, IDM_EXPORT_RTF_TWO_COLUMNS, IDM_EXPORT_RTF_NARROW}) {
    EXPECT_THAT(Exported(id, "narrow.rtf"), HasSubstr("\\cellx700\\cellx4800\\cellx9300")) << id;
  }
}

TEST_F(ExportsTest, TheReadingsFontIsNamedInTheRtfFile) {
  Libraries().readingsFont = {"David", 14, 177};
  Command(IDM_VIEW_READINGS);
  EXPECT_THAT(Exported(IDM_EXPORT_RTF, "wide.rtf"), HasSubstr("{\\f1\\fnil\\fcharset177 David;}}\r\n"));
}

TEST_F(ExportsTest, TheLastFileOfAFormatIsOfferedAgain) {
  Command(IDM_VIEW_READINGS);
  Exported(IDM_EXPORT_TEXT, "readings.txt");
  Exported(IDM_EXPORT_RTF, "readings.rtf");
  System().savedFile.clear();
  Command(IDM_EXPORT_TEXT);
  EXPECT_THAT(System().saveDialog.offeredFile, HasSubstr("readings.txt"));
  Command(IDM_EXPORT_RTF);
  EXPECT_THAT(System().saveDialog.offeredFile, HasSubstr("readings.rtf"));
}

TEST_F(ExportsTest, ACancelledExportWritesNothing) {
  for (const unsigned view : {IDM_VIEW_ZMANIM, IDM_VIEW_READINGS}) {
    Command(view);
    for (const unsigned id : {IDM_EXPORT_TEXT, IDM_EXPORT_RTF, IDM_EXPORT_RTF_TWO_COLUMNS}) {
      System().savedFile.clear();
      Command(id);
    }
  }
  EXPECT_TRUE(fs::is_empty(folder_));
}

TEST_F(ExportsTest, WithoutADocumentNothingIsExported) {
  Command(IDM_WINDOW_CLOSE_ALL);
  CallLog().clear();
  for (const unsigned id : {IDM_EXPORT_TEXT, IDM_EXPORT_RTF, IDM_EXPORT_RTF_THREE_COLUMNS, IDM_EXPORT_RTF_TWO_COLUMNS,
                            IDM_EXPORT_ZMANIM, IDM_EXPORT_DATES, IDM_EXPORT_RTF_BY_DAY, IDM_EXPORT_RTF_NARROW}) {
    Command(id);
  }
  EXPECT_THAT(CallLog(), IsEmpty());
}

TEST_F(ExportsTest, TheMenuOffersEachViewItsSecondLayout) {
  for (const unsigned id : {IDM_EXPORT_TEXT, IDM_EXPORT_RTF, IDM_EXPORT_ZMANIM, IDM_EXPORT_DATES}) {
    EXPECT_TRUE(IsEnabled(id)) << id;
  }
  EXPECT_FALSE(IsEnabled(IDM_EXPORT_RTF_BY_DAY));
  EXPECT_FALSE(IsEnabled(IDM_EXPORT_RTF_NARROW));
  Command(IDM_VIEW_ZMANIM);
  EXPECT_TRUE(IsEnabled(IDM_EXPORT_RTF_BY_DAY));
  EXPECT_FALSE(IsEnabled(IDM_EXPORT_RTF_NARROW));
  Command(IDM_VIEW_READINGS);
  EXPECT_FALSE(IsEnabled(IDM_EXPORT_RTF_BY_DAY));
  EXPECT_TRUE(IsEnabled(IDM_EXPORT_RTF_NARROW));
  Command(IDM_WINDOW_CLOSE_ALL);
  EXPECT_FALSE(IsEnabled(IDM_EXPORT_ZMANIM));
  EXPECT_FALSE(IsEnabled(IDM_EXPORT_DATES));
}

TEST_F(ExportsTest, ZmanimAreExportedForDatabases) {
  const std::string file = (folder_ / "zmanim.csv").string();
  WithDialog([&] { Command(IDM_EXPORT_ZMANIM); },
             [&](HWND dialog) {
               EXPECT_EQ(TextOf(dialog), "Export Zmanim");
               EXPECT_EQ(FieldText(dialog, 101), "");
               EXPECT_EQ(FieldText(dialog, 102), ";");
               EXPECT_EQ(IsDlgButtonChecked(dialog, 103), UINT{BST_CHECKED});
               EXPECT_EQ(GetDlgItem(dialog, 104), nullptr);
               EXPECT_EQ(GetDlgItem(dialog, 105), nullptr);
               SetField(dialog, 101, file.c_str());
               SetField(dialog, 102, "|");
               Click(dialog, IDOK);
             });
  EXPECT_EQ(Bytes(file), "Gregorian date|Zman 0|Zman 1\r\n05.01.2007|<6:0>|<6:10>\r\n06.01.2007|<6:0>|<6:10>\r\n");
  EXPECT_THAT(CallsWith("message box"), ElementsAre("message box 'Information was written to file " + file +
                                                    "' caption 'Information' type 0x40 owner yes"));
}

TEST_F(ExportsTest, DatesAndReadingsAreExportedForDatabases) {
  const std::string file = (folder_ / "dates.csv").string();
  WithDialog([&] { Command(IDM_EXPORT_DATES); },
             [&](HWND dialog) {
               EXPECT_EQ(TextOf(dialog), "Export Gregorian/Jewish dates, torah/haphtarah readings, holidays");
               EXPECT_EQ(FieldText(dialog, 104), ", ");
               EXPECT_EQ(FieldText(dialog, 105), "Danish");
               SetField(dialog, 101, file.c_str());
               CheckDlgButton(dialog, 103, BST_UNCHECKED);
               SendDlgItemMessageA(dialog, 105, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                                   reinterpret_cast<LPARAM>("German"));
               Click(dialog, IDOK);
             });
  EXPECT_EQ(Bytes(file), "06.01.2007;6. Month 1 of 5767 in 3 5767;Vayechi;H1\r\n");
}

TEST_F(ExportsTest, TheLanguagesAreSortedAndCarryTheirCodes) {
  WithDialog([&] { Command(IDM_EXPORT_DATES); },
             [&](HWND dialog) {
               const HWND list = GetDlgItem(dialog, 105);
               std::vector<std::pair<std::string, LRESULT>> languages;
               for (int i = 0; i < SendMessageA(list, CB_GETCOUNT, 0, 0); ++i) {
                 char name[32];
                 SendMessageA(list, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(name));
                 languages.emplace_back(name, SendMessageA(list, CB_GETITEMDATA, static_cast<WPARAM>(i), 0));
               }
               EXPECT_EQ(languages, (std::vector<std::pair<std::string, LRESULT>>{{"Danish", 6},
                                                                                  {"Dutch", 9},
                                                                                  {"English", 1},
                                                                                  {"Finish", 7},
                                                                                  {"French", 5},
                                                                                  {"German", 3},
                                                                                  {"Hungarian", 14},
                                                                                  {"Italian", 20},
                                                                                  {"Norwegian", 11},
                                                                                  {"Polish", 21},
                                                                                  {"Portuguese", 12},
                                                                                  {"Spanish", 10},
                                                                                  {"Swedish", 8}}));
               Click(dialog, IDCANCEL);
             });
}

TEST_F(ExportsTest, EveryFieldIsAskedForInOrder) {
  WithDialog([&] { Command(IDM_EXPORT_DATES); },
             [&](HWND dialog) {
               for (const int field : {101, 102, 104}) SetField(dialog, field, "  ");
               SendDlgItemMessageA(dialog, 105, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
               ExpectComplaint(dialog, "Filename must not be blank", 101);
               SetField(dialog, 101, (folder_ / "dates.csv").string().c_str());
               ExpectComplaint(dialog, "Separator must not be blank", 102);
               SetField(dialog, 102, ";");
               ExpectComplaint(dialog, "Separator for multiple readings must not be blank", 104);
               SetField(dialog, 104, "+");
               ExpectComplaint(dialog, "A language must be selected", 105);
               Click(dialog, IDCANCEL);
             });
  EXPECT_TRUE(fs::is_empty(folder_));
}

TEST_F(ExportsTest, BrowseFillsTheFieldAndACancelledBrowseLeavesIt) {
  WithDialog([&] { Command(IDM_EXPORT_ZMANIM); },
             [&](HWND dialog) {
               System().savedFile = (folder_ / "chosen.txt").string();
               Click(dialog, 200);
               EXPECT_EQ(FieldText(dialog, 101), System().savedFile);
               System().savedFile.clear();
               Click(dialog, 200);
               EXPECT_THAT(FieldText(dialog, 101), HasSubstr("chosen.txt"));
               Click(dialog, IDCANCEL);
             });
}
