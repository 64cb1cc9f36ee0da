// The hourglass: while times are calculated and files written, and the earlier cursor after it.
#include <filesystem>

#include "app/active_document.h"
#include "app/compute_document.h"
#include "engine/current.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/program_fixture.h"
#include "zmanim/zmanim_in_use.h"

namespace fs = std::filesystem;

namespace {

class WaitCursorTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    Libraries().zmanimCount = 2;
    OpenFrame();
    CurrentRange = {{5, 1, 2007}, {6, 1, 2007}};
    CalculateShabbatTimes(ActiveDocument(), 5, 1, 2007, 6, 1, 2007);
    folder_ = fs::temp_directory_path() / ("wait_cursor_test_" + std::to_string(GetCurrentProcessId()));
    fs::create_directories(folder_);
    System().cursor = before_;
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
  void ExpectHourglassWhileWriting(const char* what) {
    EXPECT_EQ(System().cursorWhileWriting, wait_) << what;
    EXPECT_EQ(System().cursor, before_) << what;
    System().cursorWhileWriting = nullptr;
  }

  const HCURSOR wait_ = LoadCursor(nullptr, IDC_WAIT);
  const HCURSOR before_ = LoadCursor(nullptr, IDC_CROSS);
  fs::path folder_;
};

}  // namespace

TEST_F(WaitCursorTest, StandsWhileTheTimesOfADocumentAreCalculated) {
  std::vector<HCURSOR> cursors;
  Bound().sunset = [&](const CalendarDate&) {
    cursors.push_back(System().cursor);
    return DoubledTime{19, 5};
  };
  CalculateShabbatTimes(ActiveDocument(), 5, 1, 2007, 6, 1, 2007);
  ASSERT_FALSE(cursors.empty());
  EXPECT_THAT(cursors, testing::Each(wait_));
  EXPECT_EQ(System().cursor, before_);
}

TEST_F(WaitCursorTest, StandsWhileAViewIsExported) {
  for (const unsigned view : {IDM_VIEW_SHABBAT_TIMES, IDM_VIEW_ZMANIM, IDM_VIEW_READINGS}) {
    Command(view);
    System().savedFile = (folder_ / "text.txt").string();
    Command(IDM_EXPORT_TEXT);
    ExpectHourglassWhileWriting("text");
    for (const unsigned id : {IDM_EXPORT_RTF_THREE_COLUMNS, IDM_EXPORT_RTF_TWO_COLUMNS}) {
      System().savedFile = (folder_ / "table.rtf").string();
      Command(id);
      ExpectHourglassWhileWriting("RTF");
    }
  }
}

TEST_F(WaitCursorTest, StandsWhileTheDelimitedExportsWriteTheirFile) {
  for (const unsigned id : {IDM_EXPORT_ZMANIM, IDM_EXPORT_DATES}) {
    WithDialog([&] { Command(id); },
               [&](HWND dialog) {
                 SetField(dialog, 101, (folder_ / "table.csv").string().c_str());
                 Click(dialog, IDOK);
               });
    ExpectHourglassWhileWriting("delimited");
  }
}

TEST_F(WaitCursorTest, ACancelledSaveDialogLeavesTheCursorAlone) {
  Command(IDM_EXPORT_TEXT);
  EXPECT_EQ(System().cursor, before_);
  EXPECT_EQ(System().cursorWhileWriting, nullptr);
}
