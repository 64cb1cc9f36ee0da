// The frame's commands in the finished program: what opens, what is written, what is computed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/end_to_end/command_steps.h"
#include "tests/end_to_end/program_driver.h"

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
namespace fs = std::filesystem;

namespace {

class CommandsTest : public testing::Test {
 protected:
  void SetUp() override { WriteFileText(settings_.path() / "stamp.ini", "[Times]\r\nForm=24\r\n"); }

  std::string Setting(const char* file) const { return ReadFileText(settings_.path() / file); }

  // The same days always, so that what is exported does not depend on the day of the test.
  static void OpenFixedRange(const ProgramRun& program) { OpenRange(program, "5.1.2007", "13.1.2007"); }

  TemporaryFolder settings_;
  TemporaryFolder exports_;
};

// Sunset in Aachen by PyEphem (50:47 N, 6:05 E, centre at -50'): 16:45 on 5 January 2007, 16:46 on the 6th, 16:54 on
// the 12th, 16:55 on the 13th.
constexpr char kAachenText[] =
    "Times / Readings of Aachen\r\n"
    "\r\n"
    "Date         Candle Lighting   End of Shabbat\r\n"
    "----------   ---------------   --------------\r\n"
    "05.01.2007   16:27             17:31\r\n"
    "12.01.2007   16:36             17:40\r\n";

}  // namespace

TEST_F(CommandsTest, RangeOpensADocumentEachTime) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  OpenFixedRange(program);
  const auto documents = program.WaitForDocuments(2);
  EXPECT_EQ(TextOf(documents.front()), "Aachen (5.1.2007 - 13.1.2007)");
}

TEST_F(CommandsTest, PreferencesAreWrittenAndMirrored) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  program.PostCommand(1003);
  const HWND dialog = program.WaitForDialog("Shabbat Time Preferences");
  SetText(dialog, 101, "20");
  SendDlgItemMessageA(dialog, 202, BM_CLICK, 0, 0);
  SetText(dialog, 203, "8.5");
  SetText(dialog, 204, "2");
  Click(dialog, IDOK);
  program.WaitForDocuments(2);
  for (const char* file : {"shabbat2.ini", "almanachlp2.ini"}) {
    EXPECT_THAT(Setting(file), HasSubstr("CandleLighting=20\r\n"));
    EXPECT_THAT(Setting(file), HasSubstr("DegreesBelowHorizon=8.5\r\n"));
    EXPECT_THAT(Setting(file), HasSubstr("AddMinutesAfterDegrees=2\r\n"));
  }
  EXPECT_THAT(Setting("shabbat2.ini"), HasSubstr("DoMinutes=0\r\n"));
  EXPECT_THAT(Setting("almanachlp2.ini"), Not(HasSubstr("DoMinutes")));
}

TEST_F(CommandsTest, InformationDialogsOpenAndClose) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  const struct {
    unsigned command;
    const char* title;
  } dialogs[] = {{1001, "Select Location"}, {1004, "Sunset time of a day"}, {3003, "About Times / Readings"},
                 {1017, "Form of Times"},   {1102, "Summer Time"},          {1101, "Select Location"}};
  for (const auto& row : dialogs) {
    program.PostCommand(row.command);
    const HWND dialog = program.WaitForDialog(row.title);
    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(program.Eventually([&] { return !IsWindow(dialog); })) << row.title;
  }
  EXPECT_EQ(program.WaitForDocuments(1).size(), 1u);
}

TEST_F(CommandsTest, CustomTimesOpenADocumentWithThem) {
  WriteFileText(settings_.path() / "shabbat2.ini", "[Shabbat]\r\nCandleLighting=18\r\n");
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  program.PostCommand(1016);
  Click(program.WaitForDialog("Custom Candle-Lighting Times"), IDOK);
  EXPECT_EQ(program.WaitForDocuments(2).size(), 2u);
}

// Sunset in Aachen by PyEphem (50:47 N, 6:05 E, centre at -50'): 21:53 on 26 June 2026, in summer
// time; candles are lit 18 minutes before.
TEST_F(CommandsTest, WithoutSummerTimeTheNewDocumentIsAnHourEarlier) {
  const auto exported = [this](const ProgramRun& program, const char* name) {
    const fs::path file = exports_.path() / name;
    program.PostCommand(1005);
    SaveAs(program, file);
    EXPECT_TRUE(program.Eventually([&] { return !ReadFileText(file).empty(); }));
    return ReadFileText(file);
  };
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  OpenRange(program, "26.6.2026", "27.6.2026");
  EXPECT_THAT(exported(program, "summer.txt"), HasSubstr("26.06.2026   21:35"));
  program.PostCommand(1102);
  const HWND dialog = program.WaitForDialog("Summer Time");
  SendDlgItemMessageA(dialog, 111, BM_CLICK, 0, 0);  // no summer time for this place
  Click(dialog, IDOK);
  program.WaitForDocuments(3);
  EXPECT_THAT(Setting("solar.ini"), HasSubstr("[SummerTime]\r\n50-47-6-5-1-0=none\r\n"));
  EXPECT_THAT(exported(program, "standard.txt"), HasSubstr("26.06.2026   20:35"));
}

TEST_F(CommandsTest, UnknownCommandsAreIgnored) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  const HWND frame = program.WaitForTopLevel("ShabbatMain");
  for (const unsigned id : {0u, 1000u, 1006u, 1100u, 1999u, 3999u, 65000u}) SendMessageA(frame, WM_COMMAND, id, 0);
  EXPECT_EQ(program.WaitForDocuments(1).size(), 1u);
}

TEST_F(CommandsTest, TimesAreExportedAsTextOverAnExistingFileToo) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  OpenFixedRange(program);
  const fs::path file = exports_.path() / "times.txt";
  program.PostCommand(1005);
  SaveAs(program, file);
  EXPECT_TRUE(program.Eventually([&] { return ReadFileText(file) == kAachenText; }))
      << ReadFileText(file).substr(0, 500);

  WriteFileText(file, "an older file");
  program.PostCommand(1005);
  SaveAs(program, file);
  Answer(program.WaitForQuestion(), IDYES);
  EXPECT_TRUE(program.Eventually([&] { return ReadFileText(file) == kAachenText; }))
      << ReadFileText(file).substr(0, 500);
}

TEST_F(CommandsTest, TheExtensionIsAddedToABareName) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  OpenFixedRange(program);
  program.PostCommand(1005);
  SaveAs(program, exports_.path() / "times");
  EXPECT_TRUE(program.Eventually([&] { return ReadFileText(exports_.path() / "times.txt") == kAachenText; }));
}

TEST_F(CommandsTest, RtfIsExportedInTheChosenLayout) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  OpenFixedRange(program);
  const fs::path file = exports_.path() / "times.rtf";
  program.PostCommand(1007);
  const HWND options = program.WaitForDialog("Export to RTF Options");
  SendDlgItemMessageA(options, 103, BM_CLICK, 0, 0);
  Click(options, IDOK);
  SaveAs(program, file);
  EXPECT_TRUE(program.Eventually([&] { return ReadFileText(file).ends_with("}\r\n"); }));
  EXPECT_THAT(ReadFileText(file), StartsWith("{\\rtf1\\ansi\r\n\\b Times / Readings of Aachen\\plain\\par\r\n"));
  EXPECT_THAT(ReadFileText(file), HasSubstr("05.01.2007\\cell\r\n16:27 - 17:31\\cell\r\n"));
}

TEST_F(CommandsTest, ACancelledExportWritesNothingAndAnImpossibleNameIsReported) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  program.PostCommand(1005);
  CancelSaving(program);
  EXPECT_TRUE(fs::is_empty(exports_.path()));

  // A file that another program holds open.
  const fs::path file = exports_.path() / "held.txt";
  const HANDLE held = CreateFileA(file.string().c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  program.PostCommand(1005);
  SaveAs(program, file);
  Answer(program.WaitForQuestion(), IDYES);
  const HWND error = program.WaitForDialog("Error");
  EXPECT_THAT(TextOf(GetDlgItem(error, 0xFFFF)), HasSubstr("held.txt could not be written"));
  PostMessageA(error, WM_COMMAND, IDOK, 0);
  CloseHandle(held);
}

TEST_F(CommandsTest, APlaceOfTheUsersOwnIsThereAfterARestart) {
  {
    ProgramRun program(ProgramFolder(), settings_.path());
    program.WaitForDocuments(1);
    AddHome(program);
    PostMessageA(program.WaitForTopLevel("ShabbatMain"), WM_CLOSE, 0, 0);
    EXPECT_EQ(program.WaitForExit(), 0u);
  }
  const std::string place =
      "[Home]\r\nLatitudeDegrees=32\r\nLatitudeHours=49\r\nLatitudeFlag=0\r\nLongitudeDegrees=34\r\n"
      "LongitudeHours=59\r\nLongitudeFlag=0\r\nTimeZone=2\r\nTimeZoneMin=0\r\n";
  EXPECT_EQ(Setting("shabloc2.ini"), place);
  EXPECT_EQ(Setting("almanachlpl2.ini"), place);
  EXPECT_EQ(Setting("shabbat2.ini"), "[Locations]\r\nHome=Available\r\n");
  EXPECT_EQ(Setting("almanachlp2.ini"), "[Locations]\r\nHome=Available\r\n");
  EXPECT_EQ(Setting("almanacelevation.ini"), "[Elevation]\r\n32-49-34-59-2-0=754\r\n");

  WriteFileText(settings_.path() / "almanac13.ini", "[Preferences]\r\nDefaultLocation=Home\r\n");
  ProgramRun program(ProgramFolder(), settings_.path());
  const auto documents = program.WaitForDocuments(1);
  ASSERT_EQ(documents.size(), 1u);
  EXPECT_THAT(TextOf(documents[0]), StartsWith("Home ("));
}

TEST_F(CommandsTest, ClosingTheFrameUnderAnOpenDialogEndsCleanly) {
  for (const unsigned command : {1001u, 1002u, 1003u, 1004u, 1007u, 1014u, 1016u, 1017u, 1101u, 1135u, 1137u, 3003u}) {
    ProgramRun program(ProgramFolder(), settings_.path());
    program.WaitForDocuments(1);
    program.PostCommand(command);
    program.WaitForTopLevel("#32770");
    PostMessageA(program.WaitForTopLevel("ShabbatMain"), WM_CLOSE, 0, 0);
    EXPECT_EQ(program.WaitForExit(), 0u) << command;
  }
}

TEST_F(CommandsTest, ViewsShowTheirPanes) {
  ProgramRun program(ProgramFolder(), settings_.path());
  const HWND document = program.WaitForDocuments(1).at(0);
  const HWND frame = program.WaitForTopLevel("ShabbatMain");
  const std::pair<unsigned, int> views[] = {{1112, 4}, {1113, 5}, {1111, 1}};
  for (const auto& [command, pane] : views) {
    SendMessageA(frame, WM_COMMAND, command, 0);
    for (const int other : {1, 4, 5}) {
      EXPECT_EQ(IsWindowVisible(GetDlgItem(document, other)) != FALSE, other == pane) << command;
    }
  }
}

TEST_F(CommandsTest, BuiltInZmanimAreSwitchedInTheSettings) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  const HWND frame = program.WaitForTopLevel("ShabbatMain");
  SendMessageA(frame, WM_COMMAND, 1103, 0);
  EXPECT_EQ(Setting("shab30.ini"), "[Settings]\r\nEnableZmanim=0\r\n");
  SendMessageA(frame, WM_COMMAND, 1103, 0);
  EXPECT_EQ(Setting("shab30.ini"), "[Settings]\r\nEnableZmanim=1\r\n");
  EXPECT_EQ(program.WaitForDocuments(3).size(), 3u);
}

TEST_F(CommandsTest, WindowsAreArrangedAndClosed) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  const HWND frame = program.WaitForTopLevel("ShabbatMain");
  OpenFixedRange(program);
  const auto heightOf = [&] {
    RECT rect;
    GetWindowRect(program.WaitForDocuments(2).front(), &rect);
    return rect.bottom - rect.top;
  };
  SendMessageA(frame, WM_COMMAND, 2002, 0);
  const LONG sideBySide = heightOf();
  SendMessageA(frame, WM_COMMAND, 2003, 0);
  EXPECT_LT(heightOf(), sideBySide * 2 / 3);
  SendMessageA(frame, WM_COMMAND, 2001, 0);
  EXPECT_GT(heightOf(), sideBySide / 2);
  SendMessageA(frame, WM_COMMAND, 2004, 0);
  SendMessageA(frame, WM_COMMAND, 2005, 0);
  program.WaitForDocuments(0);
  for (const unsigned id : {1005u, 1007u, 1008u, 1022u, 1023u}) SendMessageA(frame, WM_COMMAND, id, 0);
  EXPECT_TRUE(fs::is_empty(exports_.path()));
}

TEST_F(CommandsTest, PostedLayoutsAskForTheirFileAtOnce) {
  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  OpenFixedRange(program);
  const std::pair<unsigned, const char*> layouts[] = {{1022, "16:27\\cell\r\n17:31\\cell\r\n"},
                                                      {1023, "16:27 - 17:31\\cell\r\n"}};
  for (const auto& [command, row] : layouts) {
    const fs::path file = exports_.path() / (std::to_string(command) + ".rtf");
    program.PostCommand(command);
    SaveAs(program, file);
    EXPECT_TRUE(program.Eventually([&] { return ReadFileText(file).ends_with("}\r\n"); }));
    EXPECT_THAT(ReadFileText(file), HasSubstr(row));
  }
}

TEST_F(CommandsTest, HelpNamesAPageThatIsMissing) {
  TemporaryFolder folder;
  fs::copy(ProgramFolder(), folder.path(), fs::copy_options::recursive);
  fs::remove_all(folder.path() / "help");
  ProgramRun program(folder.path(), settings_.path());
  program.WaitForDocuments(1);
  const std::pair<unsigned, const char*> topics[] = {{3001, "index.html"}, {3002, "zmanim.html"}};
  for (const auto& [command, page] : topics) {
    program.PostCommand(command);
    const HWND box = program.WaitForDialog("Times / Readings");
    EXPECT_THAT(TextOf(GetDlgItem(box, 0xFFFF)), HasSubstr(page));
    PostMessageA(box, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(program.Eventually([&] { return !IsWindow(box); }));
  }
}

TEST_F(CommandsTest, RenamingAndRemovingAPlaceLeaveNoTraceOfItInTheFiles) {
  const std::string numbers =
      "LatitudeDegrees=32\r\nLatitudeHours=49\r\nLatitudeFlag=0\r\nLongitudeDegrees=34\r\nLongitudeHours=59\r\n"
      "LongitudeFlag=0\r\nTimeZone=2\r\nTimeZoneMin=0\r\n";
  WriteFileText(settings_.path() / "almanac13.ini", "[Preferences]\r\nDefaultLocation=Home\r\n");
  for (const char* file : {"shabbat2.ini", "almanachlp2.ini"}) {
    WriteFileText(settings_.path() / file, "[Locations]\r\nHome=Available\r\n");
  }
  for (const char* file : {"shabloc2.ini", "almanachlpl2.ini"}) {
    WriteFileText(settings_.path() / file, "[Home]\r\n" + numbers);
  }
  WriteFileText(settings_.path() / "almanacelevation.ini", "[Elevation]\r\n32-49-34-59-2-0=754\r\n");

  ProgramRun program(ProgramFolder(), settings_.path());
  program.WaitForDocuments(1);
  program.PostCommand(1101);
  const HWND manager = program.WaitForDialog("Select Location");
  Click(manager, 104);
  const HWND editor = program.WaitForDialog("Change location parameters");
  EXPECT_EQ(TextOf(GetDlgItem(editor, 300)), "754");
  SetText(editor, 101, "Cottage");
  Click(editor, IDOK);
  EXPECT_TRUE(program.Eventually([&] { return !IsWindow(editor); }));
  for (const char* file : {"shabloc2.ini", "almanachlpl2.ini"}) EXPECT_EQ(Setting(file), "[Cottage]\r\n" + numbers);
  for (const char* file : {"shabbat2.ini", "almanachlp2.ini"}) {
    EXPECT_EQ(Setting(file), "[Locations]\r\nCottage=Available\r\n");
  }

  const std::string cottage = "Cottage";
  SendDlgItemMessageA(manager, 101, LB_SELECTSTRING, static_cast<WPARAM>(-1),
                      reinterpret_cast<LPARAM>(cottage.c_str()));
  SendMessageA(manager, WM_COMMAND, MAKEWPARAM(101, LBN_SELCHANGE), 0);
  Click(manager, 103);
  Answer(program.WaitForQuestion(), IDYES);
  for (const char* file : {"shabloc2.ini", "shabbat2.ini", "almanachlp2.ini", "almanachlpl2.ini"}) {
    EXPECT_TRUE(program.Eventually([&] { return Setting(file).find("Cottage") == std::string::npos; }))
        << file << " holds " << Setting(file);
  }
  EXPECT_TRUE(program.Eventually([&] { return Setting("almanacelevation.ini").find("754") == std::string::npos; }));
}
