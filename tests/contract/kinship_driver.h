// The window of kinship.dll, worked from outside.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "companion/kinship.h"
#include "libraries/kinship/kinship_ids.h"
#include "tests/contract/dialog_driver.h"
#include "tests/contract/settings_home.h"

inline constexpr wchar_t kKinshipTitle[] = L"Birthdays and Yahrzeit";

// Latin, Hebrew and Cyrillic letters. The days in 2000 and after it, which are not the current year whenever the tests
// run: by published calendars 14 Adar I 5760 is 20 February 2000, 15 Nisan 20 April, 5 Iyar 10 May, 1 Tishri 5761
// 30 September; 14 Adar 5761 is 9 March 2001, 14 Adar 5762 is 26 February 2002.
inline constexpr char kFourPersons[] =
    "yahrzeit|5710-12-14 jewish||Moshe||\r\n"
    "birthday|1948-05-14||anna||Likes books\r\n"
    "wedding|0000-07-01 jewish||\xD0\x9B\xD0\xB5\xD0\xB2||\r\n"
    "other|5750-01-15 jewish||\xD7\xA9\xD7\xA8\xD7\x94|Aliyah|\r\n";
inline constexpr wchar_t kLev[] = L"\u041B\u0435\u0432";
inline constexpr wchar_t kSara[] = L"\u05E9\u05E8\u05D4";

class KinshipRun : public DialogDriver {
 public:
  explicit KinshipRun(uint32_t year = 2000)
      : DialogDriver([year](HWND owner) {
          KinshipInvoke(owner, KINSHIP_GREGORIAN, year);
          return 1;
        }),
        window_(WaitFor(kKinshipTitle)),
        list_(GetDlgItem(window_, IDC_PERSONS)) {}

  HWND Window() const { return window_; }
  HWND List() const { return list_; }
  bool IsEnabled(int id) const { return IsWindowEnabled(GetDlgItem(window_, id)) != FALSE; }
  // What the button does is done when this returns; for those that open no dialog.
  void Click(int button) const { SendMessageW(window_, WM_COMMAND, static_cast<WPARAM>(button), 0); }
  void Key(WPARAM key) const { SendMessageW(list_, WM_KEYDOWN, key, 1); }
  void Type(const std::wstring& text) const { SetControlText(window_, IDC_TYPED, text); }
  std::wstring CountText() const { return ControlText(window_, IDC_COUNT); }

  // As a row of a drop-down list is chosen.
  static void Choose(HWND dialog, int combo, int row) {
    SendDlgItemMessageW(dialog, combo, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(combo, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, combo)));
  }

  int Count() const { return static_cast<int>(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0)); }
  int Selected() const { return static_cast<int>(SendMessageW(list_, LVM_GETNEXTITEM, ~WPARAM{0}, LVNI_SELECTED)); }
  void Select(int row, bool selected = true) const {
    LVITEMW item = {};
    item.stateMask = LVIS_SELECTED;
    item.state = selected ? LVIS_SELECTED : 0;
    SendMessageW(list_, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  }
  void SelectOnly(int row) const {
    Select(-1, false);
    Select(row);
  }
  std::wstring Cell(int row, int column) const { return ListCell(list_, row, column); }
  std::vector<std::wstring> Cells(int row) const {
    std::vector<std::wstring> cells;
    for (int column = 0; column < 10; ++column) cells.push_back(Cell(row, column));
    return cells;
  }
  std::vector<std::wstring> Names() const {
    std::vector<std::wstring> names;
    for (int row = 0; row < Count(); ++row) names.push_back(Cell(row, 0));
    return names;
  }
  std::wstring Heading(int column) const {
    wchar_t text[100] = L"";
    LVCOLUMNW shown = {};
    shown.mask = LVCF_TEXT;
    shown.pszText = text;
    shown.cchTextMax = 100;
    SendMessageW(list_, LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&shown));
    return text;
  }
  void ClickHeading(int column) const {
    NMLISTVIEW click = {};
    click.hdr = {list_, IDC_PERSONS, static_cast<UINT>(LVN_COLUMNCLICK)};
    click.iSubItem = column;
    SendMessageW(window_, WM_NOTIFY, IDC_PERSONS, reinterpret_cast<LPARAM>(&click));
  }

  // The dialog of one entry.
  HWND OpenEntry(int button) const {
    Press(window_, button);
    return WaitFor(button == IDC_ADD ? L"Add Date" : L"Change Date");
  }
  void CloseEntry(HWND entry, int button) const {
    Press(entry, button);
    EXPECT_TRUE(WaitUntilGone(entry));
    EXPECT_TRUE(Eventually([this] { return IsWindowEnabled(window_) != FALSE; }));
  }

  void End(int button) {
    Press(window_, button);
    Result();
  }
  // With changes that are to be lost.
  void Discard() {
    Press(window_, IDCANCEL);
    Answer(kKinshipTitle, window_, IDI_QUESTION, IDYES);
    Result();
  }

 private:
  HWND window_;
  HWND list_;
};

class KinshipTest : public testing::Test {
 protected:
  KinshipTest() { home_.Put("persons.txt", kFourPersons); }
  std::string Stored() const { return home_.Bytes("persons.txt"); }

  SettingsHome home_;
};
