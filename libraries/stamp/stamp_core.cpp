#include "libraries/stamp/stamp_core.h"

#include <cstdio>

namespace stamp {
namespace {

constexpr int32_t kHoursPerDay = 24;

}  // namespace

std::string TimeText(int32_t hour, int32_t minute, Form form) {
  const bool isTime = hour >= 0 && hour < 2 * kHoursPerDay && minute >= 0 && minute <= 59;
  const int32_t hourOfDay = isTime ? hour % kHoursPerDay : hour;
  const bool hasHalves = isTime && form == Form::kTwelveHours;
  const char* const half = !hasHalves ? "" : hourOfDay < 12 ? " a.m." : " p.m.";
  const int32_t shownHour = !hasHalves ? hourOfDay : hourOfDay % 12 == 0 ? 12 : hourOfDay % 12;
  char text[32];
  std::snprintf(text, sizeof text, "%02d:%02d%s", shownHour, minute, half);
  return text;
}

Form ChosenForm(std::string_view choice, Form regional) {
  if (choice == "12") return Form::kTwelveHours;
  if (choice == "24") return Form::kTwentyFourHours;
  return regional;
}

}  // namespace stamp
