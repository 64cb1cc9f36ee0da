#include "shabbat/shabbat_preferences.h"

#include "companion/profile.h"
#include "companion/twilight.h"
#include "engine/profile_int.h"

namespace ShabbatPreferences {

namespace {
constexpr char kFile[] = "shabbat2.ini";
constexpr char kSection[] = "Shabbat";
}  // namespace

int32_t CandleLightingMinutes() {
  return ReadProfileInt(kSection, "CandleLighting", 18, kFile);
}
bool EndsByMinutes() {
  return ProfileGetInt(kSection, "DoMinutes", 1, kFile) != 0;
}
int32_t EndMinutes() {
  return ReadProfileInt(kSection, "End", 45, kFile);
}
double DegreesBelowHorizon() {
  return TwilightGetProfileDouble(kSection, "DegreesBelowHorizon", 8.0, kFile);
}
int32_t MinutesAfterDegrees() {
  return ReadProfileInt(kSection, "AddMinutesAfterDegrees", 0, kFile);
}

}  // namespace ShabbatPreferences
