#include "zmanim/core/zman_texts.h"

#include "zmanim/core/zmanim_block.h"

std::string ZmanText(ClockTime time, FormatTime format) {
  if (time.hour == kNoTimeHour) return "----";
  if (time.hour == kUnknownTimeHour) return "??:??";
  char text[32];
  format(time.hour, time.minute, text);
  return text;
}

const std::string& ZmanTexts::TextOf(ClockTime time) {
  const bool ofTheDay = time.hour >= 0 && time.hour < kHoursPerDay && time.minute >= 0 && time.minute < kMinutesPerHour;
  std::string& text = ofTheDay ? texts_[static_cast<std::size_t>(time.hour * kMinutesPerHour + time.minute)] : other_;
  if (!ofTheDay || text.empty()) text = ZmanText(time, format_);
  return text;
}
