// The exports of the finished program, from the menu command to the file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "tests/end_to_end/command_steps.h"
#include "tests/end_to_end/program_driver.h"

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;
namespace fs = std::filesystem;

namespace {

constexpr unsigned kViewShabbatTimes = 1111;
constexpr unsigned kViewZmanim = 1112;
constexpr unsigned kViewReadings = 1113;
constexpr unsigned kExportText = 1005;
constexpr unsigned kExportRtf = 1007;
constexpr unsigned kExportZmanim = 1020;
constexpr unsigned kExportDates = 1021;

constexpr char kDatesDialog[] = "Export Gregorian/Jewish dates, torah/haphtarah readings, holidays";
constexpr int kFile = 101;
constexpr int kSeparator = 102;
constexpr int kHeader = 103;
constexpr int kReadingsSeparator = 104;
constexpr int kLanguage = 105;
constexpr int kBrowse = 200;

struct Export {
  unsigned view;
  unsigned command;
  const char* file;
  std::string start;  // of the file's text
  std::string part;
  std::string end;
};

// Sunset in Aachen on 5 January 2007: 16:45 by PyEphem (50:47 N, 6:05 E, centre at -50'); the built-in table has it in
// its 15th place.
const Export kExports[] = {
    {kViewZmanim, kExportText, "zmanim.txt",
     std::string(32, ' ') + "Zmanim of Aachen\r\n" + std::string(32, ' ') +
         "----------------\r\n\r\n1 = Alot HaShachar",
     "\r\nDate       11    12    13    14    15    16    17    18    19   \r\n"
     "---------- ----- ----- ----- ----- ----- ----- ----- ----- -----\r\n05.01.2007 ",
     "\r\n\r\n"},
    {kViewZmanim, kExportRtf, "zmanim.rtf",
     "{\\rtf1\\ansi\r\n\\b Zmanim of Aachen\\plain\\par\r\n\\par\r\n1 = Alot HaShachar",
     "\\b 19\\plain\\cell\r\n\\row\r\n\\intbl\r\n05.01.2007\\par\r\n06.01.2007\\par\r\n\\cell\r\n", "\\par\r\n}\r\n"},
    {kViewZmanim, 1022, "days.rtf", "{\\rtf1\\ansi\r\n\\b Zmanim of Aachen\\plain\\par\r\n\\par\r\n1 = Alot HaShachar",
     "\\cell\r\n16:45\\cell\r\n", "\\par\r\n}\r\n"},
    {kViewReadings, kExportText, "readings.txt", "Date        Parashioth ",
     "\r\n06.01.2007  Vayechi: Genesis 47:28-50:26" + std::string(67, ' ') + "  I Kings 2:1-12", "\r\n\r\n"},
    {kViewReadings, kExportRtf, "wide.rtf", "{\\rtf1\\ansi\r\n{\\fonttbl {\\f0\\froman Times New Roman;}}\r\n",
     "\\intbl\r\n06.01.2007\\par\r\n\\plain\r\n\\cell\r\nVayechi: Genesis 47:28-50:26\\par\r\n", "\\intbl\r\n}\r\n"},
    {kViewReadings, 1023, "narrow.rtf", "{\\rtf1\\ansi\r\n{\\fonttbl {\\f0\\froman Times New Roman;}}\r\n",
     "\\intbl\r\n\\fs12\r\n06.01.2007\\par\r\n\r\n\\cell\r\nVayechi: Genesis 47:28-50:26\\par\r\n", "\\pard\r\n}\r\n"},
};

class ExportsEndToEndTest : public testing::Test {
 protected:
  void SetUp() override {
    WriteFileText(settings_.path() / "stamp.ini", "[Times]\r\nForm=24\r\n");
    WriteFileText(settings_.path() / "shab30.ini", "[Settings]\r\nEnableZmanim=0\r\n");
    WriteFileText(settings_.path() / "lections.ini", "[Readings]\r\nLand=Diaspora\r\nCustom=Ashkenazi\r\n");
    program_.emplace(ProgramFolder(), settings_.path());
    // A Friday and the Shabbat of Vayechi.
    ASSERT_NE(OpenRange(*program_, "5.1.2007", "6.1.2007"), nullptr);
  }

  void Show(unsigned view) { SendMessageA(program_->WaitForTopLevel("ShabbatMain"), WM_COMMAND, view, 0); }
  fs::path File(const char* name) const { return folder_.path() / name; }
  std::string Written(const char* name) const { return ReadFileText(File(name)); }

  void ExpectWritten(const Export& row) {
    const auto whole = [&] {
      const std::string text = Written(row.file);
      return text.starts_with(row.start) && text.find(row.part) != text.npos && text.ends_with(row.end);
    };
    if (program_->Eventually(whole)) return;
    EXPECT_THAT(Written(row.file), StartsWith(row.start)) << row.file;
    EXPECT_THAT(Written(row.file), HasSubstr(row.part)) << row.file;
    EXPECT_THAT(Written(row.file), EndsWith(row.end)) << row.file;
  }

  std::size_t CountOfFiles() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_.path()), {}));
  }

  // The box that names a file which cannot be written; closes it.
  void ExpectUnwritable(const std::string& file) {
    const HWND box = program_->WaitForDialog("Error");
    const std::string text = TextOf(GetDlgItem(box, 0xFFFF));
    EXPECT_THAT(text, StartsWith("File "));
    EXPECT_THAT(text, HasSubstr(file));
    EXPECT_THAT(text, HasSubstr(" could not be written.\n"));
    Answer(box, IDOK);
    EXPECT_TRUE(program_->Eventually([&] { return !IsWindow(box); }));
  }

  // Clicks OK in the dialog of a delimited export and closes the word that follows.
  void ExpectInformation(HWND dialog, const std::string& file) {
    Answer(dialog, IDOK);
    const HWND box = program_->WaitForDialog("Information");
    EXPECT_EQ(TextOf(GetDlgItem(box, 0xFFFF)), "Information was written to file " + file);
    Answer(box, IDOK);
    EXPECT_TRUE(program_->Eventually([&] { return !IsWindow(dialog); }));
  }

  TemporaryFolder settings_;
  TemporaryFolder folder_;
  std::optional<ProgramRun> program_;
};

}  // namespace

TEST_F(ExportsEndToEndTest, EveryViewIsWrittenInItsFormats) {
  for (const Export& row : kExports) {
    Show(row.view);
    program_->PostCommand(row.command);
    SaveAs(*program_, File(row.file));
    ExpectWritten(row);
  }
}

TEST_F(ExportsEndToEndTest, AnExistingFileIsReplacedOnlyAfterTheUserAgreed) {
  for (const Export& row : kExports) {
    WriteFileText(File(row.file), "an older file");
    Show(row.view);
    program_->PostCommand(row.command);
    SaveAs(*program_, File(row.file));
    const HWND question = program_->WaitForQuestion();
    Answer(question, IDNO);
    EXPECT_TRUE(program_->Eventually([&] { return !IsWindow(question); }));
    EXPECT_EQ(Written(row.file), "an older file");
    SaveAs(*program_, File(row.file));
    Answer(program_->WaitForQuestion(), IDYES);
    ExpectWritten(row);
  }
}

TEST_F(ExportsEndToEndTest, ACancelledExportWritesNothing) {
  for (const Export& row : kExports) {
    Show(row.view);
    program_->PostCommand(row.command);
    CancelSaving(*program_);
  }
  EXPECT_TRUE(fs::is_empty(folder_.path()));
}

TEST_F(ExportsEndToEndTest, AFileThatAnotherProgramHoldsIsNamedAndStaysWhole) {
  for (const Export& row : kExports) {
    const fs::path file = File(row.file);
    WriteFileText(file, "an older file");
    const HANDLE held =
        CreateFileA(file.string().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    Show(row.view);
    program_->PostCommand(row.command);
    SaveAs(*program_, file);
    Answer(program_->WaitForQuestion(), IDYES);
    ExpectUnwritable(file.string());
    CloseHandle(held);
    EXPECT_EQ(Written(row.file), "an older file") << row.file;
  }
  EXPECT_EQ(CountOfFiles(), std::size(kExports)) << "nothing is left beside";
}

TEST_F(ExportsEndToEndTest, AReadOnlyFileIsNamedAndStaysWhole) {
  const fs::path file = File("zmanim.txt");
  WriteFileText(file, "an older file");
  SetFileAttributesA(file.string().c_str(), FILE_ATTRIBUTE_READONLY);
  Show(kViewZmanim);
  program_->PostCommand(kExportText);
  SaveAs(*program_, file);
  Answer(program_->WaitForQuestion(), IDYES);
  ExpectUnwritable(file.string());
  SetFileAttributesA(file.string().c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(Written("zmanim.txt"), "an older file");
  EXPECT_EQ(CountOfFiles(), 1u);
}

TEST_F(ExportsEndToEndTest, ADeviceIsNamedAndNotWrittenTo) {
  for (const unsigned view : {kViewShabbatTimes, kViewZmanim, kViewReadings}) {
    Show(view);
    program_->PostCommand(kExportText);
    SaveAs(*program_, File("nul"));
    Answer(program_->WaitForQuestion(), IDYES);
    ExpectUnwritable("nul");
  }
  EXPECT_TRUE(fs::is_empty(folder_.path()));
}

// The system's dialog keeps these to itself: it complains of the name, and opens the folder.
TEST_F(ExportsEndToEndTest, AnImpossibleNameAndAFolderAreNotTakenByTheSaveDialog) {
  fs::create_directories(File("folder.txt"));
  for (const unsigned view : {kViewShabbatTimes, kViewZmanim, kViewReadings}) {
    Show(view);
    program_->PostCommand(kExportText);
    SaveAs(*program_, File("a|b.txt"));
    const HWND box = program_->WaitForDialog("Invalid character(s) in path");
    Answer(box, IDOK);
    EXPECT_TRUE(program_->Eventually([&] { return !IsWindow(box); }));
    SaveAs(*program_, File("folder.txt"));
    CancelSaving(*program_);
  }
  EXPECT_TRUE(fs::is_empty(File("folder.txt")));
  EXPECT_EQ(CountOfFiles(), 1u) << "the folder";
}

TEST_F(ExportsEndToEndTest, TheSecondTypeIsForAllWordProcessorsAndIsRememberedAfterARestart) {
  Show(kViewZmanim);
  program_->PostCommand(kExportRtf);
  EXPECT_EQ(TypeToSave(*program_), 0);
  ChooseTypeToSave(*program_, 1);
  SaveAs(*program_, File("zmanim"));
  EXPECT_TRUE(program_->Eventually([&] { return Written("zmanim.rtf").ends_with("\\par\r\n}\r\n"); }));
  EXPECT_THAT(Written("zmanim.rtf"), HasSubstr("\r\n{\\trowd\\cellx1440\\cellx2160"));
  program_.reset();
  program_.emplace(ProgramFolder(), settings_.path());
  program_->WaitForDocuments(1);
  Show(kViewZmanim);
  program_->PostCommand(kExportRtf);
  EXPECT_EQ(TypeToSave(*program_), 1);
  CancelSaving(*program_);
}

TEST_F(ExportsEndToEndTest, TheLastNameIsOfferedAgain) {
  Show(kViewZmanim);
  program_->PostCommand(kExportText);
  SaveAs(*program_, File("zmanim.txt"));
  ExpectWritten(kExports[0]);
  program_->PostCommand(kExportText);
  const HWND dialog = program_->WaitForDialog("Save As");
  EXPECT_THAT(TextOf(GetDlgItem(dialog, 0x47C)), HasSubstr("zmanim.txt"));
  CancelSaving(*program_);
  program_->PostCommand(kExportRtf);
  EXPECT_THAT(TextOf(GetDlgItem(program_->WaitForDialog("Save As"), 0x47C)), HasSubstr("zmanim.rtf"));
  CancelSaving(*program_);
}

TEST_F(ExportsEndToEndTest, ZmanimForDatabases) {
  program_->PostCommand(kExportZmanim);
  const HWND dialog = program_->WaitForDialog("Export Zmanim");
  EXPECT_EQ(TextOf(GetDlgItem(dialog, kSeparator)), ";");
  Answer(dialog, kBrowse);
  SaveAs(*program_, File("zmanim"));
  const std::string file = File("zmanim.txt").string();
  EXPECT_TRUE(program_->Eventually([&] { return TextOf(GetDlgItem(dialog, kFile)) == file; }))
      << TextOf(GetDlgItem(dialog, kFile));
  ExpectInformation(dialog, file);
  const std::string text = Written("zmanim.txt");
  EXPECT_THAT(text, StartsWith("Gregorian date;Alot HaShachar (Rabbi Moshe Feinstein);"));
  EXPECT_THAT(text, HasSubstr("\r\n05.01.2007;"));
  EXPECT_EQ(std::count(text.begin(), text.end(), ';'), 3 * 19);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 3);
}

// 6 January 2007 is 16 Tevet 5767 (Hebcal).
TEST_F(ExportsEndToEndTest, DatesAndReadingsForDatabases) {
  const struct {
    const char* language;
    const char* date;
  } languages[] = {{"English", "06.01.2007|16 Tevet 5767|"}, {"German", "06.01.2007|16. Tevet 5767|"}};
  for (const auto& row : languages) {
    program_->PostCommand(kExportDates);
    const HWND dialog = program_->WaitForDialog(kDatesDialog);
    const fs::path file = File((std::string(row.language) + ".csv").c_str());
    SetText(dialog, kFile, file.string());
    SetText(dialog, kSeparator, "|");
    SendDlgItemMessageA(dialog, kHeader, BM_SETCHECK, BST_UNCHECKED, 0);
    SendDlgItemMessageA(dialog, kLanguage, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                        reinterpret_cast<LPARAM>(row.language));
    ExpectInformation(dialog, file.string());
    EXPECT_EQ(ReadFileText(file), std::string(row.date) + "Vayechi: Genesis 47:28-50:26|I Kings 2:1-12\r\n");
  }
}

TEST_F(ExportsEndToEndTest, AFileForDatabasesThatCannotBeWrittenIsNamedAndTheDialogStays) {
  for (const auto& [command, title] : {std::pair{kExportZmanim, "Export Zmanim"}, {kExportDates, kDatesDialog}}) {
    program_->PostCommand(command);
    const HWND dialog = program_->WaitForDialog(title);
    for (const std::string& name : {folder_.path().string(), File("a|b.csv").string(), File("nul").string()}) {
      SetText(dialog, kFile, name);
      Answer(dialog, IDOK);
      ExpectUnwritable(name);
      EXPECT_TRUE(program_->Eventually([&] { return IsWindowEnabled(dialog); }));
    }
    Answer(dialog, IDCANCEL);
    EXPECT_TRUE(program_->Eventually([&] { return !IsWindow(dialog); }));
  }
  EXPECT_TRUE(fs::is_empty(folder_.path()));
}

TEST_F(ExportsEndToEndTest, ADialogThatLacksSomethingStaysOpen) {
  program_->PostCommand(kExportDates);
  const HWND dialog = program_->WaitForDialog(kDatesDialog);
  const struct {
    int field;
    const char* text;
    const char* complaint;
  } steps[] = {{kFile, "dates.csv", "Filename must not be blank"},
               {kSeparator, ";", "Separator must not be blank"},
               {kReadingsSeparator, ",", "Separator for multiple readings must not be blank"}};
  for (const auto& step : steps) SetText(dialog, step.field, "  ");
  for (const auto& step : steps) {
    Answer(dialog, IDOK);
    const HWND box = program_->WaitForDialog("Error");
    EXPECT_EQ(TextOf(GetDlgItem(box, 0xFFFF)), step.complaint);
    Answer(box, IDOK);
    EXPECT_TRUE(program_->Eventually([&] { return !IsWindow(box) && IsWindowEnabled(dialog); }));
    SetText(dialog, step.field, step.text);
  }
  Answer(dialog, IDCANCEL);
  EXPECT_TRUE(program_->Eventually([&] { return !IsWindow(dialog); }));
}

TEST_F(ExportsEndToEndTest, ShabbatTimesInOneRow) {
  Show(kViewShabbatTimes);
  program_->PostCommand(kExportRtf);
  Answer(program_->WaitForDialog("Export to RTF Options"), IDOK);
  SaveAs(*program_, File("times.rtf"));
  const std::string expected =
      "{\\rtf1\\ansi\r\n\\b Times / Readings of Aachen\\plain\\par\r\n\\par\r\n\\cellx2880\\cellx5760\\cellx8640\r\n"
      "\\intbl\r\n\\b Date\\plain\r\n\\cell\r\n\\b Candle Lighting\\plain\r\n\\cell\r\n\\b End of Shabbat\\plain\r\n"
      "\\cell\r\n\\row\r\n\\intbl\r\n05.01.2007\\par\r\n\\cell\r\n16:27\\par\r\n\\cell\r\n17:31\\par\r\n\\cell\r\n"
      "\\row\r\n\\pard\r\n}\r\n";
  EXPECT_TRUE(program_->Eventually([&] { return Written("times.rtf") == expected; })) << Written("times.rtf");
}

// Helsinki, 60:10 N, 24:56 E, by PyEphem (EEST): sunset on Friday 22:23:49; in the night after Shabbat the sun does not
// get 8.5 degrees down and is lowest at 01:17:52.
TEST(LateShabbatEndToEndTest, AnEndAfterMidnightIsExportedAsTheClockShowsIt) {
  const TemporaryFolder settings;
  const TemporaryFolder folder;
  WriteFileText(settings.path() / "almanac13.ini", "[Preferences]\r\nDefaultLocation=Helsinki\r\n");
  WriteFileText(settings.path() / "shabbat2.ini", "[Shabbat]\r\nDoMinutes=0\r\nDegreesBelowHorizon=8.5\r\n");
  struct Row {
    const char* form;
    const char* line;
  };
  for (const Row& row : {Row{"24", "29.05.2026   22:06             01:18\r\n"},
                         Row{"12", "29.05.2026   10:06 p.m.        01:18 a.m.\r\n"}}) {
    WriteFileText(settings.path() / "stamp.ini", std::string("[Times]\r\nForm=") + row.form + "\r\n");
    const ProgramRun program(ProgramFolder(), settings.path());
    ASSERT_NE(OpenRange(program, "29.5.2026", "29.5.2026"), nullptr);
    const fs::path file = folder.path() / (std::string(row.form) + ".txt");
    program.PostCommand(kExportText);
    SaveAs(program, file);
    EXPECT_TRUE(program.Eventually([&] { return ReadFileText(file).ends_with(row.line); })) << ReadFileText(file);
  }
}
