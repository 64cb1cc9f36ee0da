// A stand-in for the occasions library, which the program binds by name: it logs its dialogs and what it is asked for,
// and answers what the test says.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "companion/calendar_date.h"
#include "companion/occasions.h"

// One line of a day.
struct DoubledOccasion {
  std::string english;
  std::string hebrew;
  int32_t hour = OCCASIONS_WHOLE_DAY;
  int32_t minute = OCCASIONS_WHOLE_DAY;
  const char* moment = "day";
};

struct OccasionsScript {
  std::function<std::vector<DoubledOccasion>(const CalendarDate&)> ofDay;
  std::function<void(HWND owner)> inDialog;  // what the user does in either dialog
  HWND dialogOwner = nullptr;
};

OccasionsScript& Occasions();

// Puts the double's entry points in their places, with no occasion on any day.
void BindDoubledOccasions();
