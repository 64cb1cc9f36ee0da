#include "libraries/lections/language_dialog.h"

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/lections/accept_settings.h"
#include "libraries/lections/language.h"
#include "libraries/lections/lections_ids.h"
#include "libraries/lections/settings_store.h"

namespace lections {
namespace {

// The list stands in the order of Languages().
INT_PTR OnOpen(HWND dialog) {
  const uint32_t stored = StoredSettingsNow().language;
  const HWND list = GetDlgItem(dialog, IDC_LANGUAGES);
  for (const Language* language : Languages()) {
    const LRESULT index = SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(language->name));
    if (language->code == stored) SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
  }
  SetFocus(list);
  return FALSE;
}

INT_PTR OnAccept(HWND dialog) {
  Settings settings = StoredSettingsNow();
  const LRESULT selected = SendDlgItemMessageW(dialog, IDC_LANGUAGES, LB_GETCURSEL, 0, 0);
  if (selected != LB_ERR) settings.language = Languages()[static_cast<size_t>(selected)]->code;
  return AcceptSettings(dialog, settings);
}

INT_PTR OnCommand(HWND dialog, int commandId, int notification) {
  switch (commandId) {
    case IDC_LANGUAGES: return notification == LBN_DBLCLK ? OnAccept(dialog) : FALSE;
    case IDOK: return OnAccept(dialog);
    case IDCANCEL: return EndDialog(dialog, IDCANCEL);
  }
  return FALSE;
}

INT_PTR CALLBACK LanguageDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) try {
  switch (message) {
    case WM_INITDIALOG: return OnOpen(dialog);
    case WM_HELP: return dialogs::PassHelpOn(dialog, lParam);
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam), HIWORD(wParam));
  }
  return FALSE;
} catch (...) {
  return dialogs::OnException(dialog, message);
}

}  // namespace

bool DoLanguageDialog(HWND owner) {
  if (!dialogs::IsKnownIni(owner, kSettingsFile)) return false;
  return dialogs::RunDialog(owner, IDD_LANGUAGE, LanguageDialogProc, nullptr) == IDOK;
}

}  // namespace lections
