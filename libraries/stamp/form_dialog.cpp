#include "libraries/stamp/form_dialog.h"

#include <string>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/stamp/form_setting.h"
#include "libraries/stamp/stamp_core.h"
#include "libraries/stamp/stamp_ids.h"

namespace stamp {
namespace {

struct ChoiceButton {
  int id;
  const char* choice;  // as stored; null for none
};

// The first is also checked for a choice that is none of these. Their ids follow each other.
constexpr ChoiceButton kButtons[] = {{IDC_AS_IN_WINDOWS, nullptr}, {IDC_24_HOURS, "24"}, {IDC_12_HOURS, "12"}};

const ChoiceButton& Checked(HWND dialog) {
  for (const ChoiceButton& button : kButtons) {
    if (IsDlgButtonChecked(dialog, button.id) == BST_CHECKED) return button;
  }
  return kButtons[0];
}

// A moment of each half of the day, in the form checked.
INT_PTR ShowSample(HWND dialog) {
  const char* const choice = Checked(dialog).choice;
  const Form form = ChosenForm(choice ? choice : "", RegionalForm());
  const std::string sample = "Sunrise " + TimeText(6, 5, form) + "\nCandle lighting " + TimeText(18, 47, form);
  SetDlgItemTextA(dialog, IDC_SAMPLE, sample.c_str());
  return TRUE;
}

INT_PTR OnOpen(HWND dialog) {
  int checkedId = IDC_AS_IN_WINDOWS;
  const std::string stored = StoredChoice();
  for (const ChoiceButton& button : kButtons) {
    if (button.choice && stored == button.choice) checkedId = button.id;
  }
  CheckRadioButton(dialog, IDC_AS_IN_WINDOWS, IDC_12_HOURS, checkedId);
  ShowSample(dialog);
  SetFocus(GetDlgItem(dialog, checkedId));
  return FALSE;
}

INT_PTR OnAccept(HWND dialog) {
  if (StoreChoice(Checked(dialog).choice)) return EndDialog(dialog, IDOK);
  const std::wstring text = L"The form of times could not be saved in the file\n" + SettingPath() +
                            L"\n\nSee to it that it can be written (no other program holds it, it is not read-only, "
                            L"the disk is not full), then choose OK again.";
  dialogs::ShowError(dialog, text);
  return TRUE;
}

INT_PTR OnCommand(HWND dialog, int commandId) {
  switch (commandId) {
    case IDC_AS_IN_WINDOWS:
    case IDC_24_HOURS:
    case IDC_12_HOURS: return ShowSample(dialog);
    case IDOK: return OnAccept(dialog);
    case IDCANCEL: return EndDialog(dialog, IDCANCEL);
  }
  return FALSE;
}

INT_PTR CALLBACK FormDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) try {
  switch (message) {
    case WM_INITDIALOG: return OnOpen(dialog);
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog, lParam);
  }
  return FALSE;
} catch (...) {
  return dialogs::OnException(dialog, message);
}

}  // namespace

bool DoFormDialog(HWND owner) {
  if (!dialogs::IsKnownIni(owner, kFormFile)) return false;
  return dialogs::RunDialog(owner, IDD_FORM, FormDialogProc, nullptr) == IDOK;
}

}  // namespace stamp
