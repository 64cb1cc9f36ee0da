#include "libraries/kinship/export_dialog.h"

#include <algorithm>
#include <cwchar>

#include "libraries/dialogs/chosen_file.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/kinship/kinship_ids.h"

namespace kinship {
namespace {

struct FormatLook {
  const wchar_t* description;
  const wchar_t* filter;  // for the dialog of files: pairs of texts, ended by an empty one
  const wchar_t* extension;
};
constexpr FormatLook kLooks[kFormats] = {
    {L"Reading as text", L"Text (*.txt)\0*.txt\0All files\0*.*\0", L"txt"},
    {L"Word processors", L"Rich text (*.rtf)\0*.rtf\0All files\0*.*\0", L"rtf"},
    {L"Spreadsheets, and to import again", L"Comma-separated values (*.csv)\0*.csv\0All files\0*.*\0", L"csv"},
    {L"Calendar programs", L"iCalendar (*.ics)\0*.ics\0All files\0*.*\0", L"ics"}};

constexpr wchar_t kImportFilter[] = L"Comma-separated values (*.csv)\0*.csv\0All files\0*.*\0";

struct State {
  ExportRequest request;
  size_t all;
  size_t shown;
};

State& StateOf(HWND dialog) {
  return *reinterpret_cast<State*>(GetWindowLongPtrW(dialog, DWLP_USER));
}

void UpdateYears(HWND dialog) {
  const LRESULT format = SendDlgItemMessageW(dialog, IDC_FORMAT, CB_GETCURSEL, 0, 0);
  const bool isCalendar = format == static_cast<LRESULT>(Format::kCalendar);
  for (const int control : {IDC_FIRST_YEAR, IDC_FIRST_YEAR_LABEL, IDC_YEARS, IDC_YEARS_LABEL}) {
    EnableWindow(GetDlgItem(dialog, control), isCalendar);
  }
}

INT_PTR OnOpen(HWND dialog, LPARAM state) {
  SetWindowLongPtrW(dialog, DWLP_USER, state);
  const auto& [request, all, shown] = StateOf(dialog);
  for (const FormatLook& look : kLooks) {
    SendDlgItemMessageW(dialog, IDC_FORMAT, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(look.description));
  }
  SendDlgItemMessageW(dialog, IDC_FORMAT, CB_SETCURSEL, static_cast<WPARAM>(request.choice.format), 0);
  SetDlgItemTextW(dialog, IDC_ALL, (L"&All " + std::to_wstring(all) + L" entries").c_str());
  SetDlgItemTextW(dialog, IDC_SHOWN, (L"&Those shown (" + std::to_wstring(shown) + L")").c_str());
  CheckRadioButton(dialog, IDC_ALL, IDC_SHOWN, request.choice.all || shown == 0 ? IDC_ALL : IDC_SHOWN);
  EnableWindow(GetDlgItem(dialog, IDC_SHOWN), shown > 0);
  SetDlgItemInt(dialog, IDC_FIRST_YEAR, static_cast<UINT>(request.firstYear), FALSE);
  SetDlgItemInt(dialog, IDC_YEARS, static_cast<UINT>(request.choice.years), FALSE);
  SendDlgItemMessageW(dialog, IDC_FIRST_YEAR, EM_LIMITTEXT, 4, 0);
  SendDlgItemMessageW(dialog, IDC_YEARS, EM_LIMITTEXT, 3, 0);
  UpdateYears(dialog);
  return TRUE;
}

// Whether a field holds a number of the range; else says so.
bool ReadNumber(HWND dialog, int control, const wchar_t* what, int32_t least, int32_t most, int32_t* number) {
  const UINT typed = GetDlgItemInt(dialog, control, nullptr, FALSE);
  *number = static_cast<int32_t>(std::min<UINT>(typed, persons::kLastGregorianYear + 1));
  if (*number >= least && *number <= most) return true;
  dialogs::ShowFieldError(
      dialog, control,
      std::wstring(what) + L" must be between " + std::to_wstring(least) + L" and " + std::to_wstring(most) + L".");
  return false;
}

INT_PTR OnAccept(HWND dialog) {
  ExportRequest& request = StateOf(dialog).request;
  request.choice.format = static_cast<Format>(SendDlgItemMessageW(dialog, IDC_FORMAT, CB_GETCURSEL, 0, 0));
  request.choice.all = IsDlgButtonChecked(dialog, IDC_ALL) == BST_CHECKED;
  if (request.choice.format == Format::kCalendar &&
      (!ReadNumber(dialog, IDC_FIRST_YEAR, L"The year", persons::kFirstGregorianYear, persons::kLastGregorianYear,
                   &request.firstYear) ||
       !ReadNumber(dialog, IDC_YEARS, L"The number of years", 1, kMostExportedYears, &request.choice.years))) {
    return TRUE;
  }
  EndDialog(dialog, IDOK);
  return TRUE;
}

INT_PTR CALLBACK ExportDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) try {
  switch (message) {
    case WM_INITDIALOG: return OnOpen(dialog, lParam);
    case WM_HELP: return dialogs::PassHelpOn(dialog, lParam);
    case WM_COMMAND:
      switch (LOWORD(wParam)) {
        case IDOK: return OnAccept(dialog);
        case IDCANCEL: return EndDialog(dialog, IDCANCEL);
        case IDC_FORMAT: UpdateYears(dialog); return TRUE;
      }
      return FALSE;
  }
  return FALSE;
} catch (...) {
  return dialogs::OnException(dialog, message);
}

// The file to write; empty when cancelled.
std::wstring AskForPath(HWND owner, const FormatLook& look) {
  return dialogs::AskForFileToWrite(owner, {L"Export Dates to File", look.filter, look.extension},
                                    L"Dates of persons." + std::wstring(look.extension));
}

}  // namespace

std::optional<ExportRequest> AskForExport(HWND owner, int32_t year, size_t all, size_t shown) {
  State state = {{StoredExportChoice(), year, {}}, all, shown};
  if (dialogs::RunDialog(owner, IDD_EXPORT, ExportDialogProc, &state) != IDOK) return std::nullopt;
  state.request.path = AskForPath(owner, kLooks[static_cast<size_t>(state.request.choice.format)]);
  if (state.request.path.empty()) return std::nullopt;
  KeepExportChoice(state.request.choice);
  return state.request;
}

std::optional<std::wstring> AskForImportFile(HWND owner) {
  std::wstring path = dialogs::AskForFileToRead(owner, {L"Import Dates from File", kImportFilter, nullptr});
  if (path.empty()) return std::nullopt;
  return path;
}

}  // namespace kinship
