#include "zmanim/edit_custom_zman.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string>

#include "engine/properties.h"
#include "engine/string_table.h"
#include "engine/unread_settings.h"
#include "resources/ids.h"
#include "win/message_box.h"
#include "win/scoped.h"
#include "zmanim/core/zmanim_block.h"
#include "zmanim/core/zmanim_labels.h"
#include "zmanim/custom_zmanim.h"
#include "zmanim/edit_zman_dialog.h"
#include "zmanim/zmanim_in_use.h"
#include "zmanim/zmanim_time_text.h"

namespace {

constexpr const char* kOwnTimesFiles[] = {"ownhours.txt"};

constexpr char kOnlyOwnSelection[] =
    "Times of your own can be set for the zmanim of your selection only, not for the built-in zmanim.";

constexpr char kNoTimeOfDay[] =
    "The time could not be stored, because it is no time of the day.\nPlease type an hour from 0 to 23 and a minute "
    "from 0 to 59.";

// The dialog lets numbers through that are negative when their sign counts.
bool IsTimeOfDay(ClockTime time) {
  return time.hour >= 0 && time.hour < kHoursPerDay && time.minute >= 0 && time.minute < kMinutesPerHour;
}

std::string DayText(const CalendarDate& date) {
  return std::to_string(date.uDay) + "." + std::to_string(date.uMonth) + "." + std::to_string(date.uYear);
}

// A time of a document as the user sees it: by what it is, not by where it stands.
struct ShownZman {
  std::string place;
  CalendarDate date;
  std::string description;
  ClockTime time;
};

void ShowUnstored(HWND document, const ShownZman& zman, ClockTime time) {
  const std::string text = "The time " + ZmanTimeText(time) + " for \"" + zman.description + "\" on " +
                           DayText(zman.date) + " in " + zman.place +
                           " could not be stored.\nPlease check that the settings folder can be written to and that "
                           "the disk is not full, and try again.";
  ShowStop(document, text.c_str(), "Error");
}

void ShowGone(HWND document, const ShownZman& zman, ClockTime time) {
  const std::string text = "The time " + ZmanTimeText(time) + " for \"" + zman.description + "\" on " +
                           DayText(zman.date) +
                           " was not stored, because this zman is not in use any more.\nPlease put it into your "
                           "selection again, or leave the built-in zmanim, and set the time anew.";
  ShowStop(document, text.c_str(), "Error");
}

std::optional<ShownZman> ShownAt(HWND document, const ZmanimCell& cell) {
  const ScopedGlobalLock<const ZmanimBlock> block(GetBlockProperty(document, property::kZmanimTimes));
  const ScopedGlobalLock<const ZmanimLabels> labels(GetBlockProperty(document, property::kZmanimLabels));
  if (!block || !labels || cell.day >= block->count || cell.zman >= labels->count) return std::nullopt;
  const ZmanimDay& day = block->days[cell.day];
  return ShownZman{DocumentPlace(document), day.date, labels->zmanim[cell.zman].english, day.times[cell.zman]};
}

bool IsSameDay(const CalendarDate& left, const CalendarDate& right) {
  return left.uDay == right.uDay && left.uMonth == right.uMonth && left.uYear == right.uYear;
}

// The time that the dialog starts with: the user's own where one is stored, which a document computed while the file
// could not be read does not show.
ClockTime TimeToEdit(const ShownZman& zman) {
  ScopedCustomZmanim store;
  ClockTime time = zman.time;
  GetCustomZman(store.get(), zman.date, zman.description, zman.place.c_str(), time);
  return time;
}

// Looks day and zman up again, since the document may have been computed anew, or closed, since they were shown;
// whether it still has them.
bool PutIntoBlock(HWND document, const ShownZman& zman, ClockTime time) {
  const ScopedGlobalLock<ZmanimBlock> block(GetBlockProperty(document, property::kZmanimTimes));
  const ScopedGlobalLock<const ZmanimLabels> labels(GetBlockProperty(document, property::kZmanimLabels));
  if (!block || !labels) return false;
  const std::span days(block->days, block->count);
  const auto day = std::ranges::find_if(days, [&](const ZmanimDay& d) { return IsSameDay(d.date, zman.date); });
  const std::span rows(labels->zmanim, labels->count);
  const auto row = std::ranges::find_if(rows, [&](const ZmanLabel& l) { return l.english == zman.description; });
  if (day == days.end() || row == rows.end()) return false;
  day->times[row - rows.begin()] = time;
  return true;
}

bool IsOfLibrary(HWND document) {
  const ScopedGlobalLock<const ZmanimLabels> labels(GetBlockProperty(document, property::kZmanimLabels));
  return labels && labels->fromLibrary;
}

// Whether the time could be stored; else the user has been told why not.
bool Store(HWND document, const ShownZman& zman, ClockTime time) {
  if (!IsTimeOfDay(time)) {
    ShowStop(document, kNoTimeOfDay, "Error");
    return false;
  }
  if (!zman.description.empty() && !IsSelected(zman.description)) {
    ShowGone(document, zman, time);
    return false;
  }
  if (StoreCustomZman(zman.date, zman.description, zman.place.c_str(), time)) return true;
  ShowUnstored(document, zman, time);
  return false;
}

}  // namespace

bool EditCustomZman(HWND document, const ZmanimCell& cell) {
  const std::optional<ShownZman> zman = ShownAt(document, cell);
  if (!zman) return false;
  if (!IsOfLibrary(document)) {
    ShowInformation(document, kOnlyOwnSelection, TableString(IDS_TITLE));
    return false;
  }
  if (!MayEditSettings(document, kOwnTimesFiles)) return false;
  const std::optional<ClockTime> typed = EditZmanDialog(document, zman->date, zman->description, TimeToEdit(*zman));
  return typed && Store(document, *zman, *typed) && PutIntoBlock(document, *zman, *typed);
}
