// The list view that shows the rows of the times set by hand.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <vector>

namespace ownhours {

class TimeList {
 public:
  // list: an owner-data list view in report form, which gets its columns (time_rows.h).
  void Start(HWND list);

  HWND Window() const { return list_; }

  // Place and zman share the width that the other columns leave.
  void FitColumns() const;

  // How many rows there are from now on; none of them is selected.
  void SetCount(int count) const;

  // The first of the rows gets the focus and is in sight.
  void SelectOnly(const std::vector<int>& rows) const;
  void SelectAll() const;
  std::vector<int> Selected() const;
  int SelectedCount() const { return static_cast<int>(Send(LVM_GETSELECTEDCOUNT, 0, 0)); }

 private:
  LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendMessageW(list_, message, wParam, lParam);
  }
  void SetState(int row, UINT state, UINT mask) const;

  HWND list_ = nullptr;
};

}  // namespace ownhours
