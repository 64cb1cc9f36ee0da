// Times of zmanim that the user has set by hand. They are kept per date, zman (by its English description) and place
// (by its name).
#pragma once

#include <string>

#include "companion/ownhours.h"
#include "engine/core/clock_time.h"
#include "engine/core/records.h"

// The store, open for the scope.
class ScopedCustomZmanim {
 public:
  ScopedCustomZmanim() { OwnHoursLoad(&handle_); }
  ~ScopedCustomZmanim() { OwnHoursDone(&handle_); }
  ScopedCustomZmanim(const ScopedCustomZmanim&) = delete;
  ScopedCustomZmanim& operator=(const ScopedCustomZmanim&) = delete;
  OwnHoursHandle* get() { return &handle_; }

 private:
  OwnHoursHandle handle_{};
};

// Whether the store holds a time for the key; it is written then. A zman without a description has none.
bool GetCustomZman(const OwnHoursHandle* store, const CalendarDate& date, const std::string& description,
                   const char* location, ClockTime& time);

// Counts the changes that the user has made to the times set by hand otherwise than by a click on one: a document whose
// times are of an earlier edition is computed anew (RenewZmanim).
uint32_t CustomZmanimEdition();
void CustomZmanimHaveChanged();

// Stores a time for the zman of a description. False when it could not be stored, also for want of a description.
bool StoreCustomZman(const CalendarDate& date, const std::string& description, const char* location, ClockTime time);

// The same for a zman of the library by its index now.
bool SetCustomZman(const CalendarDate& date, uint32_t zman, const char* location, ClockTime time);
