#include "libraries/hours/selection_dialog.h"

#include <commctrl.h>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/hours/choice_editing.h"
#include "libraries/hours/description_text.h"
#include "libraries/hours/hours_ids.h"
#include "libraries/hours/own_dialog.h"

namespace hours {
namespace {

using dialogs::Anchor;
using dialogs::Follow;
using dialogs::Wide;

constexpr char kSizeFile[] = "hours.ini";
constexpr WPARAM kMostTypedLetters = 60;

constexpr Anchor kAnchors[] = {
    {IDC_OFFERED, Follow::kNo, Follow::kGrow},      {IDC_NEW, Follow::kNo, Follow::kMove},
    {IDC_CHANGE, Follow::kNo, Follow::kMove},       {IDC_DELETE, Follow::kNo, Follow::kMove},
    {IDC_PRESET, Follow::kGrow, Follow::kNo},       {IDC_USE_PRESET, Follow::kMove, Follow::kNo},
    {IDC_CHOSEN, Follow::kGrow, Follow::kGrow},     {IDC_DEFAULTS, Follow::kNo, Follow::kMove},
    {IDC_DEFINITION, Follow::kGrow, Follow::kMove}, {IDC_OWN_LABEL, Follow::kNo, Follow::kMove},
    {IDC_ELEVATION, Follow::kNo, Follow::kMove},    {IDC_RULE, Follow::kGrow, Follow::kMove},
    {IDC_DAY, Follow::kGrow, Follow::kMove},        {IDOK, Follow::kMove, Follow::kMove},
    {IDCANCEL, Follow::kMove, Follow::kMove},
};

// Keys that move the selection of the list while the user types in the edit.
bool MovesListSelection(WPARAM key) {
  if (GetKeyState(VK_SHIFT) < 0 || GetKeyState(VK_CONTROL) < 0) return false;
  return key == VK_UP || key == VK_DOWN || key == VK_PRIOR || key == VK_NEXT;
}

// The edit gives such keys, and the wheel, to the list.
LRESULT CALLBACK TypedProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR list) {
  if ((message == WM_KEYDOWN && MovesListSelection(wParam)) || message == WM_MOUSEWHEEL) {
    return SendMessageW(reinterpret_cast<HWND>(list), message, wParam, lParam);
  }
  if (message == WM_NCDESTROY) RemoveWindowSubclass(edit, TypedProc, id);
  return DefSubclassProc(edit, message, wParam, lParam);
}

// Alt with an arrow moves the chosen zman.
LRESULT CALLBACK ChosenProc(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR) {
  if (message == WM_SYSKEYDOWN && (wParam == VK_UP || wParam == VK_DOWN)) {
    return SendMessageW(GetParent(list), WM_COMMAND, wParam == VK_UP ? IDC_UP : IDC_DOWN, 0);
  }
  if (message == WM_NCDESTROY) RemoveWindowSubclass(list, ChosenProc, id);
  return DefSubclassProc(list, message, wParam, lParam);
}
constexpr UINT_PTR kChosenProcId = 1;  // 0 is the list's own

POINT PointIn(LPARAM lParam) {
  return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

}  // namespace

SelectionDialog::SelectionDialog(const Choice& stored, const DayTimes& times)
    : stored_(stored), choice_(stored), offered_(stored), times_(times) {}

void SelectionDialog::Run(HWND owner) {
  dialogs::RunDialog(owner, IDD_SELECTION, dialogs::ClassDialogProc<SelectionDialog>, this);
}

INT_PTR SelectionDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnOpen();
    case WM_SIZE: return OnSize();
    case WM_GETMINMAXINFO: size_.LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam)); return TRUE;
    case WM_EXITSIZEMOVE: size_.KeepSize(); return TRUE;
    case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_NOTIFY: return OnNotify(*reinterpret_cast<NMHDR*>(lParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
    case WM_MOUSEMOVE:
      if (drag_.IsUnderWay()) drag_.OnMouse(PointIn(lParam));
      return TRUE;
    case WM_TIMER:
      if (drag_.IsUnderWay()) drag_.OnTimer();
      return TRUE;
    case WM_LBUTTONUP: drag_.Drop(); return TRUE;
    case WM_CAPTURECHANGED: drag_.Cancel(); return TRUE;
  }
  return FALSE;
}

INT_PTR SelectionDialog::OnOpen() {
  const std::wstring widestTime = Wide(times_.WidestTime());
  offeredList_.Start(Control(IDC_OFFERED), ZmanList::Numbers::kNo, widestTime);
  chosenList_.Start(Control(IDC_CHOSEN), ZmanList::Numbers::kYes, widestTime);
  size_.Start(dialog_, kAnchors, kSizeFile);
  OnSize();
  SendDlgItemMessageW(dialog_, IDC_TYPED, EM_LIMITTEXT, kMostTypedLetters, 0);
  SetWindowSubclass(Control(IDC_TYPED), TypedProc, 0, reinterpret_cast<DWORD_PTR>(Control(IDC_OFFERED)));
  SetWindowSubclass(Control(IDC_CHOSEN), ChosenProc, kChosenProcId, 0);
  for (const Preset& preset : Presets()) {
    const std::wstring name = Wide(EightBitFromUtf8(preset.name));
    SendDlgItemMessageW(dialog_, IDC_PRESET, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
  }
  SetText(IDC_DAY, "Today is " + times_.DateText() + " at the current place; the times are those of the clock there.");
  CheckDlgButton(dialog_, IDC_ELEVATION, choice_.areHoursAtSeaLevel ? BST_UNCHECKED : BST_CHECKED);
  ShowPresetInUse();
  ShowOffered({});
  ShowChosen(0);
  return TRUE;
}

INT_PTR SelectionDialog::OnSize() {
  size_.ArrangeControls();
  if (!offeredList_.Window()) return TRUE;
  offeredList_.FitColumns();
  chosenList_.FitColumns();
  return TRUE;
}

INT_PTR SelectionDialog::OnCommand(int control, int notification) {
  switch (control) {
    case IDC_ADD: Add(); return TRUE;
    case IDC_REMOVE: Remove(); return TRUE;
    case IDC_UP: MoveBy(-1); return TRUE;
    case IDC_DOWN: MoveBy(1); return TRUE;
    case IDC_USE_PRESET: UseSelectedPreset(); return TRUE;
    case IDC_DEFAULTS: Use(Presets().front()); return TRUE;
    case IDC_ELEVATION: OnElevation(); return TRUE;
    case IDC_NEW: NewOwn(); return TRUE;
    case IDC_CHANGE: ChangeOwnZman(); return TRUE;
    case IDC_DELETE: DeleteOwn(); return TRUE;
    case IDOK: Accept(); return TRUE;
    case IDCANCEL: Cancel(); return TRUE;
    case IDC_TYPED:
      if (notification == EN_CHANGE) ShowOffered({});
      if (notification == EN_SETFOCUS) SetDefault(IDC_ADD);
      return TRUE;
    case IDC_PRESET:
      if (notification == CBN_SELCHANGE) ShowState();
      if (notification == CBN_SETFOCUS) SetDefault(IDC_USE_PRESET);
      return TRUE;
  }
  return FALSE;
}

INT_PTR SelectionDialog::OnNotify(NMHDR& header) {
  const bool isOffered = header.idFrom == IDC_OFFERED;
  if (!isOffered && header.idFrom != IDC_CHOSEN) return FALSE;
  LRESULT result = 0;
  if ((isOffered ? offeredList_ : chosenList_).OnNotify(header, result)) {
    SetWindowLongPtrW(dialog_, DWLP_MSGRESULT, result);
  } else if (isOffered) {
    OnOfferedNotice(header);
  } else {
    OnChosenNotice(header);
  }
  return TRUE;
}

void SelectionDialog::OnOfferedNotice(const NMHDR& header) {
  switch (header.code) {
    case LVN_ITEMCHANGED: OnSelected(OfferedIdAt(offeredList_.Selected())); break;
    case NM_SETFOCUS:
      SetDefault(IDC_ADD);
      OnSelected(OfferedIdAt(offeredList_.Selected()));
      break;
    case NM_DBLCLK:
      if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0) Add();
      break;
    case LVN_KEYDOWN: {
      const WORD key = reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey;
      if (key == VK_INSERT) NewOwn();
      if (key == VK_DELETE) DeleteOwn();
      break;
    }
  }
}

void SelectionDialog::OnChosenNotice(const NMHDR& header) {
  switch (header.code) {
    case LVN_ITEMCHANGED: OnSelected(ChosenIdAt(chosenList_.Selected())); break;
    case NM_SETFOCUS:
      SetDefault(IDOK);
      OnSelected(ChosenIdAt(chosenList_.Selected()));
      break;
    case NM_DBLCLK:
      if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0) Remove();
      break;
    case LVN_KEYDOWN:
      if (reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey == VK_DELETE) Remove();
      break;
    case LVN_BEGINDRAG: {
      const int row = reinterpret_cast<const NMLISTVIEW&>(header).iItem;
      if (row < 0) break;
      drag_.Begin(dialog_, chosenList_, static_cast<size_t>(row), [this](size_t from, size_t to) { Move(from, to); });
      break;
    }
  }
}

// The selection goes on to the next zman that is not chosen, so that several are added by the same key; what was typed
// makes room for other words.
void SelectionDialog::Add() {
  const std::string id = OfferedIdAt(offeredList_.Selected());
  if (id.empty() || !Choose(choice_, id)) {
    MessageBeep(MB_OK);
    return;
  }
  SelectNextToChoose();
  ShowChosen(choice_.chosen.size() - 1);
  if (GetFocus() == Control(IDC_TYPED)) SendDlgItemMessageW(dialog_, IDC_TYPED, EM_SETSEL, 0, -1);
}

void SelectionDialog::Remove() {
  const std::optional<size_t> row = chosenList_.Selected();
  if (!row) return;
  choice_.chosen.erase(choice_.chosen.begin() + static_cast<std::ptrdiff_t>(*row));
  ShowChosen(row);
}

void SelectionDialog::MoveBy(int rows) {
  const std::optional<size_t> row = chosenList_.Selected();
  if (!row) return;
  const auto to = static_cast<std::ptrdiff_t>(*row) + rows;
  if (to >= 0 && static_cast<size_t>(to) < choice_.chosen.size()) Move(*row, static_cast<size_t>(to));
}

void SelectionDialog::Move(size_t from, size_t to) {
  if (MoveChosen(choice_, from, to)) ShowChosen(to);
}

void SelectionDialog::UseSelectedPreset() {
  const LRESULT number = SendDlgItemMessageW(dialog_, IDC_PRESET, CB_GETCURSEL, 0, 0);
  if (number >= 0) Use(Presets()[static_cast<size_t>(number)]);
}

void SelectionDialog::Use(const Preset& preset) {
  UsePreset(choice_, preset);
  ShowPresetInUse();
  ShowChosen(0);
}

// Definitions and times follow the tick; what is selected and shown stays where it is.
void SelectionDialog::OnElevation() {
  choice_.areHoursAtSeaLevel = IsDlgButtonChecked(dialog_, IDC_ELEVATION) != BST_CHECKED;
  const std::string selected = current_;
  offered_ = OfferedList(choice_);
  ShowOffered(OfferedIdAt(offeredList_.Selected()));
  ShowChosen(chosenList_.Selected());
  OnSelected(selected);
}

// Who makes a zman wants it: it is chosen at once where there is room.
void SelectionDialog::NewOwn() {
  const std::optional<OwnZman> zman = AskForNewOwn(dialog_, choice_, times_);
  if (!zman) return;
  const std::string id = AddOwn(choice_, *zman);
  if (id.empty()) {
    dialogs::ShowError(dialog_, L"There are " + std::to_wstring(kMostOwnNumber) +
                                    L" zmanim of your own already. Delete one of them first.");
    return;
  }
  const bool isChosen = Choose(choice_, id);
  offered_ = OfferedList(choice_);
  SetDlgItemTextW(dialog_, IDC_TYPED, L"");
  ShowOffered(id);
  if (isChosen) ShowChosen(choice_.chosen.size() - 1);
}

void SelectionDialog::ChangeOwnZman() {
  const OwnZman* const own = FindOwn(choice_, current_);
  if (!own) return;
  const std::optional<OwnZman> zman = AskForChangedOwn(dialog_, choice_, *own, times_);
  if (!zman) return;
  ChangeOwn(choice_, *zman);
  const std::string id = current_;
  offered_ = OfferedList(choice_);
  ShowOffered(id);
  ShowChosen(chosenList_.Selected());
}

void SelectionDialog::DeleteOwn() {
  const OwnZman* const own = FindOwn(choice_, current_);
  if (!own) return;
  const std::wstring question = L"Delete the zman \u201C" + Wide(own->description) + L"\u201D of your own?";
  if (!dialogs::IsConfirmed(dialog_, question)) return;
  const std::optional<size_t> row = chosenList_.Selected();
  RemoveOwn(choice_, own->number);
  offered_ = OfferedList(choice_);
  ShowOffered({});
  ShowChosen(row);
}

// Escape while a row is being dragged ends that only.
void SelectionDialog::Cancel() {
  if (drag_.IsUnderWay()) {
    drag_.Cancel();
  } else if (choice_ == stored_ || dialogs::IsConfirmed(dialog_, L"Discard the changes?")) {
    EndDialog(dialog_, IDCANCEL);
  }
}

}  // namespace hours
