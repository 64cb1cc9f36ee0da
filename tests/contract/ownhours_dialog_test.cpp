// The dialog that lists the times set by hand.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <atomic>
#include <cstring>
#include <string>
#include <vector>

#include "companion/ownhours.h"
#include "libraries/ownhours/ownhours_ids.h"
#include "tests/contract/dialog_driver.h"
#include "tests/contract/settings_home.h"

namespace {

using testing::ElementsAre;

constexpr wchar_t kTitle[] = L"Times Set by Hand";
constexpr char kThree[] =
    "2024-03-08 17:20 Shkia|Jerusalem\r\n2024-03-08 05:40 HaNetz|Jerusalem\r\n2024-03-01 17:00 Shkia|Aachen\r\n";

std::atomic<int> asked;

// 17:25 for Shkia in Jerusalem; nothing else is known.
int32_t Calculate(uint32_t day, uint32_t month, uint32_t year, const char* description, const char* location,
                  int32_t* hour, int32_t* minute) {
  ++asked;
  const bool isKnown = day == 8 && month == 3 && year == 2024 && std::strcmp(description, "Shkia") == 0 &&
                       std::strcmp(location, "Jerusalem") == 0;
  if (!isKnown) return 0;
  *hour = 17;
  *minute = 25;
  return 1;
}

using Row = std::vector<std::wstring>;

class OwnTimesRun : public DialogDriver {
 public:
  explicit OwnTimesRun(OwnHoursCalculate calculate = Calculate)
      : DialogDriver([calculate](HWND owner) { return OwnHoursDoDialog(owner, calculate); }),
        window_(WaitFor(kTitle)),
        list_(GetDlgItem(window_, IDC_TIMES)) {}

  HWND Window() const { return window_; }
  HWND List() const { return list_; }
  bool IsEnabled(int id) const { return IsWindowEnabled(GetDlgItem(window_, id)) != FALSE; }
  // What the button does is done when this returns; none of these opens a dialog.
  void Click(int button) const { SendMessageW(window_, WM_COMMAND, static_cast<WPARAM>(button), 0); }
  void Key(WPARAM key) const { SendMessageW(list_, WM_KEYDOWN, key, 1); }
  void Type(const wchar_t* text) const { SetControlText(window_, IDC_TYPED, text); }
  std::wstring CountText() const { return ControlText(window_, IDC_COUNT); }

  int Count() const { return static_cast<int>(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0)); }
  int Selected() const { return static_cast<int>(SendMessageW(list_, LVM_GETNEXTITEM, ~WPARAM{0}, LVNI_SELECTED)); }
  void Select(int row, bool selected = true) const {
    LVITEMW item = {};
    item.stateMask = LVIS_SELECTED;
    item.state = selected ? LVIS_SELECTED : 0;
    SendMessageW(list_, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  }
  std::wstring Cell(int row, int column) const { return ListCell(list_, row, column); }
  Row Cells(int row) const {
    Row cells;
    for (int column = 0; column < 5; ++column) cells.push_back(Cell(row, column));
    return cells;
  }
  // One column of all rows.
  std::vector<std::wstring> Column(int column) const {
    std::vector<std::wstring> cells;
    for (int row = 0; row < Count(); ++row) cells.push_back(Cell(row, column));
    return cells;
  }
  void ClickHeading(int column) const {
    NMLISTVIEW click = {};
    click.hdr = {list_, IDC_TIMES, static_cast<UINT>(LVN_COLUMNCLICK)};
    click.iSubItem = column;
    SendMessageW(window_, WM_NOTIFY, IDC_TIMES, reinterpret_cast<LPARAM>(&click));
  }

  // The answer of the call after a button that closes the dialog.
  int32_t End(int button) {
    Press(window_, button);
    return Result();
  }

 private:
  HWND window_;
  HWND list_;
};

class OwnTimesDialogTest : public testing::Test {
 protected:
  OwnTimesDialogTest() {
    home_.Put("stamp.ini", "[Times]\r\nForm=24\r\n");
    home_.Put("ownhours.txt", kThree);
    asked = 0;
  }
  std::string Stored() const { return home_.Bytes("ownhours.txt"); }

  // Through the dialog of one time.
  void ChangeTo(const OwnTimesRun& run, WORD hour, WORD minute) const {
    Press(run.Window(), IDC_CHANGE);
    const HWND dialog = run.WaitFor(L"Change Time");
    SYSTEMTIME time = {2024, 3, 5, 8, hour, minute, 0, 0};
    SendDlgItemMessageW(dialog, IDC_TIME, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&time));
    Press(dialog, IDOK);
    EXPECT_TRUE(run.WaitUntilGone(dialog));
    EXPECT_TRUE(Eventually([&] { return IsWindowEnabled(run.Window()) != FALSE; }));
  }

  SettingsHome home_;
};

TEST_F(OwnTimesDialogTest, ListsPlaceDateZmanTimeAndWhatIsCalculated) {
  OwnTimesRun run;
  ASSERT_EQ(run.Count(), 3);
  EXPECT_THAT(run.Cells(0), ElementsAre(L"Aachen", L"01.03.2024", L"Shkia", L"17:00", L""));
  EXPECT_THAT(run.Cells(1), ElementsAre(L"Jerusalem", L"08.03.2024", L"HaNetz", L"05:40", L""));
  EXPECT_THAT(run.Cells(2), ElementsAre(L"Jerusalem", L"08.03.2024", L"Shkia", L"17:20", L"17:25"));
  EXPECT_EQ(run.CountText(), L"3 times");
  EXPECT_EQ(run.Selected(), 0);
  EXPECT_TRUE(run.WaitForFocus(run.List()));
  EXPECT_EQ(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), kThree);
}

TEST_F(OwnTimesDialogTest, TimesFollowTheFormOfTimes) {
  home_.Put("stamp.ini", "[Times]\r\nForm=12\r\n");
  OwnTimesRun run;
  EXPECT_EQ(run.Cell(2, 3), L"05:20 p.m.");
  EXPECT_EQ(run.Cell(2, 4), L"05:25 p.m.");
  run.End(IDCANCEL);
}

TEST_F(OwnTimesDialogTest, ACalculatedTimeIsAskedForOnce) {
  OwnTimesRun run;
  for (int i = 0; i < 3; ++i) run.Cell(2, 4);
  run.Cell(1, 4);
  run.Cell(0, 4);
  EXPECT_EQ(asked, 3);
  run.End(IDCANCEL);
}

TEST_F(OwnTimesDialogTest, WithoutACalculationTheColumnIsEmpty) {
  OwnTimesRun run(nullptr);
  EXPECT_EQ(run.Cell(2, 4), L"");
  run.End(IDCANCEL);
}

TEST_F(OwnTimesDialogTest, SearchFindsEachWordInAnyColumnWhateverItsCase) {
  OwnTimesRun run;
  run.Type(L"JERUS shk");
  EXPECT_EQ(run.Count(), 1);
  EXPECT_EQ(run.Cell(0, 3), L"17:20");
  EXPECT_EQ(run.CountText(), L"1 of 3 times");
  run.Type(L"01.03");
  EXPECT_THAT(run.Column(0), ElementsAre(L"Aachen"));
  run.Type(L"nowhere");
  EXPECT_EQ(run.Count(), 0);
  EXPECT_FALSE(run.IsEnabled(IDC_CHANGE));
  EXPECT_FALSE(run.IsEnabled(IDC_REMOVE));
  run.Type(L"");
  EXPECT_EQ(run.Count(), 3);
  run.End(IDCANCEL);
}

TEST_F(OwnTimesDialogTest, AClickOnAHeadingSortsByItAndASecondOneTheOtherWay) {
  OwnTimesRun run;
  run.ClickHeading(3);
  EXPECT_THAT(run.Column(3), ElementsAre(L"05:40", L"17:00", L"17:20"));
  run.ClickHeading(3);
  EXPECT_THAT(run.Column(3), ElementsAre(L"17:20", L"17:00", L"05:40"));
  run.ClickHeading(2);
  EXPECT_THAT(run.Column(2), ElementsAre(L"HaNetz", L"Shkia", L"Shkia"));
  run.ClickHeading(1);
  EXPECT_THAT(run.Column(1), ElementsAre(L"01.03.2024", L"08.03.2024", L"08.03.2024"));
  run.ClickHeading(4);  // what is calculated is not sorted by
  EXPECT_THAT(run.Column(1), ElementsAre(L"01.03.2024", L"08.03.2024", L"08.03.2024"));
  run.End(IDCANCEL);
}

TEST_F(OwnTimesDialogTest, AChangedTimeIsWrittenWithOkAndAnswered) {
  OwnTimesRun run;
  run.Select(0, false);
  run.Select(2);
  ChangeTo(run, 17, 22);
  EXPECT_EQ(run.Cell(2, 3), L"17:22");
  EXPECT_EQ(run.Selected(), 2);
  EXPECT_EQ(Stored(), kThree);
  EXPECT_EQ(run.End(IDOK), 1);
  EXPECT_EQ(Stored(),
            "2024-03-08 17:22 Shkia|Jerusalem\r\n2024-03-08 05:40 HaNetz|Jerusalem\r\n"
            "2024-03-01 17:00 Shkia|Aachen\r\n");
}

TEST_F(OwnTimesDialogTest, DeleteRemovesAndUndoBringsBack) {
  OwnTimesRun run;
  run.Select(1);
  run.Key(VK_DELETE);
  EXPECT_EQ(run.Count(), 1);
  EXPECT_EQ(run.CountText(), L"1 time");
  run.Click(IDC_UNDO);
  EXPECT_EQ(run.Count(), 3);
  EXPECT_FALSE(run.IsEnabled(IDC_UNDO));
  run.Select(-1, false);
  run.Select(1);
  run.Click(IDC_REMOVE);
  EXPECT_EQ(run.End(IDOK), 1);
  EXPECT_EQ(Stored(), "2024-03-08 17:20 Shkia|Jerusalem\r\n2024-03-01 17:00 Shkia|Aachen\r\n");
}

TEST_F(OwnTimesDialogTest, UndoShowsWhatComesBackThoughASearchWouldHideIt) {
  OwnTimesRun run;
  run.Key(VK_DELETE);  // Aachen
  run.Type(L"jerusalem");
  run.Click(IDC_UNDO);
  EXPECT_EQ(run.Count(), 3);
  EXPECT_EQ(run.Selected(), 0);
  EXPECT_EQ(ControlText(run.Window(), IDC_TYPED), L"");
  run.End(IDCANCEL);
}

TEST_F(OwnTimesDialogTest, AllTimesOfAPlaceGoAfterAQuestionThoughASearchHidesSome) {
  OwnTimesRun run;
  run.Type(L"hanetz");
  Press(run.Window(), IDC_REMOVE_PLACE);
  EXPECT_EQ(run.Answer(kTitle, run.Window(), IDI_QUESTION, IDYES), L"Remove all 2 times set by hand for Jerusalem?");
  EXPECT_TRUE(Eventually([&] { return run.Count() == 0; }));
  EXPECT_EQ(run.End(IDOK), 1);
  EXPECT_EQ(Stored(), "2024-03-01 17:00 Shkia|Aachen\r\n");
}

TEST_F(OwnTimesDialogTest, CancelAsksBeforeChangesAreDiscarded) {
  OwnTimesRun run;
  run.Key(VK_DELETE);
  Press(run.Window(), IDCANCEL);
  EXPECT_EQ(run.Answer(kTitle, run.Window(), IDI_QUESTION, IDNO), L"Discard the changes?");
  Press(run.Window(), IDCANCEL);
  run.Answer(kTitle, run.Window(), IDI_QUESTION, IDYES);
  EXPECT_EQ(run.Result(), 0);
  EXPECT_EQ(Stored(), kThree);
}

TEST_F(OwnTimesDialogTest, WhatAnotherProgramAddedMeanwhileStays) {
  OwnTimesRun run;
  run.Key(VK_DELETE);
  home_.Put("ownhours.txt", std::string(kThree) + "2025-01-01 12:00 Chatzot|Haifa\r\n");
  EXPECT_EQ(run.End(IDOK), 1);
  EXPECT_EQ(Stored(),
            "2024-03-08 17:20 Shkia|Jerusalem\r\n2024-03-08 05:40 HaNetz|Jerusalem\r\n"
            "2025-01-01 12:00 Chatzot|Haifa\r\n");
}

constexpr char kOthersAachen[] =
    "2024-03-08 17:20 Shkia|Jerusalem\r\n2024-03-08 05:40 HaNetz|Jerusalem\r\n2024-03-01 16:55 Shkia|Aachen\r\n";

TEST_F(OwnTimesDialogTest, WhatBothChangedIsAskedAboutAndTheOthersMayStay) {
  OwnTimesRun run;
  run.Select(1);
  run.Key(VK_DELETE);  // Aachen and HaNetz
  home_.Put("ownhours.txt", kOthersAachen);
  Press(run.Window(), IDOK);
  EXPECT_NE(run.Answer(kTitle, run.Window(), IDI_QUESTION, IDNO).find(L"Aachen, 01.03.2024: Shkia"),
            std::wstring::npos);
  EXPECT_EQ(run.Result(), 1);
  EXPECT_EQ(Stored(), "2024-03-08 17:20 Shkia|Jerusalem\r\n2024-03-01 16:55 Shkia|Aachen\r\n");
}

TEST_F(OwnTimesDialogTest, WhatBothChangedIsReplacedWhenTheUserWantsIt) {
  OwnTimesRun run;
  run.Key(VK_DELETE);
  home_.Put("ownhours.txt", kOthersAachen);
  Press(run.Window(), IDOK);
  run.Answer(kTitle, run.Window(), IDI_QUESTION, IDCANCEL);
  EXPECT_EQ(Stored(), kOthersAachen);
  Press(run.Window(), IDOK);
  run.Answer(kTitle, run.Window(), IDI_QUESTION, IDYES);
  EXPECT_EQ(run.Result(), 1);
  EXPECT_EQ(Stored(), "2024-03-08 17:20 Shkia|Jerusalem\r\n2024-03-08 05:40 HaNetz|Jerusalem\r\n");
}

TEST_F(OwnTimesDialogTest, AFileThatCannotBeWrittenIsNamedAndTheDialogStays) {
  OwnTimesRun run;
  run.Key(VK_DELETE);
  const std::wstring file = home_.Path("ownhours.txt").wstring();
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
  Press(run.Window(), IDOK);
  EXPECT_NE(run.Answer(L"Error", run.Window(), IDI_HAND, IDOK).find(L"ownhours.txt"), std::wstring::npos);
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL));
  EXPECT_EQ(run.End(IDOK), 1);
}

TEST_F(OwnTimesDialogTest, AFileThatCannotBeReadIsNamedAndTheDialogComesWhenItCan) {
  const HANDLE held =
      CreateFileW(home_.Path("ownhours.txt").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  DialogDriver driver([](HWND owner) { return OwnHoursDoDialog(owner, Calculate); });
  EXPECT_NE(driver.Answer(L"Times / Readings", driver.Owner(), IDI_WARNING, IDRETRY).find(L"ownhours.txt"),
            std::wstring::npos);
  EXPECT_NE(driver.Answer(L"Times / Readings", driver.Owner(), IDI_WARNING, IDCANCEL).find(L"ownhours.txt"),
            std::wstring::npos);
  EXPECT_EQ(driver.Result(), 0);
  CloseHandle(held);
  EXPECT_EQ(Stored(), kThree);
}

TEST_F(OwnTimesDialogTest, WithoutTimesThereIsNothingToChange) {
  home_.Put("ownhours.txt", "");
  OwnTimesRun run;
  EXPECT_EQ(run.CountText(), L"No times are set by hand");
  for (const int id : {IDC_CHANGE, IDC_REMOVE, IDC_REMOVE_PLACE, IDC_UNDO}) EXPECT_FALSE(run.IsEnabled(id)) << id;
  run.Key(VK_DELETE);
  EXPECT_EQ(run.End(IDOK), 0);
}

TEST_F(OwnTimesDialogTest, TenThousandTimesAreListed) {
  std::string all;
  for (int i = 0; i < 10000; ++i) all += "2024-03-08 17:20 Zman " + std::to_string(i) + "|Jerusalem\r\n";
  home_.Put("ownhours.txt", all);
  OwnTimesRun run;
  EXPECT_EQ(run.Count(), 10000);
  EXPECT_LT(asked, 100);  // those in sight
  Press(run.Window(), IDC_REMOVE_PLACE);
  run.Answer(kTitle, run.Window(), IDI_QUESTION, IDYES);
  EXPECT_TRUE(Eventually([&] { return run.Count() == 0; }));
  run.Click(IDC_UNDO);
  EXPECT_EQ(run.Count(), 10000);
  EXPECT_EQ(run.End(IDOK), 0);
}

}  // namespace
