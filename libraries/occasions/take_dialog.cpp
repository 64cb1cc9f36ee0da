#include "libraries/occasions/take_dialog.h"

#include <string>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/occasions/occasion_table.h"
#include "libraries/occasions/occasions_ids.h"

namespace occasions {
namespace {

// In the order of Format.
constexpr const wchar_t* kFormatTexts[kFormats] = {L"Calendar programs and phones (iCalendar)", L"Spreadsheets (CSV)",
                                                   L"Browsers and mail (web page)", L"Word processors (rich text)",
                                                   L"Reading as plain text"};

class TakeDialog {
 public:
  TakeDialog(const TakeQuestion& question, const TakeAnswer& answer) : question_(question), answer_(answer) {}

  std::optional<TakeAnswer> Run(HWND owner) {
    if (dialogs::RunDialog(owner, IDD_TAKE, dialogs::ClassDialogProc<TakeDialog>, this) != IDOK) return std::nullopt;
    return answer_;
  }

  // For dialogs::ClassDialogProc.
  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
      case WM_INITDIALOG: return OnInitDialog();
      case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
      case WM_COMMAND:
        if (LOWORD(wParam) == IDOK) return OnAccept();
        if (LOWORD(wParam) == IDCANCEL) return EndDialog(dialog_, IDCANCEL);
        return FALSE;
    }
    return FALSE;
  }

 private:
  INT_PTR OnInitDialog() const;
  INT_PTR OnAccept();

  const TakeQuestion question_;
  TakeAnswer answer_;
  HWND dialog_ = nullptr;
};

INT_PTR TakeDialog::OnInitDialog() const {
  SetWindowTextW(dialog_, question_.isToSave ? L"Save Occasions" : L"Print Occasions");
  const std::wstring count = std::to_wstring(question_.listed);
  SetDlgItemTextW(
      dialog_, IDC_TAKE_LIST,
      (L"The &list as it is shown (" + count + (question_.listed == 1 ? L" occasion)" : L" occasions)")).c_str());
  SetDlgItemTextW(dialog_, IDC_TAKE_CANDLES,
                  question_.isToSave ? L"All &candle lightings and ends, a row for each evening"
                                     : L"All &candle lightings and ends of the year, on one sheet");
  for (const wchar_t* const text : kFormatTexts) {
    SendDlgItemMessageW(dialog_, IDC_FORMAT, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
  }
  SendDlgItemMessageW(dialog_, IDC_FORMAT, CB_SETCURSEL, static_cast<WPARAM>(answer_.format), 0);
  for (const int control : {IDC_FORMAT, IDC_FORMAT_LABEL}) {
    ShowWindow(GetDlgItem(dialog_, control), question_.isToSave ? SW_SHOW : SW_HIDE);
  }
  const bool isEmpty = question_.listed == 0;
  EnableWindow(GetDlgItem(dialog_, IDC_TAKE_LIST), !isEmpty);
  CheckRadioButton(dialog_, IDC_TAKE_LIST, IDC_TAKE_CANDLES,
                   answer_.candlesAlone || isEmpty ? IDC_TAKE_CANDLES : IDC_TAKE_LIST);
  SetFocus(GetDlgItem(dialog_, answer_.candlesAlone || isEmpty ? IDC_TAKE_CANDLES : IDC_TAKE_LIST));
  return FALSE;
}

INT_PTR TakeDialog::OnAccept() {
  answer_.candlesAlone = IsDlgButtonChecked(dialog_, IDC_TAKE_CANDLES) == BST_CHECKED;
  answer_.format = static_cast<Format>(SendDlgItemMessageW(dialog_, IDC_FORMAT, CB_GETCURSEL, 0, 0));
  if (!question_.isToSave && answer_.candlesAlone && question_.days > kMostDaysOnOneSheet) {
    dialogs::ShowError(dialog_, L"The list is of " + std::to_wstring(question_.days) +
                                    L" days, whose candle lightings have no room on one sheet.\n\nShow a Jewish or a "
                                    L"civil year, or a range of at most " +
                                    std::to_wstring(kMostDaysOnOneSheet) + L" days, then print again.");
    return TRUE;
  }
  return EndDialog(dialog_, IDOK);
}

}  // namespace

std::optional<TakeAnswer> AskWhatToTake(HWND owner, const TakeQuestion& question, const TakeAnswer& before) {
  return TakeDialog(question, before).Run(owner);
}

}  // namespace occasions
