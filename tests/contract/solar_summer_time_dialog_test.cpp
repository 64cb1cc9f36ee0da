// The dialog about the clock of a place, and the line about it. Expected zones and offsets: tz database.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <cstring>
#include <string>

#include "companion/dialog_help.h"
#include "companion/solar.h"
#include "libraries/solar/solar_ids.h"
#include "tests/contract/dialog_driver.h"
#include "tests/contract/held_file.h"
#include "tests/contract/settings_home.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr wchar_t kTitle[] = L"Summer Time";

struct Place {
  int32_t latitude, longitude, zoneHours, zoneMinutes;
};
constexpr Place kAachen = {5047, 605, 1, 0};
constexpr Place kChicagoAtFour = {4152, -8738, -4, 0};
constexpr Place kStJohns = {4734, -5243, -3, 30};

int32_t DoDialog(HWND owner, const Place& place) {
  return SolarDoSummerTimeDialog(owner, place.latitude, place.longitude, place.zoneHours, place.zoneMinutes);
}

class SummerTimeRun : public DialogDriver {
 public:
  explicit SummerTimeRun(const Place& place = kAachen)
      : DialogDriver([place](HWND owner) { return DoDialog(owner, place); }), window_(WaitFor(kTitle)) {}

  HWND Window() const { return window_; }
  HWND Control(int id) const { return GetDlgItem(window_, id); }
  bool IsChecked(int button) const { return SendMessageW(Control(button), BM_GETCHECK, 0, 0) == BST_CHECKED; }
  bool IsEnabled(int id) const { return IsWindowEnabled(Control(id)) != FALSE; }
  void Check(int button) const { SendMessageW(Control(button), BM_CLICK, 0, 0); }
  void Search(const wchar_t* text) const { SetControlText(window_, IDC_TYPED, text); }
  std::wstring Text(int id) const { return ControlText(window_, id); }
  std::wstring SelectedZone() const {
    const LRESULT row = SendMessageW(Control(IDC_ZONES), LVM_GETNEXTITEM, ~WPARAM{0}, LVNI_SELECTED);
    return row < 0 ? std::wstring() : ListCell(Control(IDC_ZONES), static_cast<int>(row), 0);
  }
  // The answer of the call after a button that closes the dialog.
  int32_t End(int button) {
    Press(window_, button);
    return Result();
  }

 private:
  HWND window_;
};

class SummerTimeDialogTest : public testing::Test {
 protected:
  SummerTimeDialogTest() { home_.Put("stamp.ini", "[Times]\r\nForm=24\r\n"); }
  std::string Stored() const { return home_.Bytes("solar.ini"); }

  SettingsHome home_;
};

std::string LineOf(const Place& place) {
  char line[256] = "";
  const uint32_t length =
      SolarDescribeZone(place.latitude, place.longitude, place.zoneHours, place.zoneMinutes, line, sizeof line);
  EXPECT_EQ(length, std::strlen(line));
  return line;
}

}  // namespace

TEST_F(SummerTimeDialogTest, TellsTheZoneFoundItsTimeAndItsChanges) {
  SummerTimeRun run;
  EXPECT_EQ(run.Text(IDC_PLACE), L"50\u00B047' N, 6\u00B005' E, standard time GMT+1");
  EXPECT_THAT(run.Text(IDC_CLOCK), StartsWith(L"Europe/Berlin, the zone "));
  EXPECT_EQ(run.Text(IDC_ZONE_FOUND), L"The zone &found for this place: Europe/Berlin");
  EXPECT_THAT(run.Text(IDC_NOW), HasSubstr(L" (GMT+"));
  EXPECT_THAT(run.Text(IDC_NEXT_CHANGE), HasSubstr(L": from GMT+"));
  EXPECT_THAT(run.Text(IDC_SECOND_CHANGE), HasSubstr(L": from GMT+"));
  EXPECT_EQ(run.Text(IDC_WARNING), L"");
  EXPECT_TRUE(run.IsChecked(IDC_ZONE_FOUND));
  EXPECT_FALSE(run.IsChecked(IDC_OFF_ANYWHERE));
  EXPECT_TRUE(run.WaitForFocus(run.Control(IDC_ZONE_FOUND)));
  EXPECT_EQ(GetWindowContextHelpId(run.Window()), static_cast<DWORD>(HELPID_SOLAR_SUMMER_TIME));
  EXPECT_EQ(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), "");
}

TEST_F(SummerTimeDialogTest, WarnsWhereNoZoneHasTheOffset) {
  SummerTimeRun run(kChicagoAtFour);
  EXPECT_EQ(run.Text(IDC_WARNING),
            L"No zone near here has GMT-4; times are told without summer time. The zone here is America/Chicago "
            L"(GMT-6).");
  EXPECT_EQ(run.Text(IDC_NEXT_CHANGE), L"none; this clock stays as it is");
  EXPECT_EQ(run.End(IDCANCEL), 0);
}

TEST_F(SummerTimeDialogTest, StoresNoSummerTimeForThePlace) {
  SummerTimeRun run;
  run.Check(IDC_NO_SUMMER_TIME);
  EXPECT_THAT(run.Text(IDC_CLOCK), StartsWith(L"GMT+1 all year"));
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), "[SummerTime]\r\n50-47-6-5-1-0=none\r\n");
}

TEST_F(SummerTimeDialogTest, StoresAnotherZoneThatWasSearched) {
  SummerTimeRun run;
  EXPECT_FALSE(run.IsEnabled(IDC_TYPED));
  EXPECT_FALSE(run.IsEnabled(IDC_ZONES));
  run.Check(IDC_OTHER_ZONE);
  EXPECT_TRUE(run.IsEnabled(IDC_TYPED));
  EXPECT_TRUE(run.IsEnabled(IDC_ZONES));
  EXPECT_EQ(run.SelectedZone(), L"Europe/Berlin");
  run.Search(L"york new");
  EXPECT_EQ(run.SelectedZone(), L"America/New_York");
  EXPECT_EQ(run.Text(IDC_COUNT), L"1 zone");
  EXPECT_THAT(run.Text(IDC_CLOCK), StartsWith(L"America/New_York"));
  EXPECT_THAT(run.Text(IDC_WARNING), HasSubstr(L"GMT-5, not GMT+1"));
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), "[SummerTime]\r\n50-47-6-5-1-0=America/New_York\r\n");
}

TEST_F(SummerTimeDialogTest, WithoutAZoneInTheListThereIsNoOK) {
  SummerTimeRun run;
  run.Check(IDC_OTHER_ZONE);
  run.Search(L"atlantis");
  EXPECT_EQ(run.Text(IDC_COUNT), L"No zone matches");
  EXPECT_FALSE(run.IsEnabled(IDOK));
  run.Search(L"");
  EXPECT_EQ(run.SelectedZone(), L"Europe/Berlin");
  EXPECT_TRUE(run.IsEnabled(IDOK));
  run.Search(L"\u05D0");  // no letter of windows-1252
  EXPECT_FALSE(run.IsEnabled(IDOK));
  run.Check(IDC_ZONE_FOUND);
  EXPECT_TRUE(run.IsEnabled(IDOK));
  EXPECT_EQ(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), "");
}

TEST_F(SummerTimeDialogTest, ShowsWhatIsStoredAndTheZoneFoundTakesItAway) {
  home_.Put("solar.ini", "; mine\r\n[SummerTime]\r\nMode=Automatic\r\n50-47-6-5-1-0=Asia/Kathmandu\r\n");
  SummerTimeRun run;
  EXPECT_TRUE(run.IsChecked(IDC_OTHER_ZONE));
  EXPECT_EQ(run.SelectedZone(), L"Asia/Kathmandu");
  EXPECT_THAT(run.Text(IDC_CLOCK), HasSubstr(L"which you have chosen"));
  EXPECT_THAT(run.Text(IDC_NOW), HasSubstr(L"(GMT+5:45)"));
  run.Check(IDC_ZONE_FOUND);
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), "; mine\r\n[SummerTime]\r\nMode=Automatic\r\n");
}

TEST_F(SummerTimeDialogTest, AKeyWithTheMinutesOtherSignIsReplaced) {
  home_.Put("solar.ini", "[SummerTime]\r\n47-34-52-43--3--30=none\r\n");
  SummerTimeRun run(kStJohns);
  EXPECT_TRUE(run.IsChecked(IDC_NO_SUMMER_TIME));
  run.Check(IDC_OTHER_ZONE);
  run.Search(L"halifax");
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), "[SummerTime]\r\n47-34-52-43--3-30=America/Halifax\r\n");
}

TEST_F(SummerTimeDialogTest, SummerTimeIsSwitchedOffAnywhereAndOnAgain) {
  {
    SummerTimeRun run;
    run.Check(IDC_OFF_ANYWHERE);
    EXPECT_EQ(run.Text(IDC_CLOCK), L"GMT+1 all year: summer time is off everywhere");
    EXPECT_NE(run.End(IDOK), 0);
    EXPECT_EQ(Stored(), "[SummerTime]\r\nMode=Off\r\n");
  }
  SummerTimeRun run;
  EXPECT_TRUE(run.IsChecked(IDC_OFF_ANYWHERE));
  run.Check(IDC_OFF_ANYWHERE);
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), "[SummerTime]\r\nMode=Automatic\r\n");
}

TEST_F(SummerTimeDialogTest, CancelStoresNothing) {
  SummerTimeRun run;
  run.Check(IDC_NO_SUMMER_TIME);
  run.Check(IDC_OFF_ANYWHERE);
  EXPECT_EQ(run.End(IDCANCEL), 0);
  EXPECT_EQ(Stored(), "");
}

TEST_F(SummerTimeDialogTest, AFileThatCannotBeReadIsNamedAndTheDialogDoesNotOpen) {
  home_.Put("solar.ini", "[SummerTime]\r\nMode=Off\r\n");
  HeldFile held(home_.Path("solar.ini"));
  DialogDriver driver([](HWND owner) { return DoDialog(owner, kAachen); });
  const std::wstring text = driver.Answer(L"Times / Readings", driver.Owner(), IDI_EXCLAMATION, IDCANCEL);
  EXPECT_THAT(text, HasSubstr(L"solar.ini"));
  EXPECT_EQ(driver.Result(), 0);
}

TEST_F(SummerTimeDialogTest, AFileThatCannotBeWrittenIsNamedAndTheDialogStays) {
  SummerTimeRun run;
  home_.Put("solar.ini", "");
  HeldFile held(home_.Path("solar.ini"));
  run.Check(IDC_NO_SUMMER_TIME);
  Press(run.Window(), IDOK);
  EXPECT_THAT(run.Answer(L"Error", run.Window(), IDI_HAND, IDOK), HasSubstr(L"solar.ini"));
  held.Release();
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_THAT(Stored(), HasSubstr("50-47-6-5-1-0=none\r\n"));
}

TEST_F(SummerTimeDialogTest, ArrowKeysInTheSearchMoveTheSelection) {
  SummerTimeRun run;
  run.Check(IDC_OTHER_ZONE);
  run.Search(L"europe/l");
  const std::wstring first = run.SelectedZone();
  SendMessageW(run.Control(IDC_TYPED), WM_KEYDOWN, VK_DOWN, 1);
  EXPECT_NE(run.SelectedZone(), first);
  EXPECT_THAT(run.Text(IDC_CLOCK), StartsWith(run.SelectedZone()));
  EXPECT_EQ(run.End(IDCANCEL), 0);
}

TEST_F(SummerTimeDialogTest, AnyPlaceHasADialog) {
  constexpr int32_t kLeast = -2147483647 - 1;
  for (const int32_t number : {kLeast, 2147483647, 0}) {
    SummerTimeRun run({number, number, number, number});
    EXPECT_EQ(run.End(IDOK), 0);
  }
}

TEST_F(SummerTimeDialogTest, TheLineIsThatOfTheSettings) {
  EXPECT_THAT(LineOf(kChicagoAtFour), StartsWith("No zone near here has GMT-4; "));
  EXPECT_EQ(LineOf({4152, -8738, -6, 0}), "Clock: America/Chicago, summer time from March to November");
  home_.Put("solar.ini", "[SummerTime]\r\n41-52-87-38--6-0=none\r\n");
  WaitUntilSeen();
  EXPECT_THAT(LineOf({4152, -8738, -6, 0}), StartsWith("Clock: GMT-6 all year"));
}

TEST_F(SummerTimeDialogTest, TheLineIsCutToItsBuffer) {
  char line[8] = "*******";
  EXPECT_EQ(SolarDescribeZone(5047, 605, 1, 0, line, 6), 5u);
  EXPECT_STREQ(line, "Clock");
  EXPECT_EQ(line[6], '*');
  EXPECT_EQ(SolarDescribeZone(5047, 605, 1, 0, line, 0), 0u);
  EXPECT_EQ(SolarDescribeZone(5047, 605, 1, 0, nullptr, 6), 0u);
}
