// The dialogs of the libraries when another program holds the file that they edit: they do not open on defaults.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "companion/candles.h"
#include "companion/hours.h"
#include "companion/lections.h"
#include "companion/placepick.h"
#include "companion/profile.h"
#include "companion/stamp.h"
#include "libraries/hours/hours_ids.h"
#include "libraries/lections/lections_ids.h"
#include "libraries/stamp/stamp_ids.h"
#include "tests/contract/dialog_driver.h"
#include "tests/contract/held_file.h"
#include "tests/contract/settings_home.h"

namespace {

int32_t ChooseZmanim(HWND owner) {
  HoursDoDialogInitLoc(owner, 3147, 3514, 2, 0);
  return 0;
}

int32_t ChangeCandles(HWND owner) {
  CandlesDoDialog(owner);
  return 0;
}

int32_t PickPlace(HWND owner) {
  char name[256] = "Jerusalem";
  return PlacePickSelectLocation(owner, name);
}

// Waits for the box, so that the file was held when it was looked at, and has it tried again with the file free.
void RetryWith(HeldFile& held, const DialogDriver& driver) {
  WaitForDialog(L"Times / Readings");
  held.Release();
  driver.Answer(L"Times / Readings", driver.Owner(), IDI_WARNING, IDRETRY);
}

constexpr char kTwoZmanim[] = "zman sunset\r\nzman own-1\r\nown 1 hours-gra 3 up Mine\r\n";

struct EditingDialog {
  const char* file;
  const char* bytes;
  int32_t (*call)(HWND owner);
  const wchar_t* title;
};

constexpr EditingDialog kDialogs[] = {
    {"hours.txt", kTwoZmanim, ChooseZmanim, L"Zmanim Selection"},
    {"candles.txt", "2024-03-08 17:25 18:31 Jerusalem\r\n", ChangeCandles, L"Custom Candle-Lighting Times"},
    {"stamp.ini", "[Times]\r\nForm=12\r\n", StampConfigure, L"Form of Times"},
    {"lections.ini", "[Readings]\r\nLand=Israel\r\n", LectionsDoConfigureDialog, L"Readings"},
    {"lections.ini", "[Readings]\r\nLanguage=4\r\n", LectionsDoLanguageDialog, L"Language of Readings"},
    {"lections.ini", "[Readings]\r\nLand=Israel\r\n", LectionsDoCustomReadingsDialog, L"Custom Readings"},
    {"readings.txt", "date 7 Adar | torah 1 | all | all | all | instead | Siyum\r\n", LectionsDoCustomReadingsDialog,
     L"Custom Readings"},
    {"almanac13.ini", "[Preferences]\r\nDefaultLocation=Haifa\r\n", PickPlace, L"Select Location"},
    {"shabbat2.ini", "[Locations]\r\nHome=Available\r\n", PickPlace, L"Select Location"},
    {"shabloc2.ini", "[Home]\r\nLatitudeDegrees=32\r\n", PickPlace, L"Select Location"},
};

std::wstring Refused(const DialogDriver& driver, int button) {
  return driver.Answer(L"Times / Readings", driver.Owner(), IDI_WARNING, button);
}

TEST(UnreadSettings, DialogDoesNotOpenAndTheFileIsNamed) {
  for (const EditingDialog& dialog : kDialogs) {
    SCOPED_TRACE(dialog.title);
    const SettingsHome home;
    home.Put(dialog.file, dialog.bytes);
    HeldFile held(home.Path(dialog.file));
    DialogDriver driver(dialog.call);
    EXPECT_NE(Refused(driver, IDRETRY).find(home.Path(dialog.file).wstring()), std::wstring::npos);
    EXPECT_NE(Refused(driver, IDCANCEL).find(L"then choose Retry"), std::wstring::npos);
    EXPECT_EQ(driver.Result(), 0);
    held.Release();
    EXPECT_EQ(home.Bytes(dialog.file), dialog.bytes);
  }
}

TEST(UnreadSettings, RetryOpensTheDialogOnceTheFileIsFree) {
  for (const EditingDialog& dialog : kDialogs) {
    SCOPED_TRACE(dialog.title);
    const SettingsHome home;
    home.Put(dialog.file, dialog.bytes);
    HeldFile held(home.Path(dialog.file));
    DialogDriver driver(dialog.call);
    RetryWith(held, driver);
    Press(driver.WaitFor(dialog.title), IDCANCEL);
    EXPECT_EQ(driver.Result(), 0);
    EXPECT_EQ(home.Bytes(dialog.file), dialog.bytes);
  }
}

TEST(UnreadSettings, AfterRetryTheDialogShowsWhatIsStored) {
  const SettingsHome home;
  home.Put("hours.txt", kTwoZmanim);
  home.Put("stamp.ini", "[Times]\r\nForm=12\r\n");
  home.Put("lections.ini", "[Readings]\r\nLand=Israel\r\nCustom=Sephardi\r\n");
  const auto openedAfterRetry = [&](const char* file, int32_t (*call)(HWND), const wchar_t* title,
                                    const std::function<void(HWND)>& check) {
    HeldFile held(home.Path(file));
    DialogDriver driver(call);
    RetryWith(held, driver);
    const HWND dialog = driver.WaitFor(title);
    check(dialog);
    Press(dialog, IDOK);
    driver.Result();
  };
  openedAfterRetry("stamp.ini", StampConfigure, L"Form of Times",
                   [](HWND dialog) { EXPECT_EQ(IsDlgButtonChecked(dialog, IDC_12_HOURS), BST_CHECKED); });
  openedAfterRetry("hours.txt", ChooseZmanim, L"Zmanim Selection",
                   [](HWND dialog) { EXPECT_EQ(ControlText(dialog, IDC_CHOSEN_LABEL), L"&Chosen: 2"); });
  openedAfterRetry("lections.ini", LectionsDoConfigureDialog, L"Readings", [](HWND dialog) {
    EXPECT_EQ(IsDlgButtonChecked(dialog, IDC_ISRAEL), BST_CHECKED);
    EXPECT_EQ(IsDlgButtonChecked(dialog, IDC_SEPHARDI), BST_CHECKED);
  });
  EXPECT_EQ(home.Bytes("hours.txt"), kTwoZmanim);
  EXPECT_EQ(home.Bytes("stamp.ini"), "[Times]\r\nForm=12\r\n");
  EXPECT_NE(home.Bytes("lections.ini").find("Land=Israel\r\nCustom=Sephardi\r\n"), std::string::npos);
}

TEST(UnreadSettings, AFileSeenBeforeItWasHeldIsKnown) {
  const SettingsHome home;
  home.Put("stamp.ini", "[Times]\r\nForm=12\r\n");
  EXPECT_NE(StampIsAmPm(), 0);
  const HeldFile held(home.Path("stamp.ini"));
  DialogDriver driver(StampConfigure);
  const HWND dialog = driver.WaitFor(L"Form of Times");
  EXPECT_EQ(IsDlgButtonChecked(dialog, IDC_12_HOURS), BST_CHECKED);
  Press(dialog, IDCANCEL);
  EXPECT_EQ(driver.Result(), 0);
}

TEST(UnreadSettings, ProfileTellsWhatCanBeRead) {
  const SettingsHome home;
  EXPECT_NE(ProfileCanRead("a.ini"), 0) << "a missing file is read as an empty one";
  EXPECT_NE(ProfileCanRead(nullptr), 0);
  home.Put("a.ini", "[A]\r\nx=1\r\n");
  {
    const HeldFile held(home.Path("a.ini"));
    EXPECT_EQ(ProfileCanRead("a.ini"), 0);
    EXPECT_EQ(ProfileCanRead(home.Path("a.ini").string().c_str()), 0);
  }
  EXPECT_NE(ProfileCanRead("a.ini"), 0);
  EXPECT_EQ(ProfileGetInt("A", "x", 7, "a.ini"), 1) << "at once";
  {
    const HeldFile held(home.Path("a.ini"));
    EXPECT_NE(ProfileCanRead("a.ini"), 0) << "nothing has changed since it was read";
  }
  home.Put("a.ini", "[A]\r\nx=22\r\n");
  {
    const HeldFile held(home.Path("a.ini"));
    EXPECT_EQ(ProfileCanRead("a.ini"), 0);
    EXPECT_EQ(ProfileGetInt("A", "x", 7, "a.ini"), 1) << "what was last seen";
    EXPECT_EQ(ProfileWriteString("A", "y", "3", "a.ini"), 0);
  }
  EXPECT_EQ(home.Bytes("a.ini"), "[A]\r\nx=22\r\n") << "a write has replaced what it could not read";
  std::filesystem::create_directories(home.Path("folder.ini"));
  EXPECT_EQ(ProfileCanRead("folder.ini"), 0);
}

}  // namespace
