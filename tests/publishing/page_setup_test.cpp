// Paper and margins as the user chooses them, and long tables that the user does not wait for.
#include <cderr.h>
#include <gmock/gmock.h>

#include "tests/contract/picker_driver.h"
#include "tests/publishing/preview_fixture.h"

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

// Of the system's page setup dialog.
constexpr int kPortrait = 1056;
constexpr int kLandscape = 1057;

class PreviewedSetup : public PreviewTest {
 protected:
  void SetUp() override {
    PreviewTest::SetUp();
    Spooler().isReal = false;
  }
  void PressSetup() { Press(preview_, IDC_PREVIEW_SETUP); }
  std::vector<std::string> Calls() const { return SpoolerCalls(); }
};

TEST_F(PreviewedSetup, MarginsThatAreChosenHoldAndAreLeftToTheCaller) {
  Spooler().chosenMargins = {5080};
  Open(TableOfNames(200));
  ASSERT_EQ(Number(), L"Page 1 of 4");
  PressSetup();
  EXPECT_TRUE(Eventually([this] { return Number() == L"Page 1 of 6"; }));
  Close();
  EXPECT_THAT(Calls(), ElementsAre("PageSetupDlg with 1905 1905 1905 1905"));
  EXPECT_EQ(setup_.margins, (publishing::PageMargins{5080, 5080, 5080, 5080}));
}

TEST_F(PreviewedSetup, MarginsOfTheLastTimeHold) {
  setup_.margins = publishing::PageMargins{5080, 5080, 5080, 5080};
  Open(TableOfNames(200));
  EXPECT_EQ(Number(), L"Page 1 of 6");
  PressSetup();
  EXPECT_TRUE(Eventually([this] { return !Calls().empty(); }));
  EXPECT_THAT(Calls(), ElementsAre("PageSetupDlg with 5080 5080 5080 5080"));
}

TEST_F(PreviewedSetup, TheUsualMarginsAreNoChoice) {
  Spooler().chosenMargins = {1905};
  setup_.margins = publishing::PageMargins{5080, 5080, 5080, 5080};
  Open(TableOfNames(200));
  PressSetup();
  EXPECT_TRUE(Eventually([this] { return Number() == L"Page 1 of 4"; }));
  Close();
  EXPECT_EQ(setup_, publishing::PageSetup{});
}

TEST_F(PreviewedSetup, MarginsWithoutRoomForATableAreAnErrorAndAskedAgain) {
  Spooler().chosenMargins = {8890, 2540};
  Open(TableOfNames(3));
  PressSetup();
  EXPECT_THAT(run_->Answer(L"Error", preview_, IDI_HAND, IDOK), HasSubstr(L"Choose margins that leave at least 5 cm"));
  EXPECT_TRUE(Eventually([this] { return Calls().size() == 2; }));
  Close();
  EXPECT_THAT(Calls(), ElementsAre("PageSetupDlg with 1905 1905 1905 1905", "PageSetupDlg with 8890 8890 8890 8890"));
  EXPECT_EQ(setup_.margins->left, 2540);
}

TEST_F(PreviewedSetup, AfterWrongMarginsTheUserCanStillCancel) {
  Spooler().chosenMargins = {8890};
  Open(TableOfNames(3));
  PressSetup();
  run_->Answer(L"Error", preview_, IDI_HAND, IDOK);
  EXPECT_TRUE(Eventually([this] { return Calls().size() == 2; }));
  Close();
  EXPECT_EQ(setup_, publishing::PageSetup{});
}

TEST_F(PreviewedSetup, MarginsThatWereMeantForOtherPaperAreTheUsualOnes) {
  setup_.margins = publishing::PageMargins{15000, 15000, 15000, 15000};
  Open(TableOfNames(200));
  EXPECT_EQ(Number(), L"Page 1 of 4");
}

TEST_F(PreviewedSetup, WithoutAPrinterTheUserIsToldWhatToDo) {
  Spooler().hasPrinters = false;
  Open(TableOfNames(3));
  PressSetup();
  EXPECT_THAT(run_->Answer(L"Error", preview_, IDI_HAND, IDOK), HasSubstr(L"No printer is installed. Install one"));
}

TEST_F(PreviewedSetup, OnePageThatBecomesTooSmallIsAnErrorAndStaysAsItWas) {
  Spooler().chosenMargins = {7620};
  publishing::Table table = TableOfNames(250);
  Open(std::move(table), publishing::PaperLayout::kOnePage);
  PressSetup();
  EXPECT_THAT(run_->Answer(L"Error", preview_, IDI_HAND, IDOK), HasSubstr(L"The table is too long for one page."));
  EXPECT_TRUE(Eventually([this] { return IsWindowEnabled(preview_) != FALSE; }));
  Close();
  EXPECT_EQ(setup_, publishing::PageSetup{});
}

TEST_F(PreviewedSetup, TheSystemsDialogTurnsThePaper) {
  Spooler().isReal = true;
  setup_.paper = DMPAPER_A4;
  Open(TableOfNames(200));
  ASSERT_EQ(Number(), L"Page 1 of 4");
  PressSetup();
  const HWND dialog = run_->WaitFor(L"Setup Page");  // Wine's caption
  ASSERT_NE(dialog, nullptr);
  SendMessageW(GetDlgItem(dialog, kLandscape), BM_CLICK, 0, 0);
  EXPECT_NE(GetDlgItem(dialog, kPortrait), nullptr);
  Press(dialog, IDOK);
  EXPECT_TRUE(Eventually([this] { return Number() == L"Page 1 of 6"; }));
  Close();
  EXPECT_EQ(setup_.orientation, publishing::Orientation::kLandscape);
  EXPECT_EQ(setup_.margins, std::nullopt);
}

// Rows that take their time.
class SlowRows : public publishing::Rows {
 public:
  std::size_t Count() const override { return 100000; }
  void Read(std::size_t index, publishing::Row& row) const override {
    Sleep(1);
    row = {.cells = {std::to_string(index)}};
  }
};

TEST_F(PreviewedSetup, AUserWhoDoesNotWaitForThePagesGetsNoWindow) {
  const publishing::Table table = {.columns = {{"N"}}, .rows = std::make_shared<SlowRows>()};
  publishing::PageSetup setup;
  DialogDriver run([&](HWND owner) {
    publishing::PreviewTable(owner, {table, {}, L"Slow"}, setup);
    return 7;
  });
  const HWND box = run.WaitFor(L"Laying Out Pages");
  EXPECT_FALSE(IsWindowEnabled(run.Owner()));
  EXPECT_TRUE(Eventually([&] { return ControlText(box, IDC_PRINTING_PAGE).find(L'%') != std::wstring::npos; }));
  Press(box, IDCANCEL);
  EXPECT_EQ(run.Result(), 7);
}

}  // namespace
