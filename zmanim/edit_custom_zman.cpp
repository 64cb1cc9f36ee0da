#include "zmanim/edit_custom_zman.h"

#include <optional>
#include <string>

#include "app/string_table.h"
#include "document/properties.h"
#include "engine/settings_flags.h"
#include "resources/ids.h"
#include "win/message_box.h"
#include "win/scoped.h"
#include "zmanim/core/zmanim_block.h"
#include "zmanim/custom_zmanim.h"
#include "zmanim/edit_zman_dialog.h"
#include "zmanim/zmanim_names.h"
#include "zmanim/zmanim_time_text.h"

namespace {

constexpr char kOnlyOwnSelection[] =
    "Times of your own can be set for the zmanim of your selection only, not for the built-in zmanim.";

constexpr char kNoTimeOfDay[] =
    "The time could not be stored, because it is no time of the day.\nPlease type an hour from 0 to 23 and a minute "
    "from "
    "0 to 59.";

// The dialog lets numbers through that are negative when their sign counts.
bool IsTimeOfDay(ClockTime time) {
  return time.hour >= 0 && time.hour < kHoursPerDay && time.minute >= 0 && time.minute < kMinutesPerHour;
}

void ShowUnstored(HWND document, const CalendarDate& date, const std::string& description, const std::string& place,
                  ClockTime time) {
  const std::string day =
      std::to_string(date.uDay) + "." + std::to_string(date.uMonth) + "." + std::to_string(date.uYear);
  const std::string text = "The time " + ZmanTimeText(time) + " for \"" + description + "\" on " + day + " in " +
                           place +
                           " could not be stored.\nPlease check that the settings folder can be written to and that "
                           "the disk is not full, and try again.";
  ShowStop(document, text.c_str(), "Error");
}

bool IsInBlock(const ScopedGlobalLock<ZmanimBlock>& block, const ZmanimCell& cell) {
  return block && cell.day < block->count && cell.zman < kMostZmanim;
}

}  // namespace

bool EditCustomZman(HWND document, const ZmanimCell& cell) {
  if (!ZmanimEnabled()) {
    ShowInformation(document, kOnlyOwnSelection, TableString(IDS_TITLE));
    return false;
  }
  const HGLOBAL handle = GetBlockProperty(document, property::kZmanimTimes);
  CalendarDate date{};
  ClockTime current{};
  {
    const ScopedGlobalLock<ZmanimBlock> block(handle);
    if (!IsInBlock(block, cell)) return false;
    date = block->days[cell.day].date;
    current = block->days[cell.day].times[cell.zman];
  }
  const std::string description = LibraryZmanName(cell.zman);
  const std::optional<ClockTime> typed = EditZmanDialog(document, date, description, current);
  if (!typed) return false;
  if (!IsTimeOfDay(*typed)) {
    ShowStop(document, kNoTimeOfDay, "Error");
    return false;
  }
  const std::string place = DocumentPlace(document);
  if (!SetCustomZman(date, cell.zman, place.c_str(), *typed)) {
    ShowUnstored(document, date, description, place, *typed);
    return false;
  }
  // The document may have been computed anew meanwhile, or closed.
  const ScopedGlobalLock<ZmanimBlock> block(GetBlockProperty(document, property::kZmanimTimes));
  if (!IsInBlock(block, cell)) return false;
  block->days[cell.day].times[cell.zman] = *typed;
  return true;
}
