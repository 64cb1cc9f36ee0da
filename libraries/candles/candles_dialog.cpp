#include "libraries/candles/candles_dialog.h"

#include <commctrl.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "libraries/candles/candles_file.h"
#include "libraries/candles/candles_ids.h"
#include "libraries/candles/entry_dialog.h"
#include "libraries/candles/field_texts.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/dialogs/windows_1252.h"

namespace candles {
namespace {

using dialogs::IsConfirmed;
using dialogs::OnException;
using dialogs::RunDialog;
using dialogs::ShowError;
using dialogs::Wide;

struct ListState {
  Entries stored;  // as they were when the dialog opened
  Entries entries;
  std::vector<Occasion> rows;  // the order on the screen
  std::string newPlace;        // for new entries; empty: that of the selected one
};

struct Column {
  const wchar_t* title;
  int width;  // dialog units; the first column has what the others leave
};

constexpr Column kColumns[] = {{L"Place", 0}, {L"Date", 52}, {L"Candle lighting", 70}, {L"End of Shabbat", 70}};

ListState& StateOf(HWND dialog) {
  return *reinterpret_cast<ListState*>(GetWindowLongPtrW(dialog, DWLP_USER));
}

HWND ListOf(HWND dialog) {
  return GetDlgItem(dialog, IDC_TIMES);
}

int PixelsWide(HWND dialog, int dialogUnits) {
  RECT measure = {0, 0, dialogUnits, 0};
  MapDialogRect(dialog, &measure);
  return measure.right;
}

void AddColumns(HWND dialog) {
  const HWND list = ListOf(dialog);
  RECT client;
  GetClientRect(list, &client);
  int widthLeft = client.right - GetSystemMetrics(SM_CXVSCROLL);
  for (const Column& column : kColumns) widthLeft -= PixelsWide(dialog, column.width);
  for (int index = 0; const Column& column : kColumns) {
    LVCOLUMNW made = {};
    made.mask = LVCF_TEXT | LVCF_WIDTH;
    made.cx = index == 0 ? widthLeft : PixelsWide(dialog, column.width);
    made.pszText = const_cast<wchar_t*>(column.title);
    SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index++), reinterpret_cast<LPARAM>(&made));
  }
}

// By place as a person would look it up, whatever its letters' case and accents, then by date.
bool IsBefore(const Occasion& a, const Occasion& b) {
  const int order =
      CompareStringW(LOCALE_INVARIANT, NORM_IGNORECASE, Wide(a.place).c_str(), -1, Wide(b.place).c_str(), -1);
  return order == CSTR_EQUAL ? a < b : order == CSTR_LESS_THAN;
}

void SetCell(HWND list, int row, int column, const std::string& text) {
  const std::wstring wide = Wide(text);
  LVITEMW item = {};
  item.mask = LVIF_TEXT;
  item.iItem = row;
  item.iSubItem = column;
  item.pszText = const_cast<wchar_t*>(wide.c_str());
  SendMessageW(list, column == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

// The rows that are selected, from the top.
std::vector<size_t> Selected(HWND dialog) {
  std::vector<size_t> selected;
  LRESULT row = -1;
  for (;;) {
    row = SendMessageW(ListOf(dialog), LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED);
    if (row < 0) return selected;
    selected.push_back(static_cast<size_t>(row));
  }
}

// With one entry selected, Enter in the list changes it.
void UpdateButtons(HWND dialog) {
  const LRESULT count = SendMessageW(ListOf(dialog), LVM_GETSELECTEDCOUNT, 0, 0);
  EnableWindow(GetDlgItem(dialog, IDC_CHANGE), count == 1);
  EnableWindow(GetDlgItem(dialog, IDC_REMOVE), count > 0);
  SendMessageW(dialog, DM_SETDEFID, count == 1 ? IDC_CHANGE : IDOK, 0);
}

void SelectRow(HWND dialog, size_t row) {
  LVITEMW item = {};
  item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  item.state = item.stateMask;
  SendMessageW(ListOf(dialog), LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&item));
  SendMessageW(ListOf(dialog), LVM_ENSUREVISIBLE, row, FALSE);
}

// Fills the list anew and gives it the focus, lest a button that has it be disabled. No row is selected then.
void ShowEntries(HWND dialog) {
  SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(ListOf(dialog)), TRUE);
  ListState& state = StateOf(dialog);
  state.rows.clear();
  for (const auto& [occasion, times] : state.entries) state.rows.push_back(occasion);
  std::ranges::sort(state.rows, IsBefore);

  const HWND list = ListOf(dialog);
  SendMessageW(list, WM_SETREDRAW, FALSE, 0);
  SendMessageW(list, LVM_DELETEALLITEMS, 0, 0);
  for (int row = 0; const Occasion& occasion : state.rows) {
    const Times& times = state.entries.at(occasion);
    SetCell(list, row, 0, occasion.place);
    SetCell(list, row, 1, DateText(DateOf(occasion)));
    SetCell(list, row, 2, TimeText(times.candleHour, times.candleMinute));
    SetCell(list, row++, 3, TimeText(times.endHour, times.endMinute));
  }
  SendMessageW(list, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(list, nullptr, TRUE);
}

void ShowWithSelected(HWND dialog, const Occasion& occasion) {
  ShowEntries(dialog);
  const std::vector<Occasion>& rows = StateOf(dialog).rows;
  SelectRow(dialog, static_cast<size_t>(std::ranges::find(rows, occasion) - rows.begin()));
  UpdateButtons(dialog);
}

void ShowWithSelected(HWND dialog, size_t row) {
  ShowEntries(dialog);
  const size_t count = StateOf(dialog).rows.size();
  if (count > 0) SelectRow(dialog, std::min(row, count - 1));
  UpdateButtons(dialog);
}

INT_PTR OnOpen(HWND dialog, ListState& state) {
  SetWindowLongPtrW(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(&state));
  constexpr LPARAM kStyle = LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP;  // a cut name shows whole under the mouse
  SendMessageW(ListOf(dialog), LVM_SETEXTENDEDLISTVIEWSTYLE, kStyle, kStyle);
  AddColumns(dialog);
  ShowWithSelected(dialog, 0);
  return TRUE;
}

INT_PTR OnAdd(HWND dialog) {
  ListState& state = StateOf(dialog);
  const std::vector<size_t> selected = Selected(dialog);
  std::string place = state.newPlace;
  if (place.empty() && !selected.empty()) place = state.rows[selected.front()].place;
  const std::optional<Entry> entry = AskForNewEntry(dialog, state.entries, place);
  if (!entry) return TRUE;
  state.entries.insert_or_assign(entry->occasion, entry->times);
  ShowWithSelected(dialog, entry->occasion);
  return TRUE;
}

INT_PTR OnChange(HWND dialog) {
  ListState& state = StateOf(dialog);
  const std::vector<size_t> selected = Selected(dialog);
  if (selected.size() != 1) return TRUE;
  const Occasion old = state.rows[selected.front()];
  const std::optional<Entry> entry = AskForChangedEntry(dialog, state.entries, {old, state.entries.at(old)});
  if (!entry) return TRUE;
  state.entries.erase(old);
  state.entries.insert_or_assign(entry->occasion, entry->times);
  ShowWithSelected(dialog, entry->occasion);
  return TRUE;
}

INT_PTR OnRemove(HWND dialog) {
  ListState& state = StateOf(dialog);
  const std::vector<size_t> selected = Selected(dialog);
  if (selected.empty()) return TRUE;
  const std::wstring question = L"Remove the " + std::to_wstring(selected.size()) + L" selected entries?";
  if (selected.size() > 1 && !IsConfirmed(dialog, question)) return TRUE;
  for (const size_t row : selected) state.entries.erase(state.rows[row]);
  ShowWithSelected(dialog, selected.front());
  return TRUE;
}

INT_PTR OnAccept(HWND dialog) {
  const ListState& state = StateOf(dialog);
  const Changes changes = Difference(state.stored, state.entries);
  if (!changes.empty() && !WriteChanges(changes)) {
    ShowError(dialog, L"The times could not be saved in the file\n" + StorePath() +
                          L"\n\nSee to it that it can be written (no other program holds it, it is not read-only, "
                          L"the disk is not full), then choose OK again.");
    return TRUE;
  }
  EndDialog(dialog, IDOK);
  return TRUE;
}

INT_PTR OnCancel(HWND dialog) {
  const ListState& state = StateOf(dialog);
  if (state.stored == state.entries || IsConfirmed(dialog, L"Discard the changes?")) EndDialog(dialog, IDCANCEL);
  return TRUE;
}

INT_PTR OnCommand(HWND dialog, int commandId) {
  switch (commandId) {
    case IDC_ADD: return OnAdd(dialog);
    case IDC_CHANGE: return OnChange(dialog);
    case IDC_REMOVE: return OnRemove(dialog);
    case IDOK: return OnAccept(dialog);
    case IDCANCEL: return OnCancel(dialog);
  }
  return FALSE;
}

INT_PTR OnListKey(HWND dialog, WORD key) {
  switch (key) {
    case VK_INSERT: return OnAdd(dialog);
    case VK_DELETE: return OnRemove(dialog);
  }
  return FALSE;
}

INT_PTR OnNotify(HWND dialog, const NMHDR* notice) {
  if (notice->idFrom != IDC_TIMES) return FALSE;
  switch (notice->code) {
    case NM_DBLCLK: return OnChange(dialog);
    case LVN_KEYDOWN: return OnListKey(dialog, reinterpret_cast<const NMLVKEYDOWN*>(notice)->wVKey);
    case LVN_ITEMCHANGED: UpdateButtons(dialog); return TRUE;
  }
  return FALSE;
}

INT_PTR CALLBACK CandlesDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) try {
  switch (message) {
    case WM_INITDIALOG: return OnOpen(dialog, *reinterpret_cast<ListState*>(lParam));
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog, lParam);
    case WM_NOTIFY: return OnNotify(dialog, reinterpret_cast<const NMHDR*>(lParam));
  }
  return FALSE;
} catch (...) {
  return OnException(dialog, message);
}

}  // namespace

void DoCandlesDialog(HWND owner, const std::string& place) {
  const INITCOMMONCONTROLSEX listView = {sizeof listView, ICC_LISTVIEW_CLASSES};
  InitCommonControlsEx(&listView);
  std::optional<Entries> stored;
  const auto read = [&stored] { return (stored = StoredEntries()).has_value(); };
  if (!dialogs::IsKnown(owner, StorePath(), read)) return;
  ListState state;
  state.stored = *stored;
  state.entries = state.stored;
  state.newPlace = place;
  RunDialog(owner, IDD_CANDLES, CandlesDialogProc, &state);
}

}  // namespace candles
