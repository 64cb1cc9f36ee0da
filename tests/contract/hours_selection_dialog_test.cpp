#include <gmock/gmock.h>

#include <algorithm>

#include "companion/profile.h"
#include "companion/solar.h"
#include "tests/contract/hours_dialog_driver.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr char kThree[] = "zman dawn-72-min\r\nzman sunrise\r\nzman shema-gra\r\n";
constexpr wchar_t kDawn[] = L"Alot HaShachar (72 min)";
constexpr wchar_t kSunrise[] = L"HaNetz HaChama";
constexpr wchar_t kShema[] = L"Kriat Shema (GR\"O)";

TEST_F(HoursDialog, WithoutAChoiceTheUsualZmanimAreChosenAndOkWritesNothing) {
  SelectionRun dialog;
  EXPECT_EQ(dialog.Count(IDC_CHOSEN), 25);
  EXPECT_EQ(dialog.Text(IDC_CHOSEN_LABEL), L"&Chosen: 25");
  EXPECT_EQ(dialog.Text(IDC_PRESET), L"Usual zmanim");
  EXPECT_TRUE(dialog.WaitForFocus(dialog.Control(IDC_TYPED)));
  dialog.Accept();
  EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
}

TEST_F(HoursDialog, CatalogueStandsUnderItsKinds) {
  SelectionRun dialog;
  const std::vector<std::wstring> rows = dialog.Offered();
  EXPECT_EQ(rows[0], L"Dawn");
  EXPECT_EQ(rows[1], L"Alot HaShachar (26\u00B0)");
  EXPECT_EQ(dialog.Cell(IDC_OFFERED, 0, 1), L"");
  EXPECT_THAT(rows, Contains(L"Nightfall"));
  EXPECT_EQ(std::ranges::count(rows, L"Latest Shema"), 1);
  EXPECT_EQ(rows[rows.size() - 4], L"Midnight");
  EXPECT_EQ(dialog.Text(IDC_OFFERED_LABEL), L"&Zmanim: " + std::to_wstring(rows.size() - 14));  // 14 kinds
  dialog.Accept();
}

TEST_F(HoursDialog, TypingFindsByDescriptionAndAuthority) {
  SelectionRun dialog;
  dialog.Type(L"gro SHEMA");
  EXPECT_THAT(dialog.Offered(), ElementsAre(L"Latest Shema", kShema));
  EXPECT_EQ(dialog.SelectedName(IDC_OFFERED), kShema);
  EXPECT_EQ(dialog.Text(IDC_DEFINITION),
            L"Kriat Shema (GR\"O): 3 of the 12 hours from sunrise to sunset, rounded down.\r\nVilna Gaon.");
  dialog.Type(L"tucazinsky");
  EXPECT_THAT(dialog.Offered(), ElementsAre(L"Nightfall", L"Tzait HaChochavim (6.45\u00B0)"));
  for (const wchar_t* nothing : {L"tucazinskyx", L"\u05D0", L"-x-"}) {
    dialog.Type(nothing);
    EXPECT_THAT(dialog.Offered(), IsEmpty()) << nothing;
    EXPECT_EQ(dialog.Text(IDC_OFFERED_LABEL), L"&Zmanim: none matches");
    EXPECT_FALSE(dialog.IsEnabled(IDC_ADD));
    dialog.Click(IDC_ADD);  // as Enter in the field does
  }
  EXPECT_EQ(dialog.Count(IDC_CHOSEN), 25);
  dialog.Accept();
}

TEST_F(HoursDialog, AddedZmanStandsLastAndOkStoresTheWholeChoice) {
  home_.Put("hours.txt", std::string("# mine\r\n") + kThree);
  SelectionRun dialog;
  dialog.Type(L"gro tefila");
  EXPECT_TRUE(dialog.IsEnabled(IDC_ADD));
  dialog.Click(IDC_ADD);
  EXPECT_THAT(dialog.Chosen(), ElementsAre(kDawn, kSunrise, kShema, L"Tefila (GR\"O)"));
  EXPECT_EQ(dialog.Selected(IDC_CHOSEN), 3);
  EXPECT_EQ(dialog.Cell(IDC_CHOSEN, 3, 0), L"4");
  EXPECT_FALSE(dialog.IsEnabled(IDC_ADD));  // it is chosen now
  dialog.Click(IDC_ADD);
  EXPECT_EQ(dialog.Count(IDC_CHOSEN), 4);
  EXPECT_EQ(Stored(), std::string("# mine\r\n") + kThree);
  dialog.Accept();
  EXPECT_EQ(Stored(), std::string("# mine\r\n") + kThree + "zman tefila-gra\r\n");
  EXPECT_EQ(HoursGetCount(), 4u);
}

TEST_F(HoursDialog, AddingGoesOnToTheNextZmanThatIsNotChosen) {
  home_.Put("hours.txt", "zman dawn-120-zmanis\r\n");
  SelectionRun dialog;
  dialog.Select(IDC_OFFERED, 2);
  dialog.FocusOn(IDC_ADD);
  dialog.Click(IDC_ADD);
  EXPECT_EQ(dialog.SelectedName(IDC_OFFERED), L"Alot HaShachar (19.8\u00B0)");
  dialog.Click(IDC_ADD);
  EXPECT_TRUE(dialog.WaitForFocus(dialog.Control(IDC_ADD)));
  EXPECT_THAT(dialog.Chosen(), ElementsAre(L"Alot HaShachar (120 zmanis min)", L"Alot HaShachar (120 min)",
                                           L"Alot HaShachar (19.8\u00B0)"));
  dialog.Discard();
}

TEST_F(HoursDialog, CancelChangesNothing) {
  home_.Put("hours.txt", kThree);
  SelectionRun dialog;
  dialog.Click(IDC_DEFAULTS);
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Answer(kSelectionTitle, dialog.Window(), IDI_QUESTION, IDNO), L"Discard the changes?");
  EXPECT_EQ(dialog.Count(IDC_CHOSEN), 25);
  dialog.Discard();
  EXPECT_EQ(Stored(), kThree);
  EXPECT_EQ(HoursGetCount(), 3u);
}

TEST_F(HoursDialog, ChangedBackIsNoChange) {
  home_.Put("hours.txt", kThree);
  SelectionRun dialog;
  dialog.Click(IDC_DOWN);
  dialog.Click(IDC_UP);
  PostMessageW(dialog.Window(), WM_CLOSE, 0, 0);
  dialog.Result();
  EXPECT_EQ(Stored(), kThree);
}

TEST_F(HoursDialog, NothingChosenIsNotAccepted) {
  home_.Put("hours.txt", "zman sunrise\r\n");
  SelectionRun dialog;
  dialog.Click(IDC_REMOVE);
  EXPECT_EQ(dialog.Count(IDC_CHOSEN), 0);
  EXPECT_FALSE(dialog.IsEnabled(IDC_REMOVE));
  dialog.Key(IDC_CHOSEN, VK_DELETE);
  Press(dialog.Window(), IDOK);
  EXPECT_EQ(dialog.Answer(L"Error", dialog.Window(), IDI_HAND, IDOK),
            L"No zman is chosen. Add at least one, or press Restore Defaults.");
  EXPECT_TRUE(dialog.WaitForFocus(dialog.Control(IDC_OFFERED)));
  dialog.Discard();
  EXPECT_EQ(Stored(), "zman sunrise\r\n");
}

TEST_F(HoursDialog, PresetTakesThePlaceOfTheChoiceWhenItIsUsed) {
  home_.Put("hours.txt", std::string(kThree) + "own 1 hours-gra 3 up Mine\r\n");
  SelectionRun dialog;
  EXPECT_EQ(dialog.Text(IDC_PRESET), L"");
  EXPECT_FALSE(dialog.IsEnabled(IDC_USE_PRESET));
  const HWND preset = dialog.Control(IDC_PRESET);
  EXPECT_EQ(SendMessageW(preset, CB_GETCOUNT, 0, 0), 6);
  SendMessageW(preset, CB_SELECTSTRING, ~WPARAM{0}, reinterpret_cast<LPARAM>(L"The nineteen"));
  SendMessageW(dialog.Window(), WM_COMMAND, MAKEWPARAM(IDC_PRESET, CBN_SELCHANGE), reinterpret_cast<LPARAM>(preset));
  EXPECT_EQ(dialog.Count(IDC_CHOSEN), 3);  // looking through the presets changes nothing
  EXPECT_TRUE(dialog.IsEnabled(IDC_USE_PRESET));
  dialog.Click(IDC_USE_PRESET);
  EXPECT_EQ(dialog.Count(IDC_CHOSEN), 19);
  dialog.Accept();
  EXPECT_EQ(HoursGetCount(), 19u);
  EXPECT_THAT(Stored(), HasSubstr("own 1 hours-gra 3 up Mine\r\n"));
}

TEST_F(HoursDialog, DefaultsAreRestored) {
  home_.Put("hours.txt", kThree);
  SelectionRun dialog;
  dialog.Click(IDC_DEFAULTS);
  EXPECT_EQ(dialog.Text(IDC_PRESET), L"Usual zmanim");
  dialog.Accept();
  EXPECT_EQ(HoursGetCount(), 25u);
}

TEST_F(HoursDialog, AHundredAreTheMost) {
  std::string text;
  for (int number = 1; number <= 99; ++number) {
    const std::string id = std::to_string(number);
    text += "zman own-" + id + "\r\nown " + id + " hours-gra 3 up Mine " + id + "\r\n";
  }
  home_.Put("hours.txt", text);
  SelectionRun dialog;
  EXPECT_TRUE(dialog.IsEnabled(IDC_ADD));
  dialog.Click(IDC_ADD);
  EXPECT_EQ(dialog.Text(IDC_CHOSEN_LABEL), L"&Chosen: 100, the most there can be");
  EXPECT_FALSE(dialog.IsEnabled(IDC_ADD));
  dialog.Click(IDC_ADD);
  const OwnRun own(dialog, IDC_NEW);
  own.Fill(L"One more", L"1", L"degrees before sunrise");
  ASSERT_TRUE(own.Accept());
  EXPECT_EQ(dialog.SelectedName(IDC_OFFERED), L"One more");  // made, but not chosen
  EXPECT_EQ(dialog.Count(IDC_CHOSEN), 100);
  dialog.Accept();
  EXPECT_EQ(HoursGetCount(), 100u);
}

TEST_F(HoursDialog, FailingWriteIsToldAndTheDialogStays) {
  home_.Put("hours.txt", "# none yet\r\n");
  SetFileAttributesW(home_.Path("hours.txt").c_str(), FILE_ATTRIBUTE_READONLY);
  SelectionRun dialog;
  dialog.Click(IDC_REMOVE);
  Press(dialog.Window(), IDOK);
  const std::wstring text = dialog.Answer(L"Error", dialog.Window(), IDI_HAND, IDOK);
  EXPECT_NE(text.find(home_.Path("hours.txt").wstring()), std::wstring::npos);
  EXPECT_NE(text.find(L"then choose OK again"), std::wstring::npos);
  EXPECT_EQ(dialog.Count(IDC_CHOSEN), 24);

  SetFileAttributesW(home_.Path("hours.txt").c_str(), FILE_ATTRIBUTE_NORMAL);
  dialog.Accept();
  EXPECT_EQ(HoursGetCount(), 24u);
}

// Apia, 13 hours ahead of UTC all year since 2021. Where the sun stays up or down a zman may have no time.
TEST_F(HoursDialog, TimesAreThoseOfTodayAtThePlace) {
  home_.Put("hours.txt", "zman sunrise\r\nzman shema-gra\r\nzman nightfall-8.5\r\nzman sunset\r\n");
  SYSTEMTIME before = {};
  SYSTEMTIME after = {};
  const auto todayInApia = [](SYSTEMTIME& date) {
    constexpr uint64_t kTicksPerHour = 36000000000;
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    const uint64_t ticks = (uint64_t{now.dwHighDateTime} << 32 | now.dwLowDateTime) + 13 * kTicksPerHour;
    now = {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
    FileTimeToSystemTime(&now, &date);
  };
  todayInApia(before);
  SelectionRun dialog(-1350, -17145, 13);
  todayInApia(after);
  SYSTEMTIME today = {};
  ASSERT_EQ(swscanf(dialog.Text(IDC_DAY).c_str(), L"Today is %hu.%hu.%hu", &today.wDay, &today.wMonth, &today.wYear),
            3);
  EXPECT_TRUE(today.wDay == before.wDay || today.wDay == after.wDay);
  EXPECT_TRUE(today.wMonth == before.wMonth || today.wMonth == after.wMonth);
  int32_t rise[2];
  int32_t set[2];
  SolarGetSunsetSunrise(today.wDay, today.wMonth, today.wYear, SOLAR_SUNRISE, -1350, -17145, 13, 0, &rise[0], &rise[1]);
  SolarGetSunsetSunrise(today.wDay, today.wMonth, today.wYear, SOLAR_SUNSET, -1350, -17145, 13, 0, &set[0], &set[1]);
  for (uint32_t i = 0; i < 4; ++i) {
    const int32_t minutes = HoursCalculate2(nullptr, -1350, -17145, 13, 0, today.wDay, today.wMonth, today.wYear, i,
                                            rise[0], rise[1], set[0], set[1]);
    wchar_t text[32];
    swprintf(text, 32, L"%02d:%02d", minutes / 60, minutes % 60);
    EXPECT_EQ(dialog.Cell(IDC_CHOSEN, static_cast<int>(i), 2), text) << i;
  }
  dialog.Type(L"shema gro");
  EXPECT_EQ(dialog.Cell(IDC_OFFERED, 1, 1), dialog.Cell(IDC_CHOSEN, 1, 2));
  dialog.Accept();
}

TEST_F(HoursDialog, TimesHaveTheFormThatTheUserHasChosen) {
  home_.Put("stamp.ini", "[Times]\r\nForm=12\r\n");
  home_.Put("hours.txt", "zman sunrise\r\nzman sunset\r\n");
  SelectionRun dialog;
  const std::wstring sunrise = dialog.Cell(IDC_CHOSEN, 0, 2);
  const std::wstring sunset = dialog.Cell(IDC_CHOSEN, 1, 2);
  EXPECT_EQ(sunrise.substr(5), L" a.m.") << sunrise;
  EXPECT_EQ(sunset.substr(5), L" p.m.") << sunset;
  // The column has room for them.
  const HWND list = dialog.Control(IDC_CHOSEN);
  EXPECT_GT(SendMessageW(list, LVM_GETCOLUMNWIDTH, 2, 0),
            SendMessageW(list, LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(sunset.c_str())));
  const OwnRun own(dialog, IDC_NEW);
  own.Fill(L"First light", L"72", L"minutes before sunrise");
  EXPECT_THAT(own.Text(IDC_MEANING), EndsWith(L" a.m."));
  EXPECT_TRUE(own.Cancel());
  dialog.Accept();
}

// At 89 degrees north the sun is never 16.1 degrees below the horizon on a morning and an evening of one day.
TEST_F(HoursDialog, WhatDoesNotOccurIsDashed) {
  home_.Put("hours.txt", "zman shema-mga-16.1\r\nzman sunrise\r\n");
  SelectionRun dialog(8900, 0, 0);
  EXPECT_EQ(dialog.Cell(IDC_CHOSEN, 0, 2), L"----");
  EXPECT_NE(dialog.Cell(IDC_CHOSEN, 1, 2), L"----");
  dialog.Accept();
}

TEST_F(HoursDialog, DetailsAreOfTheZmanSelectedLast) {
  home_.Put("hours.txt", kThree);
  SelectionRun dialog;
  EXPECT_THAT(dialog.Text(IDC_DEFINITION),
              StartsWith(L"Alot HaShachar (26\u00B0): the sun 26\u00B0 below the horizon"));
  dialog.FocusOn(IDC_CHOSEN);
  EXPECT_THAT(dialog.Text(IDC_DEFINITION), StartsWith(std::wstring(kDawn) + L": 72 minutes before sunrise"));
  dialog.Select(IDC_CHOSEN, 2);
  EXPECT_THAT(dialog.Text(IDC_DEFINITION), StartsWith(kShema));
  dialog.FocusOn(IDC_OFFERED);
  EXPECT_THAT(dialog.Text(IDC_DEFINITION), StartsWith(L"Alot HaShachar (26\u00B0)"));
  dialog.Accept();
}

TEST_F(HoursDialog, IsModalAndNeedsNoOwner) {
  {
    SelectionRun dialog;
    EXPECT_FALSE(IsWindowEnabled(dialog.Owner()));
    EXPECT_EQ(GetWindow(dialog.Window(), GW_OWNER), dialog.Owner());
    dialog.Accept();
  }
  DialogDriver driver([](HWND) {
    HoursDoDialogInitLoc(nullptr, 3147, 3514, 2, 0);
    return 0;
  });
  Press(driver.WaitFor(kSelectionTitle), IDCANCEL);
  driver.Result();
}

TEST_F(HoursDialog, ClosingTheOwnerUnderItEndsCleanly) {
  home_.Put("hours.txt", kThree);
  {
    SelectionRun dialog;
    dialog.Click(IDC_DEFAULTS);
    PostMessageW(dialog.Owner(), WM_CLOSE, 0, 0);
    dialog.Result();
  }
  {
    SelectionRun dialog;
    const OwnRun own(dialog, IDC_NEW);
    PostMessageW(dialog.Owner(), WM_CLOSE, 0, 0);
    dialog.Result();
  }
  EXPECT_EQ(Stored(), kThree);
}

TEST_F(HoursDialog, ElevationOfProportionalHoursIsATickThatDefinitionsAndTimesFollow) {
  ProfileWriteString("Elevation", "31-47-35-14-2-0", "754", "almanacelevation.ini");
  home_.Put("hours.txt", kThree);
  SelectionRun dialog;
  EXPECT_EQ(IsDlgButtonChecked(dialog.Window(), IDC_ELEVATION), UINT{BST_CHECKED});
  dialog.FocusOn(IDC_CHOSEN);
  dialog.Select(IDC_CHOSEN, 2);
  const std::wstring dawn = dialog.Cell(IDC_CHOSEN, 0, 2);
  const std::wstring shema = dialog.Cell(IDC_CHOSEN, 2, 2);
  SendMessageW(dialog.Control(IDC_ELEVATION), BM_CLICK, 0, 0);
  EXPECT_THAT(dialog.Text(IDC_DEFINITION), HasSubstr(L"from sunrise at sea level to sunset at sea level"));
  EXPECT_EQ(dialog.Selected(IDC_CHOSEN), 2);
  EXPECT_EQ(dialog.Cell(IDC_CHOSEN, 0, 2), dawn);
  EXPECT_GT(dialog.Cell(IDC_CHOSEN, 2, 2), shema);  // about two minutes, as the sun rises 4 later at sea level
  dialog.Accept();
  EXPECT_EQ(Stored(), std::string(kThree) + "proportional-hours sea-level\r\n");

  SelectionRun again;
  EXPECT_EQ(IsDlgButtonChecked(again.Window(), IDC_ELEVATION), UINT{BST_UNCHECKED});
  SendMessageW(again.Control(IDC_ELEVATION), BM_CLICK, 0, 0);
  EXPECT_EQ(again.Cell(IDC_CHOSEN, 2, 2), shema);
  again.Accept();
  EXPECT_EQ(Stored(), kThree);
}

TEST_F(HoursDialog, AnswersForAnyPlace) {
  for (const int32_t number : {-99999, 2147483647, -2147483647 - 1}) {
    SelectionRun dialog(number, number, number);
    EXPECT_EQ(dialog.Count(IDC_CHOSEN), 25);
    dialog.Accept();
  }
}

// One thread opens and closes it, as the program does.
TEST_F(HoursDialog, OpeningAndClosingItKeepsNothing) {
  home_.Put("hours.txt", "zman own-1\r\nown 1 hours-gra 3 up Mine\r\n");
  const auto openAndClose = [](int times) {
    DialogDriver driver([times](HWND owner) {
      for (int i = 0; i < times; ++i) HoursDoDialogInitLoc(owner, 3147, 3514, 2, 0);
      return times;
    });
    for (int i = 0; i < times; ++i) {
      const HWND dialog = driver.WaitFor(kSelectionTitle);
      Press(dialog, IDC_NEW);
      const HWND own = driver.WaitFor(L"New Zman");
      Press(own, IDCANCEL);
      if (!driver.WaitUntilGone(own)) break;
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
