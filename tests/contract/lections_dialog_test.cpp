#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "companion/lections.h"
#include "libraries/lections/lections_ids.h"
#include "tests/contract/dialog_driver.h"
#include "tests/contract/region.h"
#include "tests/contract/settings_home.h"

namespace {

constexpr wchar_t kConfigure[] = L"Readings";
constexpr wchar_t kLanguage[] = L"Language of Readings";
constexpr char kAllStored[] =
    "[Readings]\r\nLand=Israel\r\nCustom=Sephardi\r\nLanguage=2\r\nOwnNumbers=1\r\nChabad=1\r\nVerses=0\r\nNewMonth="
    "0\r\n"
    "MondayThursday=1\r\nShabbatAfternoon=1\r\nTriennial=1\r\n";
constexpr char kFirstStored[] =
    "[Readings]\r\nLand=Diaspora\r\nCustom=Both\r\nLanguage=1\r\nOwnNumbers=0\r\nChabad=0\r\nVerses=1\r\nNewMonth=1\r\n"
    "MondayThursday=0\r\nShabbatAfternoon=0\r\nTriennial=0\r\n";

class LectionsDialog : public testing::Test {
 protected:
  const Region region_{Region::kGermany};
  SettingsHome home_;
};

class ConfigureDialog : public DialogDriver {
 public:
  ConfigureDialog() : DialogDriver(LectionsDoConfigureDialog), window_(WaitFor(kConfigure)) {}

  HWND Window() const { return window_; }
  HWND Button(int id) const { return GetDlgItem(window_, id); }
  std::vector<int> Checked() const {
    std::vector<int> checked;
    for (int id = IDC_ISRAEL; id <= IDC_TRIENNIAL; ++id) {
      if (SendMessageW(Button(id), BM_GETCHECK, 0, 0) == BST_CHECKED) checked.push_back(id);
    }
    return checked;
  }
  void Click(int id) const { SendMessageW(Button(id), BM_CLICK, 0, 0); }

 private:
  HWND window_;
};

class LanguageDialog : public DialogDriver {
 public:
  LanguageDialog() : DialogDriver(LectionsDoLanguageDialog), window_(WaitFor(kLanguage)) {}

  HWND Window() const { return window_; }
  HWND List() const { return GetDlgItem(window_, IDC_LANGUAGES); }
  std::vector<std::wstring> Languages() const {
    std::vector<std::wstring> languages;
    const LRESULT count = SendMessageW(List(), LB_GETCOUNT, 0, 0);
    for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i) {
      wchar_t name[64];
      SendMessageW(List(), LB_GETTEXT, i, reinterpret_cast<LPARAM>(name));
      languages.emplace_back(name);
    }
    return languages;
  }
  LRESULT Selected() const { return SendMessageW(List(), LB_GETCURSEL, 0, 0); }

 private:
  HWND window_;
};

TEST_F(LectionsDialog, ShowsTheDefaultsOfTheRegionFirst) {
  ConfigureDialog dialog;
  EXPECT_EQ(dialog.Checked(), (std::vector<int>{IDC_DIASPORA, IDC_BOTH, IDC_VERSES, IDC_NEW_MONTH}));
  EXPECT_TRUE(dialog.WaitForFocus(dialog.Button(IDC_DIASPORA)));
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Result(), 0);
}

TEST_F(LectionsDialog, ShowsIsraelFirstWhereTheSystemIsSetToIt) {
  const Region israel(Region::kIsrael);
  ConfigureDialog dialog;
  EXPECT_EQ(dialog.Checked(), (std::vector<int>{IDC_ISRAEL, IDC_BOTH, IDC_VERSES, IDC_NEW_MONTH}));
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Result(), 0);
}

TEST_F(LectionsDialog, ShowsWhatIsStored) {
  home_.Put("lections.ini", kAllStored);
  ConfigureDialog dialog;
  EXPECT_EQ(dialog.Checked(), (std::vector<int>{IDC_ISRAEL, IDC_SEPHARDI, IDC_CHABAD, IDC_MONDAY_THURSDAY,
                                                IDC_SHABBAT_AFTERNOON, IDC_TRIENNIAL}));
  Press(dialog.Window(), IDOK);
  EXPECT_NE(dialog.Result(), 0);
  EXPECT_EQ(home_.Bytes("lections.ini"), kAllStored);
}

TEST_F(LectionsDialog, SaysThatTheLandHoldsForEveryPlace) {
  ConfigureDialog dialog;
  std::wstring texts;
  for (HWND child = GetWindow(dialog.Window(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    texts += WindowText(child) + L"\n";
  }
  EXPECT_NE(texts.find(L"Holds for every place"), std::wstring::npos);
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Result(), 0);
}

TEST_F(LectionsDialog, OkStoresEverythingAndItCountsAtOnce) {
  ConfigureDialog dialog;
  for (const int id : {IDC_ISRAEL, IDC_SEPHARDI, IDC_CHABAD, IDC_VERSES, IDC_NEW_MONTH, IDC_MONDAY_THURSDAY,
                       IDC_SHABBAT_AFTERNOON, IDC_TRIENNIAL}) {
    dialog.Click(id);
  }
  Press(dialog.Window(), IDOK);
  EXPECT_NE(dialog.Result(), 0);
  LectionsReadings readings;
  LectionsGetReadings(15, 8, 5785, &readings);
  EXPECT_STREQ(readings.torah1, "Vayera");
  EXPECT_STREQ(readings.torah2, "Afternoon, Chayei Sarah: Genesis");
  std::string expected = kAllStored;
  expected.replace(expected.find("Language=2"), 10, "Language=1");
  EXPECT_EQ(home_.Bytes("lections.ini"), expected);
}

TEST_F(LectionsDialog, OkWithoutChangesStoresWhatIsShown) {
  ConfigureDialog dialog;
  PressKey(dialog.Button(IDC_DIASPORA), VK_RETURN);
  EXPECT_NE(dialog.Result(), 0);
  EXPECT_EQ(home_.Bytes("lections.ini"), kFirstStored);
}

TEST_F(LectionsDialog, ArrowsChooseAmongTheCustomsAndBlankTicks) {
  ConfigureDialog dialog;
  PostMessageW(dialog.Window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(dialog.Button(IDC_BOTH)), TRUE);
  ASSERT_TRUE(dialog.WaitForFocus(dialog.Button(IDC_BOTH)));
  PressKey(dialog.Button(IDC_BOTH), VK_UP);
  ASSERT_TRUE(dialog.WaitForFocus(dialog.Button(IDC_SEPHARDI)));
  PressKey(dialog.Button(IDC_SEPHARDI), VK_TAB);
  ASSERT_TRUE(dialog.WaitForFocus(dialog.Button(IDC_CHABAD)));
  PressKey(dialog.Button(IDC_CHABAD), VK_SPACE);
  PostMessageW(dialog.Button(IDC_CHABAD), WM_KEYUP, VK_SPACE, 0);
  EXPECT_TRUE(Eventually([&] {
    return dialog.Checked() == std::vector<int>{IDC_DIASPORA, IDC_SEPHARDI, IDC_CHABAD, IDC_VERSES, IDC_NEW_MONTH};
  }));
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Result(), 0);
}

TEST_F(LectionsDialog, CancelAndEscapeChangeNothing) {
  for (const bool byKey : {false, true}) {
    ConfigureDialog dialog;
    dialog.Click(IDC_ISRAEL);
    dialog.Click(IDC_VERSES);
    byKey ? PressKey(dialog.Button(IDC_VERSES), VK_ESCAPE) : Press(dialog.Window(), IDCANCEL);
    EXPECT_EQ(dialog.Result(), 0);
    EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
  }
}

TEST_F(LectionsDialog, FailingWriteIsToldAndTheDialogStays) {
  ConfigureDialog dialog;
  std::filesystem::create_directories(home_.Path("lections.ini"));  // a folder where the file should be
  dialog.Click(IDC_SEPHARDI);
  Press(dialog.Window(), IDOK);
  const std::wstring text = dialog.Answer(L"Error", dialog.Window(), IDI_HAND, IDOK);
  EXPECT_NE(text.find(home_.Path("lections.ini").wstring()), std::wstring::npos) << home_.Path("lections.ini");
  EXPECT_EQ(dialog.Checked(), (std::vector<int>{IDC_DIASPORA, IDC_SEPHARDI, IDC_VERSES, IDC_NEW_MONTH}));

  std::filesystem::remove(home_.Path("lections.ini"));
  Press(dialog.Window(), IDOK);
  EXPECT_NE(dialog.Result(), 0);
  EXPECT_NE(home_.Bytes("lections.ini").find("Custom=Sephardi"), std::string::npos);
}

TEST_F(LectionsDialog, LanguagesAreListedAndTheStoredOneIsSelected) {
  home_.Put("lections.ini", "[Readings]\r\nLanguage=4\r\n");
  LanguageDialog dialog;
  EXPECT_EQ(dialog.Languages(), (std::vector<std::wstring>{L"English", L"English, Ashkenazi spelling", L"Hebrew"}));
  EXPECT_EQ(dialog.Selected(), 2);
  EXPECT_TRUE(dialog.WaitForFocus(dialog.List()));
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Result(), 0);
  EXPECT_EQ(home_.Bytes("lections.ini"), "[Readings]\r\nLanguage=4\r\n");
}

TEST_F(LectionsDialog, ChosenLanguageIsStoredAndCountsAtOnce) {
  home_.Put("lections.ini", kAllStored);
  LanguageDialog dialog;
  ASSERT_TRUE(dialog.WaitForFocus(dialog.List()));
  PressKey(dialog.List(), VK_END);
  EXPECT_TRUE(Eventually([&] { return dialog.Selected() == 2; }));
  PressKey(dialog.List(), VK_RETURN);
  EXPECT_NE(dialog.Result(), 0);
  EXPECT_EQ(LectionsGetLanguage(), 4u);
  std::string expected = kAllStored;
  expected.replace(expected.find("Language=2"), 10, "Language=4");
  EXPECT_EQ(home_.Bytes("lections.ini"), expected);
}

TEST_F(LectionsDialog, FailingWriteOfTheLanguageIsTold) {
  LanguageDialog dialog;
  std::filesystem::create_directories(home_.Path("lections.ini"));
  SendMessageW(dialog.List(), LB_SETCURSEL, 1, 0);
  Press(dialog.Window(), IDOK);
  dialog.Answer(L"Error", dialog.Window(), IDI_HAND, IDOK);
  EXPECT_EQ(dialog.Selected(), 1);
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Result(), 0);
}

TEST_F(LectionsDialog, OwnerIsDisabledWhileOneIsOpen) {
  {
    ConfigureDialog dialog;
    EXPECT_FALSE(IsWindowEnabled(dialog.Owner()));
    EXPECT_EQ(GetWindow(dialog.Window(), GW_OWNER), dialog.Owner());
    Press(dialog.Window(), IDCANCEL);
    EXPECT_EQ(dialog.Result(), 0);
  }
  LanguageDialog dialog;
  EXPECT_FALSE(IsWindowEnabled(dialog.Owner()));
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Result(), 0);
}

TEST_F(LectionsDialog, NeedNoOwner) {
  DialogDriver configure([](HWND) { return LectionsDoConfigureDialog(nullptr); });
  Press(configure.WaitFor(kConfigure), IDCANCEL);
  EXPECT_EQ(configure.Result(), 0);
  DialogDriver language([](HWND) { return LectionsDoLanguageDialog(nullptr); });
  Press(language.WaitFor(kLanguage), IDCANCEL);
  EXPECT_EQ(language.Result(), 0);
}

// One thread opens and closes them, as the program does.
TEST_F(LectionsDialog, OpeningAndClosingThemKeepsNothing) {
  const auto openAndClose = [](int times) {
    DialogDriver driver([times](HWND owner) {
      for (int i = 0; i < times; ++i) {
        LectionsDoConfigureDialog(owner);
        LectionsDoLanguageDialog(owner);
      }
      return times;
    });
    for (int i = 0; i < times; ++i) {
      for (const wchar_t* caption : {kConfigure, kLanguage}) {
        const HWND dialog = driver.WaitFor(caption);
        Press(dialog, IDCANCEL);
        if (!driver.WaitUntilGone(dialog)) return;
      }
    }
    EXPECT_EQ(driver.Result(), times);
  };
  openAndClose(10);
  const Resources before = ResourcesNow();
  openAndClose(100);
  const Resources after = ResourcesNow();
  EXPECT_LE(after.handles, before.handles + 5);
  EXPECT_LE(after.heapBytes, before.heapBytes + 20000);
}

}  // namespace
