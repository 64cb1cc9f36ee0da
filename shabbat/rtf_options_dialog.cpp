#include "shabbat/rtf_options_dialog.h"

#include "resources/ids.h"
#include "win/dialog.h"

namespace {

struct Choice {
  int button;
  RtfLayout layout;
};

constexpr Choice kChoices[] = {
    {IDC_RTF_SAME_ROW, RtfLayout::kSameRow},
    {IDC_RTF_SEPARATE_COLUMNS, RtfLayout::kThreeColumns},
    {IDC_RTF_ONE_COLUMN, RtfLayout::kTwoColumns},
};

LRESULT OnInitDialog(HWND dialog) {
  CheckRadioButton(dialog, IDC_RTF_SAME_ROW, IDC_RTF_ONE_COLUMN, IDC_RTF_SAME_ROW);
  return TRUE;
}

// The result of the dialog is the number of the checked choice from 1; 0 is Cancel.
LRESULT OnCommand(HWND dialog, int control) {
  if (control == IDCANCEL) EndDialog(dialog, 0);
  if (control != IDOK) return 0;
  INT_PTR number = 0;
  for (const Choice& choice : kChoices) {
    ++number;
    if (IsDlgButtonChecked(dialog, choice.button) == BST_CHECKED) EndDialog(dialog, number);
  }
  return 0;
}

LRESULT Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog(dialog);
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam));
  }
  return DefaultDialogMessage(dialog, message, wParam, lParam);
}

}  // namespace

std::optional<RtfLayout> RunRtfOptionsDialog(HWND owner) {
  const INT_PTR number = RunDialog<Handle>(owner, "EXPORTRTFACTION");
  if (number < 1) return std::nullopt;
  return kChoices[number - 1].layout;
}
