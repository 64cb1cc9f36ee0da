// The hourglass: while times are calculated and files written, and the earlier cursor after it.
#include "app/active_document.h"
#include "app/compute_document.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/exports_fixture.h"

namespace {

class WaitCursorTest : public ExportsFixture {
 protected:
  void SetUp() override {
    ExportsFixture::SetUp();
    System().cursor = before_;
  }
  void ExpectHourglassWhileWriting(const char* what) {
    EXPECT_EQ(System().cursorWhileWriting, wait_) << what;
    EXPECT_EQ(System().cursor, before_) << what;
    System().cursorWhileWriting = nullptr;
  }

  const HCURSOR wait_ = LoadCursor(nullptr, IDC_WAIT);
  const HCURSOR before_ = LoadCursor(nullptr, IDC_CROSS);
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
