#include "companion/placepick.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "companion/profile.h"
#include "libraries/placepick/picker_ids.h"
#include "tests/contract/picker_driver.h"
#include "tests/contract/settings_home.h"

namespace {

using testing::_;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr char kUsersPlaces[] =
    "[Locations]\r\n"
    "Summer house=Available\r\n"
    "London=Available\r\n"
    "Z\xFCrich-Nord=Available\r\n"
    "Nowhere=\r\n";
constexpr char kTheirNumbers[] =
    "[Summer house]\r\nLatitudeDegrees=33\r\nLatitudeHours=52\r\nLatitudeFlag=1\r\n"
    "LongitudeDegrees=52\r\nLongitudeHours=43\r\nLongitudeFlag=1\r\nTimeZone=-3\r\nTimeZoneMin=-30\r\n"
    "[London]\r\nLatitudeDegrees=51\r\nLatitudeHours=34\r\n";

class PlacePickContract : public testing::Test {
 protected:
  std::string DefaultPlace() const {
    char name[256];
    ProfileGetString("Preferences", "DefaultLocation", "(none)", name, sizeof name, "almanac13.ini");
    return name;
  }
  void SetDefaultPlace(const char* name) const {
    ASSERT_TRUE(ProfileWriteString("Preferences", "DefaultLocation", name, "almanac13.ini"));
  }

  SettingsHome home_;
};

TEST_F(PlacePickContract, EscapeLeavesTheBufferAndTheSettingsUntouched) {
  PickerRun picker("Jerusalem");
  picker.Type(L"haifa");
  picker.Click(IDC_START);
  picker.Press(VK_ESCAPE);
  ASSERT_TRUE(picker.Closes());
  EXPECT_EQ(picker.Result(), 0);
  EXPECT_EQ(picker.Name(), "Jerusalem");
  EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
}

TEST_F(PlacePickContract, CurrentPlaceIsSelectedInSightAndEnterPicksIt) {
  PickerRun picker("Jerusalem");
  EXPECT_EQ(picker.SelectedName(), L"Jerusalem");
  EXPECT_TRUE(picker.IsRowVisible(picker.SelectedRow()));
  picker.Press(VK_RETURN);
  ASSERT_TRUE(picker.Closes());
  EXPECT_NE(picker.Result(), 0);
  EXPECT_EQ(picker.Name(), "Jerusalem");
}

TEST_F(PlacePickContract, UserCanTypeAtOnce) {
  PickerRun picker("Jerusalem");
  GUITHREADINFO thread = {};
  thread.cbSize = sizeof thread;
  ASSERT_TRUE(GetGUIThreadInfo(GetWindowThreadProcessId(picker.Dialog(), nullptr), &thread));
  EXPECT_EQ(thread.hwndFocus, picker.Control(IDC_TYPED));
}

TEST_F(PlacePickContract, WithoutAKnownNameTheFirstPlaceIsSelected) {
  PickerRun picker("Atlantis");
  EXPECT_EQ(picker.SelectedRow(), 0);
  EXPECT_EQ(picker.SelectedName(), L"A Coruna");
}

// Coordinates of Aachen and Kathmandu: GeoNames, as the built-in table has them.
TEST_F(PlacePickContract, ListShowsCoordinatesAndStandardZone) {
  PickerRun picker("Aachen");
  EXPECT_THAT(picker.Row(picker.SelectedRow()),
              ElementsAre(L"Aachen", L"Germany", L"50\u00B047' N", L"6\u00B005' E", L"GMT+1", _));
  picker.Type(L"kathm");
  ASSERT_EQ(picker.RowCount(), 1);
  EXPECT_THAT(picker.Row(0), ElementsAre(L"Kathmandu", L"Nepal", L"27\u00B042' N", L"85\u00B019' E", L"GMT+5:45", _));
  EXPECT_EQ(WindowText(picker.Control(IDC_COUNT)), L"1 place");
}

// Nepal keeps one clock all year, 5:45 ahead.
TEST_F(PlacePickContract, ListShowsTheTimeThereNow) {
  home_.Put("stamp.ini", "[Times]\r\nForm=24\r\n");
  PickerRun picker("Kathmandu");
  const auto timeThere = [] {
    SYSTEMTIME utc;
    GetSystemTime(&utc);
    const int minutes = (utc.wHour * 60 + utc.wMinute + 345) % 1440;
    wchar_t text[16];
    swprintf(text, 16, L"%02d:%02d", minutes / 60, minutes % 60);
    return std::wstring(text);
  };
  EXPECT_TRUE(Eventually([&] { return picker.Row(picker.SelectedRow()).at(5) == timeThere(); }));
}

TEST_F(PlacePickContract, OtherNamesFindAPlaceAndAreShown) {
  PickerRun picker("Jerusalem");
  picker.Type(L"kiev");
  EXPECT_EQ(picker.SelectedName(), L"Kyiv (Kiev)");
  picker.Type(L"\b\b\b\b\u05E6\u05E4\u05EA");
  EXPECT_EQ(picker.SelectedName(), L"Safed (\u05E6\u05E4\u05EA)");
  picker.Press(VK_RETURN);
  ASSERT_TRUE(picker.Closes());
  EXPECT_EQ(picker.Name(), "Safed");
}

TEST_F(PlacePickContract, PlacesUsedLastStandOnTop) {
  for (const wchar_t* typed : {L"haifa", L"oslo", L"haifa"}) {
    PickerRun picker("Jerusalem");
    picker.Type(typed);
    picker.Press(VK_RETURN);
    ASSERT_TRUE(picker.Closes());
  }
  PickerRun picker("Jerusalem");
  EXPECT_EQ(picker.Row(0).front(), L"Haifa");
  EXPECT_EQ(picker.Row(1).front(), L"Oslo");
  EXPECT_EQ(picker.Row(2).front(), L"A Coruna");
  EXPECT_EQ(picker.SelectedName(), L"Jerusalem");
}

TEST_F(PlacePickContract, TenPlacesUsedLastAreKept) {
  std::string names = "[LastUsed]\r\n";
  const char* const used[] = {"Oslo", "Rome", "Riga", "Lima", "Nice", "Fez", "Baku", "Praia", "Suva", "Quito"};
  for (int i = 0; i < 10; ++i) names += std::to_string(i + 1) + "=" + used[i] + "\r\n";
  home_.Put("placepick.ini", names);
  PickerRun picker("Jerusalem");
  EXPECT_EQ(picker.Row(9).front(), L"Quito");
  picker.Press(VK_RETURN);
  ASSERT_TRUE(picker.Closes());
  const std::string kept = home_.Bytes("placepick.ini");
  EXPECT_THAT(kept, HasSubstr("\r\n1=Jerusalem\r\n2=Oslo\r\n"));
  EXPECT_THAT(kept, HasSubstr("\r\n10=Suva\r\n"));
  EXPECT_THAT(kept, testing::Not(HasSubstr("Quito")));
}

TEST_F(PlacePickContract, TypingFindsWordsInAnyOrderAndEnterPicks) {
  PickerRun picker("Jerusalem");
  picker.Type(L"YORK n\u00E9w");
  EXPECT_EQ(picker.SelectedName(), L"New York");
  picker.Press(VK_RETURN);
  ASSERT_TRUE(picker.Closes());
  EXPECT_EQ(picker.Name(), "New York");
}

TEST_F(PlacePickContract, NameThatBeginsWithWhatIsTypedIsSelectedBeforeOthers) {
  home_.Put("shabbat2.ini", "[Locations]\r\nYork=Available\r\n");
  PickerRun picker("Jerusalem");
  picker.Type(L"york");
  EXPECT_EQ(picker.Row(0).front(), L"York");
  EXPECT_EQ(picker.Row(0).at(1), L"your own");
  EXPECT_EQ(picker.SelectedName(), L"York");
  EXPECT_GT(picker.RowCount(), 1);
}

TEST_F(PlacePickContract, ClearingWhatWasTypedGoesBackToTheCurrentPlace) {
  PickerRun picker("Jerusalem");
  picker.Type(L"v");
  EXPECT_NE(picker.SelectedName(), L"Jerusalem");
  picker.Type(L"\b");
  EXPECT_EQ(picker.SelectedName(), L"Jerusalem");
  EXPECT_TRUE(picker.IsRowVisible(picker.SelectedRow()));
  picker.Type(L" .");  // no word yet
  EXPECT_EQ(picker.SelectedName(), L"Jerusalem");
}

TEST_F(PlacePickContract, KeysInTheEditMoveTheSelection) {
  PickerRun picker("Aachen");
  const int last = picker.RowCount() - 1;
  const int first = picker.SelectedRow();
  picker.Press(VK_DOWN);
  EXPECT_EQ(picker.SelectedRow(), first + 1);
  picker.Press(VK_END);
  EXPECT_EQ(picker.SelectedRow(), last);
  picker.Press(VK_UP);
  EXPECT_EQ(picker.SelectedRow(), last - 1);
  picker.Press(VK_PRIOR);
  EXPECT_LT(picker.SelectedRow(), last - 2);
  picker.Press(VK_HOME);
  EXPECT_EQ(picker.SelectedRow(), 0);
  picker.Press(VK_NEXT);
  EXPECT_GT(picker.SelectedRow(), 1);
  EXPECT_TRUE(picker.IsRowVisible(picker.SelectedRow()));
  const std::wstring name = picker.SelectedName();
  picker.Press(VK_RETURN);
  ASSERT_TRUE(picker.Closes());
  EXPECT_EQ(std::wstring(picker.Name().begin(), picker.Name().end()), name);
}

TEST_F(PlacePickContract, WhenNothingMatchesNothingCanBeSelected) {
  PickerRun picker("Jerusalem");
  picker.Type(L"jerusx");
  EXPECT_EQ(picker.RowCount(), 0);
  EXPECT_EQ(WindowText(picker.Control(IDC_COUNT)), L"No place matches");
  EXPECT_FALSE(picker.IsEnabled(IDOK));
  EXPECT_FALSE(picker.IsEnabled(IDC_START));
  picker.Press(VK_RETURN);
  EXPECT_TRUE(IsWindow(picker.Dialog()));
  picker.Type(L"\b");
  EXPECT_EQ(picker.SelectedName(), L"Jerusalem");
  EXPECT_TRUE(picker.IsEnabled(IDOK));
  EXPECT_TRUE(picker.IsEnabled(IDC_START));
}

TEST_F(PlacePickContract, PlacesOfTheUsersOwnAreMarkedAndOverrideBuiltInOnes) {
  home_.Put("shabbat2.ini", kUsersPlaces);
  home_.Put("shabloc2.ini", kTheirNumbers);
  PickerRun picker("London");
  EXPECT_THAT(picker.Row(picker.SelectedRow()),
              ElementsAre(L"London", L"your own", L"51\u00B034' N", L"0\u00B000' E", L"GMT", _));
  picker.Type(L"london");
  EXPECT_EQ(picker.Row(0).front(), L"London");
  EXPECT_NE(picker.Row(1).front(), L"London") << "the built-in one gives way";
  picker.Type(L"\b\b\b\b\b\bsummer house");
  ASSERT_EQ(picker.RowCount(), 1);
  EXPECT_THAT(picker.Row(0),
              ElementsAre(L"Summer house", L"your own", L"33\u00B052' S", L"52\u00B043' W", L"GMT-3:30", _));
  picker.Type(L"\b\b\b\b\b\b\b\b\b\b\b\bnowhere");
  EXPECT_EQ(picker.RowCount(), 0);
}

TEST_F(PlacePickContract, NamesAreWindows1252WhateverTheSystemsCodePage) {
  home_.Put("shabbat2.ini", kUsersPlaces);
  PickerRun picker("Z\xFCrich-Nord");
  EXPECT_EQ(picker.SelectedName(), L"Z\u00FCrich-Nord");
  picker.Type(L"nord zuri");
  ASSERT_EQ(picker.RowCount(), 1);
  picker.Press(VK_RETURN);
  ASSERT_TRUE(picker.Closes());
  EXPECT_EQ(picker.Name(), "Z\xFCrich-Nord");
}

TEST_F(PlacePickContract, DoubleClickOnARowPicksIt) {
  PickerRun picker("Jerusalem");
  picker.Type(L"haif");
  picker.DoubleClick(0);
  ASSERT_TRUE(picker.Closes());
  EXPECT_EQ(picker.Name(), "Haifa");
}

TEST_F(PlacePickContract, DoubleClickBelowTheRowsPicksNothing) {
  PickerRun picker("Jerusalem");
  picker.Type(L"haif");
  picker.DoubleClickBelowTheRows();
  EXPECT_TRUE(IsWindow(picker.Dialog()));
}

TEST_F(PlacePickContract, ButtonsPickAndCancel) {
  PickerRun first("Jerusalem");
  first.Type(L"haif");
  first.Click(IDOK);
  ASSERT_TRUE(first.Closes());
  EXPECT_EQ(first.Name(), "Haifa");
  PickerRun second("Jerusalem");
  second.Type(L"haif");
  second.Click(IDCANCEL);
  ASSERT_TRUE(second.Closes());
  EXPECT_EQ(second.Result(), 0);
  EXPECT_EQ(second.Name(), "Jerusalem");
}

TEST_F(PlacePickContract, TickKeepsThePickedPlaceForTheStart) {
  home_.Put("shabbat2.ini", kUsersPlaces);
  PickerRun picker("Jerusalem");
  EXPECT_FALSE(picker.IsChecked(IDC_START));
  picker.Click(IDC_START);
  picker.Type(L"nord");
  EXPECT_TRUE(picker.IsChecked(IDC_START));
  picker.Press(VK_RETURN);
  ASSERT_TRUE(picker.Closes());
  EXPECT_EQ(DefaultPlace(), "Z\xFCrich-Nord");
}

TEST_F(PlacePickContract, TickFollowsTheSelectionUntilTheUserSetsIt) {
  SetDefaultPlace("Haifa");
  PickerRun picker("Jerusalem");
  EXPECT_FALSE(picker.IsChecked(IDC_START));
  picker.Type(L"haif");
  EXPECT_TRUE(picker.IsChecked(IDC_START));
  picker.Type(L"\b\b\b\b");
  EXPECT_FALSE(picker.IsChecked(IDC_START));
}

TEST_F(PlacePickContract, PickingAnotherPlaceLeavesTheStartAsItWas) {
  SetDefaultPlace("Haifa");
  PickerRun picker("Haifa");
  picker.Type(L"jerus");
  picker.Press(VK_RETURN);
  ASSERT_TRUE(picker.Closes());
  EXPECT_EQ(DefaultPlace(), "Haifa");
}

TEST_F(PlacePickContract, DefaultPickedWithoutTheTickIsNoLongerTheDefault) {
  home_.Put("almanac13.ini", "; kept\r\n[Preferences]\r\nDefaultLocation=Haifa\r\nOther=1\r\n");
  PickerRun picker("Haifa");
  EXPECT_TRUE(picker.IsChecked(IDC_START));
  picker.Click(IDC_START);
  picker.Press(VK_RETURN);
  ASSERT_TRUE(picker.Closes());
  EXPECT_NE(picker.Result(), 0);
  EXPECT_EQ(home_.Bytes("almanac13.ini"), "; kept\r\n[Preferences]\r\nOther=1\r\n");
}

TEST_F(PlacePickContract, WhenTheStartCannotBeWrittenAMessageNamesTheFileAndThePickStands) {
  PickerRun picker("Jerusalem");
  std::filesystem::create_directories(home_.Path("almanac13.ini"));  // a folder cannot be written as a file
  picker.Type(L"haif");
  picker.Click(IDC_START);
  PostMessageW(picker.Dialog(), WM_COMMAND, IDOK, 0);
  const HWND box = WaitForDialog(L"Times / Readings");
  ASSERT_TRUE(box);
  EXPECT_EQ(GetWindow(box, GW_OWNER), picker.Dialog());
  EXPECT_THAT(WindowText(GetDlgItem(box, 0xFFFF)), HasSubstr(home_.Path("almanac13.ini").wstring()));
  PostMessageW(box, WM_COMMAND, IDOK, 0);
  ASSERT_TRUE(picker.Closes());
  EXPECT_NE(picker.Result(), 0);
  EXPECT_EQ(picker.Name(), "Haifa");
}

TEST_F(PlacePickContract, DialogIsModalToItsOwner) {
  PickerRun picker("Jerusalem", PickerRun::Owner::kWindow);
  EXPECT_EQ(GetWindow(picker.Dialog(), GW_OWNER), picker.OwnerWindow());
  EXPECT_FALSE(IsWindowEnabled(picker.OwnerWindow()));
  picker.Press(VK_ESCAPE);
  ASSERT_TRUE(picker.Closes());
}

TEST_F(PlacePickContract, TabGoesThroughTheControlsFromTheTopToTheBottom) {
  PickerRun picker("Jerusalem");
  std::vector<int> order;
  HWND control = picker.Control(IDC_TYPED);
  for (int i = 0; i < 5; ++i) {
    order.push_back(GetDlgCtrlID(control));
    control = GetNextDlgTabItem(picker.Dialog(), control, FALSE);
  }
  EXPECT_THAT(order, ElementsAre(IDC_TYPED, IDC_PLACES, IDC_START, IDOK, IDCANCEL));
}

TEST_F(PlacePickContract, SizeThatTheUserGivesTheDialogIsKept) {
  RECT rectangle;
  {
    PickerRun picker("Jerusalem");
    GetWindowRect(picker.Dialog(), &rectangle);
    SetWindowPos(picker.Dialog(), nullptr, 0, 0, rectangle.right - rectangle.left + 80,
                 rectangle.bottom - rectangle.top + 64, SWP_NOMOVE | SWP_NOZORDER);
    SendMessageW(picker.Dialog(), WM_EXITSIZEMOVE, 0, 0);
  }
  PickerRun again("Jerusalem");
  RECT larger;
  GetWindowRect(again.Dialog(), &larger);
  constexpr LONG kDialogUnitPixels = 2;  // kept in units, each about so large
  EXPECT_NEAR(larger.right - larger.left, rectangle.right - rectangle.left + 80, kDialogUnitPixels);
  EXPECT_NEAR(larger.bottom - larger.top, rectangle.bottom - rectangle.top + 64, kDialogUnitPixels);
}

TEST_F(PlacePickContract, KeptSizeNeverLeavesTheWorkAreaAndIsNeverLessThanTheTemplate) {
  RECT least;
  {
    PickerRun picker("Jerusalem");
    GetWindowRect(picker.Dialog(), &least);
  }
  ASSERT_TRUE(ProfileWriteString("Dialog", "Width", "1", "placepick.ini"));
  ASSERT_TRUE(ProfileWriteString("Dialog", "Height", "999999999", "placepick.ini"));
  PickerRun picker("Jerusalem");
  RECT window;
  GetWindowRect(picker.Dialog(), &window);
  RECT work;
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  EXPECT_EQ(window.right - window.left, least.right - least.left);
  EXPECT_EQ(window.top, work.top);
  EXPECT_EQ(window.bottom, work.bottom);
}

TEST_F(PlacePickContract, ThousandsOfPlacesAreListed) {
  std::string places = "[Locations]\r\n";
  for (int i = 1000; i < 4000; ++i) places += "n" + std::to_string(i) + "=1\r\n";
  home_.Put("shabbat2.ini", places);
  PickerRun picker("n3999");
  EXPECT_EQ(picker.SelectedName(), L"n3999");
  picker.Type(L"n39");
  EXPECT_EQ(picker.RowCount(), 100);
  EXPECT_EQ(picker.SelectedName(), L"n3900");
}

TEST_F(PlacePickContract, NullNameAnswersZeroWithoutADialog) {
  EXPECT_EQ(PlacePickSelectLocation(nullptr, nullptr), 0);
}

std::size_t BusyHeapBlocks() {
  HANDLE heaps[64];
  const DWORD count = std::min<DWORD>(GetProcessHeaps(std::size(heaps), heaps), std::size(heaps));
  std::size_t blocks = 0;
  for (DWORD i = 0; i < count; ++i) {
    HeapLock(heaps[i]);
    PROCESS_HEAP_ENTRY entry = {};
    while (HeapWalk(heaps[i], &entry)) blocks += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
    HeapUnlock(heaps[i]);
  }
  return blocks;
}

// The system's own count of them is not to be had everywhere.
int OpenHandles() {
  constexpr UINT_PTR kLastHandle = 0x4000;
  int count = 0;
  for (UINT_PTR value = 4; value <= kLastHandle; value += 4) {
    DWORD flags = 0;
    count += GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) != FALSE;
  }
  return count;
}

// Opens one picker after the other; another thread presses Select in each.
void OpenAndPick(int times) {
  std::atomic<bool> stop = false;
  std::thread user([&] {
    while (!stop) {
      if (const HWND dialog = DialogWithCaption(L"Select Location")) PostMessageW(dialog, WM_COMMAND, IDOK, 0);
      Sleep(1);
    }
  });
  for (int i = 0; i < times; ++i) {
    char name[256] = "Jerusalem";
    EXPECT_NE(PlacePickSelectLocation(nullptr, name), 0);
  }
  stop = true;
  user.join();
}

TEST_F(PlacePickContract, OpeningAndClosingTwoHundredTimesLeavesNothingBehind) {
  OpenAndPick(20);  // what is made once and kept
  const int handlesBefore = OpenHandles();
  const std::size_t blocksBefore = BusyHeapBlocks();
  OpenAndPick(200);
  EXPECT_LT(OpenHandles(), handlesBefore + 20);
  EXPECT_LT(BusyHeapBlocks(), blocksBefore + 50);
}

}  // namespace
