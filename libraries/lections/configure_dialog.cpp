#include "libraries/lections/configure_dialog.h"

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/lections/accept_settings.h"
#include "libraries/lections/lections_ids.h"
#include "libraries/lections/settings_store.h"

namespace lections {
namespace {

using calendar::Land;

struct CheckBox {
  int id;
  bool& (*of)(Settings& settings);
};

constexpr CheckBox kCheckBoxes[] = {
    {IDC_CHABAD, [](Settings& settings) -> bool& { return settings.chabad; }},
    {IDC_VERSES, [](Settings& settings) -> bool& { return settings.verses; }},
    {IDC_NEW_MONTH, [](Settings& settings) -> bool& { return settings.newMonth; }},
    {IDC_MONDAY_THURSDAY, [](Settings& settings) -> bool& { return settings.optional.mondayAndThursday; }},
    {IDC_SHABBAT_AFTERNOON, [](Settings& settings) -> bool& { return settings.optional.shabbatAfternoon; }},
    {IDC_TRIENNIAL, [](Settings& settings) -> bool& { return settings.optional.triennial; }},
};

struct CustomButton {
  int id;
  Customs customs;
};

constexpr CustomButton kCustomButtons[] = {
    {IDC_ASHKENAZI, Customs::kAshkenazi}, {IDC_SEPHARDI, Customs::kSephardi}, {IDC_BOTH, Customs::kBoth}};

bool IsChecked(HWND dialog, int id) {
  return IsDlgButtonChecked(dialog, id) == BST_CHECKED;
}

INT_PTR OnOpen(HWND dialog) {
  Settings settings = StoredSettingsNow();
  const int landId = settings.land == Land::kIsrael ? IDC_ISRAEL : IDC_DIASPORA;
  CheckRadioButton(dialog, IDC_ISRAEL, IDC_DIASPORA, landId);
  for (const CustomButton& button : kCustomButtons) {
    CheckDlgButton(dialog, button.id, button.customs == settings.customs ? BST_CHECKED : BST_UNCHECKED);
  }
  for (const CheckBox& box : kCheckBoxes) {
    CheckDlgButton(dialog, box.id, box.of(settings) ? BST_CHECKED : BST_UNCHECKED);
  }
  SetFocus(GetDlgItem(dialog, landId));
  return FALSE;
}

// The language, which is not of this dialog, as it is stored at this moment.
INT_PTR OnAccept(HWND dialog) {
  Settings settings = StoredSettingsNow();
  settings.land = IsChecked(dialog, IDC_ISRAEL) ? Land::kIsrael : Land::kDiaspora;
  for (const CustomButton& button : kCustomButtons) {
    if (IsChecked(dialog, button.id)) settings.customs = button.customs;
  }
  for (const CheckBox& box : kCheckBoxes) box.of(settings) = IsChecked(dialog, box.id);
  return AcceptSettings(dialog, settings);
}

INT_PTR OnCommand(HWND dialog, int commandId) {
  switch (commandId) {
    case IDOK: return OnAccept(dialog);
    case IDCANCEL: return EndDialog(dialog, IDCANCEL);
  }
  return FALSE;
}

INT_PTR CALLBACK ConfigureDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) try {
  switch (message) {
    case WM_INITDIALOG: return OnOpen(dialog);
    case WM_HELP: return dialogs::PassHelpOn(dialog, lParam);
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam));
  }
  return FALSE;
} catch (...) {
  return dialogs::OnException(dialog, message);
}

}  // namespace

bool DoConfigureDialog(HWND owner) {
  if (!dialogs::IsKnownIni(owner, kSettingsFile)) return false;
  return dialogs::RunDialog(owner, IDD_CONFIGURE, ConfigureDialogProc, nullptr) == IDOK;
}

}  // namespace lections
