#include "libraries/calendar/date_filter.h"

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/calendar/month_names.h"

namespace calendar {

constinit const DateFilter gregorianFilter = {
    .description = "Gregorian calendar",
    .absoluteFromDate = AbsoluteFromGregorian,
    .dateFromAbsolute = GregorianFromAbsolute,
    .daysInMonth = DaysInGregorianMonth,
    .monthsInYear = [](int32_t) { return 12; },
    .monthName = GregorianMonthName,
    .holidays = GregorianHolidays,
    .holidayBaseDay = GregorianBaseDay,
};

constinit const DateFilter jewishFilter = {
    .description = "Jewish calendar",
    .absoluteFromDate = AbsoluteFromJewish,
    .dateFromAbsolute = JewishFromAbsolute,
    .daysInMonth = DaysInJewishMonth,
    .monthsInYear = MonthsInJewishYear,
    .monthName = JewishMonthName,
    .holidays = JewishHolidays,
    .holidayBaseDay = JewishBaseDay,
};

}  // namespace calendar
