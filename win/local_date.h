#pragma once

#include "companion/calendar_date.h"

// Today by the computer's clock and zone.
CalendarDate LocalDate();
