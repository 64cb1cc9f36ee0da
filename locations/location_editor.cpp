#include "locations/location_editor.h"

#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

#include "engine/core/leading_integer.h"
#include "engine/string_table.h"
#include "engine/unread_settings.h"
#include "locations/core/location_texts.h"
#include "locations/core/packed_coordinate.h"
#include "locations/location_lookup.h"
#include "locations/location_store.h"
#include "resources/ids.h"
#include "win/dialog.h"
#include "win/message_box.h"

namespace {

constexpr uint32_t kFirstRefusedLatitude = 66;

// What the editor was opened with; the dialog keeps a pointer to it.
struct Editing {
  char* name;  // of kTextSize bytes
  bool adding;
};

Editing& EditingOf(HWND dialog) {
  return *reinterpret_cast<Editing*>(GetWindowLongPtrA(dialog, DWLP_USER));
}

void CheckHemispheres(HWND dialog, bool south, bool west) {
  CheckRadioButton(dialog, IDC_LOCATION_NORTH, IDC_LOCATION_SOUTH, south ? IDC_LOCATION_SOUTH : IDC_LOCATION_NORTH);
  CheckRadioButton(dialog, IDC_LOCATION_EAST, IDC_LOCATION_WEST, west ? IDC_LOCATION_WEST : IDC_LOCATION_EAST);
}

// The texts of a user's place stand in the fields as they are stored.
void ShowUserLocation(HWND dialog, const char* name) {
  const struct {
    int field;
    const char* key;
  } fields[] = {{IDC_LOCATION_LATITUDE_DEGREES, "LatitudeDegrees"},
                {IDC_LOCATION_LATITUDE_MINUTES, "LatitudeHours"},
                {IDC_LOCATION_LONGITUDE_DEGREES, "LongitudeDegrees"},
                {IDC_LOCATION_LONGITUDE_MINUTES, "LongitudeHours"},
                {IDC_LOCATION_ZONE_HOURS, "TimeZone"},
                {IDC_LOCATION_ZONE_MINUTES, "TimeZoneMin"}};
  int32_t numbers[std::size(fields)];
  for (std::size_t i = 0; i < std::size(fields); ++i) {
    const std::string text = ReadLocationText(name, fields[i].key);
    SetDlgItemTextA(dialog, fields[i].field, text.c_str());
    numbers[i] = LeadingInteger(text);
  }
  CheckHemispheres(dialog, LeadingInteger(ReadLocationText(name, "LatitudeFlag")) != 0,
                   LeadingInteger(ReadLocationText(name, "LongitudeFlag")) != 0);

  // Deliberate: the default elevation is looked for without regard to hemispheres here.
  const auto number = [&numbers](std::size_t i) { return static_cast<uint32_t>(numbers[i]); };
  const std::string key = ElevationKey(number(0), number(1), number(2), number(3), numbers[4], numbers[5]);
  const int32_t byDefault = DefaultElevation(PackCoordinate(numbers[0], numbers[1], false),
                                             PackCoordinate(numbers[2], numbers[3], false), numbers[4]);
  SetDlgItemInt(dialog, IDC_LOCATION_ELEVATION, static_cast<UINT>(ReadElevation(key, byDefault)), FALSE);
}

void ShowBuiltInLocation(HWND dialog, const char* name) {
  Location location{};
  std::strcpy(location.name, name);
  LookUpLocation(location);
  const auto show = [dialog](int degreesField, int minutesField, int32_t packed) {
    SetDlgItemInt(dialog, degreesField, static_cast<UINT>(std::abs(packed / 100)), FALSE);
    SetDlgItemInt(dialog, minutesField, static_cast<UINT>(std::abs(packed % 100)), FALSE);
  };
  show(IDC_LOCATION_LATITUDE_DEGREES, IDC_LOCATION_LATITUDE_MINUTES, location.latitude);
  show(IDC_LOCATION_LONGITUDE_DEGREES, IDC_LOCATION_LONGITUDE_MINUTES, location.longitude);
  CheckHemispheres(dialog, location.latitude < 0, location.longitude < 0);
  SetDlgItemInt(dialog, IDC_LOCATION_ZONE_HOURS, static_cast<UINT>(location.zoneHours), TRUE);
  SetDlgItemInt(dialog, IDC_LOCATION_ELEVATION, 0, FALSE);
}

LRESULT OnInitDialog(HWND dialog, LPARAM parameter) {
  SetWindowLongPtrA(dialog, DWLP_USER, parameter);
  const Editing& editing = EditingOf(dialog);
  SetWindowTextA(dialog, TableString(editing.adding ? IDS_ADD_LOCATION : IDS_CHANGE_LOCATION));
  SendDlgItemMessageA(dialog, IDC_LOCATION_NAME, EM_LIMITTEXT, kTextSize - 1, 0);
  SetDlgItemTextA(dialog, IDC_LOCATION_NAME, editing.name);
  if (editing.adding) {
    CheckHemispheres(dialog, false, false);
  } else if (IsUserLocation(editing.name)) {
    ShowUserLocation(dialog, editing.name);
  } else {
    ShowBuiltInLocation(dialog, editing.name);
  }
  return TRUE;
}

// Deliberate: a field that holds no number stops the save without a message; only the latitude's range is reported, and
// zone fields that hold no number are 0.
std::optional<StoredLocation> ReadFields(HWND dialog) {
  const auto latitudeDegrees = ReadUnsigned(dialog, IDC_LOCATION_LATITUDE_DEGREES);
  if (!latitudeDegrees) return std::nullopt;
  if (*latitudeDegrees >= kFirstRefusedLatitude) {
    ShowFieldError(dialog, IDC_LOCATION_LATITUDE_DEGREES, TableString(IDS_LATITUDE_RANGE));
    return std::nullopt;
  }
  const auto latitudeMinutes = ReadUnsigned(dialog, IDC_LOCATION_LATITUDE_MINUTES);
  const auto longitudeDegrees = ReadUnsigned(dialog, IDC_LOCATION_LONGITUDE_DEGREES);
  const auto longitudeMinutes = ReadUnsigned(dialog, IDC_LOCATION_LONGITUDE_MINUTES);
  if (!latitudeMinutes || !longitudeDegrees || !longitudeMinutes) return std::nullopt;
  return StoredLocation{.latitudeDegrees = *latitudeDegrees,
                        .latitudeMinutes = *latitudeMinutes,
                        .south = IsDlgButtonChecked(dialog, IDC_LOCATION_NORTH) != BST_CHECKED,
                        .longitudeDegrees = *longitudeDegrees,
                        .longitudeMinutes = *longitudeMinutes,
                        .west = IsDlgButtonChecked(dialog, IDC_LOCATION_EAST) != BST_CHECKED,
                        .zoneHours = ReadSigned(dialog, IDC_LOCATION_ZONE_HOURS).value_or(0),
                        .zoneMinutes = ReadSigned(dialog, IDC_LOCATION_ZONE_MINUTES).value_or(0)};
}

// The name becomes a key and a section of the settings files.
bool IsStorableName(const char* name) {
  return name[0] != '\0' && name[0] != ';' && !std::strpbrk(name, "=[]\r\n") && name[0] != ' ' &&
         name[std::strlen(name) - 1] != ' ';
}

void OnSave(HWND dialog) {
  Editing& editing = EditingOf(dialog);
  char name[kTextSize];
  GetDlgItemTextA(dialog, IDC_LOCATION_NAME, name, sizeof name);
  if (!IsStorableName(name)) {
    ShowFieldError(dialog, IDC_LOCATION_NAME,
                   "Please type a name of the location that does not begin or end with a space, does not begin with ; "
                   "and does not contain = [ or ].");
    return;
  }
  if (editing.adding && IsUserLocation(name) && !Ask(dialog, TableString(IDS_OVERWRITE_CITY), TableString(IDS_TITLE))) {
    return;
  }
  const auto location = ReadFields(dialog);
  const auto elevation = ReadUnsigned(dialog, IDC_LOCATION_ELEVATION);
  if (!location || !elevation) return;

  bool written = editing.name[0] == '\0' || DeleteUserLocation(editing.name);
  std::strcpy(editing.name, name);
  written = WriteUserLocation(name, *location) && written;
  const std::string key = ElevationKey(location->latitudeDegrees, location->latitudeMinutes, location->longitudeDegrees,
                                       location->longitudeMinutes, location->zoneHours, location->zoneMinutes);
  if (!written || !WriteElevation(key, *elevation)) {
    ShowUnwritableSettings(dialog, written ? kElevationFile : kLocationsFile);
    return;
  }
  EndDialog(dialog, 1);
}

LRESULT OnCommand(HWND dialog, int control) {
  switch (control) {
    case IDOK: OnSave(dialog); break;
    case IDCANCEL: EndDialog(dialog, 0); break;
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

bool RunLocationEditor(HWND owner, char (&name)[kTextSize]) {
  if (!MayEditSettings(owner, kStoreFiles)) return false;
  Editing editing{.name = name, .adding = name[0] == '\0'};
  return RunDialog<Handle>(owner, "EDITLOC", reinterpret_cast<LPARAM>(&editing)) == 1;
}
