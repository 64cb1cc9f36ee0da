// Printing when it goes well, when it does not, and when the user will not have it.
#include "tests/publishing/preview_fixture.h"

#include <cderr.h>
#include <commdlg.h>
#include <gmock/gmock.h>
#include <winspool.h>

#include <algorithm>

#include "tests/contract/picker_driver.h"

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class Printing : public PreviewTest {
 protected:
  void SetUp() override {
    PreviewTest::SetUp();
    Spooler().isReal = false;
  }

  void PressPrint() { Press(preview_, IDC_PREVIEW_PRINT); }
  int CountOf(const std::string& call) const {
    const auto calls = SpoolerCalls();
    return static_cast<int>(std::count(calls.begin(), calls.end(), call));
  }
  bool HasCalled(const std::string& call) const { return CountOf(call) > 0; }
  // Presses Print, and answers the error that comes. Its text.
  std::wstring Refused() {
    Open(TableOfNames(60));
    PressPrint();
    const std::wstring text = run_->Answer(L"Error", preview_, IDI_HAND, IDOK);
    EXPECT_TRUE(Eventually([this] { return IsWindowEnabled(preview_) != FALSE; }));
    return text;
  }
};

TEST_F(Printing, EveryPageIsPrinted) {
  Open(TableOfNames(60));
  PressPrint();
  ASSERT_TRUE(Eventually([this] { return HasCalled("EndDoc"); }));
  EXPECT_THAT(SpoolerCalls(), ElementsAre("PrintDlg to 2", "SetAbortProc", "StartDoc Names", "StartPage", "EndPage",
                                          "StartPage", "EndPage", "EndDoc"));
}

TEST_F(Printing, OnlyThePagesThatTheUserChoseArePrinted) {
  Spooler().dialogFlags = PD_PAGENUMS;
  Spooler().firstPage = 2;
  Spooler().lastPage = 3;
  Open(TableOfNames(200));
  PressPrint();
  ASSERT_TRUE(Eventually([this] { return HasCalled("EndDoc"); }));
  EXPECT_EQ(CountOf("StartPage"), 2);
}

TEST_F(Printing, PagesThatDoNotExistAreAnError) {
  Spooler().dialogFlags = PD_PAGENUMS;
  Spooler().firstPage = 7;
  Spooler().lastPage = 9;
  EXPECT_THAT(Refused(), HasSubstr(L"the table has 2 pages"));
  EXPECT_FALSE(HasCalled("StartDoc Names"));
}

TEST_F(Printing, WithoutAPrinterTheUserIsToldWhatToDo) {
  Spooler().hasPrinters = false;
  EXPECT_THAT(Refused(), HasSubstr(L"No printer is installed. Install one"));
}

TEST_F(Printing, APrinterThatHasGoneIsTold) {
  Spooler().dialogError = PDERR_PRINTERNOTFOUND;
  EXPECT_THAT(Refused(), HasSubstr(L"The printer does not answer."));
}

TEST_F(Printing, AFullDiskIsTold) {
  Spooler().endPageAnswer = SP_OUTOFDISK;
  EXPECT_THAT(Refused(), AllOf(HasSubstr(L"\"Names\" cannot be printed."), HasSubstr(L"Make room")));
  EXPECT_EQ(SpoolerCalls().back(), "AbortDoc");
}

// The system's own words come from its table of messages.
TEST_F(Printing, ASpoolerThatRefusesIsToldWithTheSystemsReason) {
  Spooler().startDocAnswer = SP_ERROR;
  Spooler().lastError = ERROR_ACCESS_DENIED;
  EXPECT_THAT(Refused(), AllOf(HasSubstr(L"The system says: "), HasSubstr(L"print again")));
  EXPECT_FALSE(HasCalled("AbortDoc")) << "nothing has begun";
}

TEST_F(Printing, AFailureOfTheLastStepIsTold) {
  Spooler().endDocAnswer = SP_ERROR;
  EXPECT_THAT(Refused(), HasSubstr(L"\"Names\" cannot be printed."));
}

// The file dialog of a printer that prints to files.
TEST_F(Printing, AStartThatTheUserCancelledIsNoError) {
  Spooler().startDocAnswer = SP_ERROR;
  Spooler().lastError = ERROR_CANCELLED;
  Open(TableOfNames(60));
  PressPrint();
  EXPECT_TRUE(Eventually([this] { return HasCalled("StartDoc Names"); }));
  EXPECT_EQ(run_->WaitFor(L"Names - Print Preview"), preview_);
}

TEST_F(Printing, AJobIsCancelledInItsDialog) {
  Open(TableOfNames(200));
  bool hadPreview = true;
  Spooler().onStartPage = [&] {
    hadPreview = hadPreview && IsWindowEnabled(preview_);
    if (const HWND dialog = DialogWithCaption(L"Printing")) Press(dialog, IDCANCEL);
  };
  PressPrint();
  EXPECT_TRUE(Eventually([this] { return HasCalled("AbortDoc"); }));
  EXPECT_FALSE(hadPreview) << "it gets no input meanwhile";
  EXPECT_EQ(CountOf("StartPage"), 1);
  EXPECT_EQ(run_->WaitFor(L"Names - Print Preview"), preview_);
}

}  // namespace
