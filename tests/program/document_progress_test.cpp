// What is shown while a long document is written.
#include "app/document_progress.h"

#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/exports_fixture.h"

namespace {

using DocumentProgressTest = ExportsFixture;

HWND FindProgress() {
  return FindWindowExA(nullptr, nullptr, "#32770", "Saving...");
}

// Reports progress until the dialog is there.
HWND WaitForDialog(DocumentProgress& progress) {
  constexpr ULONGLONG kPatienceMilliseconds = 20000;
  const ULONGLONG end = GetTickCount64() + kPatienceMilliseconds;
  while (!FindProgress() && GetTickCount64() < end) EXPECT_TRUE(progress.Show(1, 4));
  return FindProgress();
}

}  // namespace

TEST_F(DocumentProgressTest, ShowsHowFarItIsAndTheOwnerTakesNoInput) {
  {
    DocumentProgress progress(frame_);
    EXPECT_TRUE(progress.Show(0, 4));
    EXPECT_EQ(FindProgress(), nullptr) << "at once there is none";
    const HWND dialog = WaitForDialog(progress);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(FieldText(dialog, IDC_SAVING_PERCENT), "25");
    EXPECT_FALSE(IsWindowEnabled(frame_));
  }
  EXPECT_EQ(FindProgress(), nullptr);
  EXPECT_TRUE(IsWindowEnabled(frame_));
}

TEST_F(DocumentProgressTest, CancelEndsTheJobAndNoOtherMessageIsHandled) {
  DocumentProgress progress(frame_);
  const HWND dialog = WaitForDialog(progress);
  ASSERT_NE(dialog, nullptr);
  PostMessageA(frame_, WM_COMMAND, IDM_WINDOW_CLOSE_ALL, 0);
  PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
  constexpr ULONGLONG kPatienceMilliseconds = 20000;
  const ULONGLONG end = GetTickCount64() + kPatienceMilliseconds;
  while (progress.Show(2, 4) && GetTickCount64() < end) {
  }
  EXPECT_FALSE(progress.Show(3, 4));
  EXPECT_EQ(CountDocuments(), 1) << "the document stays until the job is over";
}
