// The window of the dialog "Zmanim Selection": the zmanim that can be chosen on the left, the chosen ones on the right.
#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "libraries/dialogs/resizable_dialog.h"
#include "libraries/dialogs/windows_1252.h"
#include "libraries/hours/choice.h"
#include "libraries/hours/day_times.h"
#include "libraries/hours/offered_list.h"
#include "libraries/hours/row_drag.h"
#include "libraries/hours/zman_list.h"

namespace hours {

class SelectionDialog {
 public:
  SelectionDialog(const Choice& stored, const DayTimes& times);

  // Runs it until the user ends it.
  void Run(HWND owner);

  // For dialogs::ClassDialogProc.
  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  INT_PTR OnOpen();
  INT_PTR OnSize();
  INT_PTR OnCommand(int control, int notification);
  INT_PTR OnNotify(NMHDR& header);
  void OnOfferedNotice(const NMHDR& header);
  void OnChosenNotice(const NMHDR& header);

  void Add();
  void Remove();
  void MoveBy(int rows);
  void Move(size_t from, size_t to);
  void UseSelectedPreset();
  void Use(const Preset& preset);
  void OnElevation();
  void NewOwn();
  void ChangeOwnZman();
  void DeleteOwn();
  void Accept();
  bool Save();
  void Cancel();

  void ShowOffered(const std::string& selectedId);
  void ShowChosen(std::optional<size_t> selected);
  void ShowPresetInUse() const;
  void ShowState();
  void SelectNextToChoose();
  void OnSelected(const std::string& id);
  void Enable(int control, bool isEnabled) const;

  // Empty when the row is none of a zman's.
  std::string OfferedIdAt(std::optional<size_t> row) const;
  std::string ChosenIdAt(std::optional<size_t> row) const;
  ShownRow RowOf(const ListedZman& zman);

  HWND Control(int id) const { return GetDlgItem(dialog_, id); }
  void Focus(int id) const { SendMessageW(dialog_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(id)), TRUE); }
  void SetDefault(int control) const { SendMessageW(dialog_, DM_SETDEFID, static_cast<WPARAM>(control), 0); }
  void SetText(int id, const std::string& text) const { SetDlgItemTextW(dialog_, id, dialogs::Wide(text).c_str()); }

  const Choice stored_;
  Choice choice_;
  OfferedList offered_;
  DayTimes times_;
  std::vector<ListRow> offeredRows_;
  ZmanList offeredList_;
  ZmanList chosenList_;
  std::string current_;     // the zman that was selected last, in either list; empty when none is
  bool isFilling_ = false;  // whether selections are made by the dialog itself
  RowDrag drag_;
  HWND dialog_ = nullptr;
  dialogs::ResizableDialog size_;
};

}  // namespace hours
