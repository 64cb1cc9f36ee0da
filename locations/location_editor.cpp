#include "locations/location_editor.h"

#include <commctrl.h>

#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

#include "engine/core/leading_integer.h"
#include "engine/optional_entries.h"
#include "engine/string_table.h"
#include "engine/unread_settings.h"
#include "locations/core/location_texts.h"
#include "locations/core/packed_coordinate.h"
#include "locations/core/place_names.h"
#include "locations/location_lookup.h"
#include "locations/location_store.h"
#include "resources/ids.h"
#include "win/dialog.h"
#include "win/message_box.h"

namespace {

constexpr uint32_t kFirstRefusedLatitude = 66;
constexpr uint32_t kMostLongitude = 180;

// What the editor was opened with; the dialog keeps a pointer to it.
struct Editing {
  char* name;  // of kTextSize bytes
  bool adding;
  int32_t builtInZoneMinutes;  // what the field of the zone's minutes means while it is empty
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
  for (const auto& [field, key] : fields) SetDlgItemTextA(dialog, field, ReadLocationText(name, key).c_str());
  CheckHemispheres(dialog, LeadingInteger(ReadLocationText(name, "LatitudeFlag")) != 0,
                   LeadingInteger(ReadLocationText(name, "LongitudeFlag")) != 0);

  // Deliberate: the default elevation is looked for without regard to hemispheres here.
  const ElevationPlace place = ReadElevationPlace(name);
  const auto packed = [](uint32_t degrees, uint32_t minutes) {
    return PackCoordinate(static_cast<int32_t>(degrees), static_cast<int32_t>(minutes), false);
  };
  const int32_t byDefault = DefaultElevation(packed(place.latitudeDegrees, place.latitudeMinutes),
                                             packed(place.longitudeDegrees, place.longitudeMinutes), place.zoneHours);
  SetDlgItemInt(dialog, IDC_LOCATION_ELEVATION, static_cast<UINT>(ReadElevation(place, byDefault)), FALSE);
}

// The field of the zone's minutes stays empty, but tells what it then means.
void ShowBuiltInLocation(HWND dialog, Editing& editing) {
  Location location{};
  std::strcpy(location.name, editing.name);
  LookUpLocation(location);
  const auto show = [dialog](int degreesField, int minutesField, int32_t packed) {
    SetDlgItemInt(dialog, degreesField, static_cast<UINT>(std::abs(packed / 100)), FALSE);
    SetDlgItemInt(dialog, minutesField, static_cast<UINT>(std::abs(packed % 100)), FALSE);
  };
  show(IDC_LOCATION_LATITUDE_DEGREES, IDC_LOCATION_LATITUDE_MINUTES, location.latitude);
  show(IDC_LOCATION_LONGITUDE_DEGREES, IDC_LOCATION_LONGITUDE_MINUTES, location.longitude);
  CheckHemispheres(dialog, location.latitude < 0, location.longitude < 0);
  SetDlgItemInt(dialog, IDC_LOCATION_ZONE_HOURS, static_cast<UINT>(location.zoneHours), TRUE);
  editing.builtInZoneMinutes = location.zoneMinutes;
  const std::wstring minutes = std::to_wstring(location.zoneMinutes);
  SendDlgItemMessageW(dialog, IDC_LOCATION_ZONE_MINUTES, EM_SETCUEBANNER, TRUE,
                      reinterpret_cast<LPARAM>(minutes.c_str()));
  SetDlgItemInt(dialog, IDC_LOCATION_ELEVATION, 0, FALSE);
}

// The minutes of the zone as typed; an empty field means those that the place had.
std::optional<int32_t> TypedZoneMinutes(HWND dialog) {
  if (GetWindowTextLengthA(GetDlgItem(dialog, IDC_LOCATION_ZONE_MINUTES)) == 0) {
    return EditingOf(dialog).builtInZoneMinutes;
  }
  return ReadSigned(dialog, IDC_LOCATION_ZONE_MINUTES);
}

// Degrees and minutes in two fields as a packed coordinate; nothing where they are none.
std::optional<int32_t> TypedCoordinate(HWND dialog, int degreesField, int minutesField, int negativeButton,
                                       uint32_t mostDegrees) {
  constexpr uint32_t kMinutesPerDegree = 60;
  const auto degrees = ReadUnsigned(dialog, degreesField);
  const auto minutes = ReadUnsigned(dialog, minutesField);
  if (!degrees || !minutes || *degrees > mostDegrees || *minutes >= kMinutesPerDegree) return std::nullopt;
  return PackCoordinate(static_cast<int32_t>(*degrees), static_cast<int32_t>(*minutes),
                        IsDlgButtonChecked(dialog, negativeButton) == BST_CHECKED);
}

// The clock in which times of the place would be told; empty while the fields are no place.
void ShowClock(HWND dialog) {
  if (!OptionalEntries.SolarDescribeZone) return;
  const auto latitude = TypedCoordinate(dialog, IDC_LOCATION_LATITUDE_DEGREES, IDC_LOCATION_LATITUDE_MINUTES,
                                        IDC_LOCATION_SOUTH, kFirstRefusedLatitude - 1);
  const auto longitude = TypedCoordinate(dialog, IDC_LOCATION_LONGITUDE_DEGREES, IDC_LOCATION_LONGITUDE_MINUTES,
                                         IDC_LOCATION_WEST, kMostLongitude);
  const auto zoneHours = ReadSigned(dialog, IDC_LOCATION_ZONE_HOURS);
  const auto zoneMinutes = TypedZoneMinutes(dialog);
  char line[kTextSize] = "";
  if (latitude && longitude && zoneHours && zoneMinutes) {
    OptionalEntries.SolarDescribeZone(*latitude, *longitude, *zoneHours, *zoneMinutes, line, sizeof line);
  }
  SetDlgItemTextA(dialog, IDC_LOCATION_CLOCK, line);
}

LRESULT OnInitDialog(HWND dialog, LPARAM parameter) {
  SetWindowLongPtrA(dialog, DWLP_USER, parameter);
  Editing& editing = EditingOf(dialog);
  SetWindowTextA(dialog, TableString(editing.adding ? IDS_ADD_LOCATION : IDS_CHANGE_LOCATION));
  SendDlgItemMessageA(dialog, IDC_LOCATION_NAME, EM_LIMITTEXT, kTextSize - 1, 0);
  SetDlgItemTextA(dialog, IDC_LOCATION_NAME, editing.name);
  if (editing.adding) {
    CheckHemispheres(dialog, false, false);
  } else if (IsUserLocation(editing.name)) {
    ShowUserLocation(dialog, editing.name);
  } else {
    ShowBuiltInLocation(dialog, editing);
  }
  ShowClock(dialog);
  return TRUE;
}

// What is no number is not taken for one.
std::optional<int32_t> ReadZoneMinutes(HWND dialog) {
  const auto minutes = TypedZoneMinutes(dialog);
  if (!minutes) {
    ShowFieldError(dialog, IDC_LOCATION_ZONE_MINUTES,
                   "The minutes of the time zone are not a number. Please type 0, 30 or 45, for instance.");
  }
  return minutes;
}

// Deliberate: most fields that hold no number stop the save without a message, and hours of the zone that are no number
// are 0.
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
  const auto zoneMinutes = ReadZoneMinutes(dialog);
  if (!zoneMinutes) return std::nullopt;
  return StoredLocation{.latitudeDegrees = *latitudeDegrees,
                        .latitudeMinutes = *latitudeMinutes,
                        .south = IsDlgButtonChecked(dialog, IDC_LOCATION_NORTH) != BST_CHECKED,
                        .longitudeDegrees = *longitudeDegrees,
                        .longitudeMinutes = *longitudeMinutes,
                        .west = IsDlgButtonChecked(dialog, IDC_LOCATION_EAST) != BST_CHECKED,
                        .zoneHours = ReadSigned(dialog, IDC_LOCATION_ZONE_HOURS).value_or(0),
                        .zoneMinutes = *zoneMinutes};
}

// The name becomes a key and a section of the settings files.
bool IsStorableName(const char* name) {
  return name[0] != '\0' && name[0] != ';' && !std::strpbrk(name, "=[]\r\n") && name[0] != ' ' &&
         name[std::strlen(name) - 1] != ' ';
}

// The name as typed; nothing, after a message, when no place may have it. Names stand in RTF files, where some
// characters are commands; a place that has them in its name already keeps it.
std::optional<std::string> ReadName(HWND dialog, const char* previous) {
  char name[kTextSize];
  GetDlgItemTextA(dialog, IDC_LOCATION_NAME, name, sizeof name);
  const char* complaint = nullptr;
  if (!IsStorableName(name)) {
    complaint =
        "Please type a name of the location that does not begin or end with a space, does not begin with ; and does "
        "not contain = [ or ].";
  } else if (std::strpbrk(name, "{}\\") && std::strcmp(name, previous) != 0) {
    complaint = "Please type a name of the location that does not contain { } or \\.";
  }
  if (!complaint) return name;
  ShowFieldError(dialog, IDC_LOCATION_NAME, complaint);
  return std::nullopt;
}

// The name that the place will have; nothing when the user does not want to replace the place that has it. A place
// whose name differs from the typed one in letter case alone is the one that the settings files would answer for.
std::optional<std::string> NameToSave(HWND dialog, const Editing& editing, const std::string& typed) {
  const std::string name = SpellingInStore(typed, editing.name, UserLocationNames(), BuiltInLocationNames());
  const bool replaces = name != typed || (editing.adding && IsUserLocation(name.c_str()));
  if (replaces && !Ask(dialog, TableString(IDS_OVERWRITE_CITY), TableString(IDS_TITLE))) return std::nullopt;
  return name;
}

void OnSave(HWND dialog) {
  Editing& editing = EditingOf(dialog);
  const auto typed = ReadName(dialog, editing.name);
  if (!typed) return;
  const auto name = NameToSave(dialog, editing, *typed);
  if (!name) return;
  const auto location = ReadFields(dialog);
  if (!location) return;
  const auto elevation = ReadUnsigned(dialog, IDC_LOCATION_ELEVATION);
  if (!elevation) return;

  bool written = editing.name[0] == '\0' || DeleteUserLocation(editing.name);
  std::strcpy(editing.name, name->c_str());
  editing.adding = false;  // should a write fail, the next try changes what this one has left
  written = WriteUserLocation(editing.name, *location) && written;
  const ElevationPlace elevated = {location->latitudeDegrees,  location->latitudeMinutes, location->longitudeDegrees,
                                   location->longitudeMinutes, location->zoneHours,       location->zoneMinutes};
  if (!written || !WriteElevation(elevated, *elevation)) {
    ShowUnwritableSettings(dialog, written ? kElevationFile : kLocationsFile);
    return;
  }
  EndDialog(dialog, 1);
}

LRESULT OnCommand(HWND dialog, int control, int notification) {
  switch (control) {
    case IDOK: OnSave(dialog); break;
    case IDCANCEL: EndDialog(dialog, 0); break;
    case IDC_LOCATION_LATITUDE_DEGREES:
    case IDC_LOCATION_LATITUDE_MINUTES:
    case IDC_LOCATION_LONGITUDE_DEGREES:
    case IDC_LOCATION_LONGITUDE_MINUTES:
    case IDC_LOCATION_ZONE_HOURS:
    case IDC_LOCATION_ZONE_MINUTES:
      if (notification == EN_CHANGE) ShowClock(dialog);
      break;
    case IDC_LOCATION_NORTH:
    case IDC_LOCATION_SOUTH:
    case IDC_LOCATION_EAST:
    case IDC_LOCATION_WEST: ShowClock(dialog); break;
  }
  return 0;
}

LRESULT Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog(dialog, lParam);
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam), HIWORD(wParam));
  }
  return DefaultDialogMessage(dialog, message, wParam, lParam);
}

}  // namespace

bool RunLocationEditor(HWND owner, char (&name)[kTextSize]) {
  if (!MayEditSettings(owner, kStoreFiles)) return false;
  Editing editing{.name = name, .adding = name[0] == '\0', .builtInZoneMinutes = 0};
  return RunDialog<Handle>(owner, "EDITLOC", reinterpret_cast<LPARAM>(&editing)) == 1;
}
