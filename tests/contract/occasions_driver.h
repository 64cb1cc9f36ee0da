// The windows of occasions.dll, worked from outside.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <cwctype>
#include <string>
#include <vector>

#include "companion/occasions.h"
#include "libraries/occasions/occasions_ids.h"
#include "tests/contract/dialog_driver.h"
#include "tests/contract/settings_home.h"

inline constexpr wchar_t kOccasionsTitle[] = L"Occasions of the Year - Jerusalem";
inline constexpr wchar_t kOccasionSettingsTitle[] = L"Occasions: What Is Shown";

// A range of whole years or of days.
struct OccasionsRange {
  uint32_t firstDay, firstMonth, firstYear, lastDay, lastMonth, lastYear;
};
inline constexpr OccasionsRange kApril2001 = {1, 4, 2001, 30, 4, 2001};

// What the library enumerates for Jerusalem.
inline std::vector<OccasionsRecord> Enumerated(const OccasionsRange& range) {
  std::vector<OccasionsRecord> records;
  const auto receive = [](const OccasionsRecord* record, void* context) -> int32_t {
    static_cast<std::vector<OccasionsRecord>*>(context)->push_back(*record);
    return 1;
  };
  EXPECT_NE(OccasionsEnumerate("Jerusalem", 3147, 3514, 2, 0, range.firstDay, range.firstMonth, range.firstYear,
                               range.lastDay, range.lastMonth, range.lastYear, receive, &records),
            0);
  return records;
}

inline std::wstring WideOf(const char* utf8) {
  wchar_t wide[1000] = L"";
  MultiByteToWideChar(CP_UTF8, 0, utf8, -1, wide, 1000);
  return wide;
}

inline std::wstring DateOf(const OccasionsRecord& record) {
  wchar_t text[40];
  std::swprintf(text, 40, L"%02u.%02u.%04u", record.day, record.month, record.year);
  return text;
}

inline std::wstring TimeOf(const OccasionsRecord& record) {
  if (record.hour < 0) return record.hour == OCCASIONS_WHOLE_DAY ? L"" : L"----";
  wchar_t text[40];
  std::swprintf(text, 40, L"%02d:%02d", record.hour, record.minute);
  return text;
}

// As a row of a drop-down list is chosen.
inline void Choose(HWND dialog, int combo, int row) {
  SendDlgItemMessageW(dialog, combo, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
  SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(combo, CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(GetDlgItem(dialog, combo)));
}

inline int ChosenIn(HWND dialog, int combo) {
  return static_cast<int>(SendDlgItemMessageW(dialog, combo, CB_GETCURSEL, 0, 0));
}

// The letters that are keys with Alt.
inline bool AreAccessKeysDifferent(HWND dialog) {
  std::wstring keys;
  for (HWND control = GetWindow(dialog, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
    const std::wstring text = WindowText(control);
    const size_t mark = text.find(L'&');
    if (mark != text.npos && mark + 1 < text.size()) keys += static_cast<wchar_t>(towlower(text[mark + 1]));
  }
  std::ranges::sort(keys);
  return keys.size() > 1 && std::ranges::adjacent_find(keys) == keys.end();
}

class OccasionsRun : public DialogDriver {
 public:
  enum Column { kDate, kWeekday, kJewishDate, kOccasion, kTime, kRemark };
  enum SpanRow { kRange, kJewishYear, kCivilYear };

  explicit OccasionsRun(const OccasionsRange& range = kApril2001)
      : DialogDriver([range](HWND owner) {
          OccasionsDoDialog(owner, "Jerusalem", 3147, 3514, 2, 0, range.firstDay, range.firstMonth, range.firstYear,
                            range.lastDay, range.lastMonth, range.lastYear);
          return 1;
        }),
        window_(WaitFor(kOccasionsTitle)),
        list_(GetDlgItem(window_, IDC_OCCASIONS)) {}

  HWND Window() const { return window_; }
  HWND List() const { return list_; }
  bool IsEnabled(int id) const { return IsWindowEnabled(GetDlgItem(window_, id)) != FALSE; }
  // What the button does is done when this returns; for those that open no dialog.
  void Click(int button) const { SendMessageW(window_, WM_COMMAND, static_cast<WPARAM>(button), 0); }
  void Type(const std::wstring& text) const { SetControlText(window_, IDC_TYPED, text); }
  void TypeYear(const std::wstring& text) const { SetControlText(window_, IDC_YEAR, text); }
  void LeaveYear() const { SendMessageW(window_, WM_COMMAND, MAKEWPARAM(IDC_YEAR, EN_KILLFOCUS), 0); }
  std::wstring Text(int control) const { return ControlText(window_, control); }
  void ChooseSpan(SpanRow row) const { Choose(window_, IDC_SPAN, row); }
  void ChooseHebrew(bool isHebrew) const {
    CheckDlgButton(window_, IDC_HEBREW, isHebrew ? BST_CHECKED : BST_UNCHECKED);
    Click(IDC_HEBREW);
  }

  int Count() const { return static_cast<int>(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0)); }
  int Selected() const { return static_cast<int>(SendMessageW(list_, LVM_GETNEXTITEM, ~WPARAM{0}, LVNI_SELECTED)); }
  void Select(int row, bool selected) const {
    LVITEMW item = {};
    item.stateMask = LVIS_SELECTED;
    item.state = selected ? LVIS_SELECTED : 0;
    SendMessageW(list_, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  }
  std::wstring Cell(int row, int column) const { return ListCell(list_, row, column); }

  void End() {
    Press(window_, IDCANCEL);
    Result();
  }

 private:
  HWND window_;
  HWND list_;
};

class OccasionsTest : public testing::Test {
 protected:
  OccasionsTest() { home_.Put("stamp.ini", "[Times]\r\nForm=24\r\n"); }

  SettingsHome home_;
};
