// A list view that asks for its texts row by row: columns that fit, and which rows are selected.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <span>
#include <vector>

namespace dialogs {

// A column has room for its sample and gets its share of what the columns leave.
struct ListColumn {
  const wchar_t* heading;
  const wchar_t* sample;
  int share;
};

class RowList {
 public:
  // list: an owner-data list view in report form, which gets the columns. They live as long as this.
  void Start(HWND list, std::span<const ListColumn> columns);

  HWND Window() const { return list_; }

  void FitColumns() const;

  // How many rows there are from now on; none of them is selected.
  void SetCount(int count) const;

  // The first of the rows gets the focus and is in sight.
  void SelectOnly(const std::vector<int>& rows) const;
  void SelectAll() const;
  std::vector<int> Selected() const;
  // -1 for none.
  int FirstSelected() const { return static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED)); }
  int SelectedCount() const { return static_cast<int>(Send(LVM_GETSELECTEDCOUNT, 0, 0)); }

 protected:
  LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendMessageW(list_, message, wParam, lParam);
  }

 private:
  void SelectNone() const;
  void SetState(int row, UINT state, UINT mask) const;
  int WidthOf(const wchar_t* text) const;

  HWND list_ = nullptr;
  std::span<const ListColumn> columns_;
};

}  // namespace dialogs
