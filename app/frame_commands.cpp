#include "app/frame_commands.h"

#include <cstring>
#include <string>

#include "app/about_box.h"
#include "app/active_document.h"
#include "app/export_commands.h"
#include "app/occasions_commands.h"
#include "app/open_document.h"
#include "app/own_times_dialog.h"
#include "app/print_calendar_dialog.h"
#include "app/program.h"
#include "app/range_dialog.h"
#include "app/save_document_dialog.h"
#include "app/sunset_dialog.h"
#include "companion/candles.h"
#include "companion/guide.h"
#include "companion/hours.h"
#include "companion/kinship.h"
#include "companion/lections.h"
#include "companion/placepick.h"
#include "companion/safekeep.h"
#include "companion/stamp.h"
#include "engine/current.h"
#include "engine/optional_entries.h"
#include "engine/properties.h"
#include "engine/settings_flags.h"
#include "locations/location_lookup.h"
#include "locations/location_manager.h"
#include "readings/daf_yomi_dialog.h"
#include "resources/ids.h"
#include "shabbat/preferences_dialog.h"
#include "win/message_box.h"
#include "zmanim/custom_zmanim.h"
#include "zmanim/print_zmanim.h"

namespace {

struct FrameCommand {
  unsigned id;
  void (*run)(HWND frame);
};

// What has changed in the settings shows: views compare themselves with them when they paint, and those that nobody
// sees cost nothing.
void RedrawEverything(HWND frame) {
  RedrawWindow(frame, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

template <bool hebrew>
void NameZmanim(HWND frame) {
  if (!SetZmanimInHebrew(hebrew)) ShowUnwritableSettings(frame, kFlagsFile);
  RedrawEverything(frame);
}

// What a button of the active document's toolbar does.
template <unsigned button>
void PressButton(HWND) {
  if (const HWND document = ActiveDocument()) SendMessageA(document, WM_COMMAND, button, 0);
}

// A name that is found nowhere keeps the numbers that the search read last.
void SelectLocation(HWND frame) {
  char name[kTextSize];
  std::strcpy(name, CurrentLocation.name);
  if (!PlacePickSelectLocation(frame, name)) return;
  std::strcpy(CurrentLocation.name, name);
  LookUpLocation(CurrentLocation);
  ApplyCandleOverrideRule();
  OpenAndCompute(frame);
}

void SelectRange(HWND frame) {
  if (RunRangeDialog(frame)) OpenAndCompute(frame);
}

void ChangePreferences(HWND frame) {
  if (RunPreferencesDialog(frame)) OpenAndCompute(frame);
}

void ShowSunsetOfADay(HWND frame) {
  RunSunsetDialog(frame, ActiveDocument());
}

void ManageLocations(HWND frame) {
  if (RunLocationManager(frame, ActiveDocument())) OpenAndCompute(frame);
}

// The zmanim in use have changed, or the language of readings: documents that are seen beside the new one follow.
void OpenBesideRenewed(HWND frame) {
  ApplyCandleOverrideRule();
  OpenAndCompute(frame);
  RedrawWindow(frame, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// Deliberate: a document is opened whatever the dialog's outcome.
void SelectZmanim(HWND frame) {
  HoursDoDialogInitLoc(frame, CurrentLocation.latitude, CurrentLocation.longitude, CurrentLocation.zoneHours,
                       CurrentLocation.zoneMinutes);
  OpenBesideRenewed(frame);
}

void ChooseSummerTime(HWND frame) {
  const auto dialog = OptionalEntries.SolarDoSummerTimeDialog;
  const Location& place = CurrentLocation;
  if (dialog && dialog(frame, place.latitude, place.longitude, place.zoneHours, place.zoneMinutes)) {
    OpenBesideRenewed(frame);
  }
}

void ToggleBuiltInZmanim(HWND frame) {
  if (SetZmanimEnabled(!ZmanimEnabled())) {
    OpenBesideRenewed(frame);
  } else {
    ShowUnwritableSettings(frame, kFlagsFile);
  }
}

// A change of what readings are shown does not move the place.
template <int32_t (*dialog)(HWND owner)>
void ChangeReadings(HWND frame) {
  if (dialog(frame)) OpenBesideRenewed(frame);
}

// Deliberate: a document is opened whatever the dialog's outcome.
void ChangeCustomTimes(HWND frame) {
  const HWND document = ActiveDocument();
  const std::string place = document ? DocumentPlace(document) : CurrentLocation.name;
  if (OptionalEntries.CandlesDoDialogAt) {
    OptionalEntries.CandlesDoDialogAt(frame, place.c_str());
  } else {
    CandlesDoDialog(frame);
  }
  OpenAndCompute(frame);
}

void ChangeFormOfTimes(HWND frame) {
  if (StampConfigure(frame)) RedrawEverything(frame);
}

void BackUpSettings(HWND frame) {
  SafekeepBackUp(frame);
}

// Any of the settings may be another, where the user's own place is among them.
void RestoreSettings(HWND frame) {
  if (!SafekeepRestore(frame)) return;
  Location place = CurrentLocation;
  if (LookUpLocation(place) != LocationSource::kNowhere) CurrentLocation = place;
  CustomZmanimHaveChanged();
  OpenBesideRenewed(frame);
}

void ShowDafYomi(HWND frame) {
  const HWND document = ActiveDocument();
  if (!document) return;
  const DateRange range = GetRangeProperties(document);
  RunDafYomiDialog(frame, &range);
}

// Of the three views, only the zmanim are printed.
void Print(HWND frame) {
  const HWND document = ActiveDocument();
  if (document && IsPaneVisible(document, IDC_ZMANIM_PANE)) PrintZmanim(frame, document);
}

void SaveAsDocument(HWND frame) {
  if (const HWND document = ActiveDocument()) RunSaveDocumentDialog(frame, document);
}

void PrintACalendar(HWND frame) {
  if (const HWND document = ActiveDocument()) RunPrintCalendarDialog(frame, document);
}

void ShowHelp(HWND frame) {
  GuideGo(frame, "Start");
}
void ShowZmanimHelp(HWND frame) {
  GuideGo(frame, "Zmanim");
}

void Exit(HWND frame) {
  PostMessageA(frame, WM_SYSCOMMAND, SC_CLOSE, 0);
}

void Cascade(HWND) {
  SendMessageA(Program.mdiClient, WM_MDICASCADE, 0, 0);
}
void TileVertically(HWND) {
  SendMessageA(Program.mdiClient, WM_MDITILE, MDITILE_VERTICAL, 0);
}
void TileHorizontally(HWND) {
  SendMessageA(Program.mdiClient, WM_MDITILE, MDITILE_HORIZONTAL, 0);
}
void ArrangeIcons(HWND) {
  SendMessageA(Program.mdiClient, WM_MDIICONARRANGE, 0, 0);
}

void CloseAll(HWND) {
  while (const HWND top = GetWindow(Program.mdiClient, GW_CHILD)) {
    SendMessageA(Program.mdiClient, WM_MDIDESTROY, reinterpret_cast<WPARAM>(top), 0);
    if (IsWindow(top)) break;
  }
}

constexpr FrameCommand kFrameCommands[] = {
    {IDM_SELECT_LOCATION, SelectLocation},
    {IDM_SELECT_RANGE, SelectRange},
    {IDM_PREFERENCES, ChangePreferences},
    {IDM_SUNSET_OF_A_DAY, ShowSunsetOfADay},
    {IDM_OCCASIONS, ShowOccasions},
    {IDM_EXPORT_TEXT, ExportText},
    {IDM_EXPORT_RTF, ExportRtf},
    {IDM_PRINT, Print},
    {IDM_SAVE_DOCUMENT, SaveAsDocument},
    {IDM_PRINT_CALENDAR, PrintACalendar},
    {IDM_PRINTER_SETUP, PrinterSetup},
    {IDM_EXIT, Exit},
    {IDM_KINSHIP_FONT, KinshipFontDialog},
    {IDM_ZMANIM_SELECTION, SelectZmanim},
    {IDM_READINGS_CONFIGURE, ChangeReadings<LectionsDoConfigureDialog>},
    {IDM_READINGS_CUSTOM, ChangeReadings<LectionsDoCustomReadingsDialog>},
    {IDM_READINGS_LANGUAGE, ChangeReadings<LectionsDoLanguageDialog>},
    {IDM_CUSTOM_CANDLES, ChangeCustomTimes},
    {IDM_OCCASIONS_SHOWN, ChooseOccasionsShown},
    {IDM_TIME_FORM, ChangeFormOfTimes},
    {IDM_ZMANIM_HEBREW, NameZmanim<true>},
    {IDM_ZMANIM_ENGLISH, NameZmanim<false>},
    {IDM_EXPORT_RTF_THREE_COLUMNS, ExportRtfInThreeColumns},
    {IDM_EXPORT_RTF_TWO_COLUMNS, ExportRtfInTwoColumns},
    {IDM_EXPORT_ZMANIM, ExportZmanimDelimited},
    {IDM_EXPORT_DATES, ExportDatesDelimited},
    {IDM_OWN_TIMES, RunOwnTimesDialog},
    {IDM_EXPORT_RTF_BY_DAY, ExportZmanimByDayLater},
    {IDM_EXPORT_RTF_NARROW, ExportReadingsNarrowLater},
    {IDM_LOCATION_MANAGER, ManageLocations},
    {IDM_SUMMER_TIME, ChooseSummerTime},
    {IDM_BUILT_IN_ZMANIM, ToggleBuiltInZmanim},
    {IDM_BACK_UP_SETTINGS, BackUpSettings},
    {IDM_RESTORE_SETTINGS, RestoreSettings},
    {IDM_VIEW_SHABBAT_TIMES, PressButton<IDB_SHABBAT_TIMES>},
    {IDM_VIEW_ZMANIM, PressButton<IDB_ZMANIM>},
    {IDM_VIEW_READINGS, PressButton<IDB_READINGS>},
    {IDM_DAF_YOMI, ShowDafYomi},
    {IDM_BIRTHDAYS, PressButton<IDB_BIRTHDAYS>},
    {IDM_BAR_MITZVAH, PressButton<IDB_BAR_MITZVAH>},
    {IDM_ALMANAC, PressButton<IDB_ALMANAC>},
    {IDM_WINDOW_CASCADE, Cascade},
    {IDM_WINDOW_TILE_VERTICALLY, TileVertically},
    {IDM_WINDOW_TILE, TileHorizontally},
    {IDM_WINDOW_ARRANGE_ICONS, ArrangeIcons},
    {IDM_WINDOW_CLOSE_ALL, CloseAll},
    {IDM_HELP, ShowHelp},
    {IDM_HELP_ZMANIM, ShowZmanimHelp},
    {IDM_ABOUT, RunAboutBox},
};

const FrameCommand* FindCommand(unsigned id) {
  for (const FrameCommand& command : kFrameCommands) {
    if (command.id == id) return &command;
  }
  return nullptr;
}

}  // namespace

bool IsFrameCommand(unsigned id) {
  return FindCommand(id) != nullptr;
}

void RunFrameCommand(HWND frame, unsigned id) {
  if (const FrameCommand* command = FindCommand(id)) command->run(frame);
}
