#include "app/own_times_dialog.h"

#include <cstring>
#include <map>
#include <optional>
#include <string>

#include "app/active_document.h"
#include "engine/optional_entries.h"
#include "locations/location_lookup.h"
#include "zmanim/calculate_zmanim.h"
#include "zmanim/custom_zmanim.h"

namespace {

// The places that the dialog has asked about; nothing for one that is not known any more. The library's callback has no
// room for it.
std::map<std::string, std::optional<Location>> askedPlaces;

const std::optional<Location>& PlaceNamed(const char* name) {
  const auto [asked, isNew] = askedPlaces.try_emplace(name);
  if (isNew && std::strlen(name) < kTextSize) {
    Location place{};
    std::strcpy(place.name, name);
    if (LookUpLocation(place) != LocationSource::kNowhere) asked->second = place;
  }
  return asked->second;
}

// An OwnHoursCalculate.
int32_t AnswerCalculatedTime(uint32_t day, uint32_t month, uint32_t year, const char* description, const char* location,
                             int32_t* hour, int32_t* minute) {
  const std::optional<Location>& place = PlaceNamed(location);
  if (!place) return 0;
  const std::optional<ClockTime> time = CalculatedZman(ActiveDocument(), *place, {day, month, year}, description);
  if (!time) return 0;
  *hour = time->hour;
  *minute = time->minute;
  return 1;
}

}  // namespace

bool HasOwnTimesDialog() {
  return OptionalEntries.OwnHoursDoDialog != nullptr;
}

void RunOwnTimesDialog(HWND frame) {
  if (!HasOwnTimesDialog()) return;
  askedPlaces.clear();
  if (!OptionalEntries.OwnHoursDoDialog(frame, AnswerCalculatedTime)) return;
  CustomZmanimHaveChanged();
  RedrawWindow(frame, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}
