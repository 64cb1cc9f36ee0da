// What is said about the clock of a place. Texts are windows-1252.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/solar/summer_time_choice.h"
#include "libraries/stamp/stamp_core.h"
#include "libraries/sun/place_settings.h"

namespace solar {

// "GMT", "GMT+1", "GMT-3:30".
std::string OffsetText(int32_t offsetSeconds);

// "50\xB047' N, 6\xB005' E, standard time GMT+1"
std::string PlaceText(const sun::PackedPlace& place);

// A moment (seconds since 1970-01-01 00:00 UTC) by a clock so far ahead of UTC: "Sunday, 29 March 2026, 02:00".
std::string MomentText(int64_t unixSeconds, int32_t offsetSeconds, stamp::Form form);

// The choice of the zone found, with the mark of its access key: "The zone &found for this place: Europe/Berlin".
std::string FoundText(const ExplainedClock& found);

// Which clock it is, and why.
std::string ClockText(const ExplainedClock& clock);

// What the clock shows.
std::string NowText(const sun::PlaceClock& clock, int64_t unixSeconds, stamp::Form form);

// The next change of the clock and the one after it: "Sunday, 29 March 2026, 02:00: from GMT+1 to GMT+2", or that there
// is none to come.
struct ChangeTexts {
  std::string next;
  std::string second;
};
ChangeTexts NextChangesText(const sun::PlaceClock& clock, int64_t unixSeconds, stamp::Form form);

// What is wrong between the place's offset and its clock; empty when nothing is.
std::string WarningText(const ExplainedClock& clock, const sun::PackedPlace& place);

// The clock in one line, for whoever types the numbers of a place.
std::string LineText(const ExplainedClock& clock, const sun::PackedPlace& place, int64_t unixSeconds);

// The numbers of the zones whose names have every word that is typed, letters' case aside; "_" and "/" part words too.
std::vector<std::size_t> ZonesMatching(std::string_view typed);

}  // namespace solar
