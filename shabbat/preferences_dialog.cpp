#include "shabbat/preferences_dialog.h"

#include <cstdio>
#include <optional>

#include "companion/profile.h"
#include "companion/twilight.h"
#include "engine/core/records.h"
#include "engine/mirrored_write.h"
#include "engine/string_table.h"
#include "engine/unread_settings.h"
#include "resources/ids.h"
#include "shabbat/shabbat_preferences.h"
#include "win/dialog.h"
#include "win/message_box.h"

namespace {

constexpr char kFile[] = "shabbat2.ini";
constexpr char kSection[] = "Shabbat";

void EnableMethod(HWND dialog) {
  const BOOL byDegrees = IsDlgButtonChecked(dialog, IDC_PREFERENCES_BY_DEGREES) == BST_CHECKED;
  for (const int control : {IDC_PREFERENCES_DEGREES, IDC_PREFERENCES_DEGREES_LABEL, IDC_PREFERENCES_DEGREES_UNIT,
                            IDC_PREFERENCES_ADD_MINUTES, IDC_PREFERENCES_ADD_MINUTES_LABEL}) {
    EnableWindow(GetDlgItem(dialog, control), byDegrees);
  }
  for (const int control : {IDC_PREFERENCES_END, IDC_PREFERENCES_END_LABEL}) {
    EnableWindow(GetDlgItem(dialog, control), !byDegrees);
  }
}

LRESULT OnInitDialog(HWND dialog) {
  char degrees[kTextSize];
  ProfileGetString(kSection, "DegreesBelowHorizon", "8", degrees, sizeof degrees, kFile);
  SetDlgItemInt(dialog, IDC_PREFERENCES_CANDLES, static_cast<UINT>(ShabbatPreferences::CandleLightingMinutes()), TRUE);
  SetDlgItemInt(dialog, IDC_PREFERENCES_END, static_cast<UINT>(ShabbatPreferences::EndMinutes()), TRUE);
  SetDlgItemTextA(dialog, IDC_PREFERENCES_DEGREES, degrees);
  SetDlgItemInt(dialog, IDC_PREFERENCES_ADD_MINUTES, static_cast<UINT>(ShabbatPreferences::MinutesAfterDegrees()),
                TRUE);
  CheckRadioButton(dialog, IDC_PREFERENCES_BY_MINUTES, IDC_PREFERENCES_BY_DEGREES,
                   ShabbatPreferences::EndsByMinutes() ? IDC_PREFERENCES_BY_MINUTES : IDC_PREFERENCES_BY_DEGREES);
  EnableMethod(dialog);
  return TRUE;
}

// A whole number that is not negative; or nothing, after its error message.
std::optional<uint32_t> ReadMinutes(HWND dialog, int field, const char* error) {
  const auto minutes = ReadUnsigned(dialog, field);
  if (!minutes) ShowFieldError(dialog, field, error);
  return minutes;
}

bool WriteMinutes(const char* key, uint32_t minutes) {
  char text[16];
  std::snprintf(text, sizeof text, "%d", static_cast<int>(minutes));
  return WriteMirrored(kSection, key, text, kFile);
}

// Deliberate: candle lighting and degrees are saved before the minutes to add are looked at.
bool SaveByDegrees(HWND dialog, uint32_t candles, bool& written) {
  char degrees[kTextSize];
  GetDlgItemTextA(dialog, IDC_PREFERENCES_DEGREES, degrees, sizeof degrees);
  if (!TwilightIsValidFloat(degrees)) {
    ShowFieldError(dialog, IDC_PREFERENCES_DEGREES,
                   "Shabbat end degrees below horizon must be a floating-point number");
    return false;
  }
  written = WriteMinutes("CandleLighting", candles);
  written = WriteMirrored(kSection, "DegreesBelowHorizon", degrees, kFile) && written;
  const auto added = ReadMinutes(dialog, IDC_PREFERENCES_ADD_MINUTES, "Minutes to add must be a number");
  if (!added) return false;
  written = WriteMinutes("AddMinutesAfterDegrees", *added) && written;
  written = ProfileWriteString(kSection, "DoMinutes", "0", kFile) && written;
  return true;
}

bool SaveByMinutes(HWND dialog, uint32_t candles, bool& written) {
  const auto end = ReadMinutes(dialog, IDC_PREFERENCES_END, "Shabbat end minutes must be a number");
  if (!end) return false;
  written = WriteMinutes("CandleLighting", candles);
  written = WriteMinutes("End", *end) && written;
  written = ProfileWriteString(kSection, "DoMinutes", "1", kFile) && written;
  return true;
}

void OnSave(HWND dialog) {
  const auto candles = ReadMinutes(dialog, IDC_PREFERENCES_CANDLES, "Candle lighting time must be a number");
  if (!candles) return;
  bool written = false;
  const bool byDegrees = IsDlgButtonChecked(dialog, IDC_PREFERENCES_BY_DEGREES) == BST_CHECKED;
  if (!(byDegrees ? SaveByDegrees(dialog, *candles, written) : SaveByMinutes(dialog, *candles, written))) return;
  if (!written) {
    ShowUnwritableSettings(dialog, kFile);
    return;
  }
  EndDialog(dialog, 1);
}

LRESULT OnCommand(HWND dialog, int control) {
  switch (control) {
    case IDOK: OnSave(dialog); break;
    case IDCANCEL: EndDialog(dialog, 0); break;
    case IDC_PREFERENCES_BY_MINUTES:
    case IDC_PREFERENCES_BY_DEGREES: EnableMethod(dialog); break;
  }
  return 0;
}

LRESULT Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog(dialog);
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam));
  }
  return DefaultDialogMessage(dialog, message, wParam, lParam);
}

}  // namespace

bool RunPreferencesDialog(HWND owner) {
  constexpr const char* kFiles[] = {kFile};
  if (!MayEditSettings(owner, kFiles)) return false;
  return RunDialog<Handle>(owner, "SHABTIMEDLG") == 1;
}
