// The About box, and the export commands up to the written file.
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/active_document.h"
#include "app/compute_document.h"
#include "app/program.h"
#include "engine/bound_entries.h"
#include "engine/current.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/program_fixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
namespace fs = std::filesystem;

namespace {

class AboutAndExportTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    OpenFrame();
    CallLog().clear();
    folder_ = fs::temp_directory_path() / ("export_test_" + std::to_string(GetCurrentProcessId()));
    fs::create_directories(folder_);
  }
  void TearDown() override {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
    ProgramTest::TearDown();
  }

  void Command(unsigned id) { SendMessageA(frame_, WM_COMMAND, id, 0); }
  std::string SaveAs(const char* name) {
    System().savedFile = (folder_ / name).string();
    return System().savedFile;
  }
  static std::string Bytes(const std::string& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
  }

  fs::path folder_;
};

uint32_t Version267() {
  return 267;
}
uint32_t Version256() {
  return 256;
}

}  // namespace

TEST_F(AboutAndExportTest, AboutShowsTitleAndNotice) {
  std::snprintf(Program.notice, sizeof Program.notice, "the notice");
  WithDialog([&] { Command(IDM_ABOUT); },
             [](HWND dialog) {
               char caption[64];
               GetWindowTextA(dialog, caption, sizeof caption);
               EXPECT_STREQ(caption, "About Times / Readings");
               EXPECT_EQ(FieldText(dialog, 101), "Times / Readings");
               EXPECT_EQ(FieldText(dialog, 102), "the notice");
               EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDOK));
               Click(dialog, IDOK);
             });
}

TEST_F(AboutAndExportTest, AClickOnTheIconTellsTheVersionsAndOneBesideItNothing) {
  CivilCalendar.DatefilterGetAPIVersion = Version267;
  Solar.SolarGetAPIVersion = Version256;
  const LONG base = GetDialogBaseUnits();
  const int x = LOWORD(base) * 15 / 4;
  const int y = HIWORD(base) * 10 / 8;
  WithDialog([&] { Command(IDM_ABOUT); },
             [=](HWND dialog) {
               for (const POINT outside : {POINT{x - 1, y}, POINT{x, y - 1}, POINT{x + 33, y}, POINT{x, y + 33}}) {
                 SendMessageA(dialog, WM_LBUTTONUP, 0, MAKELPARAM(outside.x, outside.y));
               }
               EXPECT_THAT(CallsWith("message box"), IsEmpty());
               SendMessageA(dialog, WM_LBUTTONUP, 0, MAKELPARAM(x + 32, y + 32));
               SendMessageA(dialog, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
               const std::string box =
                   "message box 'Release date: November the 1th, 2007\nFile version: 6.0.0.0001R\nCalendar library API "
                   "version: 1.11\nSolar library API version: 1.00' caption 'Times / Readings' type 0x40 owner yes";
               EXPECT_THAT(CallsWith("message box"), ElementsAre(box, box));
               Click(dialog, IDOK);
             });
}

TEST_F(AboutAndExportTest, TextExportWritesTheDocumentsTimes) {
  const std::string file = SaveAs("times.txt");
  Command(IDM_EXPORT_TEXT);
  EXPECT_THAT(CallsWith("save"), ElementsAre("save dialog 'Text files (*.txt)' '*.txt' extension txt size 256"));
  const std::string text = Bytes(file);
  EXPECT_THAT(text, StartsWith("Times / Readings of Aachen\r\n\r\nDate         Candle Lighting   End of Shabbat\r\n"));
  EXPECT_THAT(text, HasSubstr("\r\n20.11.2026   <18:47>           <19:50>\r\n"));
}

TEST_F(AboutAndExportTest, TheDocumentsOwnPlaceIsNamedThoughAnotherIsCurrent) {
  const std::string file = SaveAs("times.txt");
  std::strcpy(CurrentLocation.name, "Haifa");
  Command(IDM_EXPORT_TEXT);
  EXPECT_THAT(Bytes(file), StartsWith("Times / Readings of Aachen\r\n"));
}

TEST_F(AboutAndExportTest, ExportReplacesAnExistingFile) {
  const std::string file = SaveAs("times.txt");
  std::ofstream(file) << std::string(100000, 'x');
  Command(IDM_EXPORT_TEXT);
  EXPECT_THAT(Bytes(file), testing::Not(HasSubstr("x")));
}

TEST_F(AboutAndExportTest, CancelledExportWritesNothing) {
  Command(IDM_EXPORT_TEXT);
  EXPECT_EQ(CallsWith("save").size(), 1u);
  EXPECT_TRUE(fs::is_empty(folder_));
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
}

TEST_F(AboutAndExportTest, AFileThatCannotBeCreatedIsNamed) {
  fs::create_directories(folder_ / "times.txt");
  const std::string file = SaveAs("times.txt");
  Command(IDM_EXPORT_TEXT);
  ASSERT_EQ(CallsWith("message box").size(), 1u);
  EXPECT_THAT(CallsWith("message box").front(), HasSubstr(file));
}

TEST_F(AboutAndExportTest, RtfOptionsChooseAmongThreeLayouts) {
  const struct {
    int button;
    const char* cells;
    const char* row;
  } layouts[] = {
      {101, "\r\n\\cellx2880\\cellx5760\\cellx8640\r\n", "20.11.2026\\par\r\n"},
      {102, "\r\n\\cellx2880\\cellx5760\\cellx8640\r\n", "20.11.2026\\cell\r\n<18:47>\\cell\r\n<19:50>\\cell\r\n"},
      {103, "\r\n\\cellx2880\\cellx5760\r\n", "20.11.2026\\cell\r\n<18:47> - <19:50>\\cell\r\n"}};
  for (const auto& layout : layouts) {
    const std::string file = SaveAs("times.rtf");
    WithDialog([&] { Command(IDM_EXPORT_RTF); },
               [&](HWND dialog) {
                 EXPECT_TRUE(IsDlgButtonChecked(dialog, 101));
                 Click(dialog, layout.button);
                 Click(dialog, IDOK);
               });
    DispatchPendingMessages();  // two of the layouts come by a posted command
    EXPECT_THAT(CallsWith("save"), testing::Contains("save dialog 'RTF files (*.rtf)' '*.rtf' extension rtf size 256"));
    EXPECT_THAT(Bytes(file), HasSubstr(layout.cells)) << layout.button;
    EXPECT_THAT(Bytes(file), HasSubstr(layout.row)) << layout.button;
    fs::remove(file);
  }
}

TEST_F(AboutAndExportTest, CancelledRtfOptionsAskForNoFile) {
  WithDialog([&] { Command(IDM_EXPORT_RTF); }, [](HWND dialog) { Click(dialog, IDCANCEL); });
  DispatchPendingMessages();
  EXPECT_THAT(CallsWith("save"), IsEmpty());
}

TEST_F(AboutAndExportTest, WithoutADocumentExportsDoNothing) {
  Command(IDM_WINDOW_CLOSE_ALL);
  for (const unsigned id : {1005u, 1007u, 1008u, 1022u, 1023u}) Command(id);
  EXPECT_THAT(CallLog(), IsEmpty());
}

TEST_F(AboutAndExportTest, AnEmptyListIsExportedWithItsHead) {
  CurrentRange = {{6, 1, 2007}, {7, 1, 2007}};
  CalculateShabbatTimes(ActiveDocument(), 6, 1, 2007, 7, 1, 2007);
  const std::string file = SaveAs("times.txt");
  Command(IDM_EXPORT_TEXT);
  EXPECT_EQ(Bytes(file),
            "Times / Readings of Aachen\r\n\r\nDate         Candle Lighting   End of Shabbat\r\n"
            "----------   ---------------   --------------\r\n");
}
