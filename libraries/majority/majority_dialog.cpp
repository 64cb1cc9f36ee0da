#include "libraries/majority/majority_dialog.h"

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/lections/settings_store.h"
#include "libraries/majority/majority_ids.h"
#include "libraries/majority/majority_texts.h"

namespace majority {
namespace {

constexpr persons::DateControls kDateControls = {{IDC_GREGORIAN_DAY, IDC_GREGORIAN_MONTH, IDC_GREGORIAN_YEAR},
                                                 {IDC_JEWISH_DAY, IDC_JEWISH_MONTH, IDC_JEWISH_YEAR},
                                                 IDC_AFTER_SUNSET,
                                                 IDC_DATE_FAULT};

}  // namespace

Child MajorityDialog::Run(HWND owner) {
  dialogs::RunDialog(owner, IDD_MAJORITY, dialogs::ClassDialogProc<MajorityDialog>, this);
  return child_;
}

INT_PTR MajorityDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog();
    case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
  }
  return FALSE;
}

INT_PTR MajorityDialog::OnInitDialog() {
  SendDlgItemMessageW(dialog_, IDC_NAME, EM_LIMITTEXT, persons::kLongestName, 0);
  CheckRadioButton(dialog_, IDC_BOY, IDC_GIRL, child_.isGirl ? IDC_GIRL : IDC_BOY);
  date_.Start(dialog_, kDateControls, persons::YearIs::kNeeded, persons::Calendar::kGregorian);
  date_.Show(child_.birth);
  Update();
  return TRUE;
}

INT_PTR MajorityDialog::OnCommand(int control, int notification) {
  if (date_.OnCommand(control, notification)) {
    Update();
    return TRUE;
  }
  switch (control) {
    case IDC_BOY:
    case IDC_GIRL: Update(); return TRUE;
    case IDC_NAME:
      if (notification == EN_CHANGE) EnableButtons();
      return TRUE;
    case IDC_TAKE_OVER: TakeOver(); return TRUE;
    case IDC_COPY: Copy(); return TRUE;
    case IDC_SAVE: SaveAsCalendar(); return TRUE;
    case IDCANCEL: return OnClose();
  }
  return FALSE;
}

INT_PTR MajorityDialog::OnClose() {
  child_ = Entered().value_or(child_);
  EndDialog(dialog_, IDCANCEL);
  return TRUE;
}

std::optional<Child> MajorityDialog::Entered() const {
  const std::optional<persons::EventDate> birth = date_.Date();
  if (!birth) return std::nullopt;
  return Child{*birth, IsDlgButtonChecked(dialog_, IDC_GIRL) == BST_CHECKED};
}

std::string MajorityDialog::Name() const {
  return dialogs::ToUtf8(dialogs::TextOf(GetDlgItem(dialog_, IDC_NAME)));
}

void MajorityDialog::Update() {
  const std::optional<Child> child = Entered();
  if (child) child_ = *child;
  SetDlgItemTextW(dialog_, IDC_RESULT, child ? ResultText(*child).c_str() : L"");
  EnableButtons();
}

// While the name can be taken over, the Enter key does that. A button that has the focus keeps it only as long as it
// can be pressed.
void MajorityDialog::EnableButtons() const {
  const std::optional<Child> child = Entered();
  const bool hasName = child && !Birthday(*child).name.empty();
  const bool canTakeOver = hasName && taken_ != Birthday(*child);
  const struct {
    int button;
    bool isEnabled;
  } buttons[] = {{IDC_TAKE_OVER, canTakeOver}, {IDC_COPY, child.has_value()}, {IDC_SAVE, child.has_value()}};
  for (const auto& [button, isEnabled] : buttons) {
    const HWND window = GetDlgItem(dialog_, button);
    if (!isEnabled && GetFocus() == window) {
      SendMessageW(dialog_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog_, IDCANCEL)), TRUE);
    }
    EnableWindow(window, isEnabled);
  }
  SendMessageW(dialog_, DM_SETDEFID, canTakeOver ? IDC_TAKE_OVER : IDCANCEL, 0);
}

}  // namespace majority
