#include "libraries/lections/single_date_dialog.h"

#include "libraries/calendar/jewish.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/lections/lections_ids.h"
#include "libraries/persons/date_entry.h"
#include "libraries/persons/personal_date.h"

namespace lections {
namespace {

constexpr persons::DateControls kDateControls = {
    {IDC_OWN_GREGORIAN_DAY, IDC_OWN_GREGORIAN_MONTH, IDC_OWN_GREGORIAN_YEAR},
    {IDC_OWN_JEWISH_DAY, IDC_OWN_JEWISH_MONTH, IDC_OWN_JEWISH_YEAR},
    IDC_OWN_AFTER_SUNSET,
    IDC_OWN_DATE_FAULT};

class SingleDateDialog {
 public:
  std::optional<When> Run(HWND owner) {
    if (dialogs::RunDialog(owner, IDD_SINGLE_DATE, dialogs::ClassDialogProc<SingleDateDialog>, this) != IDOK) return {};
    return accepted_;
  }

  // For dialogs::ClassDialogProc.
  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
      case WM_INITDIALOG: return OnInitDialog();
      case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
      case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
    }
    return FALSE;
  }

 private:
  INT_PTR OnInitDialog() {
    date_.Start(dialog_, kDateControls, persons::YearIs::kNeeded, persons::Calendar::kGregorian);
    return TRUE;
  }

  INT_PTR OnCommand(int control, int notification) {
    if (date_.OnCommand(control, notification)) return TRUE;
    if (control == IDOK) OnAccept();
    if (control == IDCANCEL) EndDialog(dialog_, IDCANCEL);
    return TRUE;
  }

  void OnAccept() {
    const std::optional<persons::EventDate> event = date_.Date();
    if (!event) return dialogs::ShowFieldError(dialog_, date_.FaultyControl(), date_.Fault());
    accepted_ = WhenOfDay(persons::JewishDateOf(*event));
    EndDialog(dialog_, IDOK);
  }

  static When WhenOfDay(const calendar::Date& date) {
    const Whens whens = WhensOn(date, {});
    return whens[whens.size() - 1];
  }

  HWND dialog_ = nullptr;
  persons::DateEntry date_;
  std::optional<When> accepted_;
};

}  // namespace

std::optional<When> AskForSingleDate(HWND owner) {
  return SingleDateDialog().Run(owner);
}

}  // namespace lections
