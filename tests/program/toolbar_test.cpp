// The toolbar's buttons and their tooltips, by the messages that a mouse makes.
#include "document/toolbar.h"

#include "app/active_document.h"
#include "app/program.h"
#include "document/icon_button.h"
#include "document/tooltip.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/program/program_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ToolbarTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    OpenFrame();
    SetFocus(GetDlgItem(ActiveDocument(), IDC_LIST_PANE));
    toolbar_ = GetDlgItem(ActiveDocument(), IDC_TOOLBAR);
    ASSERT_NE(toolbar_, nullptr);
    CallLog().clear();
  }
  void TearDown() override {
    OnApplicationActivated(false);
    ProgramTest::TearDown();
  }

  HWND Button(int id) { return GetDlgItem(toolbar_, id); }
  static void Mouse(HWND button, UINT message, int x, int y) { SendMessageA(button, message, 0, MAKELPARAM(x, y)); }
  static bool IsPressed(HWND button) { return GetIntegerProperty(button, property::kSelectState) == 1; }

  static POINT CenterOf(HWND window) {
    RECT rect;
    GetWindowRect(window, &rect);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  }
  // The mouse comes to rest at a point of the screen.
  static LRESULT MoveTo(POINT point) {
    MOUSEHOOKSTRUCT mouse{};
    mouse.pt = point;
    return TooltipMouseHook(HC_ACTION, WM_MOUSEMOVE, reinterpret_cast<LPARAM>(&mouse));
  }
  static std::string TooltipText() {
    char text[256] = "(none)";
    if (Tooltip.window) GetWindowTextA(Tooltip.window, text, sizeof text);
    return text;
  }

  HWND toolbar_ = nullptr;
};

}  // namespace

TEST_F(ToolbarTest, HasItsThirteenButtons) {
  const struct {
    int id;
    int x;
    const char* icon;
    const char* description;
  } expected[] = {
      {1, 16, "#1", "Shabbat Times"},      {2, 71, "#2", "Zmanim"},           {3, 126, "#3", "Parashioth/Haphtaroth"},
      {4, 197, "#4", "Go to Almanac"},     {5, 268, "#5", "Select Location"}, {6, 339, "#6", "Export as Text"},
      {7, 394, "#7", "Export as RTF"},     {9, 465, "#8", "Print"},           {12, 536, "#20", "Birthdays/Yahrzeit"},
      {13, 607, "#21", "Bar/Bat Mitzvah"}, {10, 678, "#9", "Exit"},           {11, 749, "#10", "Help"},
      {14, 820, "#22", "Daf Yomi List"}};
  int count = 0;
  for (HWND child = GetWindow(toolbar_, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) ++count;
  EXPECT_EQ(count, 13);
  for (const auto& row : expected) {
    RECT rect;
    GetWindowRect(Button(row.id), &rect);
    MapWindowPoints(nullptr, toolbar_, reinterpret_cast<POINT*>(&rect), 2);
    EXPECT_EQ(rect.left, row.x) << row.id;
    EXPECT_EQ(rect.top, GetSystemMetrics(SM_CYSIZEFRAME)) << row.id;
    EXPECT_EQ(rect.right - rect.left, 37) << row.id;
    EXPECT_EQ(rect.bottom - rect.top, 39) << row.id;
    char text[16] = "";
    GetWindowTextA(Button(row.id), text, sizeof text);
    EXPECT_STREQ(text, row.icon);
    const HGLOBAL description = GetBlockProperty(Button(row.id), property::kDescription);
    ASSERT_NE(description, nullptr);
    EXPECT_STREQ(static_cast<const char*>(GlobalLock(description)), row.description);
    GlobalUnlock(description);
    EXPECT_EQ(GetWindowLongA(Button(row.id), GWL_STYLE) & WS_VISIBLE, row.id == 9 ? 0 : WS_VISIBLE);
  }
}

TEST_F(ToolbarTest, AClickFiresItsCommandOnRelease) {
  const HWND button = Button(IDB_ALMANAC);
  Mouse(button, WM_LBUTTONDOWN, 10, 10);
  EXPECT_TRUE(IsPressed(button));
  EXPECT_EQ(GetCapture(), button);
  EXPECT_THAT(CallLog(), IsEmpty());
  System().foundWindow = frame_;
  Mouse(button, WM_LBUTTONUP, 10, 10);
  EXPECT_FALSE(IsPressed(button));
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_THAT(CallLog(), ElementsAre("find window 'AlmanacApp' 'any'"));
}

TEST_F(ToolbarTest, DraggedOutAndReleasedOutsideItFiresNothing) {
  const HWND button = Button(IDB_ALMANAC);
  Mouse(button, WM_LBUTTONDOWN, 10, 10);
  Mouse(button, WM_MOUSEMOVE, 60, 10);
  EXPECT_FALSE(IsPressed(button));
  EXPECT_EQ(GetCapture(), button);
  Mouse(button, WM_LBUTTONUP, 60, 10);
  EXPECT_THAT(CallLog(), IsEmpty());
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(ToolbarTest, DraggedOutAndBackInItFires) {
  const HWND button = Button(IDB_ALMANAC);
  System().foundWindow = frame_;
  Mouse(button, WM_LBUTTONDOWN, 10, 10);
  Mouse(button, WM_MOUSEMOVE, -1, 10);
  EXPECT_FALSE(IsPressed(button));
  Mouse(button, WM_MOUSEMOVE, 0, 10);
  EXPECT_TRUE(IsPressed(button));
  Mouse(button, WM_LBUTTONUP, 0, 10);
  EXPECT_THAT(CallLog(), ElementsAre("find window 'AlmanacApp' 'any'"));
}

TEST_F(ToolbarTest, TheMouseAloneDoesNotPress) {
  Mouse(Button(IDB_ALMANAC), WM_MOUSEMOVE, 10, 10);
  EXPECT_FALSE(IsPressed(Button(IDB_ALMANAC)));
  Mouse(Button(IDB_ALMANAC), WM_LBUTTONUP, 10, 10);
  EXPECT_THAT(CallLog(), IsEmpty());
}

TEST_F(ToolbarTest, AGrayedButtonIgnoresTheMouse) {
  const HWND button = Button(IDB_ALMANAC);
  SetIntegerProperty(button, property::kGrayed, 1);
  Mouse(button, WM_LBUTTONDOWN, 10, 10);
  Mouse(button, WM_MOUSEMOVE, 12, 10);
  EXPECT_FALSE(IsPressed(button));
  EXPECT_EQ(GetCapture(), nullptr);
  Mouse(button, WM_LBUTTONUP, 12, 10);
  EXPECT_THAT(CallLog(), IsEmpty());
}

TEST_F(ToolbarTest, EdgeIsRaisedAndSunkenWhilePressed) {
  constexpr COLORREF kGrey = RGB(128, 128, 128);
  constexpr COLORREF kWhite = RGB(255, 255, 255);
  const HWND button = Button(IDB_HELP);
  const auto pixel = [button](int x, int y) {
    RedrawWindow(button, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    const HDC dc = GetDC(button);
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(button, dc);
    return color;
  };
  EXPECT_EQ(pixel(0, 0), kWhite);
  EXPECT_EQ(pixel(20, 1), kWhite);
  EXPECT_EQ(pixel(1, 20), kWhite);
  EXPECT_EQ(pixel(20, 38), kGrey);
  EXPECT_EQ(pixel(36, 20), kGrey);
  EXPECT_EQ(pixel(20, 37), kGrey);
  Mouse(button, WM_LBUTTONDOWN, 10, 10);
  EXPECT_EQ(pixel(0, 0), kGrey);
  EXPECT_EQ(pixel(20, 1), kGrey);
  EXPECT_EQ(pixel(20, 38), static_cast<COLORREF>(RGB(192, 192, 192)));
  Mouse(button, WM_MOUSEMOVE, 60, 10);
  Mouse(button, WM_LBUTTONUP, 60, 10);
}

TEST_F(ToolbarTest, TheMouseOverAButtonShowsItsTooltipBelow) {
  EXPECT_EQ(MoveTo(CenterOf(Button(IDB_SELECT_LOCATION))), 0);
  ASSERT_NE(Tooltip.window, nullptr);
  EXPECT_EQ(TooltipText(), "Select Location");
  RECT button, tip;
  GetWindowRect(Button(IDB_SELECT_LOCATION), &button);
  GetWindowRect(Tooltip.window, &tip);
  const int textWidth = 15 * kDoubledCharacterWidth;
  EXPECT_EQ(tip.left, button.right - textWidth);
  EXPECT_EQ(tip.top, button.bottom);
  EXPECT_EQ(tip.right - tip.left, textWidth + 5 * GetSystemMetrics(SM_CXBORDER));
  EXPECT_EQ(tip.bottom - tip.top, kDoubledTextHeight);
  EXPECT_TRUE(IsWindowVisible(Tooltip.window));
  EXPECT_NE(GetActiveWindow(), Tooltip.window);
  EXPECT_THAT(DrawsOf(Tooltip.window), ElementsAre(Draw{0, 0, "Select Location", "Helv 0"}));
}

TEST_F(ToolbarTest, MovingWithinAButtonKeepsTheTooltipAndMovingToAnotherReplacesIt) {
  MoveTo(CenterOf(Button(IDB_ZMANIM)));
  const HWND first = Tooltip.window;
  POINT elsewhere = CenterOf(Button(IDB_ZMANIM));
  elsewhere.x += 5;
  MoveTo(elsewhere);
  EXPECT_EQ(Tooltip.window, first);
  MoveTo(CenterOf(Button(IDB_READINGS)));
  EXPECT_NE(Tooltip.window, first);
  EXPECT_FALSE(IsWindow(first));
  EXPECT_EQ(TooltipText(), "Parashioth/Haphtaroth");
}

TEST_F(ToolbarTest, LeavingTheButtonsTakesTheTooltipAway) {
  MoveTo(CenterOf(Button(IDB_ZMANIM)));
  ASSERT_NE(Tooltip.window, nullptr);
  MoveTo(CenterOf(GetDlgItem(ActiveDocument(), IDC_LIST_PANE)));
  EXPECT_EQ(Tooltip.window, nullptr);
  EXPECT_EQ(System().fonts.size(), 6u);  // the document's own
}

TEST_F(ToolbarTest, ATooltipThatWouldLeaveTheScreenStandsAtTheButtonsLeftEdge) {
  // "Parashioth/Haphtaroth" is wider than the room to the left of its button.
  MoveTo(CenterOf(Button(IDB_READINGS)));
  RECT button, tip;
  GetWindowRect(Button(IDB_READINGS), &button);
  ASSERT_LT(button.right, 21 * kDoubledCharacterWidth + 20);
  SetWindowPos(frame_, nullptr, -30, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  OnApplicationActivated(false);
  OnApplicationActivated(true);
  GetWindowRect(Button(IDB_READINGS), &button);
  MoveTo(CenterOf(Button(IDB_READINGS)));
  ASSERT_NE(Tooltip.window, nullptr);
  GetWindowRect(Tooltip.window, &tip);
  EXPECT_EQ(tip.left, button.left);
}

TEST_F(ToolbarTest, AButtonWithTheFocusShowsNoTooltip) {
  SetFocus(Button(IDB_ZMANIM));
  MoveTo(CenterOf(Button(IDB_ZMANIM)));
  EXPECT_EQ(Tooltip.window, nullptr);
}

TEST_F(ToolbarTest, NoTooltipShowsWhileTheApplicationIsNotActive) {
  OnApplicationActivated(false);
  EXPECT_EQ(MoveTo(CenterOf(Button(IDB_ZMANIM))), 0);
  EXPECT_EQ(Tooltip.window, nullptr);
}

TEST_F(ToolbarTest, APressThatAnotherWindowTakesOverIsForgotten) {
  const HWND button = Button(IDB_ALMANAC);
  Mouse(button, WM_LBUTTONDOWN, 10, 10);
  SetCapture(frame_);
  EXPECT_FALSE(IsPressed(button));
  ReleaseCapture();
  Mouse(button, WM_LBUTTONUP, 10, 10);
  EXPECT_THAT(CallLog(), IsEmpty());
}
