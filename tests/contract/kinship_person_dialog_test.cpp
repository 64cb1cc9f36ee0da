// The dialog of one date of a person, with the controls for a date in either calendar.
#include <gmock/gmock.h>

#include "tests/contract/kinship_driver.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;

class PersonDialogTest : public KinshipTest {
 protected:
  // 14 May 1948 was 5 Iyar 5708.
  static void TypeGregorian(HWND entry, const wchar_t* day, int month, const wchar_t* year) {
    SetControlText(entry, IDC_GREGORIAN_DAY, day);
    KinshipRun::Choose(entry, IDC_GREGORIAN_MONTH, month - 1);
    SetControlText(entry, IDC_GREGORIAN_YEAR, year);
  }
  // The month's place from Tishri.
  static void TypeJewish(HWND entry, const wchar_t* day, int month, const wchar_t* year) {
    SetControlText(entry, IDC_JEWISH_DAY, day);
    SetControlText(entry, IDC_JEWISH_YEAR, year);
    KinshipRun::Choose(entry, IDC_JEWISH_MONTH, month);
  }
  static std::wstring Chosen(HWND entry, int combo) { return ControlText(entry, combo); }
};

TEST_F(PersonDialogTest, ANewDateIsAddedAndStored) {
  KinshipRun run;
  const HWND entry = run.OpenEntry(IDC_ADD);
  EXPECT_TRUE(run.WaitForFocus(GetDlgItem(entry, IDC_NAME)));
  SetControlText(entry, IDC_NAME, L" \u05D3\u05D5\u05D3 ");
  KinshipRun::Choose(entry, IDC_OCCASION, 1);
  TypeGregorian(entry, L"14", 5, L"1948");
  SetControlText(entry, IDC_NOTES, L"Row 12\r\nSeat 3\r\n");
  run.CloseEntry(entry, IDOK);
  EXPECT_EQ(run.Count(), 5);
  EXPECT_EQ(run.Cell(run.Selected(), 0), L"\u05D3\u05D5\u05D3");
  EXPECT_EQ(Stored(), kFourPersons);
  run.End(IDOK);
  EXPECT_EQ(Stored(), std::string(kFourPersons) + "yahrzeit|1948-05-14||\xD7\x93\xD7\x95\xD7\x93||Row 12%0ASeat 3\r\n");
}

TEST_F(PersonDialogTest, WhatIsTypedInOneCalendarShowsInTheOther) {
  KinshipRun run;
  const HWND entry = run.OpenEntry(IDC_ADD);
  TypeGregorian(entry, L"14", 5, L"1948");
  EXPECT_EQ(ControlText(entry, IDC_JEWISH_DAY), L"5");
  EXPECT_EQ(Chosen(entry, IDC_JEWISH_MONTH), L"Iyar");
  EXPECT_EQ(ControlText(entry, IDC_JEWISH_YEAR), L"5708");
  EXPECT_THAT(ControlText(entry, IDC_OUTLOOK), HasSubstr(L"Friday, 14 May 1948: 5 Iyar 5708."));
  Press(entry, IDC_AFTER_SUNSET);
  CheckDlgButton(entry, IDC_AFTER_SUNSET, BST_CHECKED);
  SendMessageW(entry, WM_COMMAND, MAKEWPARAM(IDC_AFTER_SUNSET, BN_CLICKED), 0);
  EXPECT_EQ(ControlText(entry, IDC_JEWISH_DAY), L"6");
  // From here on the Jewish date counts, and stays while the Gregorian one follows.
  SetControlText(entry, IDC_JEWISH_DAY, L"7");
  EXPECT_EQ(ControlText(entry, IDC_GREGORIAN_DAY), L"15");
  CheckDlgButton(entry, IDC_AFTER_SUNSET, BST_UNCHECKED);
  SendMessageW(entry, WM_COMMAND, MAKEWPARAM(IDC_AFTER_SUNSET, BN_CLICKED), 0);
  EXPECT_EQ(ControlText(entry, IDC_JEWISH_DAY), L"7");
  EXPECT_EQ(ControlText(entry, IDC_GREGORIAN_DAY), L"16");
  run.CloseEntry(entry, IDCANCEL);
  EXPECT_EQ(run.Count(), 4);
  run.End(IDCANCEL);
}

TEST_F(PersonDialogTest, WhatIsNoDateEmptiesTheOtherLineAndSaysWhy) {
  KinshipRun run;
  const HWND entry = run.OpenEntry(IDC_ADD);
  TypeJewish(entry, L"29", 2, L"5784");
  EXPECT_EQ(ControlText(entry, IDC_GREGORIAN_DAY), L"12");  // 29 Kislev 5784 is 12 December 2023
  EXPECT_EQ(ControlText(entry, IDC_DATE_FAULT), L"");
  SetControlText(entry, IDC_JEWISH_DAY, L"30");
  EXPECT_EQ(ControlText(entry, IDC_DATE_FAULT), L"30 Kislev does not exist in 5784.");
  EXPECT_EQ(ControlText(entry, IDC_GREGORIAN_DAY), L"");
  EXPECT_EQ(Chosen(entry, IDC_GREGORIAN_MONTH), L"");
  EXPECT_EQ(ControlText(entry, IDC_JEWISH_DAY), L"30");
  EXPECT_EQ(ControlText(entry, IDC_OUTLOOK), L"");
  TypeGregorian(entry, L"1", 2, L"1500");
  EXPECT_EQ(ControlText(entry, IDC_DATE_FAULT),
            L"The year must be between 1583 and 3000; enter earlier dates as Jewish dates.");
  EXPECT_EQ(ControlText(entry, IDC_JEWISH_DAY), L"");
  EXPECT_EQ(ControlText(entry, IDC_GREGORIAN_YEAR), L"1500");
  run.CloseEntry(entry, IDCANCEL);
  run.End(IDCANCEL);
}

TEST_F(PersonDialogTest, TheMonthsAreThoseOfTheJewishYear) {
  KinshipRun run;
  const HWND entry = run.OpenEntry(IDC_ADD);
  TypeJewish(entry, L"3", 5, L"5783");
  EXPECT_EQ(Chosen(entry, IDC_JEWISH_MONTH), L"Adar");
  SetControlText(entry, IDC_JEWISH_YEAR, L"5784");
  EXPECT_EQ(Chosen(entry, IDC_JEWISH_MONTH), L"Adar I");
  KinshipRun::Choose(entry, IDC_JEWISH_MONTH, 6);
  EXPECT_EQ(Chosen(entry, IDC_JEWISH_MONTH), L"Adar II");
  SetControlText(entry, IDC_JEWISH_YEAR, L"5783");
  EXPECT_EQ(Chosen(entry, IDC_JEWISH_MONTH), L"Adar II");
  EXPECT_EQ(ControlText(entry, IDC_DATE_FAULT), L"There is no Adar II in 5783.");
  run.CloseEntry(entry, IDCANCEL);
  run.End(IDCANCEL);
}

TEST_F(PersonDialogTest, TheAdarIsAskedForOnlyWhereItIsAMatterOfCustom) {
  KinshipRun run;
  const HWND entry = run.OpenEntry(IDC_CHANGE);  // Moshe, 14 Adar 5710
  const HWND adar = GetDlgItem(entry, IDC_ADAR);
  EXPECT_TRUE(IsWindowEnabled(adar));
  EXPECT_EQ(Chosen(entry, IDC_ADAR), L"As for all");
  SetControlText(entry, IDC_JEWISH_YEAR, L"5711");  // a leap year
  EXPECT_FALSE(IsWindowEnabled(adar));
  SetControlText(entry, IDC_JEWISH_YEAR, L"5710");
  KinshipRun::Choose(entry, IDC_ADAR, 3);
  run.CloseEntry(entry, IDOK);
  EXPECT_EQ(run.Cell(0, 6), L"20.02.2000, 21.03.2000");
  run.End(IDOK);
  EXPECT_THAT(Stored(), HasSubstr("yahrzeit|5710-12-14 jewish|both|Moshe||\r\nbirthday"));
}

TEST_F(PersonDialogTest, WhatIsMissingIsToldAndItsFieldGetsTheFocus) {
  KinshipRun run;
  const HWND entry = run.OpenEntry(IDC_ADD);
  Press(entry, IDOK);
  EXPECT_EQ(run.Answer(L"Error", entry, IDI_HAND, IDOK), L"Enter the name.");
  EXPECT_TRUE(run.WaitForFocus(GetDlgItem(entry, IDC_NAME)));
  SetControlText(entry, IDC_NAME, L"Dan");
  Press(entry, IDOK);
  EXPECT_EQ(run.Answer(L"Error", entry, IDI_HAND, IDOK), L"Enter the day.");
  EXPECT_TRUE(run.WaitForFocus(GetDlgItem(entry, IDC_GREGORIAN_DAY)));
  SetControlText(entry, IDC_JEWISH_DAY, L"3");
  Press(entry, IDOK);
  EXPECT_EQ(run.Answer(L"Error", entry, IDI_HAND, IDOK), L"Choose the month.");
  EXPECT_TRUE(run.WaitForFocus(GetDlgItem(entry, IDC_JEWISH_MONTH)));
  SetControlText(entry, IDC_NAME, std::wstring(150, L'\u05D0'));
  Press(entry, IDOK);
  EXPECT_THAT(run.Answer(L"Error", entry, IDI_HAND, IDOK), HasSubstr(L"too long"));
  run.CloseEntry(entry, IDCANCEL);
  run.End(IDCANCEL);
}

TEST_F(PersonDialogTest, AJewishYearMayBeUnknown) {
  KinshipRun run;
  const HWND entry = run.OpenEntry(IDC_ADD);
  SetControlText(entry, IDC_NAME, L"Dan");
  TypeJewish(entry, L"30", 2, L"");
  run.CloseEntry(entry, IDOK);
  EXPECT_EQ(run.Cell(run.Selected(), 2), L"30 Kislev");
  run.End(IDOK);
  EXPECT_THAT(Stored(), EndsWith("birthday|0000-09-30 jewish||Dan||\r\n"));
}

TEST_F(PersonDialogTest, OnlyOtherDatesHaveATitle) {
  KinshipRun run;
  run.SelectOnly(1);
  const HWND entry = run.OpenEntry(IDC_CHANGE);
  EXPECT_EQ(ControlText(entry, IDC_TITLE), L"Aliyah");
  EXPECT_TRUE(IsWindowEnabled(GetDlgItem(entry, IDC_TITLE)));
  KinshipRun::Choose(entry, IDC_OCCASION, 0);
  EXPECT_FALSE(IsWindowEnabled(GetDlgItem(entry, IDC_TITLE)));
  run.CloseEntry(entry, IDOK);
  EXPECT_EQ(run.Cell(run.Selected(), 1), L"Birthday");
  run.Discard();
}

TEST_F(PersonDialogTest, AnUnchangedEntryIsNoStep) {
  KinshipRun run;
  run.CloseEntry(run.OpenEntry(IDC_CHANGE), IDOK);
  EXPECT_FALSE(run.IsEnabled(IDC_UNDO));
  run.End(IDCANCEL);
}

TEST_F(PersonDialogTest, WhatTheControlsDoNotSayIsNoStepEither) {
  home_.Put("persons.txt", "birthday|1948-05-14|both|Dan  Levi|Title|\r\n");
  KinshipRun run;
  run.CloseEntry(run.OpenEntry(IDC_CHANGE), IDOK);
  EXPECT_FALSE(run.IsEnabled(IDC_APPLY));
  run.End(IDCANCEL);
}

TEST_F(PersonDialogTest, TheOccasionLastUsedIsOffered) {
  {
    KinshipRun run;
    const HWND entry = run.OpenEntry(IDC_ADD);
    EXPECT_EQ(Chosen(entry, IDC_OCCASION), L"Birthday");
    SetControlText(entry, IDC_NAME, L"Dan");
    KinshipRun::Choose(entry, IDC_OCCASION, 1);
    TypeGregorian(entry, L"14", 5, L"1948");
    run.CloseEntry(entry, IDOK);
    run.Discard();
  }
  WaitUntilSeen();
  KinshipRun run;
  const HWND entry = run.OpenEntry(IDC_ADD);
  EXPECT_EQ(Chosen(entry, IDC_OCCASION), L"Yahrzeit");
  run.CloseEntry(entry, IDCANCEL);
  run.End(IDCANCEL);
}

TEST_F(PersonDialogTest, APastedNameOfSeveralLinesIsTakenWhole) {
  KinshipRun run;
  const HWND entry = run.OpenEntry(IDC_ADD);
  constexpr wchar_t kPasted[] = L"Anna\r\nMaria";
  ASSERT_TRUE(OpenClipboard(run.Owner()));
  EmptyClipboard();
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, sizeof kPasted);
  memcpy(GlobalLock(memory), kPasted, sizeof kPasted);
  GlobalUnlock(memory);
  SetClipboardData(CF_UNICODETEXT, memory);
  CloseClipboard();
  SendDlgItemMessageW(entry, IDC_NAME, WM_PASTE, 0, 0);
  EXPECT_EQ(ControlText(entry, IDC_NAME), L"Anna Maria");
  run.CloseEntry(entry, IDCANCEL);
  run.End(IDCANCEL);
}

}  // namespace
