#include <gmock/gmock.h>

#include "tests/contract/hours_dialog_driver.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr char kOne[] = "zman sunrise\r\n";
constexpr char kMine[] = "zman sunrise\r\nzman own-1\r\nown 1 minutes-after-sunset 10.5 up Mine|\xE0\xE1 12\r\n";

TEST_F(HoursDialog, NewZmanOfTheUsersOwnIsListedChosenAndStored) {
  home_.Put("hours.txt", kOne);
  SelectionRun dialog;
  dialog.Type(L"sunset");
  const OwnRun own(dialog, IDC_NEW);
  own.Fill(L"Caf\u00E9 opens", L"11,5", L"degrees before sunrise");
  own.Set(IDC_HEBREW, L"\u05D0\u05D5\u05E8 12");
  EXPECT_THAT(own.Text(IDC_MEANING), HasSubstr(L"The sun 11.5\u00B0 below the horizon in the morning, rounded down."));
  ASSERT_TRUE(own.Accept());
  EXPECT_EQ(dialog.Text(IDC_TYPED), L"");
  EXPECT_EQ(dialog.SelectedName(IDC_OFFERED), L"Caf\u00E9 opens");
  EXPECT_THAT(dialog.Chosen(), ElementsAre(L"HaNetz HaChama", L"Caf\u00E9 opens"));
  EXPECT_EQ(dialog.Cell(IDC_CHOSEN, 1, 2).size(), 5u);
  EXPECT_TRUE(dialog.IsEnabled(IDC_CHANGE));
  EXPECT_TRUE(dialog.IsEnabled(IDC_DELETE));
  dialog.Accept();
  EXPECT_EQ(Stored(),
            "zman sunrise\r\nzman own-1\r\nown 1 degrees-before-sunrise 11.5 down Caf\xE9 opens|\xE0\xE5\xF8 12\r\n");
}

TEST_F(HoursDialog, EveryFieldIsCheckedAndTheFocusGoesThere) {
  home_.Put("hours.txt", kMine);
  SelectionRun dialog;
  const OwnRun own(dialog, IDC_NEW);
  own.Set(IDC_DESCRIPTION, L" ");
  EXPECT_EQ(own.ErrorIn(IDC_DESCRIPTION),
            L"The description is missing. Write what the zman is called, such as First light.");
  own.Set(IDC_DESCRIPTION, L"\u05D0");
  EXPECT_THAT(own.ErrorIn(IDC_DESCRIPTION), HasSubstr(L"Western European letters"));
  own.Set(IDC_DESCRIPTION, L"a|b");
  EXPECT_EQ(own.ErrorIn(IDC_DESCRIPTION),
            L"The description has a \"|\" or a letter that cannot be shown. Write it without.");
  own.Set(IDC_DESCRIPTION, L"a\\b");
  EXPECT_EQ(own.ErrorIn(IDC_DESCRIPTION),
            L"The description has a \"\\\", which the name of a zman cannot have. Write it without.");
  own.Set(IDC_DESCRIPTION, std::wstring(49, L'x'));
  EXPECT_EQ(own.ErrorIn(IDC_DESCRIPTION), L"The description has 49 letters, but at most 48 have room. Shorten it.");
  for (const wchar_t* taken : {L"Mine", L"HaNetz HaChama"}) {
    own.Set(IDC_DESCRIPTION, taken);
    EXPECT_EQ(own.ErrorIn(IDC_DESCRIPTION),
              std::wstring(L"Another zman is called ") + taken + L" already. Write another description.");
  }
  own.Set(IDC_DESCRIPTION, L"Other");
  own.Set(IDC_HEBREW, L"\u0416");
  EXPECT_THAT(own.ErrorIn(IDC_HEBREW), HasSubstr(L"Write it in Hebrew letters without points, or leave it empty."));
  own.Set(IDC_HEBREW, L"");
  for (const wchar_t* amount : {L"", L"x", L"-1", L"1.2345", L"1.", L"\u0668"}) {
    own.Set(IDC_AMOUNT, amount);
    EXPECT_EQ(own.ErrorIn(IDC_AMOUNT),
              L"The amount must be a number such as 72 or 16.1, with at most 3 digits behind the point.")
        << amount;
    EXPECT_EQ(own.Text(IDC_MEANING), L"");
  }
  own.Set(IDC_AMOUNT, L"0");
  EXPECT_EQ(own.ErrorIn(IDC_AMOUNT), L"The amount must be more than 0 and at most 60 degrees.");
  own.Fill(L"Other", L"361", L"minutes before sunset");
  EXPECT_EQ(own.ErrorIn(IDC_AMOUNT), L"The amount must be from 0 to 360 minutes.");
  own.Fill(L"Other", L"24.001", L"hours of the GR\"O day");
  EXPECT_EQ(own.ErrorIn(IDC_AMOUNT), L"The amount must be from 0 to 24 hours.");
  own.Set(IDC_AMOUNT, L"9.5");
  EXPECT_TRUE(own.Accept());
  dialog.Accept();
  EXPECT_THAT(Stored(), HasSubstr("own 2 hours-gra 9.5 up Other\r\n"));
}

TEST_F(HoursDialog, OwnZmanCanBeTheLaterOrTheEarlierOfTwoTimes) {
  home_.Put("hours.txt", kOne);
  SelectionRun dialog;
  const OwnRun own(dialog, IDC_NEW);
  own.Fill(L"Mincha", L"6.5", L"hours of the GR\"O day");
  const HWND second = GetDlgItem(own.Window(), IDC_OTHER_AMOUNT);
  EXPECT_FALSE(IsWindowEnabled(second));
  own.Choose(IDC_COMBINATION, L"the later");
  EXPECT_TRUE(IsWindowEnabled(second));
  EXPECT_EQ(own.Text(IDC_MEANING), L"");
  EXPECT_EQ(own.ErrorIn(IDC_OTHER_AMOUNT),
            L"The second amount must be a number such as 72 or 16.1, with at most 3 digits behind the point.");
  own.Choose(IDC_OTHER_FORM, L"minutes after midday");
  own.Set(IDC_OTHER_AMOUNT, L"361");
  EXPECT_EQ(own.ErrorIn(IDC_OTHER_AMOUNT), L"The second amount must be from 0 to 360 minutes.");
  own.Set(IDC_OTHER_AMOUNT, L"30");
  EXPECT_THAT(own.Text(IDC_MEANING), HasSubstr(L"6.5 of the 12 hours from sunrise to sunset, but not before 30 minutes "
                                               L"after midday, rounded up."));
  ASSERT_TRUE(own.Accept());
  dialog.Accept();
  EXPECT_EQ(Stored(), "zman sunrise\r\nzman own-1\r\nown 1 hours-gra 6.5 later minutes-after-midday 30 up Mincha\r\n");
}

TEST_F(HoursDialog, SecondTimeIsShownAndCanBeTakenAway) {
  home_.Put("hours.txt",
            "zman own-1\r\nown 1 degrees-before-sunset 2.8 earlier minutes-before-half-night 90 nearest Mine\r\n");
  SelectionRun dialog;
  dialog.Type(L"mine");
  {
    const OwnRun own(dialog, IDC_CHANGE);
    EXPECT_EQ(own.Text(IDC_FORM), L"degrees above the horizon before sunset");
    EXPECT_EQ(own.Text(IDC_COMBINATION), L"the earlier of this and a second time");
    EXPECT_EQ(own.Text(IDC_OTHER_AMOUNT), L"90");
    EXPECT_EQ(own.Text(IDC_OTHER_FORM), L"minutes before half of the night");
    EXPECT_TRUE(own.Cancel());
  }
  const OwnRun own(dialog, IDC_CHANGE);
  own.Choose(IDC_COMBINATION, L"this time alone");
  EXPECT_FALSE(IsWindowEnabled(GetDlgItem(own.Window(), IDC_OTHER_FORM)));
  ASSERT_TRUE(own.Accept());
  dialog.Accept();
  EXPECT_EQ(Stored(), "zman own-1\r\nown 1 degrees-before-sunset 2.8 nearest Mine\r\n");
}

TEST_F(HoursDialog, RoundingFollowsTheFormUntilTheUserChoosesIt) {
  home_.Put("hours.txt", kOne);
  SelectionRun dialog;
  const OwnRun own(dialog, IDC_NEW);
  own.Fill(L"Mine", L"3", L"hours of the GR\"O day");
  EXPECT_THAT(own.Text(IDC_ROUNDING), testing::StartsWith(L"down"));
  own.Set(IDC_AMOUNT, L"9");
  EXPECT_THAT(own.Text(IDC_ROUNDING), testing::StartsWith(L"up"));
  own.Choose(IDC_ROUNDING, L"to the nearest");
  own.Set(IDC_AMOUNT, L"3");
  EXPECT_EQ(own.Text(IDC_ROUNDING), L"to the nearest minute");
  ASSERT_TRUE(own.Accept());
  dialog.Accept();
  EXPECT_THAT(Stored(), HasSubstr("own 1 hours-gra 3 nearest Mine\r\n"));
}

TEST_F(HoursDialog, OwnZmanIsChangedWhereItStands) {
  home_.Put("hours.txt", kMine);
  SelectionRun dialog;
  EXPECT_FALSE(dialog.IsEnabled(IDC_CHANGE));
  dialog.FocusOn(IDC_CHOSEN);
  dialog.Select(IDC_CHOSEN, 1);
  ASSERT_TRUE(dialog.IsEnabled(IDC_CHANGE));
  const OwnRun own(dialog, IDC_CHANGE);
  EXPECT_EQ(own.Text(IDC_DESCRIPTION), L"Mine");
  EXPECT_EQ(own.Text(IDC_HEBREW), L"\u05D0\u05D1 12");
  EXPECT_EQ(own.Text(IDC_AMOUNT), L"10.5");
  EXPECT_EQ(own.Text(IDC_FORM), L"minutes after sunset");
  own.Fill(L"Ours", L"18", L"zmanis minutes before sunrise");
  EXPECT_THAT(own.Text(IDC_ROUNDING), testing::StartsWith(L"up"));  // as the user had it
  ASSERT_TRUE(own.Accept());
  EXPECT_THAT(dialog.Chosen(), ElementsAre(L"HaNetz HaChama", L"Ours"));
  dialog.Accept();
  EXPECT_EQ(Stored(), "zman sunrise\r\nzman own-1\r\nown 1 zmanis-before-sunrise 18 up Ours|\xE0\xE1 12\r\n");
}

TEST_F(HoursDialog, CancelledChangeIsNone) {
  home_.Put("hours.txt", kMine);
  SelectionRun dialog;
  dialog.FocusOn(IDC_CHOSEN);
  dialog.Select(IDC_CHOSEN, 1);
  const OwnRun own(dialog, IDC_CHANGE);
  own.Set(IDC_AMOUNT, L"1");
  EXPECT_TRUE(own.Cancel());
  Press(dialog.Window(), IDCANCEL);
  dialog.Result();
  EXPECT_EQ(Stored(), kMine);
}

TEST_F(HoursDialog, OwnZmanIsDeletedAfterAQuestion) {
  home_.Put("hours.txt", kMine);
  SelectionRun dialog;
  dialog.Type(L"mine");
  ASSERT_TRUE(dialog.IsEnabled(IDC_DELETE));
  Press(dialog.Window(), IDC_DELETE);
  EXPECT_EQ(dialog.Answer(kSelectionTitle, dialog.Window(), IDI_QUESTION, IDNO),
            L"Delete the zman \u201CMine\u201D of your own?");
  EXPECT_EQ(dialog.Count(IDC_CHOSEN), 2);
  dialog.FocusOn(IDC_OFFERED);
  PressKey(dialog.Control(IDC_OFFERED), VK_DELETE);
  dialog.Answer(kSelectionTitle, dialog.Window(), IDI_QUESTION, IDYES);
  EXPECT_TRUE(Eventually([&] { return dialog.Count(IDC_CHOSEN) == 1; }));
  dialog.Type(L"");
  for (const std::wstring& name : dialog.Offered()) EXPECT_NE(name, L"Mine");
  dialog.Accept();
  EXPECT_EQ(Stored(), kOne);
}

TEST_F(HoursDialog, DeleteKeyLeavesZmanimOfTheCatalogue) {
  home_.Put("hours.txt", kOne);
  SelectionRun dialog;
  dialog.FocusOn(IDC_OFFERED);
  const int count = dialog.Count(IDC_OFFERED);
  dialog.Key(IDC_OFFERED, VK_DELETE);
  EXPECT_EQ(dialog.Count(IDC_OFFERED), count);
  PressKey(dialog.Control(IDC_OFFERED), VK_INSERT);
  Press(dialog.WaitFor(L"New Zman"), IDCANCEL);
  EXPECT_TRUE(Eventually([&] { return IsWindowEnabled(dialog.Window()); }));
  dialog.Accept();
}

// A message-only check: F1 in either dialog reaches the owner.
TEST_F(HoursDialog, F1IsTheOwners) {
  static int helps;
  helps = 0;
  DialogDriver driver([](HWND owner) {
    const auto proc = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) -> LRESULT {
      if (message == WM_HELP) ++helps;
      return DefSubclassProc(window, message, wParam, lParam);
    };
    SetWindowSubclass(owner, proc, 0, 0);
    HoursDoDialogInitLoc(owner, 3147, 3514, 2, 0);
    return 0;
  });
  const HWND dialog = driver.WaitFor(kSelectionTitle);
  HELPINFO help = {};
  help.cbSize = sizeof help;
  SendMessageW(dialog, WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
  EXPECT_EQ(helps, 1);
  Press(dialog, IDC_NEW);
  const HWND own = driver.WaitFor(L"New Zman");
  SendMessageW(own, WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
  EXPECT_EQ(helps, 2);
  Press(own, IDCANCEL);
  EXPECT_TRUE(driver.WaitUntilGone(own));
  Press(dialog, IDCANCEL);
  driver.Result();
}

}  // namespace
