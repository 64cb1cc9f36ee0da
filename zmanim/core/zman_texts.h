#pragma once

#include <string>
#include <vector>

#include "engine/core/clock_time.h"

// Writes a time in the user's form into text, a buffer of 32 bytes.
using FormatTime = void (*)(int32_t hour, int32_t minute, char* text);

// A time of the zmanim block as it is shown: in the user's form, or a mark where there is none.
std::string ZmanText(ClockTime time, FormatTime format);

// The texts of many times, each time of the day formatted once.
class ZmanTexts {
 public:
  explicit ZmanTexts(FormatTime format) : format_(format), texts_(kHoursPerDay * kMinutesPerHour) {}

  // Good until the next question.
  const std::string& TextOf(ClockTime time);

 private:
  FormatTime format_;
  std::vector<std::string> texts_;  // by minutes after midnight; empty until asked for
  std::string other_;
};
