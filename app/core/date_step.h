// Steps of a date's fields, as spin buttons make them.
#pragma once

#include <cstdint>

#include "companion/calendar_date.h"

enum class DateField { kDay, kMonth, kYear };

// The date one step up or down in a field. Days roll into the next or previous month, months into the next or previous
// year; the day is kept within its month. A step that leaves the years 1583 to 3000 gives the date back unchanged.
CalendarDate StepDate(const CalendarDate& date, DateField field, bool up,
                      uint32_t (*lastDayOfMonth)(uint32_t month, uint32_t year));
