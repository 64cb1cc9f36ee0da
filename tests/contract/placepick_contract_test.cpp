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

using testing::ElementsAre;
using testing::HasSubstr;

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
