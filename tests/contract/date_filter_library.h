// A calendar filter library bound by name, as the program binds it.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>

#include "companion/datefilter.h"

class DateFilterLibrary {
 public:
  explicit DateFilterLibrary(const char* file) : module_(LoadLibraryA(file)) {
    EXPECT_NE(module_, nullptr) << file;
    Bind("DatefilterGetAPIVersion", getAPIVersion);
    Bind("DatefilterGetDescriptionString", getDescriptionString);
    Bind("DatefilterAbsoluteFromForeign", absoluteFromForeign);
    Bind("DatefilterForeignFromAbsolute", foreignFromAbsolute);
    Bind("DatefilterGetMonthName", getMonthName);
    Bind("DatefilterGetLastDayOfMonth", getLastDayOfMonth);
    Bind("DatefilterGetLastMonthOfYear", getLastMonthOfYear);
    Bind("DatefilterGetHolidayCount", getHolidayCount);
    Bind("DatefilterGetHolidayName", getHolidayName);
    Bind("DatefilterGetHolidayDate", getHolidayDate);
    Bind("DatefilterGetHolidayFirstYear", getHolidayFirstYear);
    Bind("DatefilterGetMonthNameEx", getMonthNameEx);
    Bind("DatefilterGetHolidayNameEx", getHolidayNameEx);
  }
  ~DateFilterLibrary() { FreeLibrary(module_); }
  DateFilterLibrary(const DateFilterLibrary&) = delete;
  DateFilterLibrary& operator=(const DateFilterLibrary&) = delete;

  decltype(&DatefilterGetAPIVersion) getAPIVersion;
  decltype(&DatefilterGetDescriptionString) getDescriptionString;
  decltype(&DatefilterAbsoluteFromForeign) absoluteFromForeign;
  decltype(&DatefilterForeignFromAbsolute) foreignFromAbsolute;
  decltype(&DatefilterGetMonthName) getMonthName;
  decltype(&DatefilterGetLastDayOfMonth) getLastDayOfMonth;
  decltype(&DatefilterGetLastMonthOfYear) getLastMonthOfYear;
  decltype(&DatefilterGetHolidayCount) getHolidayCount;
  decltype(&DatefilterGetHolidayName) getHolidayName;
  decltype(&DatefilterGetHolidayDate) getHolidayDate;
  decltype(&DatefilterGetHolidayFirstYear) getHolidayFirstYear;
  decltype(&DatefilterGetMonthNameEx) getMonthNameEx;
  decltype(&DatefilterGetHolidayNameEx) getHolidayNameEx;

 private:
  template <typename Function>
  void Bind(const char* name, Function& function) {
    const FARPROC address = GetProcAddress(module_, name);
    EXPECT_NE(address, nullptr) << name;
    static_assert(sizeof function == sizeof address);
    std::memcpy(&function, &address, sizeof function);
  }

  HMODULE module_;
};

// What holds of either library whatever it is asked; its own tests ask what its calendar says.
void ExpectSurvivesAnyArgument(const DateFilterLibrary& library);
void ExpectNamesAreCutToTheirBuffer(const DateFilterLibrary& library);
void ExpectHolidaysAreConsistent(const DateFilterLibrary& library, uint32_t year);
