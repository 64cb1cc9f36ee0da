// The dialogs of the selection of zmanim, as the tests work them.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <string>
#include <vector>

#include "companion/hours.h"
#include "libraries/hours/hours_ids.h"
#include "tests/contract/dialog_driver.h"
#include "tests/contract/regional_form.h"
#include "tests/contract/settings_home.h"

inline constexpr wchar_t kSelectionTitle[] = L"Zmanim Selection";

// A run of the selection dialog, for Jerusalem unless another place is given.
class SelectionRun : public DialogDriver {
 public:
  explicit SelectionRun(int32_t latitude = 3147, int32_t longitude = 3514, int32_t zoneHours = 2)
      : DialogDriver([=](HWND owner) {
          HoursDoDialogInitLoc(owner, latitude, longitude, zoneHours, 0);
          return 0;
        }),
        window_(WaitFor(kSelectionTitle)) {}

  HWND Window() const { return window_; }
  HWND Control(int id) const { return GetDlgItem(window_, id); }
  bool IsEnabled(int id) const { return IsWindowEnabled(Control(id)) != FALSE; }
  std::wstring Text(int id) const { return ControlText(window_, id); }

  // The typed words; returns when the list shows what they find.
  void Type(const std::wstring& text) const { SetControlText(window_, IDC_TYPED, text); }
  // What the button does is done when this returns: none of these opens a dialog.
  void Click(int button) const { SendMessageW(window_, WM_COMMAND, static_cast<WPARAM>(button), 0); }
  void Key(int listId, WPARAM key) const { SendMessageW(Control(listId), WM_KEYDOWN, key, 1); }
  void AltKey(int listId, WPARAM key) const { SendMessageW(Control(listId), WM_SYSKEYDOWN, key, 0x20000001); }
  void FocusOn(int id) const {
    SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(id)), TRUE);
    EXPECT_TRUE(WaitForFocus(Control(id)));
  }

  int Count(int listId) const { return static_cast<int>(SendMessageW(Control(listId), LVM_GETITEMCOUNT, 0, 0)); }
  int Selected(int listId) const {
    return static_cast<int>(SendMessageW(Control(listId), LVM_GETNEXTITEM, ~WPARAM{0}, LVNI_SELECTED));
  }
  void Select(int listId, int row) const {
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(Control(listId), LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  }
  std::wstring Cell(int listId, int row, int column) const { return ListCell(Control(listId), row, column); }
  // The names in the lists, without the indent under a heading.
  std::vector<std::wstring> Offered() const { return Names(IDC_OFFERED, 0); }
  std::vector<std::wstring> Chosen() const { return Names(IDC_CHOSEN, 1); }
  std::wstring SelectedName(int listId) const {
    const int row = Selected(listId);
    if (row < 0) return L"";
    return listId == IDC_CHOSEN ? Chosen()[static_cast<size_t>(row)] : Offered()[static_cast<size_t>(row)];
  }

  // The window of the dialog's thread that has the mouse.
  HWND Capture() const {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetWindowThreadProcessId(window_, nullptr), &info) ? info.hwndCapture : nullptr;
  }

  POINT CentreOfChosen(int row) const {
    RECT cell = {LVIR_LABEL, 0, 0, 0};
    SendMessageW(Control(IDC_CHOSEN), LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&cell));
    return {cell.left + 5, (cell.top + cell.bottom) / 2};
  }

  void Accept() {
    Press(window_, IDOK);
    Result();
  }
  // Cancels changes, which is asked about.
  void Discard() {
    Press(window_, IDCANCEL);
    EXPECT_EQ(Answer(kSelectionTitle, window_, IDI_QUESTION, IDYES), L"Discard the changes?");
    Result();
  }

 private:
  std::vector<std::wstring> Names(int listId, int column) const {
    std::vector<std::wstring> names;
    for (int row = 0; row < Count(listId); ++row) {
      const std::wstring text = Cell(listId, row, column);
      names.push_back(text.substr(std::min(text.find_first_not_of(L' '), text.size())));
    }
    return names;
  }

  HWND window_;
};

// The dialog of one zman of the user's own, opened by a button of the selection dialog.
class OwnRun {
 public:
  OwnRun(const SelectionRun& selection, int buttonId) : selection_(selection) {
    Press(selection.Window(), buttonId);
    window_ = selection.WaitFor(buttonId == IDC_NEW ? L"New Zman" : L"Change Zman");
  }

  HWND Window() const { return window_; }
  std::wstring Text(int id) const { return ControlText(window_, id); }
  void Set(int id, const std::wstring& text) const { SetControlText(window_, id, text); }
  // As the user chooses an item of a drop-down list.
  void Choose(int comboId, const wchar_t* item) const {
    const HWND combo = GetDlgItem(window_, comboId);
    EXPECT_NE(SendMessageW(combo, CB_SELECTSTRING, ~WPARAM{0}, reinterpret_cast<LPARAM>(item)), CB_ERR) << item;
    SendMessageW(window_, WM_COMMAND, MAKEWPARAM(comboId, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
  }
  void Fill(const std::wstring& description, const std::wstring& amount, const wchar_t* form) const {
    Set(IDC_DESCRIPTION, description);
    Set(IDC_AMOUNT, amount);
    Choose(IDC_FORM, form);
  }
  bool Accept() const { return End(IDOK); }
  bool Cancel() const { return End(IDCANCEL); }

  // Presses OK, which an error answers; its text. The focus must then be in the field, all its text selected.
  std::wstring ErrorIn(int fieldId) const {
    Press(window_, IDOK);
    const std::wstring text = selection_.Answer(L"Error", window_, IDI_HAND, IDOK);
    const HWND field = GetDlgItem(window_, fieldId);
    EXPECT_TRUE(selection_.WaitForFocus(field)) << "field " << fieldId;
    EXPECT_TRUE(Eventually([&] { return IsAllSelected(field); })) << "field " << fieldId;
    return text;
  }

 private:
  bool End(int buttonId) const {
    Press(window_, buttonId);
    return selection_.WaitUntilGone(window_) && Eventually([this] { return IsWindowEnabled(selection_.Window()); });
  }

  const SelectionRun& selection_;
  HWND window_ = nullptr;
};

// Each test has a settings folder of its own.
class HoursDialog : public testing::Test {
 protected:
  std::string Stored() const { return home_.Bytes("hours.txt"); }

  SettingsHome home_;
  const RegionalForm region_{"1"};  // 24-hour form
};
