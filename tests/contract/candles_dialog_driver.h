// The dialogs of the custom candle-lighting times, as the tests work them.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "companion/candles.h"
#include "libraries/candles/candles_ids.h"
#include "tests/contract/dialog_driver.h"
#include "tests/contract/settings_home.h"

inline constexpr wchar_t kTitle[] = L"Custom Candle-Lighting Times";
inline constexpr char kTwoEntries[] = "2024-03-08 17:25 18:31 Jerusalem\r\n2024-03-15 17:30 18:36 Jerusalem\r\n";

using Row = std::vector<std::wstring>;

// A run of the list dialog.
class ListDialog : public DialogDriver {
 public:
  explicit ListDialog(int32_t (*call)(HWND owner) = Call)
      : DialogDriver(call), window_(WaitFor(kTitle)), list_(GetDlgItem(window_, IDC_TIMES)) {}

  HWND Window() const { return window_; }
  HWND List() const { return list_; }

  int Count() const { return static_cast<int>(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0)); }
  std::vector<Row> Rows() const {
    std::vector<Row> rows;
    for (int row = 0; row < Count(); ++row) rows.push_back({Cell(row, 0), Cell(row, 1), Cell(row, 2), Cell(row, 3)});
    return rows;
  }
  bool IsEnabled(int buttonId) const { return IsWindowEnabled(GetDlgItem(window_, buttonId)); }

  // The first selected row; -1 when there is none.
  int SelectedRow() const { return static_cast<int>(SendMessageW(list_, LVM_GETNEXTITEM, ~WPARAM{0}, LVNI_SELECTED)); }
  // Row -1: all.
  void Select(int row, bool isSelected) const {
    LVITEMW item = {};
    item.stateMask = LVIS_SELECTED;
    item.state = isSelected ? LVIS_SELECTED : 0;
    SendMessageW(list_, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  }

  // Waits until so many rows are shown and the dialog is the one in use again.
  bool WaitForCount(int count) const {
    return Eventually([this, count] { return Count() == count && IsWindowEnabled(window_); });
  }
  void PressInList(WPARAM key) const { PressKey(list_, key); }

  void Accept() {
    Press(window_, IDOK);
    Result();
  }

 private:
  static int32_t Call(HWND owner) {
    CandlesDoDialog(owner);
    return 0;
  }
  std::wstring Cell(int row, int column) const { return ListCell(list_, row, column); }

  HWND window_;
  HWND list_;
};

// The dialog of one entry, opened by a button of the list dialog.
class EntryDialog {
 public:
  EntryDialog(const ListDialog& list, int buttonId) : list_(list) {
    Press(list.Window(), buttonId);
    window_ = list.WaitFor(buttonId == IDC_ADD ? L"Add Times" : L"Change Times");
  }

  HWND Window() const { return window_; }
  HWND Field(int id) const { return GetDlgItem(window_, id); }
  // What takes the field's focus and holds its selection.
  HWND Edit(int id) const { return id == IDC_PLACE ? FindWindowExW(Field(id), nullptr, L"Edit", nullptr) : Field(id); }
  std::wstring Text(int id) const { return ControlText(window_, id); }
  void Set(int id, const std::wstring& text) const { SetControlText(window_, id, text); }
  void Fill(const std::wstring& place, const std::wstring& friday, const std::wstring& candles,
            const std::wstring& end) const {
    Set(IDC_PLACE, place);
    Set(IDC_FRIDAY, friday);
    Set(IDC_CANDLE_TIME, candles);
    Set(IDC_END_TIME, end);
  }
  bool Accept() const { return End(IDOK); }
  bool Cancel() const { return End(IDCANCEL); }

  // Presses OK, which an error answers; its text. The focus must then be in the field, all its text selected.
  std::wstring ErrorIn(int fieldId) const {
    Press(window_, IDOK);
    const std::wstring text = list_.Answer(L"Error", window_, IDI_HAND, IDOK);
    EXPECT_TRUE(list_.WaitForFocus(Edit(fieldId))) << "field " << fieldId;
    EXPECT_TRUE(Eventually([&] { return IsAllSelected(Edit(fieldId)); })) << "field " << fieldId;
    return text;
  }

  // What the list of the place's field offers.
  std::vector<std::wstring> Places() const {
    std::vector<std::wstring> places;
    const LRESULT count = SendMessageW(Field(IDC_PLACE), CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
      wchar_t text[300] = L"";
      SendMessageW(Field(IDC_PLACE), CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
      places.push_back(text);
    }
    return places;
  }

 private:
  bool End(int buttonId) const {
    Press(window_, buttonId);
    return list_.WaitUntilGone(window_);
  }

  const ListDialog& list_;
  HWND window_ = nullptr;
};

// Each test has a settings folder of its own.
class CandlesDialog : public testing::Test {
 protected:
  std::string Stored() const { return home_.Bytes("candles.txt"); }

  SettingsHome home_;
};
