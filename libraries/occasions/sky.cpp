#include "libraries/occasions/sky.h"

#include <cmath>
#include <numbers>

#include "libraries/calendar/date.h"
#include "libraries/hours/named_days.h"
#include "libraries/sun/clock_in_force.h"

namespace occasions {
namespace {

constexpr double kSecondsPerMinute = 60;
constexpr int64_t kMinutesBeforeUnixDay0 = calendar::kAbsoluteDayOfUnixDay0 * kMinutesPerDay;

// Nearer to the equator than this the sun sets and rises every day, however high the place.
constexpr double kSurelySetsRadians = 60 * std::numbers::pi / 180;

constexpr hours::Definition kSunset = {{hours::kGraDay, hours::kDayThousandthHours}, hours::Rounding::kNearest};
constexpr hours::Definition kSunrise = {{hours::kGraDay, 0}, hours::Rounding::kNearest};

int32_t UnixDay(int32_t day) {
  return day - calendar::kAbsoluteDayOfUnixDay0;
}

// Where the date line has been moved since, the clock of then is about a day off the standard one, by which the days of
// the sun are counted: Apia had UTC-11 until 29 December 2011, then UTC+13.
int64_t MinutesToCountedDay(const sun::PlaceClock& clock, int32_t offsetSeconds) {
  constexpr double kSecondsPerDay = 86400;
  return std::lround((clock.standardOffsetSeconds - offsetSeconds) / kSecondsPerDay) * kMinutesPerDay;
}

// Nothing where the sun gets there.
uint16_t NoteOf(const sun::SunEvent& event, Note staysAbove, Note staysBelow) {
  switch (event.crossing) {
    case sun::Crossing::kReached: break;
    case sun::Crossing::kStaysAbove: return staysAbove;
    case sun::Crossing::kStaysBelow: return staysBelow;
  }
  return 0;
}

}  // namespace

hours::ZmanDay& Sky::On(int32_t day) {
  if (!zmanim_ || day_ != day) {
    zmanim_.emplace(UnixDay(day), question_.settings);
    day_ = day;
  }
  return *zmanim_;
}

std::optional<ClockMinute> Sky::Zman(int32_t day, hours::Definition zman) {
  if (question_.hoursAtSeaLevel) zman = hours::WithHoursAtSeaLevel(zman);
  hours::ZmanDay& zmanim = On(day);
  const std::optional<int64_t> minute = zmanim.ClockMinute(zman);
  const std::optional<double> moment = zmanim.UtcSeconds(zman);
  if (!minute || !moment) return std::nullopt;
  const sun::PlaceClock& clock = question_.settings.clock;
  const int32_t offset = sun::ClockOffsetSeconds(clock, *moment);
  return ClockMinute{*minute + kMinutesBeforeUnixDay0 + MinutesToCountedDay(clock, offset), offset};
}

ClockMinute Sky::Sunset(int32_t day) {
  return *Zman(day, kSunset);
}

ClockMinute Sky::Sunrise(int32_t day) {
  return *Zman(day, kSunrise);
}

ClockMinute Sky::AfterSunset(int32_t day, int32_t minutes) {
  ClockMinute moment = Sunset(day);
  moment.minute += minutes % kMinutesPerDay;  // as the Shabbat times, which know no days
  return moment;
}

ClockMinute Sky::Lighting(int32_t eve) {
  return AfterSunset(eve, -(question_.shabbat.candleMinutes % static_cast<int32_t>(kMinutesPerDay)));
}

ClockMinute Sky::End(int32_t day) {
  return AfterSunset(day, candles::MinutesToEnd(UnixDay(day), question_.settings, question_.shabbat));
}

ClockMinute Sky::At(double utcSeconds, Rounding rounding) const {
  const int32_t offset = sun::ClockOffsetSeconds(question_.settings.clock, utcSeconds);
  const double minutes = (utcSeconds + offset) / kSecondsPerMinute;
  const double rounded = rounding == Rounding::kDown ? std::floor(minutes)
                         : rounding == Rounding::kUp ? std::ceil(minutes)
                                                     : std::floor(minutes + 0.5);
  return {static_cast<int64_t>(rounded) + kMinutesBeforeUnixDay0, offset};
}

uint16_t Sky::NotesOfSunset(int32_t day) const {
  const sun::PlaceSettings& place = question_.settings;
  if (std::fabs(place.site.latitudeRadians) < kSurelySetsRadians) return 0;
  return NoteOf(sun::Sunset(SunOf(day), place.elevationMetres), kSunDoesNotSet, kSunDoesNotRise);
}

uint16_t Sky::NotesOfSunrise(int32_t day) const {
  const sun::PlaceSettings& place = question_.settings;
  if (std::fabs(place.site.latitudeRadians) < kSurelySetsRadians) return 0;
  return NoteOf(sun::Sunrise(SunOf(day), place.elevationMetres), kSunDoesNotSet, kSunDoesNotRise);
}

uint16_t Sky::NotesOfEnd(int32_t day) const {
  const candles::ShabbatRule& rule = question_.shabbat;
  if (rule.endsByMinutes) return NotesOfSunset(day);
  return NoteOf(sun::EveningDepression(SunOf(day), rule.endDegrees), kLowestPoint, kSunDoesNotRise);
}

uint16_t Sky::NoteOfMissing(int32_t day, const hours::Definition& zman) const {
  const sun::SunDay sun = SunOf(day);
  const auto noteOf = [&](const hours::Bound& bound, auto depression) -> uint16_t {
    if (bound.kind != hours::BoundKind::kDegrees) return 0;
    return NoteOf(depression(sun, bound.thousandths / 1000.0), kNeverSoLow, kAlwaysLower);
  };
  const hours::Reckoning& reckoning = zman.reckoning;
  uint16_t notes = 0;
  if (reckoning.thousandthHours != hours::kDayThousandthHours) {
    notes |= noteOf(reckoning.day.start, sun::MorningDepression);
  }
  if (reckoning.thousandthHours != 0) notes |= noteOf(reckoning.day.end, sun::EveningDepression);
  return (notes & kAlwaysLower) != 0 ? kAlwaysLower : kNeverSoLow;
}

sun::SunDay Sky::SunOf(int32_t day) const {
  return sun::ComputeSunDay(UnixDay(day), question_.settings.site);
}

}  // namespace occasions
