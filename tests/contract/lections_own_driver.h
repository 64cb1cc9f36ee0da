// The dialog of the user's own texts of readings, worked from outside.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <filesystem>
#include <string>
#include <vector>

#include "companion/lections.h"
#include "libraries/lections/lections_ids.h"
#include "tests/contract/dialog_driver.h"
#include "tests/contract/region.h"
#include "tests/contract/settings_home.h"

inline constexpr wchar_t kOwnTitle[] = L"Custom Readings";
inline constexpr char kOwnFile[] = "readings.txt";

// Rows of the drop-down lists.
inline constexpr int kPortionsKind = 1;
inline constexpr int kDatesKind = 3;
inline constexpr int kWithOwnTextsKind = 4;
inline constexpr int kHaftarah1Row = 3;
inline constexpr int kAllRow = 0;
inline constexpr int kSephardiRow = 2;
inline constexpr int kEnglishRow = 1;

inline void ChooseRow(HWND dialog, int combo, int row) {
  SendDlgItemMessageW(dialog, combo, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
  SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(combo, CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(GetDlgItem(dialog, combo)));
}

class OwnReadingsRun : public DialogDriver {
 public:
  OwnReadingsRun() : DialogDriver(LectionsDoCustomReadingsDialog), window_(WaitFor(kOwnTitle)) {}

  HWND Window() const { return window_; }
  HWND Control(int id) const { return GetDlgItem(window_, id); }
  HWND Readings() const { return Control(IDC_OWN_READINGS); }
  HWND OwnTexts() const { return Control(IDC_OWN_TEXTS); }
  bool IsEnabled(int id) const { return IsWindowEnabled(Control(id)) != FALSE; }
  std::wstring Text(int id) const { return ControlText(window_, id); }
  // What the button does is done when this returns; for those that open no dialog.
  void Click(int button) const { SendMessageW(window_, WM_COMMAND, static_cast<WPARAM>(button), 0); }
  void Type(const std::wstring& text) const { SetControlText(window_, IDC_OWN_TYPED, text); }
  void ShowKind(int kind) const { ChooseRow(window_, IDC_OWN_KINDS, kind); }

  // Narrows the list down so that the portion is its first row, which is selected.
  void ShowPortion(const std::wstring& name) const {
    ShowKind(kPortionsKind);
    Type(name);
    EXPECT_EQ(ListCell(Readings(), 0, 0), name);
  }

  static int Count(HWND list) { return static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0)); }
  static int Selected(HWND list) {
    return static_cast<int>(SendMessageW(list, LVM_GETNEXTITEM, ~WPARAM{0}, LVNI_SELECTED));
  }
  static void SelectOnly(HWND list, int row) {
    LVITEMW item = {};
    item.stateMask = LVIS_SELECTED;
    SendMessageW(list, LVM_SETITEMSTATE, ~WPARAM{0}, reinterpret_cast<LPARAM>(&item));
    item.state = LVIS_SELECTED;
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  }
  std::vector<std::wstring> OwnText(int row) const {
    std::vector<std::wstring> cells;
    for (int column = 0; column < 4; ++column) cells.push_back(ListCell(OwnTexts(), row, column));
    return cells;
  }

  // The dialog of one text of a reading.
  HWND OpenText(int button, const std::wstring& reading) const {
    Press(window_, button);
    return WaitFor(L"Own Text: " + reading);
  }
  void CloseText(HWND dialog, int button) const {
    Press(dialog, button);
    EXPECT_TRUE(WaitUntilGone(dialog));
    EXPECT_TRUE(Eventually([this] { return IsWindowEnabled(window_) != FALSE; }));
  }
  // A text for the first haftarah of a portion, whatever the land, customs and language.
  void AddHaftarah(const std::wstring& portion, const std::wstring& text) const {
    ShowPortion(portion);
    const HWND dialog = OpenText(IDC_OWN_ADD, portion);
    ChooseRow(dialog, IDC_OWN_SLOT, kHaftarah1Row);
    ChooseRow(dialog, IDC_OWN_LISTING, kAllRow);
    SetControlText(dialog, IDC_OWN_TEXT, text);
    CloseText(dialog, IDOK);
  }

  // The answer of the call after a button that closes the dialog.
  int32_t End(int button) {
    Press(window_, button);
    return Result();
  }
  // With changes that are to be lost.
  int32_t Discard() {
    Press(window_, IDCANCEL);
    Answer(kOwnTitle, window_, IDI_QUESTION, IDYES);
    return Result();
  }

 private:
  HWND window_;
};

// The diaspora and both customs in English, whatever the region.
class OwnReadingsDialogTest : public testing::Test {
 protected:
  OwnReadingsDialogTest() { Set("1"); }

  void Set(const std::string& language) const {
    home_.Put("lections.ini", "[Readings]\r\nLand=Diaspora\r\nCustom=Both\r\nLanguage=" + language + "\r\n");
    EXPECT_TRUE(Eventually([&] { return std::to_string(LectionsGetLanguage()) == language; }));
  }
  void Put(const std::string& bytes) const { home_.Put(kOwnFile, bytes); }
  std::string Stored() const { return home_.Bytes(kOwnFile); }
  bool IsFile() const { return std::filesystem::exists(home_.Path(kOwnFile)); }

  // The first haftarah of a Jewish date.
  static std::string Haftarah(uint32_t day, uint32_t month, uint32_t year) {
    LectionsReadings readings;
    LectionsGetReadings(day, month, year, &readings);
    return readings.haftarah1;
  }
  // That of 9 November 2024, Lech Lecha.
  static std::string LechLecha() { return Haftarah(8, 8, 5785); }

  SettingsHome home_;
};
inline constexpr char kLechLechasOwn[] = "Isaiah 40:27-41:16";
