// The location dialogs on a scripted store.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/program_fixture.h"

struct EditedFields {
  const char* name = "Home";
  const char* latitudeDegrees = "32";
  const char* latitudeMinutes = "49";
  bool south = false;
  const char* longitudeDegrees = "34";
  const char* longitudeMinutes = "59";
  bool west = false;
  const char* zoneHours = "2";
  const char* zoneMinutes = "0";
  const char* elevation = "0";
};

class LocationsTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().unknownSettingsAreMissing = true;
    OpenFrame();
    CallLog().clear();
  }

  void AddUserPlace(const std::string& name, const EditedFields& fields) {
    auto& settings = Libraries().settings;
    settings["shabbat2.ini|Locations|" + name] = "Available";
    const std::string place = "shabloc2.ini|" + name + "|";
    settings[place + "LatitudeDegrees"] = fields.latitudeDegrees;
    settings[place + "LatitudeHours"] = fields.latitudeMinutes;
    settings[place + "LatitudeFlag"] = fields.south ? "1" : "0";
    settings[place + "LongitudeDegrees"] = fields.longitudeDegrees;
    settings[place + "LongitudeHours"] = fields.longitudeMinutes;
    settings[place + "LongitudeFlag"] = fields.west ? "1" : "0";
    settings[place + "TimeZone"] = fields.zoneHours;
    settings[place + "TimeZoneMin"] = fields.zoneMinutes;
  }

  void Manage(const std::function<void(HWND)>& drive) {
    WithDialog([&] { SendMessageA(frame_, WM_COMMAND, IDM_LOCATION_MANAGER, 0); }, drive);
  }

  static std::vector<std::string> Names(HWND manager) {
    std::vector<std::string> names;
    const LRESULT count = SendDlgItemMessageA(manager, 101, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
      char name[256] = "";
      SendDlgItemMessageA(manager, 101, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(name));
      names.push_back(name);
    }
    return names;
  }
  static LRESULT Selected(HWND manager) { return SendDlgItemMessageA(manager, 101, LB_GETCURSEL, 0, 0); }
  static void Select(HWND manager, int index) {
    SendDlgItemMessageA(manager, 101, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    SendMessageA(manager, WM_COMMAND, MAKEWPARAM(101, LBN_SELCHANGE), 0);
  }
  static bool CanRemove(HWND manager) { return IsWindowVisible(GetDlgItem(manager, 103)) != FALSE; }

  static void Fill(HWND editor, const EditedFields& fields) {
    SetField(editor, 101, fields.name);
    SetField(editor, 102, fields.latitudeDegrees);
    SetField(editor, 103, fields.latitudeMinutes);
    Click(editor, fields.south ? 105 : 104);
    SetField(editor, 106, fields.longitudeDegrees);
    SetField(editor, 107, fields.longitudeMinutes);
    Click(editor, fields.west ? 109 : 108);
    SetField(editor, 110, fields.zoneHours);
    SetField(editor, 200, fields.zoneMinutes);
    SetField(editor, 300, fields.elevation);
  }
  static void Edit(HWND manager, int button, const std::function<void(HWND)>& drive) {
    WithDialog([&] { Click(manager, button); }, drive);
  }
  static std::string Stored(const std::string& key) { return Libraries().settings.Stored(key); }
};
