// The file of the user's own texts of readings: what others do to it, what is damaged, what is imported and exported.
#include <gmock/gmock.h>

#include "tests/contract/held_file.h"
#include "tests/contract/lections_own_driver.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr int kFileName = 0x47C;  // cmb13 of dlgs.h: the field of the system's dialogs for files

constexpr char kOurs[] = "portion Lech Lecha | haftarah 1 | all | all | all | instead | Ours\r\n";
constexpr char kTheirs[] = "portion Lech Lecha | haftarah 1 | all | all | all | instead | Theirs\r\n";
constexpr char kVayera[] = "portion Vayera | haftarah 1 | all | all | all | instead | Another\r\n";

class OwnReadingsFilesTest : public OwnReadingsDialogTest {
 protected:
  static void ChooseFile(const OwnReadingsRun& run, int button, const wchar_t* caption,
                         const std::filesystem::path& path) {
    Press(run.Window(), button);
    const HWND dialog = run.WaitFor(caption);
    SetControlText(dialog, kFileName, path.wstring());
    Press(dialog, IDOK);
  }
  void Import(const OwnReadingsRun& run, const std::string& text) const {
    home_.Put("taken.txt", text);
    ChooseFile(run, IDC_OWN_IMPORT, L"Import Custom Readings", home_.Path("taken.txt"));
  }
  // What is asked before a file's texts are taken over.
  std::wstring Imported(const OwnReadingsRun& run, const std::string& text, int answer) const {
    Import(run, text);
    return run.Answer(kOwnTitle, run.Window(), IDI_QUESTION, answer);
  }
  std::string Exported(const OwnReadingsRun& run, const wchar_t* name) const {
    ChooseFile(run, IDC_OWN_EXPORT, L"Export Custom Readings", home_.Folder() / name);
    EXPECT_THAT(run.Answer(kOwnTitle, run.Window(), IDI_ASTERISK, IDOK), HasSubstr(name));
    return home_.Bytes(std::filesystem::path(name).string().c_str());
  }
};

TEST_F(OwnReadingsFilesTest, AnotherProgramsChangeIsReadWithinAMoment) {
  EXPECT_EQ(LechLecha(), kLechLechasOwn);
  Put(kOurs);
  EXPECT_TRUE(Eventually([] { return LechLecha() == "Ours"; }));
  Put(std::string(kOurs) + kTheirs);
  EXPECT_TRUE(Eventually([] { return LechLecha() == "Theirs"; }));
  std::filesystem::remove(home_.Path(kOwnFile));
  EXPECT_TRUE(Eventually([] { return LechLecha() == kLechLechasOwn; }));
}

TEST_F(OwnReadingsFilesTest, WhatAnotherProgramAddedMeanwhileStays) {
  OwnReadingsRun run;
  run.AddHaftarah(L"Lech Lecha", L"Ours");
  Put(std::string("# theirs\n") + kVayera);
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), std::string("# theirs\n") + kVayera + std::string(kOurs).replace(sizeof kOurs - 3, 2, "\n"));
}

TEST_F(OwnReadingsFilesTest, WhatBothChangedIsAskedAboutAndTheOthersMayStay) {
  OwnReadingsRun run;
  run.AddHaftarah(L"Lech Lecha", L"Ours");
  run.AddHaftarah(L"Vayera", L"Another");
  Put(kTheirs);
  Press(run.Window(), IDOK);
  EXPECT_THAT(run.Answer(kOwnTitle, run.Window(), IDI_QUESTION, IDNO), HasSubstr(L"Lech Lecha, Haftarah 1 (all)"));
  EXPECT_NE(run.Result(), 0);
  EXPECT_EQ(Stored(), std::string(kTheirs) + kVayera);
  EXPECT_EQ(LechLecha(), "Theirs");
}

TEST_F(OwnReadingsFilesTest, ATextThatMovedStaysWhereItWasWhenAnothersStaysAtItsNewPlace) {
  const std::string mine = "portion Lech Lecha | haftarah 2 | all | all | all | instead | Mine\r\n";
  Put(mine);
  OwnReadingsRun run;
  run.ShowPortion(L"Lech Lecha");
  const HWND dialog = run.OpenText(IDC_OWN_CHANGE, L"Lech Lecha");
  ChooseRow(dialog, IDC_OWN_SLOT, kHaftarah1Row);
  run.CloseText(dialog, IDOK);
  Put(mine + kTheirs);
  Press(run.Window(), IDOK);
  run.Answer(kOwnTitle, run.Window(), IDI_QUESTION, IDNO);
  EXPECT_NE(run.Result(), 0);
  EXPECT_EQ(Stored(), mine + kTheirs);
}

TEST_F(OwnReadingsFilesTest, WhatBothChangedIsReplacedWhenTheUserWantsIt) {
  OwnReadingsRun run;
  run.AddHaftarah(L"Lech Lecha", L"Ours");
  Put(kTheirs);
  Press(run.Window(), IDOK);
  run.Answer(kOwnTitle, run.Window(), IDI_QUESTION, IDCANCEL);
  EXPECT_EQ(Stored(), kTheirs);
  Press(run.Window(), IDOK);
  run.Answer(kOwnTitle, run.Window(), IDI_QUESTION, IDYES);
  EXPECT_NE(run.Result(), 0);
  EXPECT_EQ(Stored(), kOurs);
}

TEST_F(OwnReadingsFilesTest, DamagedLinesAreToldAndStayByteForByte) {
  const std::string damaged =
      "\xEF\xBB\xBF# mine\n  portion Noah | torah 1 | all | all\t\n\xFF\xFE"
      "bytes\n";
  Put(damaged + kVayera);
  OwnReadingsRun run;
  EXPECT_EQ(run.Text(IDC_OWN_DAMAGED),
            L"Not understood in the file: lines 2, 3. They stay as they are, and count for nothing.");
  run.ShowPortion(L"Vayera");
  const HWND dialog = run.OpenText(IDC_OWN_CHANGE, L"Vayera");
  SetControlText(dialog, IDC_OWN_TEXT, L"Changed");
  run.CloseText(dialog, IDOK);
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), damaged + "portion Vayera | haftarah 1 | all | all | all | instead | Changed\r\n");
}

// Days of years gone by never come again.
TEST_F(OwnReadingsFilesTest, AThousandTextsOfPastDatesDoNotHoldUpTheDialog) {
  std::string file;
  for (int i = 0; i < 1000; ++i) {
    file += "date " + std::to_string(1 + i % 29) + " Nisan " + std::to_string(5700 + i / 29) +
            " | torah 1 | all | all | all | instead | Siyum\r\n";
  }
  Put(file);
  const ULONGLONG start = GetTickCount64();
  OwnReadingsRun run;
  run.ShowKind(kWithOwnTextsKind);
  EXPECT_EQ(OwnReadingsRun::Count(run.Readings()), 1000);
  SendMessageW(run.OwnTexts(), WM_KEYDOWN, VK_DELETE, 1);
  EXPECT_EQ(OwnReadingsRun::Count(run.Readings()), 999);
  EXPECT_LT(GetTickCount64() - start, 5000u);
  EXPECT_EQ(run.Discard(), 0);
}

TEST_F(OwnReadingsFilesTest, AFileThatCannotBeWrittenIsNamedAndTheDialogStays) {
  Put(kVayera);
  OwnReadingsRun run;
  run.AddHaftarah(L"Lech Lecha", L"Ours");
  const std::wstring file = home_.Path(kOwnFile).wstring();
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
  Press(run.Window(), IDOK);
  EXPECT_THAT(run.Answer(L"Error", run.Window(), IDI_HAND, IDOK), HasSubstr(file));
  EXPECT_EQ(Stored(), kVayera);
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL));
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), std::string(kVayera) + kOurs);
}

TEST_F(OwnReadingsFilesTest, AFileHeldByAnotherProgramWhenOkIsChosenIsNotReplaced) {
  Put(kVayera);
  OwnReadingsRun run;
  run.AddHaftarah(L"Lech Lecha", L"Ours");
  {
    const HeldFile held(home_.Path(kOwnFile));
    Press(run.Window(), IDOK);
    EXPECT_THAT(run.Answer(L"Error", run.Window(), IDI_HAND, IDOK), HasSubstr(L"readings.txt"));
  }
  EXPECT_EQ(Stored(), kVayera);
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), std::string(kVayera) + kOurs);
}

TEST_F(OwnReadingsFilesTest, ImportedTextsReplaceThoseAtTheirPlacesAndAreOneStepForUndo) {
  Put(kOurs);
  OwnReadingsRun run;
  EXPECT_THAT(Imported(run, std::string(kTheirs) + kVayera, IDNO),
              HasSubstr(L"2 texts, of which 1 would replace yours"));
  EXPECT_FALSE(run.IsEnabled(IDC_OWN_UNDO));
  EXPECT_THAT(Imported(run, std::string(kTheirs) + kVayera, IDYES), Not(HasSubstr(L"Not understood")));
  EXPECT_TRUE(Eventually([&] { return run.IsEnabled(IDC_OWN_UNDO); }));
  EXPECT_EQ(run.OwnText(0).back(), L"Theirs");
  run.Click(IDC_OWN_UNDO);
  EXPECT_FALSE(run.IsEnabled(IDC_OWN_UNDO));
  EXPECT_EQ(run.OwnText(0).back(), L"Ours");
  Imported(run, std::string(kTheirs) + kVayera, IDYES);
  EXPECT_TRUE(Eventually([&] { return run.IsEnabled(IDC_OWN_UNDO); }));
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), std::string(kTheirs) + kVayera);
}

TEST_F(OwnReadingsFilesTest, ImportedTextsAreShownThoughASearchWouldHideThem) {
  OwnReadingsRun run;
  run.ShowKind(kDatesKind);
  run.Type(L"no such reading");
  Imported(run, kVayera, IDYES);
  EXPECT_TRUE(Eventually([&] { return OwnReadingsRun::Count(run.OwnTexts()) == 1; }));
  EXPECT_EQ(run.Text(IDC_OWN_TYPED), L"");
  EXPECT_EQ(run.Discard(), 0);
}

TEST_F(OwnReadingsFilesTest, DamagedLinesOfAnImportedFileAreToldByNumber) {
  OwnReadingsRun run;
  EXPECT_THAT(Imported(run, std::string("nonsense\r\n# remark\r\n\r\n") + kVayera + "more\r\n", IDYES),
              HasSubstr(L"1 text, of which 0 would replace yours"));
  EXPECT_TRUE(Eventually([&] { return run.IsEnabled(IDC_OWN_UNDO); }));
  EXPECT_THAT(Imported(run, std::string("nonsense\r\n# remark\r\n\r\n") + kVayera + "more\r\n", IDNO),
              HasSubstr(L"Not understood, and left out: lines 1, 5."));
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_THAT(Stored(), Not(HasSubstr("nonsense")));
}

TEST_F(OwnReadingsFilesTest, AFileWithNothingOfUseChangesNothing) {
  OwnReadingsRun run;
  for (const char* text : {"", "nonsense\r\n", "# remark\r\n"}) {
    Import(run, text);
    const std::wstring told = run.Answer(L"Error", run.Window(), IDI_HAND, IDOK);
    EXPECT_THAT(told, HasSubstr(L"taken.txt")) << text;
    EXPECT_THAT(told, HasSubstr(L"has no texts of readings")) << text;
  }
  EXPECT_FALSE(run.IsEnabled(IDC_OWN_UNDO));
  EXPECT_EQ(run.End(IDOK), 0);
  EXPECT_FALSE(IsFile());
}

TEST_F(OwnReadingsFilesTest, AFileToImportThatAnotherProgramHoldsIsNamed) {
  OwnReadingsRun run;
  home_.Put("taken.txt", kVayera);
  const HeldFile held(home_.Path("taken.txt"));
  ChooseFile(run, IDC_OWN_IMPORT, L"Import Custom Readings", home_.Path("taken.txt"));
  EXPECT_THAT(run.Answer(L"Error", run.Window(), IDI_HAND, IDOK), HasSubstr(L"taken.txt"));
  EXPECT_EQ(run.End(IDOK), 0);
}

// Every column in use, letters of several code pages, marks of the file's own form.
constexpr char kOfEveryKind[] =
    "portion Matot-Masei | torah 1 | all | all | all | after | ; Morning: A|B\r\n"
    "portion Vayera | haftarah 2 | diaspora | Sephardi | German | instead | K\xC3\xB6nige %25\r\n"
    "occasion Sukkot, day 1, Shabbat | extra | Israel | several | all | instead | %20x%20\r\n"
    "date 7 Adar | torah 3 | all | Ashkenazi | Hebrew | after | \xD7\xA0\xD7\x97\r\n"
    "date 15 Av 5787 | haftarah 3 | all | all | English (Ashkenazi spelling) | instead |\r\n";

TEST_F(OwnReadingsFilesTest, WhatIsExportedIsImportedElsewhereAlike) {
  std::string exported;
  {
    Put(std::string("nonsense\r\n") + kOfEveryKind);
    OwnReadingsRun run;
    exported = Exported(run, L"exported.txt");
    EXPECT_THAT(exported, Not(HasSubstr("nonsense")));
    EXPECT_EQ(run.End(IDOK), 0);
  }
  std::filesystem::remove(home_.Path(kOwnFile));
  OwnReadingsRun run;
  EXPECT_THAT(Imported(run, exported, IDYES), HasSubstr(L"5 texts"));
  EXPECT_TRUE(Eventually([&] { return run.IsEnabled(IDC_OWN_UNDO); }));
  EXPECT_EQ(Exported(run, L"again.txt"), exported);
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), exported);
}

TEST_F(OwnReadingsFilesTest, TheProgramsOwnFileIsNotExportedTo) {
  Put(kOurs);
  OwnReadingsRun run;
  Press(run.Window(), IDC_OWN_EXPORT);
  const HWND dialog = run.WaitFor(L"Export Custom Readings");
  SetControlText(dialog, kFileName, home_.Path(kOwnFile).wstring());
  Press(dialog, IDOK);
  // The system asks under the same title whether to replace what is there.
  EXPECT_TRUE(Eventually([&] {
    PostMessageW(FindWindowW(L"#32770", L"Export Custom Readings"), WM_COMMAND, IDYES, 0);
    return DialogWithCaption(L"Error") != nullptr;
  }));
  EXPECT_THAT(run.Answer(L"Error", run.Window(), IDI_HAND, IDOK), HasSubstr(L"Choose another one"));
  EXPECT_EQ(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), kOurs);
}

}  // namespace
