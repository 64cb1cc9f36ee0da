#pragma once

#include <string>

#include "companion/calendar_date.h"

// "05.01.2007": day, month and year, padded with zeros to two, two and four digits.
std::string DateText(const CalendarDate& date);
