#include "libraries/solar/clock_texts.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "libraries/sun/clock_in_force.h"
#include "libraries/sun/clock_rules.h"
#include "libraries/sun/zone_of_place.h"

namespace solar {
namespace {

using sun::ClockChange;

constexpr int64_t kSecondsPerMinute = 60;
constexpr int64_t kSecondsPerDay = 86400;
constexpr int64_t kYearAndMonthSeconds = 400 * kSecondsPerDay;

constexpr const char* kWeekdays[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
constexpr const char* kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                                   "July",    "August",   "September", "October", "November", "December"};

std::chrono::sys_days DayOf(int64_t clockSeconds) {
  using namespace std::chrono;
  return floor<days>(sys_seconds{seconds{clockSeconds}});
}

std::string MonthOf(const ClockChange& change) {
  const std::chrono::year_month_day date{DayOf(change.unixSeconds + change.offsetBefore)};
  return kMonths[static_cast<unsigned>(date.month()) - 1];
}

std::string YearOf(const ClockChange& change) {
  const std::chrono::year_month_day date{DayOf(change.unixSeconds + change.offsetBefore)};
  return std::to_string(static_cast<int>(date.year()));
}

std::string CoordinateText(int32_t packed, char positive, char negative) {
  char text[32];
  std::snprintf(text, sizeof text, "%d\xB0%02d' %c", std::abs(packed / 100), std::abs(packed % 100),
                packed < 0 ? negative : positive);
  return text;
}

int32_t GivenOffset(const ExplainedClock& clock) {
  return clock.clock.standardOffsetSeconds;
}

// The changes of a zone that are to come, two at most.
struct ComingChanges {
  std::optional<ClockChange> first;
  std::optional<ClockChange> second;
};

ComingChanges ChangesOf(const sun::PlaceClock& clock, int64_t unixSeconds) {
  ComingChanges changes;
  changes.first = sun::NextClockChange(clock.zoneId.data(), unixSeconds);
  if (changes.first) changes.second = sun::NextClockChange(clock.zoneId.data(), changes.first->unixSeconds);
  return changes;
}

std::string ChangeText(const ClockChange& change, stamp::Form form) {
  return MomentText(change.unixSeconds, change.offsetBefore, form) + ": from " + OffsetText(change.offsetBefore) +
         " to " + OffsetText(change.offsetAfter);
}

// "summer time from March to November"
std::string SeasonText(const sun::PlaceClock& clock, int64_t unixSeconds) {
  const auto [first, second] = ChangesOf(clock, unixSeconds);
  if (!first) return "no summer time";
  const bool isYearly =
      second && second->offsetAfter == first->offsetBefore && second->unixSeconds - unixSeconds < kYearAndMonthSeconds;
  if (!isYearly) return OffsetText(first->offsetAfter) + " from " + MonthOf(*first) + " " + YearOf(*first) + " on";
  const bool startsFirst = first->offsetAfter > first->offsetBefore;
  const ClockChange& start = startsFirst ? *first : *second;
  const ClockChange& end = startsFirst ? *second : *first;
  return "summer time from " + MonthOf(start) + " to " + MonthOf(end);
}

// The standard offset of the clock's zone where it is not the place's.
std::optional<int32_t> OtherStandardOffset(const ExplainedClock& clock) {
  const auto standing = sun::StandingOffsetSeconds(clock.clock.zoneId.data());
  return standing && *standing != GivenOffset(clock) ? standing : std::nullopt;
}

std::string ZoneThereText(const sun::PackedPlace& place) {
  const char* const there = sun::ZoneThere(place.latitude, place.longitude);
  if (!there) return {};
  return std::string(" The zone here is ") + there + " (" + OffsetText(sun::StandingOffsetSeconds(there).value_or(0)) +
         ").";
}

bool PartsWords(char c) {
  return c == ' ' || c == '_' || c == '/' || c == '\t';
}

std::string InSmallLetters(std::string_view text) {
  std::string small(text);
  std::ranges::transform(small, small.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return small;
}

std::vector<std::string> WordsOf(std::string_view text) {
  std::vector<std::string> words(1);
  for (const char c : InSmallLetters(text)) {
    if (!PartsWords(c)) {
      words.back() += c;
    } else if (!words.back().empty()) {
      words.emplace_back();
    }
  }
  return words;
}

}  // namespace

std::string OffsetText(int32_t offsetSeconds) {
  if (offsetSeconds == 0) return "GMT";
  const int32_t minutes = std::abs(offsetSeconds) / 60;
  char text[32];
  const char sign = offsetSeconds < 0 ? '-' : '+';
  if (minutes % 60 == 0) {
    std::snprintf(text, sizeof text, "GMT%c%d", sign, minutes / 60);
  } else {
    std::snprintf(text, sizeof text, "GMT%c%d:%02d", sign, minutes / 60, minutes % 60);
  }
  return text;
}

std::string PlaceText(const sun::PackedPlace& place) {
  const sun::Site site = sun::SiteFromPacked(place.latitude, place.longitude, place.zoneHours, place.zoneMinutes);
  return CoordinateText(place.latitude, 'N', 'S') + ", " + CoordinateText(place.longitude, 'E', 'W') +
         ", standard time " + OffsetText(site.standardOffsetMinutes * 60);
}

std::string MomentText(int64_t unixSeconds, int32_t offsetSeconds, stamp::Form form) {
  using namespace std::chrono;
  const int64_t clockSeconds = unixSeconds + offsetSeconds;
  const sys_days day = DayOf(clockSeconds);
  const year_month_day date{day};
  const int64_t secondOfDay = clockSeconds - day.time_since_epoch().count() * kSecondsPerDay;
  const sun::HourAndMinute time = sun::TimeOfDay(secondOfDay / kSecondsPerMinute);
  return std::string(kWeekdays[weekday{day}.c_encoding()]) + ", " + std::to_string(static_cast<unsigned>(date.day())) +
         " " + kMonths[static_cast<unsigned>(date.month()) - 1] + " " + std::to_string(static_cast<int>(date.year())) +
         ", " + stamp::TimeText(time.hour, time.minute, form);
}

std::string FoundText(const ExplainedClock& found) {
  const std::string zone = found.clock.zoneId.data();
  return "The zone &found for this place: " + (zone.empty() ? "none, standard time all year" : zone);
}

std::string ClockText(const ExplainedClock& clock) {
  const std::string zone = clock.clock.zoneId.data();
  const std::string given = OffsetText(GivenOffset(clock));
  switch (clock.reason) {
    case ClockReason::kBuiltIn: return zone + ", the zone of the built-in place there";
    case ClockReason::kStandard: return zone + ", the zone there with standard time " + given;
    case ClockReason::kFormer: return zone + ", a zone there whose clock has shown " + given + " in the past";
    case ClockReason::kSetByUser: return zone + ", which you have chosen for this place";
    case ClockReason::kNoneByUser: return given + " all year: you have chosen no summer time for this place";
    case ClockReason::kOff: return given + " all year: summer time is off everywhere";
    case ClockReason::kOffsetOfNone: return given + " all year: no zone near here has had that time";
    case ClockReason::kNoZone: break;
  }
  return given + " all year: no zone is known near here";
}

std::string NowText(const sun::PlaceClock& clock, int64_t unixSeconds, stamp::Form form) {
  const int32_t offset = sun::ClockOffsetSeconds(clock, static_cast<double>(unixSeconds));
  return MomentText(unixSeconds, offset, form) + " (" + OffsetText(offset) + ")";
}

ChangeTexts NextChangesText(const sun::PlaceClock& clock, int64_t unixSeconds, stamp::Form form) {
  const auto [first, second] = ChangesOf(clock, unixSeconds);
  if (!first) return {"none; this clock stays as it is", "none"};
  return {ChangeText(*first, form), second ? ChangeText(*second, form) : "none; the clock then stays as it is"};
}

std::string WarningText(const ExplainedClock& clock, const sun::PackedPlace& place) {
  const std::string given = OffsetText(GivenOffset(clock));
  if (clock.reason == ClockReason::kOffsetOfNone) {
    return "No zone near here has " + given + "; times are told without summer time." + ZoneThereText(place);
  }
  const auto standing = OtherStandardOffset(clock);
  if (!standing) return {};
  return std::string("The standard time of ") + clock.clock.zoneId.data() + " is " + OffsetText(*standing) + ", not " +
         given + " as given for this place. Times follow the zone.";
}

std::string LineText(const ExplainedClock& clock, const sun::PackedPlace& place, int64_t unixSeconds) {
  const std::string zone = clock.clock.zoneId.data();
  const std::string given = OffsetText(GivenOffset(clock));
  switch (clock.reason) {
    case ClockReason::kOff: return "Clock: " + given + " all year; summer time is off everywhere";
    case ClockReason::kNoneByUser: return "Clock: " + given + " all year; you have chosen no summer time here";
    case ClockReason::kNoZone: return "No zone is known near here; times will be told in " + given + " all year.";
    case ClockReason::kOffsetOfNone:
      return "No zone near here has " + given + "; times will be told without summer time." + ZoneThereText(place);
    default: break;
  }
  const auto standing = OtherStandardOffset(clock);
  return "Clock: " + zone + (clock.reason == ClockReason::kSetByUser ? " (your choice), " : ", ") +
         SeasonText(clock.clock, unixSeconds) +
         (standing ? "; its standard time is " + OffsetText(*standing) + ", not " + given : "");
}

std::vector<std::size_t> ZonesMatching(std::string_view typed) {
  const std::vector<std::string> words = WordsOf(typed);
  std::vector<std::size_t> matching;
  for (std::size_t i = 0; i < sun::ZoneCount(); ++i) {
    const std::string name = InSmallLetters(sun::ZoneId(i));
    const auto isIn = [&name](const std::string& word) { return name.find(word) != std::string::npos; };
    if (std::ranges::all_of(words, isIn)) matching.push_back(i);
  }
  return matching;
}

}  // namespace solar
