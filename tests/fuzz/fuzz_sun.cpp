#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>

#include "libraries/profile/ini_document.h"
#include "libraries/profile/profile_answers.h"
#include "libraries/solar/clock_texts.h"
#include "libraries/solar/summer_time_choice.h"
#include "libraries/sun/clock_in_force.h"
#include "libraries/sun/place_settings.h"
#include "libraries/sun/sun_day.h"
#include "libraries/twilight/twilight_core.h"
#include "tests/fuzz/check.h"

namespace {

constexpr double kSecondsPerDay = 86400;

// What the settings say: the elevation whatever is asked, and solar.ini.
int32_t elevationMetres;
std::optional<profile::IniDocument> clockFile;

int32_t ReadInt(const char*, const char*, int32_t, const char*) {
  return elevationMetres;
}

uint32_t ReadText(const char* section, const char* key, const char* defaultValue, char* buffer, uint32_t size,
                  const char*) {
  return profile::TextAnswer(*clockFile, section, key, defaultValue, buffer, size);
}

// What the dialog and the editor of a place say about its clock, which is the one that times are told in.
void CheckTexts(const sun::PackedPlace& place, const sun::PlaceClock& told, int64_t now) {
  const solar::SummerTimeChoice stored = solar::StoredChoice({ReadInt, ReadText}, place);
  FUZZ_CHECK(solar::ChangesFor(stored, stored, place).empty());
  const solar::ExplainedClock explained = solar::ClockBy(stored, place);
  FUZZ_CHECK(explained.clock.standardOffsetSeconds == told.standardOffsetSeconds);
  FUZZ_CHECK(std::strcmp(explained.clock.zoneId.data(), told.zoneId.data()) == 0);
  const std::string line = solar::LineText(explained, place, now);
  FUZZ_CHECK(!line.empty() && line.size() < 256);
  FUZZ_CHECK(!solar::PlaceText(place).empty() && !solar::ClockText(explained).empty());
  FUZZ_CHECK(!solar::NowText(explained.clock, now, stamp::Form::kTwelveHours).empty());
  FUZZ_CHECK(!solar::NextChangesText(explained.clock, now, stamp::Form::kTwelveHours).second.empty());
  FUZZ_CHECK(solar::WarningText(explained, place).size() < 256);
}

// Any text, or one whose section begins with this mode and this zone of the place.
std::string ClockFileText(FuzzedDataProvider& input, const sun::PackedPlace& place) {
  if (input.ConsumeBool()) return input.ConsumeRandomLengthString(400);
  const std::string zone = input.ConsumeBool() ? "Europe/London" : input.ConsumeRandomLengthString(70);
  const std::string mode = input.ConsumeRandomLengthString(12);
  const sun::PlaceKey other = sun::OtherKeyOf(place);
  const sun::PlaceKey key = input.ConsumeBool() && other[0] != '\0' ? other : sun::KeyOf(place);
  return std::string("[SummerTime]\n") + key.data() + "=" + zone + "\nMode=" + mode + "\n";
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
  clockFile.emplace(ClockFileText(input, place));
  const auto now = input.ConsumeIntegralInRange<int64_t>(-100000, 40'000'000'000);

  const sun::PlaceSettings settings = sun::ReadPlaceSettings({ReadInt, ReadText}, place);
  CheckTexts(place, settings.clock, now);
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
