#include "zmanim/custom_zmanim.h"

#include "zmanim/zmanim_in_use.h"

namespace {

uint32_t edition = 0;

}  // namespace

bool GetCustomZman(const OwnHoursHandle* store, const CalendarDate& date, const std::string& description,
                   const char* location, ClockTime& time) {
  if (description.empty()) return false;
  return OwnHoursGet(store, date.uDay, date.uMonth, date.uYear, description.c_str(), location, &time.hour,
                     &time.minute) != 0;
}

uint32_t CustomZmanimEdition() {
  return edition;
}

void CustomZmanimHaveChanged() {
  ++edition;
}

bool StoreCustomZman(const CalendarDate& date, const std::string& description, const char* location, ClockTime time) {
  if (description.empty()) return false;
  ScopedCustomZmanim store;
  return OwnHoursSet(store.get(), date.uDay, date.uMonth, date.uYear, description.c_str(), location, time.hour,
                     time.minute) &&
         OwnHoursStore(store.get());
}

bool SetCustomZman(const CalendarDate& date, uint32_t zman, const char* location, ClockTime time) {
  return StoreCustomZman(date, LibraryZmanName(zman), location, time);
}
