#include <gtest/gtest.h>

#include <algorithm>
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

// In the list.
constexpr LRESULT kEnglish = 0;
constexpr LRESULT kHebrew = 2;
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

  // As the user does: LB_SETCURSEL alone tells the dialog nothing.
  void Select(LRESULT index) const {
    SendMessageW(List(), LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    SendMessageW(window_, WM_COMMAND, MAKEWPARAM(IDC_LANGUAGES, LBN_SELCHANGE), reinterpret_cast<LPARAM>(List()));
  }

  // The one edit control of the two that is to be seen.
  HWND Sample() const {
    const HWND left = GetDlgItem(window_, IDC_WEEK);
    const HWND right = GetDlgItem(window_, IDC_WEEK_FROM_RIGHT);
    EXPECT_NE(IsWindowVisible(left), IsWindowVisible(right));
    return IsWindowVisible(left) ? left : right;
  }
  std::wstring SampleText() const { return WindowText(Sample()); }
  HWND OwnNumbers() const { return GetDlgItem(window_, IDC_OWN_NUMBERS); }
  bool IsOwnNumbers() const { return SendMessageW(OwnNumbers(), BM_GETCHECK, 0, 0) == BST_CHECKED; }
  std::wstring WhoseNumbers() const { return ControlText(window_, IDC_WHOSE_NUMBERS); }

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
  expected.replace(expected.find("OwnNumbers=1"), 12, "OwnNumbers=0");
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
  const std::vector<std::wstring> languages = dialog.Languages();
  ASSERT_GE(languages.size(), 3u);
  EXPECT_EQ(languages[0], L"English");
  EXPECT_EQ(languages[1], L"English (Ashkenazi spelling)");
  EXPECT_EQ(languages[2], L"Hebrew (\u05E2\u05D1\u05E8\u05D9\u05EA)");
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
  PressKey(dialog.List(), VK_DOWN);
  EXPECT_TRUE(Eventually([&] { return dialog.Selected() == 2; }));
  PressKey(dialog.List(), VK_RETURN);
  EXPECT_NE(dialog.Result(), 0);
  EXPECT_EQ(LectionsGetLanguage(), 4u);
  std::string expected = kAllStored;
  expected.replace(expected.find("Language=2"), 10, "Language=4");
  EXPECT_EQ(home_.Bytes("lections.ini"), expected);
}

// Every week has a weekly portion or a festival, whatever today is.
TEST_F(LectionsDialog, TheSampleIsInTheLanguageThatIsSelected) {
  home_.Put("lections.ini", "[Readings]\r\nLanguage=1\r\nLand=Israel\r\n");
  LanguageDialog dialog;
  const std::wstring english = dialog.SampleText();
  EXPECT_NE(english.find(L"\r\n"), std::wstring::npos);
  EXPECT_EQ(english.find_first_not_of(L"0123456789."), english.find(L"\r\n")) << "a date first";
  EXPECT_EQ(GetWindowLongPtrW(dialog.Sample(), GWL_STYLE) & ES_RIGHT, 0);
  dialog.Select(kHebrew);
  const std::wstring hebrew = dialog.SampleText();
  EXPECT_EQ(hebrew.substr(0, 10), english.substr(0, 10));
  EXPECT_NE(hebrew.find_first_of(L"\u05D0\u05D1\u05D2\u05D3\u05D4\u05D5"), std::wstring::npos);
  EXPECT_EQ(hebrew.find_first_of(L"?\uFFFD"), std::wstring::npos);
  EXPECT_EQ(hebrew.find_first_of(L"abcdefghijklmnopqrstuvwxyz"), std::wstring::npos);
  EXPECT_NE(GetWindowLongPtrW(dialog.Sample(), GWL_STYLE) & ES_RIGHT, 0);
  EXPECT_NE(GetWindowLongPtrW(dialog.Sample(), GWL_EXSTYLE) & WS_EX_RTLREADING, 0);
  dialog.Select(kEnglish);
  EXPECT_EQ(dialog.SampleText(), english);
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Result(), 0);
}

TEST_F(LectionsDialog, NoSampleHasAnEmptyOrADamagedText) {
  LanguageDialog dialog;
  const std::vector<std::wstring> languages = dialog.Languages();
  for (size_t i = 0; i < languages.size(); ++i) {
    dialog.Select(static_cast<LRESULT>(i));
    const std::wstring sample = dialog.SampleText();
    EXPECT_GT(std::ranges::count(sample, L'\n'), 1) << languages[i].c_str();
    EXPECT_EQ(sample.find_first_of(L"?\uFFFD"), std::wstring::npos) << languages[i].c_str();
    const bool isGreek = languages[i].starts_with(L"Greek");
    EXPECT_EQ(sample.find(L'\u03C2') != std::wstring::npos || sample.find(L'\u03B1') != std::wstring::npos, isGreek);
  }
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Result(), 0);
}

TEST_F(LectionsDialog, TheSampleIsReadByTabAndScrolledByKeys) {
  LanguageDialog dialog;
  ASSERT_TRUE(dialog.WaitForFocus(dialog.List()));
  PressKey(dialog.List(), VK_TAB);
  EXPECT_TRUE(dialog.WaitForFocus(dialog.Sample()));
  PressKey(dialog.Sample(), VK_TAB);
  EXPECT_TRUE(dialog.WaitForFocus(dialog.OwnNumbers()));
  PressKey(dialog.OwnNumbers(), VK_ESCAPE);
  EXPECT_EQ(dialog.Result(), 0);
}

TEST_F(LectionsDialog, TheNumbersOfTheLanguagesBiblesAreStored) {
  home_.Put("lections.ini", kFirstStored);
  LanguageDialog dialog;
  EXPECT_FALSE(dialog.IsOwnNumbers());
  EXPECT_EQ(dialog.WhoseNumbers(), L"As in the King James Version.");
  SendMessageW(dialog.OwnNumbers(), BM_CLICK, 0, 0);
  EXPECT_TRUE(dialog.IsOwnNumbers());
  Press(dialog.Window(), IDOK);
  EXPECT_NE(dialog.Result(), 0);
  std::string expected = kFirstStored;
  expected.replace(expected.find("OwnNumbers=0"), 12, "OwnNumbers=1");
  EXPECT_EQ(home_.Bytes("lections.ini"), expected);
  LectionsReadings readings;  // Vayishlach, 14 December 2024: 32:4 in Hebrew
  LectionsGetReadings(13, 9, 5785, &readings);
  EXPECT_STREQ(readings.torah1, "Vayishlach: Genesis 32:3-36:43");
}

TEST_F(LectionsDialog, WhereTheBiblesNumberAsTheHebrewOneTheChoiceIsGreyAndKept) {
  home_.Put("lections.ini", kAllStored);
  LanguageDialog dialog;
  EXPECT_TRUE(IsWindowEnabled(dialog.OwnNumbers()));
  dialog.Select(kHebrew);
  EXPECT_FALSE(IsWindowEnabled(dialog.OwnNumbers()));
  EXPECT_EQ(dialog.WhoseNumbers(), L"Its Bibles number as the Hebrew one.");
  EXPECT_TRUE(dialog.IsOwnNumbers());
  dialog.Select(kEnglish);
  EXPECT_TRUE(IsWindowEnabled(dialog.OwnNumbers()));
  EXPECT_TRUE(dialog.IsOwnNumbers());
  dialog.Select(kHebrew);
  Press(dialog.Window(), IDOK);
  EXPECT_NE(dialog.Result(), 0);
  std::string expected = kAllStored;
  expected.replace(expected.find("Language=2"), 10, "Language=4");
  EXPECT_EQ(home_.Bytes("lections.ini"), expected);
}

TEST_F(LectionsDialog, CancelLeavesLanguageAndNumbers) {
  home_.Put("lections.ini", kFirstStored);
  LanguageDialog dialog;
  SendMessageW(dialog.OwnNumbers(), BM_CLICK, 0, 0);
  dialog.Select(kHebrew);
  Press(dialog.Window(), IDCANCEL);
  EXPECT_EQ(dialog.Result(), 0);
  EXPECT_EQ(home_.Bytes("lections.ini"), kFirstStored);
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
