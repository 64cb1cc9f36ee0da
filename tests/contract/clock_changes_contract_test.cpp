// The clock time of sunset, nightfall and zmanim about the changes of clocks, from the libraries that answer them.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

#include "companion/hours.h"
#include "companion/profile.h"
#include "companion/solar.h"
#include "companion/twilight.h"
#include "tests/contract/settings_home.h"
#include "tests/core/clock_years.h"

namespace {

constexpr int32_t kMinutesPerDay = 24 * 60;
constexpr int64_t kSecondsPerDay = 86400;
constexpr int32_t kSunsOwnMinutes = 5;  // more than sunset or sunrise moves in a day below 65 degrees
constexpr double kNightfallDegrees = 8.5;

std::chrono::year_month_day DateOf(int64_t clockSeconds) {
  using namespace std::chrono;
  return floor<days>(sys_seconds{seconds{clockSeconds}});
}

// Minutes in a day or between two, as the nearest way round the clock has them: -720 to 719.
int32_t Nearest(int32_t minutes) {
  return (((minutes + kMinutesPerDay / 2) % kMinutesPerDay) + kMinutesPerDay) % kMinutesPerDay - kMinutesPerDay / 2;
}

// Clock times of a day in minutes after midnight: sunrise, sunset, end of Shabbat by degrees, each zman of the
// selection.
std::vector<int32_t> TimesOf(const sun::PackedPlace& place, const std::chrono::year_month_day& date) {
  const auto day = static_cast<unsigned>(date.day());
  const auto month = static_cast<unsigned>(date.month());
  const auto year = static_cast<uint32_t>(static_cast<int>(date.year()));
  const auto [latitude, longitude, zoneHours, zoneMinutes] = place;
  int32_t riseHour = -1, riseMinute = -1, setHour = -1, setMinute = -1, hours = -1, minutes = -1;
  SolarGetSunsetSunrise(day, month, year, SOLAR_SUNRISE, latitude, longitude, zoneHours, zoneMinutes, &riseHour,
                        &riseMinute);
  SolarGetSunsetSunrise(day, month, year, SOLAR_SUNSET, latitude, longitude, zoneHours, zoneMinutes, &setHour,
                        &setMinute);
  TwilightCalculate(day, month, year, kNightfallDegrees, latitude, longitude, zoneHours, zoneMinutes, &hours, &minutes);
  std::vector<int32_t> times = {riseHour * 60 + riseMinute, setHour * 60 + setMinute,
                                (setHour + hours) * 60 + setMinute + minutes};
  for (uint32_t zman = 0; zman < HoursGetCount(); ++zman) {
    times.push_back(HoursCalculate2(nullptr, latitude, longitude, zoneHours, zoneMinutes, day, month, year, zman,
                                    riseHour, riseMinute, setHour, setMinute));
  }
  return times;
}

int32_t StandardMinutes(const sun::PackedPlace& place) {
  return place.zoneHours * 60 + place.zoneMinutes;
}

// A date at a place, whose clock is so many seconds ahead of UTC all day.
struct DayOfClock {
  const ClockYear* year;
  std::chrono::year_month_day date;
  int32_t offsetSeconds;
};

// Two days before and after every change; of years without one, a day of each half. Zmanim of the night about a change
// may stand on either clock.
std::vector<DayOfClock> DaysOfOneClock() {
  using namespace std::chrono;
  std::vector<DayOfClock> days;
  for (const ClockYear& year : kClockYears) {
    int32_t before = year.offsetAtStart;
    for (const ClockStep& step : year.steps) {
      days.push_back({&year, DateOf(step.moment + before - 2 * kSecondsPerDay), before});
      days.push_back({&year, DateOf(step.moment + before + 2 * kSecondsPerDay), step.offsetAfter});
      before = step.offsetAfter;
    }
    if (!year.steps.empty()) continue;
    days.push_back({&year, std::chrono::year{year.year} / January / 15, before});
    days.push_back({&year, std::chrono::year{year.year} / July / 15, before});
  }
  return days;
}

// The days on which clocks change, by the clock before, each after the day before it; all changes are at midnight or in
// the small hours, before sunrise.
struct DaysOfChange {
  const ClockYear* year;
  std::vector<int32_t> eve;
  std::vector<int32_t> day;
  int32_t minutes;  // that the clock was put forward
};

std::vector<DaysOfChange> TimesAboutChanges() {
  std::vector<DaysOfChange> changes;
  for (const ClockYear& year : kClockYears) {
    int32_t before = year.offsetAtStart;
    for (const ClockStep& step : year.steps) {
      changes.push_back({&year, TimesOf(year.place, DateOf(step.moment + before - kSecondsPerDay)),
                         TimesOf(year.place, DateOf(step.moment + before)), (step.offsetAfter - before) / 60});
      before = step.offsetAfter;
    }
  }
  return changes;
}

// That sunrise, sunset and the end of Shabbat move by so much from a day to the next.
void ExpectMove(const DaysOfChange& about, int32_t minutes) {
  for (const size_t i : {0u, 1u, 2u}) {
    EXPECT_LE(std::abs(about.day[i] - about.eve[i] - minutes), kSunsOwnMinutes)
        << about.year->zoneId << " " << about.year->year << ": " << about.eve[i] << " and " << about.day[i];
  }
}

class ClockChangesContract : public testing::Test {
 protected:
  // The zmanim's library keeps a place's settings for a tick of the clock.
  static void SetMode(const char* mode) {
    ASSERT_NE(ProfileWriteString("SummerTime", "Mode", mode, "solar.ini"), 0);
    WaitUntilSeen();
  }

  SettingsHome home_;
};

}  // namespace

TEST_F(ClockChangesContract, TimesMoveByTheChangeAndTheSunsOwnMinutes) {
  for (const DaysOfChange& about : TimesAboutChanges()) ExpectMove(about, about.minutes);
}

TEST_F(ClockChangesContract, WithSummerTimeOffTheyMoveByTheSunsOwnMinutesAlone) {
  SetMode("Off");
  for (const DaysOfChange& about : TimesAboutChanges()) ExpectMove(about, 0);
}

TEST_F(ClockChangesContract, EveryTimeIsTheStandardOneWithTheOffsetInForce) {
  const std::vector<DayOfClock> days = DaysOfOneClock();
  std::vector<std::vector<int32_t>> standard;
  SetMode("Off");
  for (const DayOfClock& day : days) standard.push_back(TimesOf(day.year->place, day.date));
  SetMode("Automatic");
  for (size_t n = 0; n < days.size(); ++n) {
    const auto& [year, date, offsetSeconds] = days[n];
    const std::vector<int32_t> times = TimesOf(year->place, date);
    const int32_t ahead = Nearest(offsetSeconds / 60 - StandardMinutes(year->place));
    ASSERT_EQ(times.size(), standard[n].size());
    ASSERT_GT(times.size(), 20u);
    for (size_t i = 0; i < times.size(); ++i) {
      ASSERT_EQ(times[i] == HOURS_NONE, standard[n][i] == HOURS_NONE) << year->zoneId << " " << year->year << " " << i;
      EXPECT_TRUE(times[i] == HOURS_NONE || Nearest(times[i] - standard[n][i]) == ahead)
          << year->zoneId << " " << year->year << " " << i << ": " << times[i] << " and " << standard[n][i];
    }
  }
}
