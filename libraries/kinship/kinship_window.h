// The window with the persons and their dates.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "libraries/dialogs/resizable_dialog.h"
#include "libraries/kinship/kinship_settings.h"
#include "libraries/kinship/person_list.h"
#include "libraries/kinship/person_rows.h"
#include "libraries/persons/persons_editing.h"

namespace kinship {

class KinshipWindow {
 public:
  // stored: the file as it stands. year: Gregorian, in the years of personal_date.h.
  KinshipWindow(const persons::Persons& stored, int32_t year);

  // Modal over its owner, which may be null.
  void Run(HWND owner);

  // For dialogs::ClassDialogProc.
  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  using Id = persons::Editing::Id;

  INT_PTR OnInitDialog();
  INT_PTR OnSize();
  INT_PTR OnCommand(int control, int notification);
  INT_PTR OnButton(int control);
  INT_PTR OnNotify(NMHDR& header);
  void OnListKey(WORD key);
  void OnGetDisplayInfo(NMLVDISPINFOW& info) const;
  int RowBeginning(const NMLVFINDITEMW& find) const;
  void FillLists() const;

  // The list: kinship_window_list.cpp.
  void SortBy(Column column);
  void ShowYear(int32_t year);
  void OnYearTyped();
  void OnCustomChosen();
  void OnActivate();
  void Search();
  void Reckon();
  void Fill();
  void Renew();
  void Show(const std::vector<Id>& ids);
  void ShowRow(int row);
  void ShowEvenIfNotFound(const std::vector<Id>& ids);
  void ShowDamaged() const;
  std::vector<Id> SelectedIds() const;
  void UpdateButtons() const;

  // What the buttons do: kinship_window_editing.cpp.
  void Add();
  void Change();
  void Remove();
  void Undo();
  void Import();
  void Export();
  void Print();

  // kinship_window_saving.cpp.
  bool IsUnsaved() const { return !isSaved_ || shown_.ofYahrzeit != storedCustom_; }
  bool Save();
  void TakeUpFile();
  void TellMissed(const std::vector<persons::Change>& missed) const;
  void Apply();
  void Accept();
  void Cancel();
  INT_PTR OnQueryEndSession() const;

  HWND Control(int id) const { return GetDlgItem(dialog_, id); }
  LRESULT Send(int control, UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendDlgItemMessageW(dialog_, control, message, wParam, lParam);
  }

  persons::Editing editing_;
  std::vector<int32_t> damagedLines_;
  Shown shown_;
  persons::AdarCustom storedCustom_;
  LastEntry lastEntry_;
  PersonRows rows_;
  Column sortColumn_ = Column::kNext;
  bool descending_ = false;
  bool isSaved_ = true;
  bool isFilling_ = true;  // the controls tell of changes that are the window's own
  HWND dialog_ = nullptr;
  PersonList list_;
  dialogs::ResizableDialog size_;
};

// The window of KinshipInvoke. A file that cannot be read is named in a box, and the window opens when it can be read
// or not at all.
void RunKinshipWindow(HWND owner, uint32_t year);

}  // namespace kinship
