// How the window saves, what it does about other writers and damage, and what it imports and exports.
#include <gmock/gmock.h>

#include "tests/contract/held_file.h"
#include "tests/contract/kinship_driver.h"

namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr int kFileName = 0x47C;  // cmb13 of dlgs.h: the field of the system's dialogs for files

constexpr char kWithoutMoshe[] =
    "birthday|1948-05-14||anna||Likes books\r\n"
    "wedding|0000-07-01 jewish||\xD0\x9B\xD0\xB5\xD0\xB2||\r\n"
    "other|5750-01-15 jewish||\xD7\xA9\xD7\xA8\xD7\x94|Aliyah|\r\n";

class KinshipFilesTest : public KinshipTest {
 protected:
  // The system's dialog for a file.
  static void ChooseFile(const KinshipRun& run, const wchar_t* caption, const std::filesystem::path& path) {
    const HWND dialog = run.WaitFor(caption);
    SetControlText(dialog, kFileName, path.wstring());
    Press(dialog, IDOK);
  }
  // format: as the dialog lists them.
  static HWND OpenExport(const KinshipRun& run, int format) {
    Press(run.Window(), IDC_EXPORT);
    const HWND dialog = run.WaitFor(L"Export Dates");
    KinshipRun::Choose(dialog, IDC_FORMAT, format);
    return dialog;
  }
  std::string Exported(const KinshipRun& run, int format, const char* name) const {
    Press(OpenExport(run, format), IDOK);
    ChooseFile(run, L"Export Dates to File", home_.Path(name));
    EXPECT_TRUE(Eventually([&] { return IsWindowEnabled(run.Window()) && !home_.Bytes(name).empty(); }));
    return home_.Bytes(name);
  }
  std::wstring Imported(const KinshipRun& run, const std::string& text, const char* icon) const {
    home_.Put("import.csv", text);
    Press(run.Window(), IDC_IMPORT);
    ChooseFile(run, L"Import Dates from File", home_.Path("import.csv"));
    return run.Answer(L"Import", run.Window(), icon, IDOK);
  }
};

TEST_F(KinshipFilesTest, ApplyStoresAndTheVersionBeforeIsKept) {
  KinshipRun run;
  run.Key(VK_DELETE);
  run.Click(IDC_APPLY);
  EXPECT_EQ(Stored(), kWithoutMoshe);
  EXPECT_EQ(home_.Bytes("persons.txt.1"), kFourPersons);
  EXPECT_FALSE(run.IsEnabled(IDC_APPLY));
  run.Click(IDC_UNDO);  // a step can be taken back all the same
  EXPECT_EQ(run.Count(), 4);
  EXPECT_TRUE(run.IsEnabled(IDC_APPLY));
  run.Discard();
  EXPECT_EQ(Stored(), kWithoutMoshe);
}

TEST_F(KinshipFilesTest, CancelAsksBeforeChangesAreDiscarded) {
  KinshipRun run;
  run.Key(VK_DELETE);
  Press(run.Window(), IDCANCEL);
  EXPECT_EQ(run.Answer(kKinshipTitle, run.Window(), IDI_QUESTION, IDNO), L"Discard the changes?");
  run.Discard();
  EXPECT_EQ(Stored(), kFourPersons);
}

TEST_F(KinshipFilesTest, WhatAnotherProgramAddedMeanwhileStaysAndIsShownAfterApply) {
  KinshipRun run;
  run.Key(VK_DELETE);
  home_.Put("persons.txt", std::string(kFourPersons) + "birthday|1950-02-16||Other||\r\n");
  run.Click(IDC_APPLY);
  EXPECT_EQ(run.Count(), 4);
  EXPECT_EQ(Stored(), std::string(kWithoutMoshe) + "birthday|1950-02-16||Other||\r\n");
  run.End(IDOK);
}

TEST_F(KinshipFilesTest, WhatBothChangedIsKeptTwiceAndTold) {
  KinshipRun run;
  const HWND entry = run.OpenEntry(IDC_CHANGE);
  SetControlText(entry, IDC_NAME, L"Mosheh");
  run.CloseEntry(entry, IDOK);
  home_.Put("persons.txt", "yahrzeit|5710-12-15 jewish||Moshe||\r\n" + std::string(kWithoutMoshe));
  Press(run.Window(), IDC_APPLY);
  const std::wstring text = run.Answer(kKinshipTitle, run.Window(), IDI_ASTERISK, IDOK);
  EXPECT_THAT(text, HasSubstr(L"Mosheh (Yahrzeit)"));
  EXPECT_TRUE(Eventually([&] { return run.Count() == 5; }));
  EXPECT_THAT(Stored(), StartsWith("yahrzeit|5710-12-15 jewish||Moshe||\r\n"));
  EXPECT_THAT(Stored(), EndsWith("yahrzeit|5710-12-14 jewish||Mosheh||\r\n"));
  run.End(IDOK);
}

TEST_F(KinshipFilesTest, AFileThatCannotBeWrittenIsNamedAndTheWindowStays) {
  KinshipRun run;
  run.Key(VK_DELETE);
  const std::wstring file = home_.Path("persons.txt").wstring();
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
  for (const int button : {IDC_APPLY, IDOK}) {
    Press(run.Window(), button);
    EXPECT_THAT(run.Answer(L"Error", run.Window(), IDI_HAND, IDOK), HasSubstr(L"persons.txt"));
  }
  EXPECT_EQ(run.Count(), 3);
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL));
  run.End(IDOK);
  EXPECT_EQ(Stored(), kWithoutMoshe);
}

TEST_F(KinshipFilesTest, AFileThatCannotBeReadIsNamedAndTheWindowComesWhenItCan) {
  HeldFile held(home_.Path("persons.txt"));
  DialogDriver driver([](HWND owner) {
    KinshipInvoke(owner, KINSHIP_GREGORIAN, 2000);
    return 1;
  });
  EXPECT_THAT(driver.Answer(L"Times / Readings", driver.Owner(), IDI_WARNING, IDRETRY), HasSubstr(L"persons.txt"));
  driver.Answer(L"Times / Readings", driver.Owner(), IDI_WARNING, IDCANCEL);
  driver.Result();
}

TEST_F(KinshipFilesTest, DamagedLinesAreToldAndStay) {
  home_.Put("persons.txt", "# mine\r\nnonsense\r\n" + std::string(kFourPersons) + "birthday|1950-02-30||x||\r\n");
  KinshipRun run;
  const std::wstring told = ControlText(run.Window(), IDC_DAMAGED);
  EXPECT_THAT(told, StartsWith(L"2 lines of the file could not be read and are kept as they are (lines 2, 7 of "));
  EXPECT_THAT(told, HasSubstr(L"persons.txt"));
  run.Key(VK_DELETE);
  run.End(IDOK);
  EXPECT_EQ(Stored(), "# mine\r\nnonsense\r\n" + std::string(kWithoutMoshe) + "birthday|1950-02-30||x||\r\n");
}

TEST_F(KinshipFilesTest, WhatIsExportedForSpreadsheetsIsImportedAgain) {
  std::string csv;
  {
    KinshipRun run;
    csv = Exported(run, 2, "dates.csv");
    EXPECT_THAT(csv, HasSubstr("Moshe,Yahrzeit,14 Adar 5710,,Jewish,,,,14 Adar 5710,20.02.2000,Sunday,50"));
    run.End(IDCANCEL);
  }
  home_.Put("persons.txt", kWithoutMoshe);
  KinshipRun run;
  EXPECT_THAT(Imported(run, csv, IDI_ASTERISK), HasSubstr(L"1 entry was added.\n3 were there already."));
  EXPECT_EQ(run.Count(), 4);
  EXPECT_EQ(run.Cell(run.Selected(), 0), L"Moshe");
  run.Click(IDC_UNDO);
  EXPECT_EQ(run.Count(), 3);
  run.End(IDCANCEL);
}

TEST_F(KinshipFilesTest, RowsThatCannotBeReadAreTold) {
  KinshipRun run;
  const std::wstring told =
      Imported(run, "Name,Occasion,Date\nA,Birthday,1.1.1950\nB,Birthday,31.2.1950\n", IDI_WARNING);
  EXPECT_THAT(told, HasSubstr(L"1 row could not be read"));
  EXPECT_THAT(told, HasSubstr(L"Row 3 (B): 31 February does not exist in 1950."));
  EXPECT_EQ(run.Count(), 5);
  run.Discard();
}

TEST_F(KinshipFilesTest, AFileThatIsNoTableOfDatesChangesNothing) {
  KinshipRun run;
  home_.Put("import.csv", "nothing");
  Press(run.Window(), IDC_IMPORT);
  ChooseFile(run, L"Import Dates from File", home_.Path("import.csv"));
  EXPECT_THAT(run.Answer(L"Error", run.Window(), IDI_HAND, IDOK), HasSubstr(L"import.csv"));
  EXPECT_FALSE(run.IsEnabled(IDC_UNDO));
  run.End(IDCANCEL);
}

TEST_F(KinshipFilesTest, OnlyTheShownOnesAreExportedWhenAskedFor) {
  KinshipRun run;
  run.Type(L"moshe");
  const HWND dialog = OpenExport(run, 0);
  EXPECT_EQ(ControlText(dialog, IDC_ALL), L"&All 4 entries");
  CheckRadioButton(dialog, IDC_ALL, IDC_SHOWN, IDC_SHOWN);
  Press(dialog, IDOK);
  ChooseFile(run, L"Export Dates to File", home_.Path("dates.txt"));
  EXPECT_TRUE(Eventually([&] { return !home_.Bytes("dates.txt").empty(); }));
  EXPECT_THAT(home_.Bytes("dates.txt"), HasSubstr("Moshe"));
  EXPECT_THAT(home_.Bytes("dates.txt"), Not(HasSubstr("anna")));
  run.End(IDCANCEL);
}

TEST_F(KinshipFilesTest, ACalendarHasTheYearsThatWereAskedFor) {
  KinshipRun run;
  const HWND dialog = OpenExport(run, 3);
  EXPECT_EQ(ControlText(dialog, IDC_FIRST_YEAR), L"2000");
  EXPECT_EQ(ControlText(dialog, IDC_YEARS), L"10");
  SetControlText(dialog, IDC_YEARS, L"0");
  Press(dialog, IDOK);
  EXPECT_THAT(run.Answer(L"Error", dialog, IDI_HAND, IDOK), HasSubstr(L"between 1 and 100"));
  SetControlText(dialog, IDC_YEARS, L"2");
  Press(dialog, IDOK);
  ChooseFile(run, L"Export Dates to File", home_.Path("dates.ics"));
  EXPECT_TRUE(Eventually([&] { return !home_.Bytes("dates.ics").empty(); }));
  const std::string text = home_.Bytes("dates.ics");
  EXPECT_THAT(text, HasSubstr("SUMMARY:Yahrzeit of Moshe (50)"));
  EXPECT_THAT(text, HasSubstr("20010309"));
  EXPECT_THAT(text, Not(HasSubstr("2002022")));
  run.End(IDCANCEL);
}

TEST_F(KinshipFilesTest, TheFileOfTheDatesIsNotExportedOver) {
  KinshipRun run;
  Press(OpenExport(run, 0), IDOK);
  const HWND dialog = run.WaitFor(L"Export Dates to File");
  SetControlText(dialog, kFileName, home_.Path("PERSONS.txt").wstring());
  Press(dialog, IDOK);
  run.Answer(L"Export Dates to File", dialog, IDI_WARNING, IDYES);  // that it is there already
  EXPECT_THAT(run.Answer(L"Error", run.Window(), IDI_HAND, IDOK), HasSubstr(L"Choose another one"));
  EXPECT_EQ(Stored(), kFourPersons);
  run.End(IDCANCEL);
}

TEST_F(KinshipFilesTest, TheEndOfTheSessionWaitsForWhatIsNotSaved) {
  KinshipRun run;
  EXPECT_NE(SendMessageW(run.Window(), WM_QUERYENDSESSION, 0, 0), 0);
  run.Key(VK_DELETE);
  EXPECT_EQ(SendMessageW(run.Window(), WM_QUERYENDSESSION, 0, 0), 0);
  run.Click(IDC_APPLY);
  EXPECT_NE(SendMessageW(run.Window(), WM_QUERYENDSESSION, 0, 0), 0);
  run.End(IDOK);
}

TEST_F(KinshipFilesTest, RtfIsWritten) {
  KinshipRun run;
  EXPECT_THAT(Exported(run, 1, "dates.rtf"), StartsWith("{\\rtf1"));
  run.End(IDCANCEL);
}

TEST_F(KinshipFilesTest, AnExportThatCannotBeWrittenIsNamedAndTheOldFileStays) {
  home_.Put("dates.txt", "old");
  KinshipRun run;
  const std::wstring file = home_.Path("dates.txt").wstring();
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
  Press(OpenExport(run, 0), IDOK);
  const HWND dialog = run.WaitFor(L"Export Dates to File");
  SetControlText(dialog, kFileName, file);
  Press(dialog, IDOK);
  run.Answer(L"Export Dates to File", dialog, IDI_WARNING, IDYES);  // that it is there already
  EXPECT_THAT(run.Answer(L"Error", run.Window(), IDI_HAND, IDOK), HasSubstr(L"dates.txt"));
  EXPECT_EQ(home_.Bytes("dates.txt"), "old");
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL));
  run.End(IDCANCEL);
}

}  // namespace
