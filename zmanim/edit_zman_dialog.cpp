#include "zmanim/edit_zman_dialog.h"

#include "resources/ids.h"
#include "win/dialog.h"

namespace {

// What the dialog shows, and what the user made of it. It belongs to the caller, for as long as the dialog runs.
struct EditZmanRecord {
  CalendarDate date;
  char description[kTextSize];
  ClockTime current;
  ClockTime typed;  // when the dialog was confirmed
};

// A number typed into a field, with the messages for what is none and for what is too large.
struct TimeField {
  int field;
  int32_t atMost;
  const char* noNumber;
  const char* tooLarge;
};

// Deliberate: both messages name the last number that is still accepted.
constexpr TimeField kHourField{IDC_EDIT_ZMAN_HOUR, 23, "Hour must be a number", "Hour must be less than 23"};
constexpr TimeField kMinuteField{IDC_EDIT_ZMAN_MINUTE, 59, "Minute must be a number", "Minute must be less than 59"};

LRESULT OnInitDialog(HWND dialog, EditZmanRecord* record) {
  SetWindowLongPtrA(dialog, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(record));
  const std::string date = std::to_string(record->date.uDay) + "." + std::to_string(record->date.uMonth) + "." +
                           std::to_string(record->date.uYear);
  SetDlgItemTextA(dialog, IDC_EDIT_ZMAN_DATE, date.c_str());
  SetDlgItemTextA(dialog, IDC_EDIT_ZMAN_DESCRIPTION, record->description);
  SetDlgItemInt(dialog, IDC_EDIT_ZMAN_HOUR, static_cast<UINT>(record->current.hour), FALSE);
  SetDlgItemInt(dialog, IDC_EDIT_ZMAN_MINUTE, static_cast<UINT>(record->current.minute), FALSE);
  return TRUE;
}

// The number is read unsigned and compared signed, so one that is negative as a signed number passes here; the store
// refuses it.
bool ReadTimeField(HWND dialog, const TimeField& field, int32_t& number) {
  const std::optional<uint32_t> typed = ReadUnsigned(dialog, field.field);
  if (!typed) {
    ShowFieldError(dialog, field.field, field.noNumber);
    return false;
  }
  number = static_cast<int32_t>(*typed);
  if (number > field.atMost) {
    ShowFieldError(dialog, field.field, field.tooLarge);
    return false;
  }
  return true;
}

LRESULT OnOk(HWND dialog) {
  auto* const record = reinterpret_cast<EditZmanRecord*>(GetWindowLongPtrA(dialog, GWLP_USERDATA));
  if (ReadTimeField(dialog, kHourField, record->typed.hour) &&
      ReadTimeField(dialog, kMinuteField, record->typed.minute)) {
    EndDialog(dialog, 1);
  }
  return 0;
}

LRESULT OnCommand(HWND dialog, int control) {
  if (control == IDOK) return OnOk(dialog);
  if (control == IDCANCEL) EndDialog(dialog, 0);
  return 0;
}

LRESULT Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog(dialog, reinterpret_cast<EditZmanRecord*>(lParam));
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam));
  }
  return DefaultDialogMessage(dialog, message, wParam, lParam);
}

}  // namespace

std::optional<ClockTime> EditZmanDialog(HWND document, const CalendarDate& date, const std::string& description,
                                        ClockTime current) {
  EditZmanRecord record{date, {}, current, {}};
  lstrcpynA(record.description, description.c_str(), static_cast<int>(sizeof record.description));
  if (RunDialog<Handle>(document, "EDITZMANIMDLG", reinterpret_cast<LPARAM>(&record)) != 1) return std::nullopt;
  return record.typed;
}
