// Stand-ins for the companion libraries that the program imports. They are scripted, record their calls, and fail the
// test on a call that no script foresees.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "companion/calendar_date.h"
#include "companion/majority.h"
#include "tests/doubles/ini_files.h"

struct DoubledTime {
  int32_t hour;
  int32_t minute;
};

struct CustomTimes {
  DoubledTime candles;
  DoubledTime end;
};

// One draw: where, what, and in which font ("face weight").
struct Draw {
  int x;
  int y;
  std::string text;
  std::string font;
  bool operator==(const Draw&) const = default;
};

// The font that the readings library names; an empty face: the program's own.
struct DoubledFont {
  std::string face;
  uint32_t points = 0;
  uint32_t charset = 0;
};

// One text that the library breaks into lines itself.
struct BrokenText {
  int width;  // of the rectangle
  int height;
  unsigned format;
  std::string text;
  std::string font;
};

// What the doubled text library measures.
inline constexpr int kDoubledCharacterWidth = 8;
inline constexpr int kDoubledTextHeight = 13;

// The record that the doubled majority library fills.
inline constexpr MajorityDialogData kDoubledChild = {1, 2, 2014, 1, 1};

struct LibraryScript {
  // profile: what the files hold, and the keys "file|section|key" that are read though they do not hold them. A read of
  // any other key fails the test, unless all such are missing.
  IniFiles settings;
  std::set<std::string> missingSettings;
  bool unknownSettingsAreMissing = false;
  bool logSettings = false;  // whether reads are logged too; writes always are
  bool writesFail = false;
  int failingWrites = 0;       // that are still to come
  std::string unwritableFile;  // takes no write, as the only one
  // What ProfileCanRead denies; reads of it answer defaults and it takes no write. Tests put the entry in its place.
  std::set<std::string> unreadFiles;

  // twilight: the interval, whatever is asked, unless set for a depression.
  DoubledTime twilightInterval{0, 40};
  std::map<double, DoubledTime> twilightIntervals;

  // candles: "place|day.month.year" to times; none for any other.
  std::map<std::string, CustomTimes> customTimes;

  // stamp
  bool amPm = false;
  bool formChanged = false;  // the answer of its dialog

  // hours: the size of the selection. Names are "Zman <index>" and "namZ<index>" but for those set here; an empty one
  // is none.
  uint32_t zmanimCount = 25;
  int zmanimCountQuestions = 0;                    // how often it was asked for
  std::optional<uint32_t> zmanimCountAfterDialog;  // when the user chooses others in the dialog
  std::map<uint32_t, std::string> zmanNames;
  std::map<uint32_t, std::string> hebrewZmanNames;
  // The minutes after midnight of a zman on a day: six o'clock and ten minutes more for every index, unless set.
  std::function<int32_t(uint32_t index, const CalendarDate& date)> zmanMinutes;
  bool logZmanim = false;  // whether what is asked of hours and ownhours is logged too; what is stored always is

  // ownhours: the file, "place|description|day.month.year" to time.
  std::map<std::string, DoubledTime> ownTimes;
  bool ownTimesFail = false;  // whether the file cannot be written
  int openOwnTimes = 0;       // stores that are loaded and not done with

  // lections: "day.month.year" of the Jewish date to the seven texts; no readings on any other.
  std::map<std::string, std::vector<std::string>> readings;
  std::set<std::string> yizkorDays;
  uint32_t readingsLanguage = 1;
  std::string yizkorText = "Yizkor";
  DoubledFont readingsFont;
  bool readingsChanged = false;  // the answer of its dialogs

  // placepick: the name that the user picks; empty: cancelled
  std::string pickedLocation;

  // safekeep: what a backup brings back; empty: cancelled
  std::function<void()> restoreSettings;

  HWND dialogOwner = nullptr;  // kinship and majority: of the last dialog
  HWND helpOwner = nullptr;    // guide: the window that the last help was for

  // glyphs
  std::vector<Draw> draws;         // on windows
  std::vector<Draw> printedDraws;  // on the doubled printer, a device context of memory
  std::vector<BrokenText> brokenTexts;
  RECT lastClip{};         // of the last clipped draw
  RECT lastPaintedArea{};  // what could be painted at it, or at the last text that the library broke into lines
};

LibraryScript& Libraries();

// An empty script but for what nearly every test of documents needs: default preferences, no places of the user's own.
void ResetLibraries();
