#include "libraries/lections/dialog_parts.h"

#include <string>

#include "libraries/lections/settings_store.h"

namespace lections {
namespace {

HINSTANCE ThisLibrary() {
  HMODULE library = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&ThisLibrary), &library);
  return library;
}

}  // namespace

bool RunDialog(HWND owner, int dialogId, DLGPROC procedure) {
  return DialogBoxParamW(ThisLibrary(), MAKEINTRESOURCEW(dialogId), owner, procedure, 0) == IDOK;
}

INT_PTR AcceptSettings(HWND dialog, const Settings& settings) {
  if (StoreSettings(settings)) return EndDialog(dialog, IDOK);
  const std::wstring text = L"The settings of the readings could not be saved in the file\n" + SettingsPath() +
                            L"\n\nSee to it that it can be written (no other program holds it, it is not read-only, "
                            L"the disk is not full), then choose OK again.";
  MessageBoxW(dialog, text.c_str(), L"Error", MB_OK | MB_ICONSTOP);
  return TRUE;
}

INT_PTR OnException(HWND dialog, UINT message) {
  if (message == WM_INITDIALOG) return EndDialog(dialog, IDCANCEL);
  MessageBeep(MB_ICONSTOP);
  return TRUE;
}

}  // namespace lections
