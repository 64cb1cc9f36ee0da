#include "zmanim/zmanim_time_text.h"

#include "companion/stamp.h"
#include "zmanim/core/zman_texts.h"

std::string ZmanTimeText(ClockTime time) {
  return ZmanText(time, StampConvert);
}
