// The dialog of the user's own texts of readings: the readings above, the own texts of the selected one below.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "libraries/dialogs/resizable_dialog.h"
#include "libraries/dialogs/row_list.h"
#include "libraries/lections/own_rows.h"
#include "libraries/lections/own_text.h"
#include "libraries/lections/settings.h"
#include "libraries/settings_folder/table_editing.h"

namespace lections {

// Whether texts were changed and stored.
bool DoOwnReadingsDialog(HWND owner);

class OwnReadingsDialog {
 public:
  OwnReadingsDialog(const OwnFile& stored, const Settings& settings, int32_t today);

  bool Run(HWND owner);

  // For dialogs::ClassDialogProc.
  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  INT_PTR OnInitDialog();
  INT_PTR OnSize();
  INT_PTR OnCommand(int control, int notification);
  INT_PTR OnNotify(NMHDR& header);
  INT_PTR OnReadingsNotify(NMHDR& header);
  INT_PTR OnOwnTextsNotify(NMHDR& header);
  void OnListKey(WORD key, bool isOwnTexts);

  // Takes texts or search anew; when stays selected, where the list has it.
  void Refill(std::optional<When> when);
  void Reveal(const When& when);
  void ShowReading();
  void ShowPreview() const;
  void UpdateButtons() const;
  std::optional<When> SelectedWhen() const;
  std::vector<OwnPlace> SelectedPlaces() const;
  std::wstring OwnTextOf(int row, int column) const;

  void Add();
  void Change();
  void Write(const OwnPlace* old);
  void Restore();
  void RestoreAll();
  void Undo();
  void OfferSingleDate();
  void Import();
  void Export() const;
  void Accept();
  void Cancel();

  HWND Control(int id) const { return GetDlgItem(dialog_, id); }

  settings_folder::TableEditing<OwnPlace, OwnText> editing_;
  const std::vector<int> damagedLines_;
  const Settings settings_;
  const int32_t today_;
  OwnRows rows_;
  std::vector<OwnPlace> places_;            // of the own texts that are listed
  std::map<OwnPlace, OwnPlace> movedFrom_;  // where texts that were given another place stood when the dialog opened
  bool isFilling_ = false;                  // what follows the selection is seen to afterwards
  HWND dialog_ = nullptr;
  dialogs::RowList readings_;
  dialogs::RowList ownTexts_;
  dialogs::ResizableDialog size_;
};

// "Noach, Haftarah 1 (Sephardi)"
std::wstring InWords(const OwnPlace& place);

}  // namespace lections
