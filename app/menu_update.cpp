#include "app/menu_update.h"

#include <initializer_list>

#include "app/active_document.h"
#include "app/frame_commands.h"
#include "app/own_times_dialog.h"
#include "app/program.h"
#include "document/document_window.h"
#include "engine/optional_entries.h"
#include "engine/settings_flags.h"
#include "resources/ids.h"

namespace {

void Enable(HMENU menu, unsigned id, bool enabled) {
  EnableMenuItem(menu, id, MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
}

void Check(HMENU menu, unsigned id, bool checked) {
  CheckMenuItem(menu, id, MF_BYCOMMAND | (checked ? MF_CHECKED : MF_UNCHECKED));
}

void UpdateDocumentCommands(HMENU menu, HWND document) {
  for (const unsigned id : {IDM_SUNSET_OF_A_DAY, IDM_EXPORT_TEXT, IDM_EXPORT_RTF, IDM_EXPORT_ZMANIM, IDM_EXPORT_DATES,
                            IDM_SAVE_DOCUMENT, IDM_PRINT_CALENDAR, IDM_VIEW_SHABBAT_TIMES, IDM_VIEW_ZMANIM,
                            IDM_VIEW_READINGS, IDM_DAF_YOMI, IDM_BIRTHDAYS, IDM_BAR_MITZVAH, IDM_ALMANAC,
                            IDM_WINDOW_CASCADE, IDM_WINDOW_TILE_VERTICALLY, IDM_WINDOW_TILE, IDM_WINDOW_CLOSE_ALL}) {
    Enable(menu, id, document != nullptr);
  }
  Enable(menu, IDM_EXPORT_RTF_BY_DAY, document && IsPaneVisible(document, IDC_ZMANIM_PANE));
  Enable(menu, IDM_EXPORT_RTF_NARROW, document && IsPaneVisible(document, IDC_READINGS_PANE));
  Enable(menu, IDM_PRINT, document && IsPaneVisible(document, IDC_ZMANIM_PANE));
}

void UpdateViewMarks(HMENU menu, HWND document) {
  Check(menu, IDM_VIEW_SHABBAT_TIMES, document && IsPaneVisible(document, IDC_LIST_PANE));
  Check(menu, IDM_VIEW_ZMANIM, document && IsPaneVisible(document, IDC_ZMANIM_PANE));
  Check(menu, IDM_VIEW_READINGS, document && IsPaneVisible(document, IDC_READINGS_PANE));
}

// Commands that the frame cannot carry out are grey whatever else holds, so that none is silent. Items from the first
// document's id upward are the list of documents, which the system looks after.
void GreyIdleCommands(HMENU menu) {
  const int count = GetMenuItemCount(menu);
  for (int position = 0; position < count; ++position) {
    if (const HMENU submenu = GetSubMenu(menu, position)) {
      GreyIdleCommands(submenu);
      continue;
    }
    const UINT id = GetMenuItemID(menu, position);
    const bool ours = id >= IDM_SELECT_LOCATION && id <= IDM_ABOUT;
    const bool listsDocument = id >= IDM_FIRST_DOCUMENT && id < IDM_HELP;
    if (ours && !listsDocument && !IsFrameCommand(id)) Enable(menu, id, false);
  }
}

}  // namespace

void UpdateMenus(HWND frame) {
  const HMENU menu = GetMenu(frame);
  const HWND document = ActiveDocument();
  UpdateDocumentCommands(menu, document);
  Enable(menu, IDM_WINDOW_ARRANGE_ICONS, HasMinimisedDocument(Program.mdiClient));
  UpdateViewMarks(menu, document);
  const bool hebrew = ZmanimInHebrew();
  Check(menu, IDM_ZMANIM_HEBREW, hebrew);
  Check(menu, IDM_ZMANIM_ENGLISH, !hebrew);
  Check(menu, IDM_BUILT_IN_ZMANIM, !ZmanimEnabled());
  Enable(menu, IDM_OWN_TIMES, HasOwnTimesDialog());
  Enable(menu, IDM_SUMMER_TIME, OptionalEntries.SolarDoSummerTimeDialog != nullptr);
  Enable(menu, IDM_OCCASIONS, OptionalEntries.OccasionsDoDialog != nullptr);
  Enable(menu, IDM_OCCASIONS_SHOWN, OptionalEntries.OccasionsDoSettingsDialog != nullptr);
  GreyIdleCommands(menu);
}
