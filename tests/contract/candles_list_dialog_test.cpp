#include "tests/contract/candles_dialog_driver.h"

namespace {

TEST_F(CandlesDialog, ListsEntriesByPlaceThenDate) {
  home_.Put("candles.txt",
            "2025-01-03 16:40 17:50 aachen\n2024-03-15 17:30 18:36 Jerusalem\n# no entry\n"
            "2024-03-08 17:25 18:31 Jerusalem\n2023-12-29 16:05 17:10 Jerusalem\n2024-03-08 07:05 00:09 Z\xFCrich\n"
            "2024-03-08 17:00 18:00 Zwolle\n2024-03-08 17:01 18:01 \xC4rmel\n");
  ListDialog dialog;
  EXPECT_EQ(dialog.Rows(), (std::vector<Row>{{L"aachen", L"03.01.2025", L"16:40", L"17:50"},
                                             {L"\u00C4rmel", L"08.03.2024", L"17:01", L"18:01"},
                                             {L"Jerusalem", L"29.12.2023", L"16:05", L"17:10"},
                                             {L"Jerusalem", L"08.03.2024", L"17:25", L"18:31"},
                                             {L"Jerusalem", L"15.03.2024", L"17:30", L"18:36"},
                                             {L"Z\u00FCrich", L"08.03.2024", L"07:05", L"00:09"},
                                             {L"Zwolle", L"08.03.2024", L"17:00", L"18:00"}}));
  EXPECT_TRUE(dialog.WaitForFocus(dialog.List()));
  EXPECT_EQ(dialog.SelectedRow(), 0);
  dialog.Accept();
}

TEST_F(CandlesDialog, WithoutEntriesOnlyAddingIsPossible) {
  ListDialog dialog;
  EXPECT_EQ(dialog.Count(), 0);
  EXPECT_TRUE(dialog.IsEnabled(IDC_ADD));
  EXPECT_FALSE(dialog.IsEnabled(IDC_CHANGE));
  EXPECT_FALSE(dialog.IsEnabled(IDC_REMOVE));
  dialog.Accept();
  EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
}

TEST_F(CandlesDialog, DeleteKeyRemovesTheSelectedEntryUnasked) {
  home_.Put("candles.txt", kTwoEntries);
  ListDialog dialog;
  dialog.PressInList(VK_DELETE);
  ASSERT_TRUE(dialog.WaitForCount(1));
  EXPECT_EQ(dialog.Rows()[0][1], L"15.03.2024");
  EXPECT_EQ(dialog.SelectedRow(), 0);
  EXPECT_EQ(Stored(), kTwoEntries);
  dialog.PressInList(VK_DELETE);
  ASSERT_TRUE(dialog.WaitForCount(0));
  EXPECT_TRUE(Eventually([&] { return !dialog.IsEnabled(IDC_REMOVE); }));
  dialog.PressInList(VK_DELETE);  // nothing is left, nothing happens
  dialog.Accept();
  EXPECT_EQ(Stored(), "");
}

TEST_F(CandlesDialog, RemoveButtonLeavesTheFocusInTheList) {
  home_.Put("candles.txt", kTwoEntries);
  ListDialog dialog;
  const HWND remove = GetDlgItem(dialog.Window(), IDC_REMOVE);
  PostMessageW(dialog.Window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(remove), TRUE);
  ASSERT_TRUE(dialog.WaitForFocus(remove));
  Press(dialog.Window(), IDC_REMOVE);
  EXPECT_TRUE(dialog.WaitForCount(1));
  EXPECT_TRUE(dialog.WaitForFocus(dialog.List()));
  Press(dialog.Window(), IDC_REMOVE);
  EXPECT_TRUE(dialog.WaitForCount(0));
  dialog.Accept();
}

TEST_F(CandlesDialog, RemovingSeveralIsAskedAbout) {
  home_.Put("candles.txt", std::string(kTwoEntries) + "2024-03-08 17:25 18:31 Aachen\r\n");
  ListDialog dialog;
  dialog.Select(-1, true);
  EXPECT_FALSE(dialog.IsEnabled(IDC_CHANGE));
  Press(dialog.Window(), IDC_REMOVE);
  EXPECT_EQ(dialog.Answer(kTitle, dialog.Window(), IDI_QUESTION, IDNO), L"Remove the 3 selected entries?");
  EXPECT_EQ(dialog.Count(), 3);
  dialog.Select(0, false);
  dialog.PressInList(VK_DELETE);
  EXPECT_EQ(dialog.Answer(kTitle, dialog.Window(), IDI_QUESTION, IDYES), L"Remove the 2 selected entries?");
  ASSERT_TRUE(dialog.WaitForCount(1));
  dialog.Accept();
  EXPECT_EQ(Stored(), "2024-03-08 17:25 18:31 Aachen\r\n");
}

TEST_F(CandlesDialog, InsertAddsEnterChangesEscapeCloses) {
  home_.Put("candles.txt", kTwoEntries);
  ListDialog dialog;
  ASSERT_TRUE(dialog.WaitForFocus(dialog.List()));
  dialog.PressInList(VK_INSERT);
  const HWND add = dialog.WaitFor(L"Add Times");
  Press(add, IDCANCEL);
  ASSERT_TRUE(dialog.WaitUntilGone(add));
  ASSERT_TRUE(dialog.WaitForFocus(dialog.List()));
  dialog.PressInList(VK_RETURN);
  const HWND change = dialog.WaitFor(L"Change Times");
  PressKey(GetDlgItem(change, IDC_FRIDAY), VK_ESCAPE);
  ASSERT_TRUE(dialog.WaitUntilGone(change));
  dialog.PressInList(VK_ESCAPE);
  dialog.Result();
  EXPECT_EQ(Stored(), kTwoEntries);
}

TEST_F(CandlesDialog, DoubleClickOnARowChangesIt) {
  home_.Put("candles.txt", kTwoEntries);
  ListDialog dialog;
  RECT row = {LVIR_LABEL, 0, 0, 0};
  SendMessageW(dialog.List(), LVM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&row));
  const LPARAM point = MAKELPARAM(row.left + 5, (row.top + row.bottom) / 2);
  PostMessageW(dialog.List(), WM_LBUTTONDOWN, MK_LBUTTON, point);
  PostMessageW(dialog.List(), WM_LBUTTONUP, 0, point);
  PostMessageW(dialog.List(), WM_LBUTTONDBLCLK, MK_LBUTTON, point);
  PostMessageW(dialog.List(), WM_LBUTTONUP, 0, point);
  const HWND change = dialog.WaitFor(L"Change Times");
  EXPECT_EQ(ControlText(change, IDC_FRIDAY), L"15.03.2024");
  Press(change, IDCANCEL);
  ASSERT_TRUE(dialog.WaitUntilGone(change));
  dialog.Accept();
}

TEST_F(CandlesDialog, CancelWithoutChangesAsksNothing) {
  home_.Put("candles.txt", kTwoEntries);
  ListDialog dialog;
  Press(dialog.Window(), IDCANCEL);
  dialog.Result();
  EXPECT_EQ(Stored(), kTwoEntries);
}

TEST_F(CandlesDialog, CancelAsksBeforeChangesAreDiscarded) {
  home_.Put("candles.txt", kTwoEntries);
  ListDialog dialog;
  dialog.PressInList(VK_DELETE);
  ASSERT_TRUE(dialog.WaitForCount(1));
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Answer(kTitle, dialog.Window(), IDI_QUESTION, IDNO), L"Discard the changes?");
  EXPECT_EQ(dialog.Count(), 1);
  PostMessageW(dialog.Window(), WM_CLOSE, 0, 0);
  EXPECT_EQ(dialog.Answer(kTitle, dialog.Window(), IDI_QUESTION, IDYES), L"Discard the changes?");
  dialog.Result();
  EXPECT_EQ(Stored(), kTwoEntries);
}

TEST_F(CandlesDialog, RemovedAndAddedAgainIsNoChange) {
  home_.Put("candles.txt", "2024-03-08 17:25 18:31 %4Aerusalem\n");
  ListDialog dialog;
  dialog.PressInList(VK_DELETE);
  ASSERT_TRUE(dialog.WaitForCount(0));
  const EntryDialog entry(dialog, IDC_ADD);
  entry.Fill(L"Jerusalem", L"8.3.2024", L"17:25", L"18:31");
  ASSERT_TRUE(entry.Accept());
  Press(dialog.Window(), IDCANCEL);
  dialog.Result();
  EXPECT_EQ(Stored(), "2024-03-08 17:25 18:31 %4Aerusalem\n");
}

TEST_F(CandlesDialog, WhatOthersChangeMeanwhileSurvives) {
  home_.Put("candles.txt", kTwoEntries);
  ListDialog dialog;
  dialog.PressInList(VK_DELETE);  // the entry of 8 March
  ASSERT_TRUE(dialog.WaitForCount(1));
  home_.Put("candles.txt",
            "# theirs\n2024-03-08 17:25 18:31 Jerusalem\n2024-03-15 01:02 03:04 Jerusalem\ndamaged\n"
            "2024-03-22 17:35 18:41 Jerusalem");
  dialog.Accept();
  EXPECT_EQ(Stored(), "# theirs\n2024-03-15 01:02 03:04 Jerusalem\ndamaged\n2024-03-22 17:35 18:41 Jerusalem");
}

TEST_F(CandlesDialog, ShowsWhatStandsInTheFileAtThatMoment) {
  home_.Put("candles.txt", "2024-03-08 17:25 18:31 a\n");
  int32_t time;
  EXPECT_NE(CandlesGetTime("a", 8, 3, 2024, &time, &time, &time, &time), 0);
  home_.Put("candles.txt", "2024-03-08 17:25 18:31 another\n");
  ListDialog dialog;
  EXPECT_EQ(dialog.Rows()[0][0], L"another");
  dialog.Accept();
}

TEST_F(CandlesDialog, FailingWriteIsToldAndTheDialogStays) {
  ListDialog dialog;
  std::filesystem::create_directories(home_.Path("candles.txt"));  // a folder where the file should be
  const EntryDialog entry(dialog, IDC_ADD);
  entry.Fill(L"Jerusalem", L"8.3.2024", L"17:25", L"18:31");
  ASSERT_TRUE(entry.Accept());
  Press(dialog.Window(), IDOK);
  const std::wstring text = dialog.Answer(L"Error", dialog.Window(), IDI_HAND, IDOK);
  EXPECT_NE(text.find(home_.Path("candles.txt").wstring()), std::wstring::npos);
  EXPECT_EQ(dialog.Count(), 1);

  std::filesystem::remove(home_.Path("candles.txt"));
  dialog.Accept();
  EXPECT_EQ(Stored(), "2024-03-08 17:25 18:31 Jerusalem\r\n");
}

TEST_F(CandlesDialog, OwnerIsDisabledWhileItIsOpen) {
  ListDialog dialog;
  EXPECT_FALSE(IsWindowEnabled(dialog.Owner()));
  EXPECT_EQ(GetWindow(dialog.Window(), GW_OWNER), dialog.Owner());
  dialog.Accept();
}

TEST_F(CandlesDialog, NeedsNoOwner) {
  home_.Put("candles.txt", kTwoEntries);
  constexpr int32_t kReturned = 7;
  DialogDriver driver([](HWND) {
    CandlesDoDialog(nullptr);
    return kReturned;
  });
  const HWND dialog = driver.WaitFor(kTitle);
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(GetWindow(dialog, GW_OWNER), nullptr);
  EXPECT_TRUE(IsWindowEnabled(driver.Owner())) << "a window that is not its owner is disabled";
  const HWND list = GetDlgItem(dialog, IDC_TIMES);
  EXPECT_EQ(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0), 2);
  PressKey(list, VK_DELETE);
  ASSERT_TRUE(Eventually([&] { return SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) == 1; }));
  Press(dialog, IDOK);
  EXPECT_EQ(driver.Result(), kReturned);
  EXPECT_EQ(Stored(), "2024-03-15 17:30 18:36 Jerusalem\r\n");
}

// One thread opens and closes it, as the program does.
TEST_F(CandlesDialog, OpeningAndClosingItKeepsNothing) {
  home_.Put("candles.txt", kTwoEntries);
  const auto openAndClose = [](int times) {
    DialogDriver driver([times](HWND owner) {
      for (int i = 0; i < times; ++i) CandlesDoDialog(owner);
      return times;
    });
    for (int i = 0; i < times; ++i) {
      const HWND dialog = driver.WaitFor(kTitle);
      Press(dialog, IDC_CHANGE);
      const HWND entry = driver.WaitFor(L"Change Times");
      Press(entry, IDCANCEL);
      if (!driver.WaitUntilGone(entry)) break;
      Press(dialog, IDCANCEL);
      if (!driver.WaitUntilGone(dialog)) break;
    }
    EXPECT_EQ(driver.Result(), times);
  };
  openAndClose(20);
  const Resources before = ResourcesNow();
  openAndClose(200);
  const Resources after = ResourcesNow();
  EXPECT_LE(after.handles, before.handles + 5);
  EXPECT_LE(after.heapBytes, before.heapBytes + 20000);  // 100 bytes a run would show
}

}  // namespace
