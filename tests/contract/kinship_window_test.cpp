// The window with persons and their dates: its list.
#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <cwctype>
#include <utility>

#include "tests/contract/kinship_driver.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class KinshipWindowTest : public KinshipTest {};

TEST_F(KinshipWindowTest, ListsDatesByTheirNextDayInTheYearAndTheTwoAfterIt) {
  KinshipRun run;
  EXPECT_THAT(run.Names(), ElementsAre(L"Moshe", kSara, L"anna", kLev));
  EXPECT_THAT(run.Cells(0), ElementsAre(L"Moshe", L"Yahrzeit", L"14 Adar 5710", L"20.02.2000", L"Sunday", L"50",
                                        L"20.02.2000", L"09.03.2001", L"26.02.2002", L""));
  EXPECT_THAT(run.Cells(1)[1], L"Aliyah");
  EXPECT_THAT(run.Cells(2)[2], L"5 Iyar 5708");
  EXPECT_THAT(run.Cells(2)[9], L"Likes books");
  EXPECT_EQ(run.Cell(3, 5), L"");
  EXPECT_EQ(run.Heading(6), L"2000");
  EXPECT_EQ(run.Heading(8), L"2002");
  EXPECT_EQ(run.CountText(), L"4");
  EXPECT_EQ(run.Selected(), 0);
  EXPECT_TRUE(run.WaitForFocus(run.List()));
  run.End(IDCANCEL);
  EXPECT_EQ(Stored(), kFourPersons);
}

TEST_F(KinshipWindowTest, AnotherYearShowsItsDays) {
  KinshipRun run;
  SetControlText(run.Window(), IDC_YEAR, L"200");
  EXPECT_EQ(run.Heading(6), L"2000");
  SetControlText(run.Window(), IDC_YEAR, L"2001");
  EXPECT_EQ(run.Heading(6), L"2001");
  EXPECT_EQ(run.Cell(0, 3), L"09.03.2001");
  EXPECT_EQ(run.Cell(0, 5), L"51");
  run.End(IDCANCEL);
}

TEST_F(KinshipWindowTest, AYearOutsideTheCalendarIsBroughtIntoIt) {
  {
    KinshipRun run(5);
    EXPECT_EQ(run.Heading(6), L"1583");
    run.End(IDCANCEL);
  }
  KinshipRun run(90000);
  EXPECT_EQ(run.Heading(6), L"3000");
  run.End(IDCANCEL);
}

TEST_F(KinshipWindowTest, AnotherCalendarThanTheGregorianOpensNothing) {
  DialogDriver driver([](HWND owner) {
    KinshipInvoke(owner, KINSHIP_GREGORIAN + 1, 5760);
    return 7;
  });
  EXPECT_EQ(driver.Result(), 7);
}

TEST_F(KinshipWindowTest, SearchFindsEachWordInAnyColumnInAnyScript) {
  KinshipRun run;
  run.Type(L"BOOKS an");
  EXPECT_THAT(run.Names(), ElementsAre(L"anna"));
  EXPECT_EQ(run.CountText(), L"1 of 4");
  run.Type(L"\u043B\u0415");  // Cyrillic letters of the other case
  EXPECT_THAT(run.Names(), ElementsAre(kLev));
  run.Type(L"\u05E8\u05D4");
  EXPECT_THAT(run.Names(), ElementsAre(kSara));
  run.Type(L"nowhere");
  EXPECT_EQ(run.Count(), 0);
  for (const int id : {IDC_CHANGE, IDC_REMOVE}) EXPECT_FALSE(run.IsEnabled(id)) << id;
  run.Type(L"");
  EXPECT_EQ(run.Count(), 4);
  run.End(IDCANCEL);
}

TEST_F(KinshipWindowTest, TheSelectedEntryStaysSoWhileItIsSearched) {
  KinshipRun run;
  run.SelectOnly(2);  // anna
  run.Type(L"a");
  EXPECT_EQ(run.Cell(run.Selected(), 0), L"anna");
  run.Type(L"");
  EXPECT_EQ(run.Cell(run.Selected(), 0), L"anna");
  run.Type(L"moshe");
  EXPECT_EQ(run.Cell(run.Selected(), 0), L"Moshe");
  run.End(IDCANCEL);
}

TEST_F(KinshipWindowTest, AHeadingSortsAndASecondClickTurnsRound) {
  KinshipRun run;
  run.ClickHeading(0);
  EXPECT_THAT(run.Names(), ElementsAre(L"anna", L"Moshe", kLev, kSara));
  EXPECT_EQ(SendDlgItemMessageW(run.Window(), IDC_SORT, CB_GETCURSEL, 0, 0), 0);
  run.ClickHeading(0);
  EXPECT_THAT(run.Names(), ElementsAre(kSara, kLev, L"Moshe", L"anna"));
  KinshipRun::Choose(run.Window(), IDC_SORT, 5);
  EXPECT_THAT(run.Names(), ElementsAre(kSara, L"Moshe", L"anna", kLev));
  EXPECT_EQ(run.Cell(run.Selected(), 0), L"Moshe");
  run.End(IDCANCEL);
}

TEST_F(KinshipWindowTest, DeleteRemovesAndUndoBringsBackThoughASearchWouldHideIt) {
  KinshipRun run;
  EXPECT_FALSE(run.IsEnabled(IDC_UNDO));
  EXPECT_FALSE(run.IsEnabled(IDC_APPLY));
  run.Key(VK_DELETE);
  EXPECT_THAT(run.Names(), ElementsAre(kSara, L"anna", kLev));
  EXPECT_EQ(run.Selected(), 0);
  EXPECT_TRUE(run.IsEnabled(IDC_APPLY));
  run.Type(L"anna");
  run.Click(IDC_UNDO);
  EXPECT_EQ(run.Count(), 4);
  EXPECT_EQ(run.Cell(run.Selected(), 0), L"Moshe");
  EXPECT_FALSE(run.IsEnabled(IDC_APPLY));
  run.End(IDOK);
  EXPECT_EQ(Stored(), kFourPersons);
}

TEST_F(KinshipWindowTest, TheAdarOfYahrzeitIsForAllAndKept) {
  {
    KinshipRun run;
    KinshipRun::Choose(run.Window(), IDC_CUSTOM, 2);
    EXPECT_EQ(run.Cell(0, 6), L"20.02.2000, 21.03.2000");
    EXPECT_TRUE(run.IsEnabled(IDC_APPLY));
    run.Click(IDC_APPLY);
    EXPECT_FALSE(run.IsEnabled(IDC_APPLY));
    run.End(IDCANCEL);
  }
  WaitUntilSeen();
  KinshipRun run;
  EXPECT_EQ(run.Cell(0, 6), L"20.02.2000, 21.03.2000");
  KinshipRun::Choose(run.Window(), IDC_CUSTOM, 0);
  run.Discard();
  WaitUntilSeen();
  KinshipRun again;
  EXPECT_EQ(again.Cell(0, 6), L"20.02.2000, 21.03.2000");
  again.End(IDCANCEL);
}

TEST_F(KinshipWindowTest, WithoutDatesThereIsNothingToChange) {
  home_.Put("persons.txt", "");
  KinshipRun run;
  EXPECT_EQ(run.CountText(), L"No dates yet");
  for (const int id : {IDC_CHANGE, IDC_REMOVE, IDC_UNDO, IDC_EXPORT, IDC_PRINT, IDC_APPLY}) {
    EXPECT_FALSE(run.IsEnabled(id)) << id;
  }
  run.Key(VK_DELETE);
  run.End(IDOK);
  EXPECT_EQ(Stored(), "");
}

TEST_F(KinshipWindowTest, TheChosenFontIsTheLists) {
  home_.Put("kinship.ini", "[Font]\r\nFace=Tahoma\r\nTenthsOfPoints=200\r\n");
  KinshipRun run;
  LOGFONTW font = {};
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(run.List(), WM_GETFONT, 0, 0)), sizeof font, &font);
  EXPECT_EQ(std::wstring(font.lfFaceName), L"Tahoma");
  run.End(IDCANCEL);
}

TEST_F(KinshipWindowTest, AFontThatIsGoneGivesWayToTheDialogsOwn) {
  home_.Put("kinship.ini", "[Font]\r\nFace=No Such Font\r\nTenthsOfPoints=200\r\n");
  KinshipRun run;
  EXPECT_EQ(SendMessageW(run.List(), WM_GETFONT, 0, 0), SendMessageW(run.Window(), WM_GETFONT, 0, 0));
  run.End(IDCANCEL);
}

TEST_F(KinshipWindowTest, TheFontDialogKeepsTheFontThatWasChosen) {
  home_.Put("kinship.ini", "[Font]\r\nFace=Tahoma\r\nTenthsOfPoints=120\r\n");
  DialogDriver driver([](HWND owner) {
    KinshipFontDialog(owner);
    return 1;
  });
  Press(driver.WaitFor(L"Font"), IDOK);
  driver.Result();
  EXPECT_THAT(home_.Bytes("kinship.ini"), HasSubstr("TenthsOfPoints=120"));
  EXPECT_THAT(home_.Bytes("kinship.ini"), HasSubstr("Weight=400"));
}

// The letters that are keys with Alt, those of enabled and of disabled controls.
std::wstring AccessKeys(HWND dialog) {
  std::wstring keys;
  for (HWND control = GetWindow(dialog, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
    const std::wstring text = WindowText(control);
    const size_t mark = text.find(L'&');
    if (mark != text.npos && mark + 1 < text.size()) keys += static_cast<wchar_t>(towlower(text[mark + 1]));
  }
  return keys;
}

bool AreAllDifferent(std::wstring keys) {
  std::ranges::sort(keys);
  return std::ranges::adjacent_find(keys) == keys.end();
}

TEST_F(KinshipWindowTest, EveryAccessKeyIsOfOneControl) {
  KinshipRun run;
  EXPECT_EQ(AccessKeys(run.Window()).size(), 13u);
  EXPECT_TRUE(AreAllDifferent(AccessKeys(run.Window())));
  const HWND entry = run.OpenEntry(IDC_ADD);
  EXPECT_TRUE(AreAllDifferent(AccessKeys(entry)));
  run.CloseEntry(entry, IDCANCEL);
  Press(run.Window(), IDC_EXPORT);
  const HWND dialog = run.WaitFor(L"Export Dates");
  EXPECT_TRUE(AreAllDifferent(AccessKeys(dialog)));
  run.CloseEntry(dialog, IDCANCEL);
  run.End(IDCANCEL);
}

TEST_F(KinshipWindowTest, F1IsTheOwners) {
  static std::atomic<int> helps;
  helps = 0;
  DialogDriver driver([](HWND owner) {
    const auto proc = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) -> LRESULT {
      if (message == WM_HELP) ++helps;
      return DefSubclassProc(window, message, wParam, lParam);
    };
    SetWindowSubclass(owner, proc, 0, 0);
    KinshipInvoke(owner, KINSHIP_GREGORIAN, 2000);
    return 1;
  });
  const HWND window = driver.WaitFor(kKinshipTitle);
  HELPINFO help = {};
  help.cbSize = sizeof help;
  SendMessageW(window, WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
  EXPECT_EQ(helps, 1);
  for (const auto& [button, caption] : {std::pair(IDC_ADD, L"Add Date"), std::pair(IDC_EXPORT, L"Export Dates")}) {
    Press(window, button);
    const HWND dialog = driver.WaitFor(caption);
    SendMessageW(dialog, WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
    Press(dialog, IDCANCEL);
    EXPECT_TRUE(driver.WaitUntilGone(dialog));
  }
  EXPECT_EQ(helps, 3);
  Press(window, IDCANCEL);
  driver.Result();
}

TEST_F(KinshipWindowTest, WhatIsShownIsPreviewedForPrinting) {
  KinshipRun run;
  Press(run.Window(), IDC_PRINT);
  HWND preview = nullptr;
  EXPECT_TRUE(Eventually([&] {
    return (preview = FindWindowW(nullptr, L"Birthdays and Yahrzeit - Print Preview")) && IsWindowVisible(preview);
  }));
  EXPECT_FALSE(IsWindowEnabled(run.Window()));
  PostMessageW(preview, WM_CLOSE, 0, 0);
  EXPECT_TRUE(Eventually([&] { return IsWindowEnabled(run.Window()) != FALSE; }));
  run.End(IDCANCEL);
}

TEST_F(KinshipWindowTest, TenThousandPersonsAreListed) {
  std::string all;
  for (int i = 0; i < 10000; ++i) all += "birthday|1950-02-16||Person-" + std::to_string(i) + "||\r\n";
  home_.Put("persons.txt", all);
  KinshipRun run;
  EXPECT_EQ(run.Count(), 10000);
  run.Type(L"person-9");
  EXPECT_EQ(run.Count(), 1111);  // 9, 90 to 99, 900 to 999, 9000 to 9999
  run.Type(L"person-99 birthday");
  EXPECT_EQ(run.CountText(), L"111 of 10000");
  run.Type(L"person-9");
  EXPECT_EQ(run.Count(), 1111);
  run.End(IDCANCEL);
}

TEST_F(KinshipWindowTest, TwoHundredOpeningsLeaveNothingBehind) {
  const auto openAndClose = [](int times) {
    DialogDriver driver([times](HWND owner) {
      for (int i = 0; i < times; ++i) KinshipInvoke(owner, KINSHIP_GREGORIAN, 2000);
      return times;
    });
    for (int i = 0; i < times; ++i) {
      const HWND window = driver.WaitFor(kKinshipTitle);
      Press(window, IDC_CHANGE);
      const HWND entry = driver.WaitFor(L"Change Date");
      Press(entry, IDCANCEL);
      if (!driver.WaitUntilGone(entry)) break;
      Press(window, IDCANCEL);
      if (!driver.WaitUntilGone(window)) break;
    }
    EXPECT_EQ(driver.Result(), times);
  };
  home_.Put("kinship.ini", "[Font]\r\nFace=Tahoma\r\nTenthsOfPoints=90\r\n");
  openAndClose(20);
  const Resources before = ResourcesNow();
  openAndClose(200);
  const Resources after = ResourcesNow();
  EXPECT_LE(after.handles, before.handles + 5);
  EXPECT_LE(after.heapBytes, before.heapBytes + 20000);  // 100 bytes a run would show
}

}  // namespace
