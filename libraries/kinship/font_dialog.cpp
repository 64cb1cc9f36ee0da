#include "libraries/kinship/font_dialog.h"

#include <commdlg.h>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/kinship/kinship_settings.h"

namespace kinship {
namespace {

// The font of message boxes: that of dialogs goes by a name that the list of fonts does not have.
LOGFONTW DefaultFont() {
  NONCLIENTMETRICSW metrics = {};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  return metrics.lfMessageFont;
}

}  // namespace

void RunFontDialog(HWND owner) {
  if (!dialogs::IsKnownIni(owner, kSettingsFile)) return;
  LOGFONTW font = StoredFont().value_or(DefaultFont());
  CHOOSEFONTW dialog = {};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpLogFont = &font;
  dialog.Flags = CF_SCREENFONTS | CF_INITTOLOGFONTSTRUCT | CF_NOVERTFONTS | CF_FORCEFONTEXIST;
  while (ChooseFontW(&dialog)) {
    if (StoreFont(font)) return;
    dialogs::ShowError(owner, L"The font could not be saved in the file\n" + SettingsPath() +
                                  L"\n\nSee to it that it can be written (no other program holds it, it is not "
                                  L"read-only, the disk is not full), then choose OK again.");
  }
}

}  // namespace kinship
