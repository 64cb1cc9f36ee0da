// What is shown while a long document is written.
#include "publishing/progress_box.h"

#include <optional>

#include "publishing/preview_ids.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/exports_fixture.h"

namespace {

constexpr ULONGLONG kPatienceMilliseconds = 20000;

HWND FindBox() {
  return FindWindowExA(nullptr, nullptr, "#32770", "Saving");
}

class ProgressBoxTest : public ExportsFixture {
 protected:
  void Begin(HWND owner) { progress_.emplace(owner, L"Saving"); }
  void End() { progress_.reset(); }
  bool GoesOn(std::size_t done) { return progress_->GoesOn(done, 4); }

  // Reports progress until the box is there.
  HWND WaitForBox() {
    const ULONGLONG end = GetTickCount64() + kPatienceMilliseconds;
    while (!FindBox() && GetTickCount64() < end) EXPECT_TRUE(GoesOn(1));
    return FindBox();
  }

  // Whether the job is told to end before patience does.
  bool IsToldToEnd() {
    const ULONGLONG end = GetTickCount64() + kPatienceMilliseconds;
    while (GetTickCount64() < end) {
      if (!GoesOn(2)) return true;
    }
    return false;
  }

  void TearDown() override {
    End();
    ExportsFixture::TearDown();
  }

 private:
  std::optional<publishing::LateProgress> progress_;
};

}  // namespace

TEST_F(ProgressBoxTest, ShowsHowFarTheJobIsAndItsOwnerTakesNoInput) {
  Begin(frame_);
  EXPECT_TRUE(GoesOn(0));
  EXPECT_EQ(FindBox(), nullptr) << "at once there is none";
  const HWND box = WaitForBox();
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(FieldText(box, IDC_PRINTING_PAGE), "25 %");
  EXPECT_FALSE(IsWindowEnabled(frame_));
  End();
  EXPECT_EQ(FindBox(), nullptr);
  EXPECT_TRUE(IsWindowEnabled(frame_));
}

TEST_F(ProgressBoxTest, OtherWindowsWorkUntilCancelEndsTheJob) {
  Begin(frame_);
  const HWND box = WaitForBox();
  ASSERT_NE(box, nullptr);
  PostMessageA(frame_, WM_COMMAND, IDM_WINDOW_CLOSE_ALL, 0);
  PostMessageA(box, WM_COMMAND, IDCANCEL, 0);
  EXPECT_TRUE(IsToldToEnd());
  EXPECT_FALSE(GoesOn(3)) << "it stays so";
  EXPECT_EQ(CountDocuments(), 0);
}

TEST_F(ProgressBoxTest, TheEndOfTheProgramEndsTheJobAndReachesTheLoopsAround) {
  Begin(frame_);
  ASSERT_NE(WaitForBox(), nullptr);
  PostQuitMessage(3);
  EXPECT_TRUE(IsToldToEnd());
  End();
  MSG message{};
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) && message.message != WM_QUIT) DispatchMessageA(&message);
  EXPECT_EQ(message.message, UINT{WM_QUIT});
  EXPECT_EQ(message.wParam, WPARAM{3});
}

TEST_F(ProgressBoxTest, AnOwnerThatTookNoInputBeforeTakesNoneAfterwards) {
  EnableWindow(frame_, FALSE);
  Begin(frame_);
  EXPECT_NE(WaitForBox(), nullptr);
  End();
  EXPECT_FALSE(IsWindowEnabled(frame_));
}

TEST_F(ProgressBoxTest, AJobMayBeNobodys) {
  Begin(nullptr);
  const HWND box = WaitForBox();
  ASSERT_NE(box, nullptr);
  PostMessageA(box, WM_COMMAND, IDCANCEL, 0);
  EXPECT_TRUE(IsToldToEnd());
}
