#include "output/date_text.h"

#include <cinttypes>
#include <cstdio>

std::string DateText(const CalendarDate& date) {
  char text[40];
  std::snprintf(text, sizeof text, "%02" PRIu32 ".%02" PRIu32 ".%04" PRIu32, date.uDay, date.uMonth, date.uYear);
  return text;
}
