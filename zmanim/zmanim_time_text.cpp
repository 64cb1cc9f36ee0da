#include "zmanim/zmanim_time_text.h"

#include "companion/stamp.h"
#include "zmanim/core/zmanim_block.h"

std::string ZmanTimeText(ClockTime time) {
  if (time.hour == kNoTimeHour) return "----";
  if (time.hour == kUnknownTimeHour) return "??:??";
  char text[STAMP_TEXT_SIZE];
  StampConvert(time.hour, time.minute, text);
  return text;
}
