#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>

#include "libraries/sun/clock_in_force.h"
#include "libraries/sun/place_settings.h"
#include "libraries/sun/sun_day.h"
#include "libraries/twilight/twilight_core.h"
#include "tests/fuzz/check.h"

namespace {

constexpr double kSecondsPerDay = 86400;

// What the settings say, whatever is asked.
int32_t elevationMetres;
std::string clockText;

int32_t ReadInt(const char*, const char*, int32_t, const char*) {
  return elevationMetres;
}

uint32_t ReadText(const char*, const char*, const char*, char* buffer, uint32_t size, const char*) {
  const size_t length = clockText.copy(buffer, size - 1);
  buffer[length] = '\0';
  return static_cast<uint32_t>(length);
}

void CheckEvent(const sun::SunDay& day, const sun::SunEvent& event, const sun::PlaceClock& clock) {
  FUZZ_CHECK(std::fabs(event.utcSeconds - day.noonUtcSeconds) < 3 * kSecondsPerDay);
  const int32_t offset = sun::ClockOffsetSeconds(clock, event.utcSeconds);
  for (const int64_t minute :
       {sun::NearestMinute(event.utcSeconds, offset), sun::MinuteNotBefore(event.utcSeconds, offset)}) {
    const sun::HourAndMinute time = sun::TimeOfDay(minute);
    FUZZ_CHECK(time.hour >= 0 && time.hour < 24 && time.minute >= 0 && time.minute < 60);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const auto number = [&input](int32_t first, int32_t last) {
    return input.ConsumeBool() ? input.ConsumeIntegral<int32_t>() : input.ConsumeIntegralInRange(first, last);
  };
  const auto date = [&number](int32_t first, int32_t last) { return static_cast<uint32_t>(number(first, last)); };
  const int32_t unixDay = sun::UnixDayOfDate(date(0, 32), date(0, 13), date(0, 10000));
  const sun::PackedPlace place = {number(-9100, 9100), number(-18100, 18100), number(-14, 14), number(-59, 59)};
  const auto depressionBits = input.ConsumeIntegral<uint64_t>();
  double depressionDegrees;
  std::memcpy(&depressionDegrees, &depressionBits, sizeof depressionDegrees);
  elevationMetres = number(-500, 9000);
  clockText = input.ConsumeRandomLengthString(70);

  const sun::PlaceSettings settings = sun::ReadPlaceSettings({ReadInt, ReadText}, place);
  const sun::SunDay day = sun::ComputeSunDay(unixDay, settings.site);
  const sun::SunEvent sunrise = sun::Sunrise(day, settings.elevationMetres);
  const sun::SunEvent sunset = sun::Sunset(day, settings.elevationMetres);
  FUZZ_CHECK(sunrise.utcSeconds <= sun::TransitUtcSeconds(day) && sun::TransitUtcSeconds(day) <= sunset.utcSeconds);
  CheckEvent(day, sunrise, settings.clock);
  CheckEvent(day, sunset, settings.clock);
  for (const double degrees : {depressionDegrees, std::fmod(depressionDegrees, 95.0)}) {
    CheckEvent(day, sun::MorningDepression(day, degrees), settings.clock);
    CheckEvent(day, sun::EveningDepression(day, degrees), settings.clock);
    const int32_t interval = twilight::EveningIntervalMinutes(unixDay, settings, degrees);
    FUZZ_CHECK(interval >= 0 && interval < 24 * 60);
  }
  return 0;
}
