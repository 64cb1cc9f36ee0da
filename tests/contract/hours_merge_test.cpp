// The dialog "Zmanim Selection" when another copy of the program stores a choice while it is open.
#include "tests/contract/held_file.h"
#include "tests/contract/hours_dialog_driver.h"

namespace {

constexpr char kBefore[] = "zman dawn-72-min\r\nzman sunrise\r\nzman own-1\r\nown 1 hours-gra 3 up Mine\r\n";

class HoursMerge : public HoursDialog {
 protected:
  void SetUp() override { home_.Put("hours.txt", kBefore); }

  static std::wstring Question(const SelectionRun& dialog, int button) {
    Press(dialog.Window(), IDOK);
    return dialog.Answer(kSelectionTitle, dialog.Window(), IDI_QUESTION, button);
  }
  // Gives the user's own zman another amount.
  static void ChangeOwn(const SelectionRun& dialog) {
    dialog.FocusOn(IDC_CHOSEN);
    dialog.Select(IDC_CHOSEN, 2);
    const OwnRun own(dialog, IDC_CHANGE);
    own.Set(IDC_AMOUNT, L"4");
    ASSERT_TRUE(own.Accept());
  }
};

TEST_F(HoursMerge, WhatTheOtherAddedStaysBesideWhatIsAddedHere) {
  SelectionRun dialog;
  dialog.Type(L"gro tefila");
  dialog.Click(IDC_ADD);
  const OwnRun own(dialog, IDC_NEW);
  own.Fill(L"Here", L"1", L"degrees before sunrise");
  ASSERT_TRUE(own.Accept());
  home_.Put("hours.txt", std::string("# theirs\r\n") + kBefore + "zman own-2\r\nown 2 hours-gra 5 up There\r\n");
  dialog.Accept();
  EXPECT_EQ(
      Stored(),
      "# theirs\r\nzman dawn-72-min\r\nzman sunrise\r\nzman own-1\r\nzman own-2\r\nzman tefila-gra\r\nzman own-3\r\n"
      "own 1 hours-gra 3 up Mine\r\nown 2 hours-gra 5 up There\r\n"
      "own 3 degrees-before-sunrise 1 down Here\r\n");
  EXPECT_EQ(HoursGetCount(), 6u);
}

TEST_F(HoursMerge, HoursWithoutElevationHereGoTogetherWithWhatTheOtherChose) {
  SelectionRun dialog;
  CheckDlgButton(dialog.Window(), IDC_ELEVATION, BST_UNCHECKED);
  dialog.Click(IDC_ELEVATION);
  home_.Put("hours.txt", "zman dawn-72-min\r\nzman sunset\r\n");
  dialog.Accept();
  EXPECT_EQ(Stored(), "zman dawn-72-min\r\nzman sunset\r\nproportional-hours sea-level\r\n");
}

TEST_F(HoursMerge, OkWithoutAChangeLeavesTheOthersAlone) {
  SelectionRun dialog;
  home_.Put("hours.txt", "zman sunset\r\n");
  dialog.Accept();
  EXPECT_EQ(Stored(), "zman sunset\r\n");
}

TEST_F(HoursMerge, AZmanThatBothChangedIsAskedAboutAndEitherCanBeKept) {
  for (const auto& [button, kept] :
       {std::pair(IDYES, "own 1 hours-gra 4 up Mine\r\n"), std::pair(IDNO, "own 1 hours-gra 5 up Mine\r\n")}) {
    SetUp();
    WaitUntilSeen();
    SelectionRun dialog;
    ChangeOwn(dialog);
    home_.Put("hours.txt", "zman dawn-72-min\r\nzman sunrise\r\nzman own-1\r\nown 1 hours-gra 5 up Mine\r\n");
    const std::wstring question = Question(dialog, button);
    EXPECT_NE(question.find(L"Yours: \u201CMine\u201D: 4 of the 12 hours"), std::wstring::npos) << question;
    EXPECT_NE(question.find(L"The other: \u201CMine\u201D: 5 of the 12 hours"), std::wstring::npos) << question;
    dialog.Result();
    EXPECT_EQ(Stored(), std::string("zman dawn-72-min\r\nzman sunrise\r\nzman own-1\r\n") + kept);
  }
}

TEST_F(HoursMerge, CancelOfTheQuestionGoesBackToTheDialogAndWritesNothing) {
  SelectionRun dialog;
  ChangeOwn(dialog);
  home_.Put("hours.txt", "zman sunrise\r\n");
  EXPECT_NE(Question(dialog, IDCANCEL).find(L"has deleted the zman \u201CMine\u201D"), std::wstring::npos);
  EXPECT_EQ(Stored(), "zman sunrise\r\n");
  EXPECT_EQ(dialog.Count(IDC_CHOSEN), 3);
  EXPECT_NE(Question(dialog, IDYES).find(L"Keep it?"), std::wstring::npos);
  dialog.Result();
  EXPECT_EQ(Stored(), "zman sunrise\r\nzman own-1\r\nown 1 hours-gra 4 up Mine\r\n");
}

TEST_F(HoursMerge, AZmanDeletedHereAndChangedThereIsAskedAbout) {
  SelectionRun dialog;
  dialog.FocusOn(IDC_CHOSEN);
  dialog.Select(IDC_CHOSEN, 2);
  Press(dialog.Window(), IDC_DELETE);
  dialog.Answer(kSelectionTitle, dialog.Window(), IDI_QUESTION, IDYES);
  EXPECT_TRUE(Eventually([&] { return dialog.Count(IDC_CHOSEN) == 2; }));
  const std::string theirs = "zman dawn-72-min\r\nzman sunrise\r\nzman own-1\r\nown 1 hours-gra 5 up Mine\r\n";
  home_.Put("hours.txt", theirs);
  EXPECT_NE(Question(dialog, IDNO).find(L"Delete it all the same?"), std::wstring::npos);
  dialog.Result();
  EXPECT_EQ(Stored(), theirs);
}

TEST_F(HoursMerge, TwoOrdersAreAskedAbout) {
  home_.Put("hours.txt", "zman dawn-72-min\r\nzman sunrise\r\nzman sunset\r\n");
  SelectionRun dialog;
  dialog.Click(IDC_DOWN);  // sunrise, dawn, sunset
  home_.Put("hours.txt", "zman sunset\r\nzman dawn-72-min\r\nzman sunrise\r\n");
  EXPECT_NE(Question(dialog, IDYES).find(L"which zmanim are chosen, or their order"), std::wstring::npos);
  dialog.Result();
  EXPECT_EQ(Stored(), "zman sunrise\r\nzman dawn-72-min\r\nzman sunset\r\n");
}

TEST_F(HoursMerge, AFileThatCannotBeReadAnyMoreIsNamedAndTheDialogStays) {
  SelectionRun dialog;
  dialog.Click(IDC_DOWN);
  const std::string theirs = std::string(kBefore) + "zman sunset\r\n";
  home_.Put("hours.txt", theirs);
  HeldFile held(home_.Path("hours.txt"));
  Press(dialog.Window(), IDOK);
  const std::wstring text = dialog.Answer(L"Times / Readings", dialog.Window(), IDI_WARNING, IDCANCEL);
  EXPECT_NE(text.find(home_.Path("hours.txt").wstring()), std::wstring::npos);
  held.Release();
  EXPECT_EQ(Stored(), theirs);
  dialog.Accept();
  EXPECT_EQ(Stored(), "zman sunrise\r\nzman dawn-72-min\r\nzman own-1\r\nzman sunset\r\nown 1 hours-gra 3 up Mine\r\n");
}

}  // namespace
