#include <gtest/gtest.h>

#include <string>

#include "companion/stamp.h"
#include "libraries/stamp/stamp_ids.h"
#include "tests/contract/dialog_driver.h"
#include "tests/contract/regional_form.h"
#include "tests/contract/settings_home.h"

namespace {

class StampDialog : public testing::Test {
 protected:
  SettingsHome home_;
  const RegionalForm region_{"1"};  // 24-hour form
};

// A run of the dialog; what is checked at first, and the sample then, are recorded.
class FormDialog : public DialogDriver {
 public:
  FormDialog() : DialogDriver(StampConfigure), window_(WaitFor(L"Form of Times")) {}

  HWND Window() const { return window_; }
  HWND Button(int id) const { return GetDlgItem(window_, id); }
  int Checked() const {
    for (const int id : {IDC_AS_IN_WINDOWS, IDC_24_HOURS, IDC_12_HOURS}) {
      if (SendMessageW(Button(id), BM_GETCHECK, 0, 0) == BST_CHECKED) return id;
    }
    return 0;
  }
  std::wstring Sample() const { return ControlText(window_, IDC_SAMPLE); }
  void Choose(int id) const { SendMessageW(Button(id), BM_CLICK, 0, 0); }

 private:
  HWND window_;
};

TEST_F(StampDialog, ShowsTheStoredChoiceAndASampleOfIt) {
  struct Case {
    const char* file;
    int checked;
    const wchar_t* sample;
  };
  constexpr wchar_t k24Hours[] = L"Sunrise 06:05\nCandle lighting 18:47";
  constexpr wchar_t k12Hours[] = L"Sunrise 06:05 a.m.\nCandle lighting 06:47 p.m.";
  for (const Case& expected : {Case{"", IDC_AS_IN_WINDOWS, k24Hours},
                               {"[Times]\r\nForm=24\r\n", IDC_24_HOURS, k24Hours},
                               {"[Times]\r\nForm=12\r\n", IDC_12_HOURS, k12Hours},
                               {"[Times]\r\nForm=12h\r\n", IDC_AS_IN_WINDOWS, k24Hours}}) {
    const SettingsHome home;
    home.Put("stamp.ini", expected.file);
    FormDialog dialog;
    EXPECT_EQ(dialog.Checked(), expected.checked) << expected.file;
    EXPECT_EQ(dialog.Sample(), expected.sample) << expected.file;
    EXPECT_TRUE(dialog.WaitForFocus(dialog.Button(expected.checked))) << expected.file;
    Press(dialog.Window(), IDCANCEL);
    EXPECT_EQ(dialog.Result(), 0);
    EXPECT_EQ(home.Bytes("stamp.ini"), expected.file);
  }
}

TEST_F(StampDialog, SampleFollowsTheChoice) {
  FormDialog dialog;
  dialog.Choose(IDC_12_HOURS);
  EXPECT_EQ(dialog.Sample(), L"Sunrise 06:05 a.m.\nCandle lighting 06:47 p.m.");
  dialog.Choose(IDC_24_HOURS);
  EXPECT_EQ(dialog.Sample(), L"Sunrise 06:05\nCandle lighting 18:47");
  dialog.Choose(IDC_12_HOURS);
  dialog.Choose(IDC_AS_IN_WINDOWS);
  EXPECT_EQ(dialog.Sample(), L"Sunrise 06:05\nCandle lighting 18:47");
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Result(), 0);
}

TEST_F(StampDialog, SampleAsInWindowsIsOfTheRegion) {
  const RegionalForm twelveHours("0");
  FormDialog dialog;
  EXPECT_EQ(dialog.Sample(), L"Sunrise 06:05 a.m.\nCandle lighting 06:47 p.m.");
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Result(), 0);
}

TEST_F(StampDialog, AcceptedChoiceIsWrittenAndCountsAtOnce) {
  home_.Put("stamp.ini", "; mine\r\n[Times]\r\nOther=1\r\n");
  FormDialog dialog;
  dialog.Choose(IDC_12_HOURS);
  Press(dialog.Window(), IDOK);
  EXPECT_NE(dialog.Result(), 0);
  EXPECT_NE(StampIsAmPm(), 0);
  EXPECT_EQ(home_.Bytes("stamp.ini"), "; mine\r\n[Times]\r\nOther=1\r\nForm=12\r\n");

  FormDialog second;
  second.Choose(IDC_24_HOURS);
  Press(second.Window(), IDOK);
  EXPECT_NE(second.Result(), 0);
  EXPECT_EQ(StampIsAmPm(), 0);
  EXPECT_EQ(home_.Bytes("stamp.ini"), "; mine\r\n[Times]\r\nOther=1\r\nForm=24\r\n");
}

TEST_F(StampDialog, AsInWindowsTakesTheChoiceOutOfTheFile) {
  home_.Put("stamp.ini", "[Times]\r\nForm=12\r\nOther=1\r\n");
  FormDialog dialog;
  dialog.Choose(IDC_AS_IN_WINDOWS);
  Press(dialog.Window(), IDOK);
  EXPECT_NE(dialog.Result(), 0);
  EXPECT_EQ(StampIsAmPm(), 0);
  EXPECT_EQ(home_.Bytes("stamp.ini"), "[Times]\r\nOther=1\r\n");
}

TEST_F(StampDialog, CancelAndEscapeWriteNothing) {
  for (const bool byKey : {false, true}) {
    FormDialog dialog;
    dialog.Choose(IDC_12_HOURS);
    byKey ? PressKey(dialog.Button(IDC_12_HOURS), VK_ESCAPE) : Press(dialog.Window(), IDCANCEL);
    EXPECT_EQ(dialog.Result(), 0);
    EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
  }
}

TEST_F(StampDialog, FailingWriteIsToldAndTheDialogStays) {
  FormDialog dialog;
  std::filesystem::create_directories(home_.Path("stamp.ini"));  // a folder where the file should be
  dialog.Choose(IDC_12_HOURS);
  Press(dialog.Window(), IDOK);
  const std::wstring text = dialog.Answer(L"Error", dialog.Window(), IDI_HAND, IDOK);
  EXPECT_NE(text.find(home_.Path("stamp.ini").wstring()), std::wstring::npos) << home_.Path("stamp.ini");
  EXPECT_EQ(dialog.Checked(), IDC_12_HOURS);
  EXPECT_EQ(StampIsAmPm(), 0);

  std::filesystem::remove(home_.Path("stamp.ini"));
  Press(dialog.Window(), IDOK);
  EXPECT_NE(dialog.Result(), 0);
  EXPECT_NE(StampIsAmPm(), 0);
}

TEST_F(StampDialog, OwnerIsDisabledWhileItIsOpen) {
  FormDialog dialog;
  EXPECT_FALSE(IsWindowEnabled(dialog.Owner()));
  EXPECT_EQ(GetWindow(dialog.Window(), GW_OWNER), dialog.Owner());
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Result(), 0);
}

TEST_F(StampDialog, NeedsNoOwner) {
  DialogDriver driver([](HWND) { return StampConfigure(nullptr); });
  Press(driver.WaitFor(L"Form of Times"), IDCANCEL);
  EXPECT_EQ(driver.Result(), 0);
}

// One thread opens and closes it, as the program does.
TEST_F(StampDialog, OpeningAndClosingItKeepsNothing) {
  const auto openAndClose = [](int times) {
    DialogDriver driver([times](HWND owner) {
      for (int i = 0; i < times; ++i) StampConfigure(owner);
      return times;
    });
    for (int i = 0; i < times; ++i) {
      const HWND dialog = driver.WaitFor(L"Form of Times");
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
