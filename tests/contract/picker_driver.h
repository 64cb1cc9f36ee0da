// Shows the picker on a thread of its own and works it as a user does, by keys and clicks.
#pragma once

#include <windows.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <vector>

// Places of the user's own and their numbers, as "shabbat2.ini" and "shabloc2.ini" hold them.
inline constexpr char kUsersPlaces[] =
    "[Locations]\r\n"
    "Summer house=Available\r\n"
    "London=Available\r\n"
    "Z\xFCrich-Nord=Available\r\n"
    "Nowhere=\r\n";
inline constexpr char kTheirNumbers[] =
    "[Summer house]\r\nLatitudeDegrees=33\r\nLatitudeHours=52\r\nLatitudeFlag=1\r\n"
    "LongitudeDegrees=52\r\nLongitudeHours=43\r\nLongitudeFlag=1\r\nTimeZone=-3\r\nTimeZoneMin=-30\r\n"
    "[London]\r\nLatitudeDegrees=51\r\nLatitudeHours=34\r\n";

// Polls until the condition holds; whether it did before patience ended.
bool Eventually(const std::function<bool()>& condition);

// The visible dialog of this process with that caption; null when there is none.
HWND DialogWithCaption(const std::wstring& caption);
// The same once it has come up; fails the test when it does not.
HWND WaitForDialog(const std::wstring& caption);

std::wstring WindowText(HWND window);

// The text of a list view's cell, its first 299 characters.
std::wstring ListCell(HWND list, int row, int column);

class PickerRun {
 public:
  enum class Owner { kNone, kWindow };

  // name: what the buffer holds at first.
  explicit PickerRun(const std::string& name, Owner owner = Owner::kNone);
  ~PickerRun();  // cancels a dialog that is still open
  PickerRun(const PickerRun&) = delete;
  PickerRun& operator=(const PickerRun&) = delete;

  HWND Dialog() const { return dialog_; }
  HWND Control(int id) const { return GetDlgItem(dialog_, id); }
  HWND OwnerWindow() const { return owner_; }

  // Each returns when the dialog has taken it in.
  void Type(const std::wstring& text) const;
  void Press(WPARAM key) const;
  void Click(int button) const;
  void DoubleClick(int row) const;
  void DoubleClickBelowTheRows() const;

  // The cells of a row of the list, and the row that is selected (-1 for none).
  std::vector<std::wstring> Row(int row) const;
  int RowCount() const;
  int SelectedRow() const;
  std::wstring SelectedName() const;
  bool IsRowVisible(int row) const;
  bool IsChecked(int button) const;
  bool IsEnabled(int control) const { return IsWindowEnabled(Control(control)) != FALSE; }

  // Whether the dialog has gone; waits for it. Result and Name are valid afterwards.
  bool Closes();
  int32_t Result() const { return result_; }
  const std::string& Name() const { return name_; }

 private:
  void Show(Owner owner);
  void TakeIn(HWND window) const;
  void DoubleClickAt(POINT point) const;
  LRESULT SendList(UINT message, WPARAM wParam, LPARAM lParam) const;

  std::string name_;
  int32_t result_ = -1;
  std::atomic<HWND> owner_ = nullptr;
  std::atomic<bool> done_ = false;
  std::thread thread_;
  HWND dialog_ = nullptr;
};
