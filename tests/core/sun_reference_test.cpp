// The sun's events against an independent ephemeris (PyEphem 4.1, by tools/sun_reference.py): 71 places, the years 1900
// to 2100. Every test prints what it measured.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "libraries/sun/clock_in_force.h"
#include "libraries/sun/sun_day.h"
#include "libraries/twilight/twilight_core.h"

namespace {

struct ReferencePlace {
  const char* name;
  int32_t packedLatitude, packedLongitude, zoneHours, zoneMinutes;
};

constexpr double kNever = -1e9;  // stands for a moment that does not come

enum Event { kSunrise, kSunset };  // then the morning and the evening of each depression
constexpr double kDepressionsDegrees[] = {8, 8.5, 16.1, 19.8};
constexpr int kEvents = 2 + 2 * static_cast<int>(std::size(kDepressionsDegrees));

struct ReferenceDay {
  size_t place;
  uint32_t year, month, day;
  double elevationMetres;
  double secondsFromMidnightUtc[kEvents];  // of the date's 00:00
};

#include "sun_reference_moments.h"

bool IsEvening(int event) {
  return event % 2 == 1;
}

double DepressionOf(int event) {
  return kDepressionsDegrees[(event - 2) / 2];
}

sun::SunEvent Compute(const sun::SunDay& sunDay, double elevationMetres, int event) {
  if (event == kSunrise) return sun::Sunrise(sunDay, elevationMetres);
  if (event == kSunset) return sun::Sunset(sunDay, elevationMetres);
  return IsEvening(event) ? sun::EveningDepression(sunDay, DepressionOf(event))
                          : sun::MorningDepression(sunDay, DepressionOf(event));
}

// One moment of the reference beside the library's.
struct Moment {
  const ReferenceDay* day;
  int event;
  int32_t unixDay;
  sun::PlaceSettings place;
  sun::SunEvent computed;
  double expectedUtcSeconds;

  bool IsExpected() const { return expectedUtcSeconds != kNever; }
  bool IsCompared() const { return IsExpected() && computed.crossing == sun::Crossing::kReached; }
  double ErrorSeconds() const { return computed.utcSeconds - expectedUtcSeconds; }
  int32_t OffsetSeconds() const { return place.clock.standardOffsetSeconds; }
  bool IsBelowSixtyDegrees() const { return std::abs(kReferencePlaces[day->place].packedLatitude) < 6000; }
  std::string Name() const {
    return std::string(kReferencePlaces[day->place].name) + " " + std::to_string(day->year) + "-" +
           std::to_string(day->month) + "-" + std::to_string(day->day) + " event " + std::to_string(event);
  }
};

std::vector<Moment> ComputeAll() {
  std::vector<Moment> moments;
  for (const ReferenceDay& day : kReferenceDays) {
    const ReferencePlace& place = kReferencePlaces[day.place];
    const sun::Site site =
        sun::SiteFromPacked(place.packedLatitude, place.packedLongitude, place.zoneHours, place.zoneMinutes);
    const sun::PlaceSettings settings = {site, day.elevationMetres, {site.standardOffsetMinutes * 60, {}}};
    const int32_t unixDay = sun::UnixDayOfDate(day.day, day.month, day.year);
    const sun::SunDay sunDay = sun::ComputeSunDay(unixDay, site);
    for (int event = 0; event < kEvents; ++event) {
      const double seconds = day.secondsFromMidnightUtc[event];
      moments.push_back({&day, event, unixDay, settings, Compute(sunDay, day.elevationMetres, event),
                         seconds == kNever ? kNever : unixDay * 86400.0 + seconds});
    }
  }
  return moments;
}

const std::vector<Moment>& Moments() {
  static const std::vector<Moment> moments = ComputeAll();
  return moments;
}

void Print(const std::string& name, double figure) {
  std::printf("%s: %g\n", name.c_str(), figure);
  testing::Test::RecordProperty(name, std::to_string(figure));
}

struct Errors {
  double mean;
  double worst;
};

Errors PrintErrors(const std::string& of, const std::function<bool(const Moment&)>& isOne) {
  double sum = 0;
  double worst = 0;
  double count = 0;
  for (const Moment& moment : Moments()) {
    if (!moment.IsCompared() || !isOne(moment)) continue;
    const double error = std::fabs(moment.ErrorSeconds());
    sum += error;
    worst = std::max(worst, error);
    ++count;
  }
  Print("moments " + of, count);
  Print("mean error in seconds " + of, sum / count);
  Print("worst error in seconds " + of, worst);
  return {sum / count, worst};
}

TEST(SunReference, TheSunGetsThereExactlyWhereTheReferenceSaysSo) {
  for (const Moment& moment : Moments()) {
    EXPECT_EQ(moment.computed.crossing == sun::Crossing::kReached, moment.IsExpected()) << moment.Name();
  }
}

TEST(SunReference, TheMeanErrorBelowSixtyDegreesIsUnderHalfASecondAndNoErrorOverTwo) {
  const Errors errors = PrintErrors("below 60 degrees", &Moment::IsBelowSixtyDegrees);
  EXPECT_LT(errors.mean, 0.5);
  EXPECT_LT(errors.worst, 2);
}

TEST(SunReference, BeyondSixtyDegreesTheMeanErrorIsUnderHalfASecondToo) {
  const Errors errors =
      PrintErrors("from 60 to 70 degrees", [](const Moment& moment) { return !moment.IsBelowSixtyDegrees(); });
  EXPECT_LT(errors.mean, 0.5);
}

// The minutes that a view shows, beside those of the reference under the same rounding.
class MinuteTally {
 public:
  void Add(int64_t shown, int64_t expected, const Moment& moment) {
    ++count_;
    if (shown == expected) ++equal_;
    EXPECT_LE(std::abs(shown - expected), 1) << moment.Name();
  }
  void ExpectNearlyAllEqual(const std::string& of) const {
    Print("minutes " + of, count_);
    Print("of these equal, percent, " + of, 100 * equal_ / count_);
    EXPECT_GE(equal_ / count_, 0.995);
  }

 private:
  double count_ = 0;
  double equal_ = 0;
};

TEST(SunReference, SunriseAndSunsetRoundToTheSameMinute) {
  MinuteTally minutes;
  for (const Moment& moment : Moments()) {
    if (!moment.IsCompared() || moment.event > kSunset) continue;
    minutes.Add(sun::NearestMinute(moment.computed.utcSeconds, moment.OffsetSeconds()),
                sun::NearestMinute(moment.expectedUtcSeconds, moment.OffsetSeconds()), moment);
  }
  minutes.ExpectNearlyAllEqual("of sunrise and sunset");
}

// What a program shows: the rounded sunset and the interval added to it.
int64_t ShownNightfall(const Moment& moment) {
  const sun::SunDay day = sun::ComputeSunDay(moment.unixDay, moment.place.site);
  const double sunset = sun::Sunset(day, moment.place.elevationMetres).utcSeconds;
  return sun::NearestMinute(sunset, moment.OffsetSeconds()) +
         twilight::EveningIntervalMinutes(moment.unixDay, moment.place, DepressionOf(moment.event));
}

TEST(SunReference, NightfallRoundsUpToTheSameMinute) {
  MinuteTally minutes;
  for (const Moment& moment : Moments()) {
    if (!moment.IsCompared() || moment.event <= kSunset || !IsEvening(moment.event)) continue;
    minutes.Add(ShownNightfall(moment), sun::MinuteNotBefore(moment.expectedUtcSeconds, moment.OffsetSeconds()),
                moment);
  }
  minutes.ExpectNearlyAllEqual("of nightfall");
}

TEST(SunReference, NightfallIsNeverEarlyByMoreThanThreeSeconds) {
  double earliest = 0;
  for (const Moment& moment : Moments()) {
    if (!moment.IsCompared() || moment.event <= kSunset || !IsEvening(moment.event)) continue;
    const double shownUtcSeconds = 60.0 * static_cast<double>(ShownNightfall(moment)) - moment.OffsetSeconds();
    earliest = std::max(earliest, moment.expectedUtcSeconds - shownUtcSeconds);
    EXPECT_GT(moment.ErrorSeconds(), -3) << moment.Name();
  }
  Print("most seconds by which a shown nightfall is early", earliest);
  EXPECT_LT(earliest, 3);
}

}  // namespace
