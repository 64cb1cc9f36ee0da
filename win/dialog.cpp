#include "win/dialog.h"

#include <string>

#include "win/core/whole_number.h"
#include "win/message_box.h"

namespace {

// The dialog whose message the system is processing: it asks the dialog procedure once more, which must not answer.
HWND inDefaultProcessing = nullptr;

// Messages whose answer is the result itself. All others' results are stored with the dialog.
bool IsAnsweredDirectly(UINT message) {
  switch (message) {
    case WM_INITDIALOG:
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
    case WM_QUERYDRAGICON: return true;
  }
  return false;
}

std::string FieldText(HWND dialog, int field) {
  char text[64] = "";  // longer than any number of 32 bits
  GetDlgItemTextA(dialog, field, text, sizeof text);
  return text;
}

}  // namespace

LRESULT DefaultDialogMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  inDefaultProcessing = dialog;
  return DefDlgProcA(dialog, message, wParam, lParam);
}

INT_PTR AnswerDialogMessage(DialogHandler handler, HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (inDefaultProcessing == dialog) {
    inDefaultProcessing = nullptr;
    return FALSE;
  }
  if (message == WM_HELP) {  // answered by the frame, the last of the owners, which finds the dialog in the record
    SendMessageA(GetParent(dialog), message, wParam, lParam);
    return TRUE;
  }
  const LRESULT result = handler(dialog, message, wParam, lParam);
  if (IsAnsweredDirectly(message)) return result;
  SetWindowLongPtrA(dialog, DWLP_MSGRESULT, result);
  return TRUE;
}

std::optional<uint32_t> ReadUnsigned(HWND dialog, int field) {
  return ParseUnsigned(FieldText(dialog, field));
}
std::optional<int32_t> ReadSigned(HWND dialog, int field) {
  return ParseSigned(FieldText(dialog, field));
}

void ShowFieldError(HWND dialog, int field, const char* text) {
  ShowStop(dialog, text, "Error");
  SetFocus(GetDlgItem(dialog, field));
  SendDlgItemMessageA(dialog, field, EM_SETSEL, 0, -1);
}
