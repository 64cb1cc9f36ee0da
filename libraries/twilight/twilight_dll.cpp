#include <mutex>
#include <string>

#include "companion/profile.h"
#include "companion/twilight.h"
#include "libraries/sun/place_settings.h"
#include "libraries/sun/sun_day.h"
#include "libraries/twilight/decimal_number.h"
#include "libraries/twilight/twilight_core.h"

namespace {

std::mutex mutex;
sun::KnownPlace knownPlace;

sun::PlaceSettings SettingsOf(const sun::PackedPlace& place) {
  const std::lock_guard lock(mutex);
  return knownPlace.Read({ProfileGetInt, ProfileGetString}, place);
}

// The text of a key, however long it is.
std::string ReadText(const char* section, const char* key, const char* file) {
  constexpr uint32_t kMostSize = 1u << 20;
  std::string text(256, '\0');
  for (;;) {
    const auto size = static_cast<uint32_t>(text.size());
    const uint32_t length = ProfileGetString(section, key, "", text.data(), size, file);
    if (length + 1 < size || size >= kMostSize) {
      text.resize(length);
      return text;
    }
    text.resize(text.size() * 2);
  }
}

}  // namespace

void TwilightCalculate(uint32_t day, uint32_t month, uint32_t year, double depressionDegrees, int32_t latitude,
                       int32_t longitude, int32_t timeZoneHours, int32_t timeZoneMinutes, int32_t* hours,
                       int32_t* minutes) try {
  const sun::PlaceSettings settings = SettingsOf({latitude, longitude, timeZoneHours, timeZoneMinutes});
  const int32_t interval =
      twilight::EveningIntervalMinutes(sun::UnixDayOfDate(day, month, year), settings, depressionDegrees);
  if (hours) *hours = interval / 60;
  if (minutes) *minutes = interval % 60;
} catch (...) {  // the outputs stay as they are
}

double TwilightGetProfileDouble(const char* section, const char* key, double defaultValue, const char* file) {
  if (!section || !key || !file) return defaultValue;
  try {
    const twilight::DecimalPrefix number = twilight::ReadDecimalPrefix(ReadText(section, key, file));
    return number.isNumber ? number.value : defaultValue;
  } catch (...) {
    return defaultValue;
  }
}

int32_t TwilightIsValidFloat(const char* text) {
  return text && twilight::IsDecimalNumber(text) ? 1 : 0;
}
