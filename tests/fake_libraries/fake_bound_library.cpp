// Every entry point of the libraries that the program binds by name. Each answers the interface version; which of them
// a fake library exports, its .def file says.
#include <cstdint>

#define ENTRY_POINT(name)      \
  extern "C" uint32_t name() { \
    return FAKE_VERSION;       \
  }

ENTRY_POINT(DatefilterGetAPIVersion)
ENTRY_POINT(DatefilterGetDescriptionString)
ENTRY_POINT(DatefilterAbsoluteFromForeign)
ENTRY_POINT(DatefilterForeignFromAbsolute)
ENTRY_POINT(DatefilterGetMonthName)
ENTRY_POINT(DatefilterGetLastDayOfMonth)
ENTRY_POINT(DatefilterGetLastMonthOfYear)
ENTRY_POINT(DatefilterGetHolidayCount)
ENTRY_POINT(DatefilterGetHolidayName)
ENTRY_POINT(DatefilterGetHolidayDate)
ENTRY_POINT(DatefilterGetHolidayFirstYear)
ENTRY_POINT(DatefilterGetMonthNameEx)
ENTRY_POINT(DatefilterGetHolidayNameEx)

ENTRY_POINT(SolarGetAPIVersion)
ENTRY_POINT(SolarGetCountOfBuiltInLocations)
ENTRY_POINT(SolarGetBuiltInLocation)
ENTRY_POINT(SolarGetSunsetSunrise)
