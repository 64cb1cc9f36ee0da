#include "libraries/calendar/date_filter_dll.h"

const calendar::DateFilter& calendar::FilterOfThisLibrary() {
  return gregorianFilter;
}
