#include "app/delimited_export_dialog.h"

#include <string>

#include "engine/core/records.h"
#include "output/text_layout.h"
#include "readings/calendar_languages.h"
#include "readings/export_dates.h"
#include "resources/ids.h"
#include "win/dialog.h"
#include "win/message_box.h"
#include "win/save_dialog.h"
#include "zmanim/export_zmanim.h"

namespace {

// Offered again by the Browse button, until the program ends.
LastExport lastExport;

HWND DocumentOf(HWND dialog) {
  return reinterpret_cast<HWND>(GetWindowLongPtrA(dialog, DWLP_USER));
}

// The two dialogs are one but for the controls that the export of dates has more.
bool ExportsDates(HWND dialog) {
  return GetDlgItem(dialog, IDC_DELIMITED_READINGS_SEPARATOR) != nullptr;
}

void FillLanguages(HWND list) {
  for (const CalendarLanguage* language = kCalendarLanguages; language->name[0] != '\0'; ++language) {
    const LRESULT item = SendMessageA(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(language->name));
    SendMessageA(list, CB_SETITEMDATA, static_cast<WPARAM>(item), static_cast<LPARAM>(language->code));
  }
  SendMessageA(list, CB_SETCURSEL, 0, 0);
}

LRESULT OnInitDialog(HWND dialog, LPARAM document) {
  SetWindowLongPtrA(dialog, DWLP_USER, document);
  SetDlgItemTextA(dialog, IDC_DELIMITED_SEPARATOR, ";");
  CheckDlgButton(dialog, IDC_DELIMITED_HEADER, BST_CHECKED);
  for (const int field : {IDC_DELIMITED_FILE, IDC_DELIMITED_SEPARATOR, IDC_DELIMITED_READINGS_SEPARATOR}) {
    SendDlgItemMessageA(dialog, field, EM_LIMITTEXT, kTextSize - 1, 0);
  }
  if (ExportsDates(dialog)) {
    SetDlgItemTextA(dialog, IDC_DELIMITED_READINGS_SEPARATOR, ", ");
    FillLanguages(GetDlgItem(dialog, IDC_DELIMITED_LANGUAGE));
  }
  return TRUE;
}

std::string TextOf(HWND dialog, int field) {
  char text[kTextSize] = "";
  GetDlgItemTextA(dialog, field, text, sizeof text);
  return text;
}

// Whether a field holds more than blanks; else says so.
bool Require(HWND dialog, int field, const char* complaint) {
  if (!IsBlank(TextOf(dialog, field))) return true;
  ShowFieldError(dialog, field, complaint);
  return false;
}

// Whether what the export of dates asks for besides is given; else says so.
bool RequireDatesFields(HWND dialog) {
  if (!Require(dialog, IDC_DELIMITED_READINGS_SEPARATOR, "Separator for multiple readings must not be blank")) {
    return false;
  }
  if (SendDlgItemMessageA(dialog, IDC_DELIMITED_LANGUAGE, CB_GETCURSEL, 0, 0) == CB_ERR) {
    ShowFieldError(dialog, IDC_DELIMITED_LANGUAGE, "A language must be selected");
    return false;
  }
  return true;
}

bool WriteDates(HWND dialog, const std::string& file, const std::string& separator, bool header) {
  const HWND list = GetDlgItem(dialog, IDC_DELIMITED_LANGUAGE);
  const LRESULT selected = SendMessageA(list, CB_GETCURSEL, 0, 0);
  const LRESULT language = SendMessageA(list, CB_GETITEMDATA, static_cast<WPARAM>(selected), 0);
  return WriteDatesExport(DocumentOf(dialog), file, separator, header, TextOf(dialog, IDC_DELIMITED_READINGS_SEPARATOR),
                          static_cast<uint32_t>(language));
}

void OnOk(HWND dialog) {
  if (!Require(dialog, IDC_DELIMITED_FILE, "Filename must not be blank")) return;
  if (!Require(dialog, IDC_DELIMITED_SEPARATOR, "Separator must not be blank")) return;
  const std::string file = TextOf(dialog, IDC_DELIMITED_FILE);
  const std::string separator = TextOf(dialog, IDC_DELIMITED_SEPARATOR);
  const bool header = IsDlgButtonChecked(dialog, IDC_DELIMITED_HEADER) == BST_CHECKED;
  if (ExportsDates(dialog) && !RequireDatesFields(dialog)) return;
  const bool written = ExportsDates(dialog) ? WriteDates(dialog, file, separator, header)
                                            : WriteZmanimExport(DocumentOf(dialog), file, separator, header);
  if (!written) {
    ShowFieldError(dialog, IDC_DELIMITED_FILE, UnwritableFileText(file).c_str());
    return;
  }
  ShowInformation(dialog, ("Information was written to file " + file).c_str(), "Information");
  EndDialog(dialog, 1);
}

void OnBrowse(HWND dialog) {
  if (const auto file = AskForTextFile(dialog, lastExport)) {
    SetDlgItemTextA(dialog, IDC_DELIMITED_FILE, file->c_str());
  }
}

LRESULT OnCommand(HWND dialog, int control) {
  switch (control) {
    case IDOK: OnOk(dialog); break;
    case IDCANCEL: EndDialog(dialog, 0); break;
    case IDC_DELIMITED_BROWSE: OnBrowse(dialog); break;
  }
  return 0;
}

LRESULT Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog(dialog, lParam);
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam));
  }
  return DefaultDialogMessage(dialog, message, wParam, lParam);
}

}  // namespace

void RunZmanimExportDialog(HWND frame, HWND document) {
  RunDialog<Handle>(frame, "EXPNEWZMANIM", reinterpret_cast<LPARAM>(document));
}

void RunDatesExportDialog(HWND frame, HWND document) {
  RunDialog<Handle>(frame, "EXPNEWDATA", reinterpret_cast<LPARAM>(document));
}
