#include "app/help_key.h"

#include "app/active_document.h"
#include "companion/dialog_help.h"
#include "companion/guide.h"
#include "resources/ids.h"

namespace {

constexpr char kGeneral[] = "Start";
constexpr char kShabbatTimes[] = "Shabbat times";
constexpr char kPlaces[] = "Places";
constexpr char kZmanim[] = "Zmanim";
constexpr char kReadings[] = "Readings";
constexpr char kPersons[] = "Persons";
constexpr char kExports[] = "Exports and printing";
constexpr char kSettings[] = "Settings";
constexpr char kDocuments[] = "Documents";
constexpr char kOccasions[] = "Occasions";

struct HelpTopic {
  unsigned id;
  const char* topic;
};

// By the dialog's help id.
constexpr HelpTopic kDialogTopics[] = {
    {HELPID_PREFERENCES, kShabbatTimes},
    {HELPID_RANGE, kGeneral},
    {HELPID_SUNSET, kShabbatTimes},
    {HELPID_ABOUT, kGeneral},
    {HELPID_RTF_OPTIONS, kExports},
    {HELPID_LOCATIONS, kPlaces},
    {HELPID_LOCATION, kPlaces},
    {HELPID_DELIMITED_ZMANIM, kExports},
    {HELPID_DELIMITED_DATES, kExports},
    {HELPID_PRINTING, kExports},
    {HELPID_EDIT_ZMAN, kZmanim},
    {HELPID_DAF_YOMI, kPersons},
    {HELPID_SAVE_DOCUMENT, kDocuments},
    {HELPID_PRINT_CALENDAR, kDocuments},
    {HELPID_CANDLES, kShabbatTimes},
    {HELPID_CANDLES_ENTRY, kShabbatTimes},
    {HELPID_HOURS_SELECTION, kZmanim},
    {HELPID_HOURS_OWN, kZmanim},
    {HELPID_LECTIONS_CONFIGURE, kReadings},
    {HELPID_LECTIONS_LANGUAGE, kReadings},
    {HELPID_LECTIONS_OWN, kReadings},
    {HELPID_LECTIONS_OWN_TEXT, kReadings},
    {HELPID_OWNHOURS, kZmanim},
    {HELPID_OWNHOURS_TIME, kZmanim},
    {HELPID_STAMP_FORM, kShabbatTimes},
    {HELPID_PLACEPICK, kPlaces},
    {HELPID_KINSHIP, kPersons},
    {HELPID_KINSHIP_ENTRY, kPersons},
    {HELPID_KINSHIP_EXPORT, kPersons},
    {HELPID_MAJORITY, kPersons},
    {HELPID_SOLAR_SUMMER_TIME, kPlaces},
    {HELPID_SAFEKEEP_RESTORE, kSettings},
    {HELPID_OCCASIONS, kOccasions},
    {HELPID_OCCASIONS_SETTINGS, kOccasions},
    {HELPID_OCCASIONS_SAVE, kOccasions},
};

struct ViewTopic {
  int pane;
  const char* topic;
};

constexpr ViewTopic kViewTopics[] = {
    {IDC_LIST_PANE, kShabbatTimes},
    {IDC_ZMANIM_PANE, kZmanim},
    {IDC_READINGS_PANE, kReadings},
};

const char* TopicOfDialog(DWORD helpId) {
  for (const HelpTopic& row : kDialogTopics) {
    if (row.id == helpId) return row.topic;
  }
  return kGeneral;
}

const char* TopicOfView(HWND document) {
  for (const ViewTopic& row : kViewTopics) {
    if (document && IsPaneVisible(document, row.pane)) return row.topic;
  }
  return kGeneral;
}

// The window with the control that had the key; the frame where it was a menu's.
HWND WindowOf(HWND frame, const HELPINFO& pressed) {
  if (pressed.iContextType != HELPINFO_WINDOW) return frame;
  const HWND window = GetAncestor(static_cast<HWND>(pressed.hItemHandle), GA_ROOT);
  return window ? window : frame;
}

}  // namespace

void ShowHelpWhere(HWND frame, const HELPINFO& pressed) {
  const HWND window = WindowOf(frame, pressed);
  GuideGo(window, window == frame ? TopicOfView(ActiveDocument()) : TopicOfDialog(GetWindowContextHelpId(window)));
}
