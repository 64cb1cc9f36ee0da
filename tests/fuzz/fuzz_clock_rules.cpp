#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <string>

#include "libraries/sun/clock_rules.h"
#include "libraries/sun/clock_rules_table.h"
#include "libraries/sun/zone_of_place.h"
#include "libraries/sun/zone_offset.h"
#include "tests/fuzz/check.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  constexpr int32_t kMostOffsetSeconds = 16 * 3600;  // no zone has ever been farther from UTC since 1970
  FuzzedDataProvider input(data, size);
  const auto zones = sun::clock_rules_table::zones;
  const auto moment = input.ConsumeBool() ? input.ConsumeIntegral<int64_t>()
                                          : input.ConsumeIntegralInRange<int64_t>(-100000, 40'000'000'000);
  const auto latitude = input.ConsumeIntegral<int32_t>();
  const auto longitude = input.ConsumeIntegral<int32_t>();
  const auto zoneHours = input.ConsumeBool() ? input.ConsumeIntegral<int32_t>() : input.ConsumeIntegralInRange(-13, 15);
  const auto zoneMinutes =
      input.ConsumeBool() ? input.ConsumeIntegral<int32_t>() : 15 * input.ConsumeIntegralInRange(-4, 4);
  const size_t known = input.ConsumeIntegralInRange<size_t>(0, zones.size() - 1);
  const std::string text = input.ConsumeRemainingBytesAsString();

  const auto offset = sun::UtcOffsetSeconds(zones[known].id, moment);
  FUZZ_CHECK(offset.has_value() == (moment >= 0));
  FUZZ_CHECK(!offset || (*offset > -kMostOffsetSeconds && *offset < kMostOffsetSeconds));
  const auto change = sun::NextClockChange(zones[known].id, moment);
  FUZZ_CHECK(!change || change->unixSeconds > moment);
  FUZZ_CHECK(!change || sun::UtcOffsetSeconds(zones[known].id, change->unixSeconds) == change->offsetAfter);
  FUZZ_CHECK(!change || sun::UtcOffsetSeconds(zones[known].id, change->unixSeconds - 1) == change->offsetBefore);
  FUZZ_CHECK(!sun::NextClockChange(text, moment).has_value() || sun::IsKnownZone(text));
  FUZZ_CHECK(sun::UtcOffsetSeconds(text, moment).has_value() == (sun::IsKnownZone(text) && moment >= 0));
  const char* const found = sun::FindZone(latitude, longitude, zoneHours, zoneMinutes).zoneId;
  FUZZ_CHECK(!found || sun::IsKnownZone(found));
  const int64_t offsetSeconds = sun::StandardOffsetMinutes(zoneHours, zoneMinutes) * 60;
  FUZZ_CHECK(!found || sun::HasShown(found, offsetSeconds));
  return 0;
}
