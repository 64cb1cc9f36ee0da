// The selection of zmanim as keys and the mouse work it.
#include <gmock/gmock.h>

#include <cwctype>
#include <set>

#include "tests/contract/hours_dialog_driver.h"

namespace {

using testing::ElementsAre;

constexpr char kThree[] = "zman dawn-72-min\r\nzman sunrise\r\nzman shema-gra\r\n";
constexpr wchar_t kDawn[] = L"Alot HaShachar (72 min)";
constexpr wchar_t kSunrise[] = L"HaNetz HaChama";
constexpr wchar_t kShema[] = L"Kriat Shema (GR\"O)";

TEST_F(HoursDialog, ButtonsAndAltArrowsOrder) {
  home_.Put("hours.txt", kThree);
  SelectionRun dialog;
  EXPECT_EQ(dialog.Selected(IDC_CHOSEN), 0);
  EXPECT_FALSE(dialog.IsEnabled(IDC_UP));
  dialog.Click(IDC_UP);  // nowhere to go
  dialog.Click(IDC_DOWN);
  EXPECT_THAT(dialog.Chosen(), ElementsAre(kSunrise, kDawn, kShema));
  EXPECT_EQ(dialog.Selected(IDC_CHOSEN), 1);
  dialog.AltKey(IDC_CHOSEN, VK_DOWN);
  EXPECT_THAT(dialog.Chosen(), ElementsAre(kSunrise, kShema, kDawn));
  EXPECT_FALSE(dialog.IsEnabled(IDC_DOWN));
  dialog.AltKey(IDC_CHOSEN, VK_DOWN);
  EXPECT_EQ(dialog.Selected(IDC_CHOSEN), 2);
  dialog.AltKey(IDC_CHOSEN, VK_UP);
  dialog.Click(IDC_UP);
  EXPECT_THAT(dialog.Chosen(), ElementsAre(kDawn, kSunrise, kShema));
  dialog.Click(IDC_DOWN);
  dialog.Accept();
  EXPECT_EQ(Stored(), "zman sunrise\r\nzman dawn-72-min\r\nzman shema-gra\r\n");
}

TEST_F(HoursDialog, ButtonThatCanDoNoMoreLeavesTheFocusInItsList) {
  home_.Put("hours.txt", kThree);
  SelectionRun dialog;
  dialog.FocusOn(IDC_DOWN);
  dialog.Click(IDC_DOWN);
  EXPECT_TRUE(dialog.WaitForFocus(dialog.Control(IDC_DOWN)));
  dialog.Click(IDC_DOWN);
  EXPECT_TRUE(dialog.WaitForFocus(dialog.Control(IDC_CHOSEN)));
  dialog.Discard();
}

TEST_F(HoursDialog, DeleteKeyAndButtonRemove) {
  home_.Put("hours.txt", kThree);
  SelectionRun dialog;
  dialog.FocusOn(IDC_CHOSEN);
  dialog.Key(IDC_CHOSEN, VK_DELETE);
  EXPECT_THAT(dialog.Chosen(), ElementsAre(kSunrise, kShema));
  EXPECT_EQ(dialog.Selected(IDC_CHOSEN), 0);
  dialog.Select(IDC_CHOSEN, 1);
  dialog.Click(IDC_REMOVE);
  EXPECT_THAT(dialog.Chosen(), ElementsAre(kSunrise));
  EXPECT_EQ(dialog.Selected(IDC_CHOSEN), 0);
  dialog.Accept();
  EXPECT_EQ(Stored(), "zman sunrise\r\n");
}

TEST_F(HoursDialog, RowIsDraggedToItsPlace) {
  home_.Put("hours.txt", kThree);
  SelectionRun dialog;
  const HWND list = dialog.Control(IDC_CHOSEN);
  const auto drag = [&](int from, int to) {
    POINT start = dialog.CentreOfChosen(from);
    POINT end = dialog.CentreOfChosen(to);
    PostMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(start.x, start.y));
    PostMessageW(list, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(start.x + 40, start.y));
    EXPECT_TRUE(Eventually([&] { return dialog.Capture() == dialog.Window(); }));
    MapWindowPoints(list, dialog.Window(), &end, 1);
    PostMessageW(dialog.Window(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(end.x, end.y));
    EXPECT_TRUE(Eventually([&] { return dialog.Selected(IDC_CHOSEN) == to; }));
    return MAKELPARAM(end.x, end.y);
  };
  PostMessageW(dialog.Window(), WM_LBUTTONUP, 0, drag(0, 2));
  EXPECT_TRUE(Eventually([&] { return dialog.Capture() == nullptr; }));
  EXPECT_THAT(dialog.Chosen(), ElementsAre(kSunrise, kShema, kDawn));

  drag(2, 0);
  EXPECT_THAT(dialog.Chosen(), ElementsAre(kDawn, kSunrise, kShema));
  Press(dialog.Window(), IDCANCEL);  // Escape: it goes back, and the dialog stays
  EXPECT_TRUE(Eventually([&] { return dialog.Capture() == nullptr; }));
  EXPECT_THAT(dialog.Chosen(), ElementsAre(kSunrise, kShema, kDawn));
  dialog.Accept();
  EXPECT_EQ(Stored(), "zman sunrise\r\nzman shema-gra\r\nzman dawn-72-min\r\n");
}

TEST_F(HoursDialog, ArrowsPassOverHeadings) {
  SelectionRun dialog;
  dialog.Type(L"gro");
  const std::vector<std::wstring> rows = dialog.Offered();
  ASSERT_EQ(rows[0], L"Latest Shema");
  ASSERT_EQ(rows[2], L"Latest Tefila");
  EXPECT_EQ(dialog.Selected(IDC_OFFERED), 1);
  dialog.Key(IDC_TYPED, VK_DOWN);
  EXPECT_EQ(dialog.Selected(IDC_OFFERED), 3);
  dialog.Key(IDC_OFFERED, VK_UP);
  EXPECT_EQ(dialog.Selected(IDC_OFFERED), 1);
  dialog.Key(IDC_OFFERED, VK_UP);
  EXPECT_EQ(dialog.Selected(IDC_OFFERED), 1);
  dialog.Key(IDC_OFFERED, VK_HOME);
  EXPECT_EQ(dialog.Selected(IDC_OFFERED), 1);
  dialog.Select(IDC_OFFERED, 0);  // with the mouse
  EXPECT_FALSE(dialog.IsEnabled(IDC_ADD));
  EXPECT_EQ(dialog.Text(IDC_DEFINITION), L"");
  dialog.Accept();
}

// Enter adds from the field and from the catalogue, and is OK elsewhere.
TEST_F(HoursDialog, IsWorkedByTheKeyboardAlone) {
  home_.Put("hours.txt", kThree);
  SelectionRun dialog;
  ASSERT_TRUE(dialog.WaitForFocus(dialog.Control(IDC_TYPED)));
  for (const wchar_t letter : {L'p', L'l', L'a', L'g', L' ', L'g', L'r', L'o'}) {
    PostMessageW(dialog.Control(IDC_TYPED), WM_CHAR, letter, 1);
  }
  ASSERT_TRUE(Eventually([&] { return dialog.Count(IDC_OFFERED) == 2; }));
  PressKey(dialog.Control(IDC_TYPED), VK_RETURN);
  ASSERT_TRUE(Eventually([&] { return dialog.Count(IDC_CHOSEN) == 4; }));
  EXPECT_TRUE(Eventually([&] { return IsAllSelected(dialog.Control(IDC_TYPED)); }));
  PostMessageW(dialog.Control(IDC_TYPED), WM_CHAR, L'\b', 1);
  ASSERT_TRUE(Eventually([&] { return dialog.Count(IDC_OFFERED) > 100; }));
  PressKey(dialog.Control(IDC_TYPED), VK_TAB);
  ASSERT_TRUE(dialog.WaitForFocus(dialog.Control(IDC_OFFERED)));
  PressKey(dialog.Control(IDC_OFFERED), VK_RETURN);
  ASSERT_TRUE(Eventually([&] { return dialog.Count(IDC_CHOSEN) == 5; }));
  dialog.FocusOn(IDC_CHOSEN);
  EXPECT_EQ(dialog.Selected(IDC_CHOSEN), 4);
  PressKey(dialog.Control(IDC_CHOSEN), VK_HOME);
  PressKey(dialog.Control(IDC_CHOSEN), VK_DELETE);
  ASSERT_TRUE(Eventually([&] { return dialog.Count(IDC_CHOSEN) == 4; }));
  PressKey(dialog.Control(IDC_CHOSEN), VK_RETURN);
  dialog.Result();
  EXPECT_EQ(Stored(), "zman sunrise\r\nzman shema-gra\r\nzman plag-gra\r\nzman dawn-26\r\n");
}

TEST_F(HoursDialog, TabGoesThroughTheControlsInTheirOrder) {
  home_.Put("hours.txt", "zman own-1\r\nzman sunrise\r\nzman sunset\r\nown 1 hours-gra 3 up Mine\r\n");
  SelectionRun dialog;
  dialog.Select(IDC_CHOSEN, 1);
  std::vector<int> order;
  HWND control = dialog.Control(IDC_TYPED);
  do {
    order.push_back(GetDlgCtrlID(control));
    control = GetNextDlgTabItem(dialog.Window(), control, FALSE);
  } while (control != dialog.Control(IDC_TYPED) && order.size() < 30);
  EXPECT_THAT(
      order, ElementsAre(IDC_TYPED, IDC_OFFERED, IDC_NEW, IDC_ADD, IDC_REMOVE, IDC_UP, IDC_DOWN, IDC_PRESET, IDC_CHOSEN,
                         IDC_DEFAULTS, IDC_ELEVATION, IDOK, IDCANCEL));  // without those that are disabled
  dialog.Accept();
}

TEST_F(HoursDialog, MnemonicsAreUnique) {
  SelectionRun dialog;
  const auto check = [](HWND window) {
    std::set<wchar_t> letters;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
      const std::wstring text = WindowText(child);
      const size_t mark = text.find(L'&');
      if (mark == std::wstring::npos) continue;
      EXPECT_TRUE(letters.insert(static_cast<wchar_t>(towlower(text[mark + 1]))).second) << GetDlgCtrlID(child);
    }
    return letters.size();
  };
  EXPECT_EQ(check(dialog.Window()), 14u);
  const OwnRun own(dialog, IDC_NEW);
  EXPECT_EQ(check(own.Window()), 8u);
  EXPECT_TRUE(own.Cancel());
  dialog.Accept();
}

TEST_F(HoursDialog, DoubleClickAddsAndRemoves) {
  home_.Put("hours.txt", kThree);
  SelectionRun dialog;
  const auto doubleClick = [&](int listId, int row) {
    RECT cell = {LVIR_LABEL, 0, 0, 0};
    SendMessageW(dialog.Control(listId), LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&cell));
    const LPARAM point = MAKELPARAM(cell.left + 5, (cell.top + cell.bottom) / 2);
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
      PostMessageW(dialog.Control(listId), message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, point);
    }
  };
  doubleClick(IDC_OFFERED, 1);
  EXPECT_TRUE(Eventually([&] { return dialog.Count(IDC_CHOSEN) == 4; }));
  doubleClick(IDC_CHOSEN, 0);
  EXPECT_TRUE(Eventually([&] { return dialog.Count(IDC_CHOSEN) == 3; }));
  dialog.Accept();
  EXPECT_EQ(Stored(), "zman sunrise\r\nzman shema-gra\r\nzman dawn-26\r\n");
}

}  // namespace
