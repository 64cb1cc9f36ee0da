#include "zmanim/print_abort_dialog.h"

#include "app/active_document.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/program_fixture.h"

namespace {

class PrintAbortDialogTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    OpenFrame();
    owner_ = ActiveDocument();
    dialog_ = OpenPrintAbortDialog(owner_);
    ASSERT_NE(dialog_, nullptr);
  }
  void TearDown() override {
    ClosePrintAbortDialog();
    ProgramTest::TearDown();
  }

  HWND owner_ = nullptr;
  HWND dialog_ = nullptr;
};

}  // namespace

TEST_F(PrintAbortDialogTest, ShowsThatItWorksAndHoldsTheOwner) {
  EXPECT_EQ(TextOf(dialog_), "Printing...");
  EXPECT_EQ(FieldText(dialog_, 101), "Working...");
  EXPECT_TRUE(IsWindowVisible(dialog_));
  EXPECT_EQ(PrintAbort.dialog, dialog_);
  EXPECT_FALSE(PrintAbort.aborted);
  EXPECT_FALSE(IsWindowEnabled(owner_));
}

TEST_F(PrintAbortDialogTest, CancellingLetsTheOwnerAcceptInputAtOnce) {
  Click(dialog_, IDCANCEL);
  EXPECT_TRUE(PrintAbort.aborted);
  EXPECT_TRUE(IsWindowEnabled(owner_));
  EXPECT_FALSE(IsWindow(dialog_));
  EXPECT_EQ(PrintAbort.dialog, nullptr);
}

TEST_F(PrintAbortDialogTest, CannotBeClosedFromItsSystemMenu) {
  EXPECT_TRUE(GetMenuState(GetSystemMenu(dialog_, FALSE), SC_CLOSE, MF_BYCOMMAND) & MF_GRAYED);
}

TEST_F(PrintAbortDialogTest, OtherCommandsAreIgnored) {
  SendMessageA(dialog_, WM_COMMAND, IDOK, 0);
  EXPECT_TRUE(IsWindow(dialog_));
  EXPECT_FALSE(PrintAbort.aborted);
}

TEST_F(PrintAbortDialogTest, TheEndOfTheJobTakesItAway) {
  ClosePrintAbortDialog();
  EXPECT_FALSE(IsWindow(dialog_));
  EXPECT_TRUE(IsWindowEnabled(owner_));
  EXPECT_FALSE(PrintAbort.aborted);
  OpenPrintAbortDialog(owner_);
  EXPECT_FALSE(PrintAbort.aborted);
}
