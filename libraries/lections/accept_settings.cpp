#include "libraries/lections/accept_settings.h"

#include <string>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/lections/settings_store.h"

namespace lections {

INT_PTR AcceptSettings(HWND dialog, const Settings& settings) {
  if (StoreSettings(settings)) return EndDialog(dialog, IDOK);
  dialogs::ShowError(dialog,
                     L"The settings of the readings could not be saved in the file\n" + SettingsPath() +
                         L"\n\nSee to it that it can be written (no other program holds it, it is not read-only, "
                         L"the disk is not full), then choose OK again.");
  return TRUE;
}

}  // namespace lections
