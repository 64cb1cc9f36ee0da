// The preview as the user works it.
#include "tests/contract/picker_driver.h"
#include "tests/publishing/preview_fixture.h"

namespace {

class Preview : public PreviewTest {
 protected:
  void SetUp() override {
    PreviewTest::SetUp();
    Spooler().isReal = false;
  }
};

SIZE SizeOf(HWND window) {
  RECT rectangle{};
  GetWindowRect(window, &rectangle);
  return {rectangle.right - rectangle.left, rectangle.bottom - rectangle.top};
}

int Range(HWND view, int bar) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(view, bar, &info);
  return info.nMax + 1 - static_cast<int>(info.nPage);
}

int Position(HWND view, int bar) {
  return GetScrollPos(view, bar);
}

TEST_F(Preview, OpensOnTheFirstPageWithTheFocusThere) {
  Open(TableOfNames(200));
  EXPECT_EQ(Number(), L"Page 1 of 4");
  EXPECT_TRUE(run_->WaitForFocus(Control(IDC_PREVIEW_PAGE)));
  EXPECT_FALSE(IsWindowEnabled(Control(IDC_PREVIEW_FIRST)));
  EXPECT_FALSE(IsWindowEnabled(Control(IDC_PREVIEW_PREVIOUS)));
  EXPECT_TRUE(IsWindowEnabled(Control(IDC_PREVIEW_NEXT)));
  EXPECT_TRUE(IsWindowEnabled(Control(IDC_PREVIEW_LAST)));
  EXPECT_FALSE(IsWindowEnabled(run_->Owner()));
}

TEST_F(Preview, KeysLeafOnThePageAndOnTheButtons) {
  Open(TableOfNames(200));
  for (const int id : {IDC_PREVIEW_PAGE, IDC_PREVIEW_PRINT, IDCANCEL}) {
    EXPECT_TRUE(LeafsTo(Control(id), VK_NEXT, L"Page 2 of 4"));
    EXPECT_TRUE(LeafsTo(Control(id), VK_END, L"Page 4 of 4"));
    EXPECT_TRUE(LeafsTo(Control(id), VK_PRIOR, L"Page 3 of 4"));
    EXPECT_TRUE(LeafsTo(Control(id), VK_HOME, L"Page 1 of 4"));
  }
}

TEST_F(Preview, AButtonThatCannotBePressedAnyMoreGivesTheFocusAway) {
  Open(TableOfNames(200));
  ASSERT_TRUE(run_->WaitForFocus(Control(IDC_PREVIEW_PAGE)));
  SendMessageW(preview_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(IDC_PREVIEW_LAST)), TRUE);
  ASSERT_TRUE(run_->WaitForFocus(Control(IDC_PREVIEW_LAST)));
  Press(preview_, IDC_PREVIEW_LAST);
  EXPECT_TRUE(run_->WaitForFocus(Control(IDC_PREVIEW_PAGE)));
  EXPECT_TRUE(Eventually([this] { return !IsWindowEnabled(Control(IDC_PREVIEW_LAST)); }));
}

TEST_F(Preview, ATableOfOnePageHasNoOtherToLeafTo) {
  Open(TableOfNames(3));
  EXPECT_EQ(Number(), L"Page 1 of 1");
  for (const int id : {IDC_PREVIEW_FIRST, IDC_PREVIEW_PREVIOUS, IDC_PREVIEW_NEXT, IDC_PREVIEW_LAST}) {
    EXPECT_FALSE(IsWindowEnabled(Control(id)));
  }
}

TEST_F(Preview, ATableWithoutRowsOrColumnsIsShown) {
  Open({});
  EXPECT_EQ(Number(), L"Page 1 of 1");
}

TEST_F(Preview, EscapeClosesIt) {
  Open(TableOfNames(3));
  ASSERT_TRUE(run_->WaitForFocus(Control(IDC_PREVIEW_PAGE)));
  PressKey(Control(IDC_PREVIEW_PAGE), VK_ESCAPE);
  EXPECT_TRUE(run_->WaitUntilGone(preview_));
  run_->Result();
  run_.reset();
}

TEST_F(Preview, ActualSizeScrollsByKeysAndAnotherPageBeginsAtItsTop) {
  Open(TableOfNames(200));
  const HWND view = Control(IDC_PREVIEW_PAGE);
  EXPECT_LE(Range(view, SB_VERT), 0) << "the whole page is seen";
  SetWindowPos(preview_, nullptr, 0, 0, 700, 500, SWP_NOMOVE | SWP_NOZORDER);
  SendMessageW(Control(IDC_PREVIEW_ZOOM), CB_SETCURSEL, 3, 0);
  PostMessageW(preview_, WM_COMMAND, MAKEWPARAM(IDC_PREVIEW_ZOOM, CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(Control(IDC_PREVIEW_ZOOM)));
  ASSERT_TRUE(Eventually([&] { return Range(view, SB_VERT) > 100; }));
  PressKey(view, VK_DOWN);
  PressKey(view, VK_DOWN);
  EXPECT_TRUE(Eventually([&] { return Position(view, SB_VERT) == 80; }));
  for (int i = 0; i < 100; ++i) PressKey(view, VK_DOWN);
  EXPECT_TRUE(Eventually([&] { return Position(view, SB_VERT) == Range(view, SB_VERT); }));
  EXPECT_TRUE(LeafsTo(view, VK_NEXT, L"Page 2 of 4"));
  EXPECT_EQ(Position(view, SB_VERT), 0);
}

TEST_F(Preview, TheWheelLeafsAtTheEndOfThePage) {
  Open(TableOfNames(200));
  const HWND view = Control(IDC_PREVIEW_PAGE);
  PostMessageW(view, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
  EXPECT_TRUE(Eventually([&] { return Number() == L"Page 2 of 4"; }));
  PostMessageW(view, WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA / 2), 0);
  PostMessageW(view, WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA / 2), 0);
  EXPECT_TRUE(Eventually([&] { return Number() == L"Page 1 of 4"; }));
}

TEST_F(Preview, ThePageGrowsWithTheWindowWhichKeepsRoomForItsButtons) {
  Open(TableOfNames(3));
  SetWindowPos(preview_, nullptr, 0, 0, 100, 100, SWP_NOMOVE | SWP_NOZORDER);
  const SIZE least = SizeOf(preview_);
  RECT close{};
  GetWindowRect(Control(IDCANCEL), &close);
  RECT window{};
  GetWindowRect(preview_, &window);
  EXPECT_LE(close.right, window.right);
  const SIZE before = SizeOf(Control(IDC_PREVIEW_PAGE));
  SetWindowPos(preview_, nullptr, 0, 0, least.cx + 50, least.cy + 70, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_TRUE(Eventually([&] {
    const SIZE after = SizeOf(Control(IDC_PREVIEW_PAGE));
    return after.cx == before.cx + 50 && after.cy == before.cy + 70;
  }));
}

TEST_F(Preview, OpenedAndClosedTwoHundredTimesItHoldsOnToNothing) {
  const auto openAndClose = [this] {
    Open(TableOfNames(60));
    EXPECT_TRUE(LeafsTo(Control(IDC_PREVIEW_PAGE), VK_END, L"Page 2 of 2"));
    Close();
  };
  for (int i = 0; i < 5; ++i) openAndClose();
  const long before = HeldObjects();
  const Resources resources = ResourcesNow();
  for (int i = 0; i < 200; ++i) openAndClose();
  EXPECT_EQ(HeldObjects(), before);
  const Resources after = ResourcesNow();
  EXPECT_LE(after.handles, resources.handles + 20);
  EXPECT_LE(after.heapBytes, resources.heapBytes + 200 * 50) << "fifty bytes for each opening";
}

}  // namespace
