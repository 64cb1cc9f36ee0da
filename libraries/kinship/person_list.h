// The list view that shows persons and their dates.
#pragma once

#include <windows.h>

#include "libraries/dialogs/row_list.h"
#include "libraries/kinship/person_dates.h"

namespace kinship {

class PersonList : public dialogs::RowList {
 public:
  ~PersonList();
  PersonList() = default;
  PersonList(const PersonList&) = delete;
  PersonList& operator=(const PersonList&) = delete;

  // list: an owner-data list view in report form, which gets its columns, and the font that the user chose.
  void Start(HWND list, const Shown& shown);

  void ShowHeadings(const Shown& shown) const;
  // Marks the column that the rows are sorted by.
  void ShowOrder(Column column, bool descending) const;

 private:
  HFONT font_ = nullptr;  // null: the dialog's own
};

}  // namespace kinship
