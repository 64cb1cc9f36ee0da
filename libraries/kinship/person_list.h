// The list view that shows persons and their dates.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <vector>

#include "libraries/kinship/person_dates.h"

namespace kinship {

class PersonList {
 public:
  ~PersonList();
  PersonList() = default;
  PersonList(const PersonList&) = delete;
  PersonList& operator=(const PersonList&) = delete;

  // list: an owner-data list view in report form, which gets its columns, and the font that the user chose.
  void Start(HWND list, const Shown& shown);

  HWND Window() const { return list_; }

  void ShowHeadings(const Shown& shown) const;
  // Marks the column that the rows are sorted by.
  void ShowOrder(Column column, bool descending) const;

  // Name, occasion and notes share the width that the other columns leave, but have at least some.
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

 private:
  LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendMessageW(list_, message, wParam, lParam);
  }
  void SelectNone() const;
  void SetState(int row, UINT state, UINT mask) const;
  int WidthOf(const wchar_t* text) const;

  HWND list_ = nullptr;
  HFONT font_ = nullptr;  // null: the dialog's own
};

}  // namespace kinship
