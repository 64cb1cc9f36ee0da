#include "libraries/hours/zman_day.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "libraries/calendar/jewish.h"
#include "libraries/sun/clock_in_force.h"

namespace hours {
namespace {

constexpr double kSecondsPerDay = 86400;
constexpr int64_t kMinutesPerDay = 24 * 60;
constexpr double kProportionalMinutesPerDay = 12 * 60;

double Seconds(int32_t thousandthMinutes) {
  return thousandthMinutes / 1000.0 * 60;
}

bool IsWhole(int32_t thousandths) {
  return thousandths % 1000 == 0;
}

constexpr int32_t kNoKey = std::numeric_limits<int32_t>::min();  // far beyond every depression

// Of 256. Spread by the golden ratio's fraction (Knuth), so that the tenths of degrees of one end share no slot.
size_t SlotOf(int32_t key) {
  return (static_cast<uint32_t>(key) * 0x9E3779B9u) >> 24;
}

// The minute nearest to a computed one whose time of day is the shown one.
int64_t MinuteShown(int64_t computed, int64_t shownOfDay) {
  const int64_t difference = (shownOfDay % kMinutesPerDay - computed % kMinutesPerDay) % kMinutesPerDay;
  const int64_t half = kMinutesPerDay / 2;
  return computed + (difference + kMinutesPerDay + half) % kMinutesPerDay - half;
}

}  // namespace

ZmanDay::ZmanDay(int32_t unixDay, const sun::PlaceSettings& place, const ShownSun& shown)
    : ZmanDay(unixDay, place, &shown) {}

ZmanDay::ZmanDay(int32_t unixDay, const sun::PlaceSettings& place) : ZmanDay(unixDay, place, nullptr) {}

ZmanDay::ZmanDay(int32_t unixDay, const sun::PlaceSettings& place, const ShownSun* shown)
    : unixDay_(unixDay), place_(place), sun_(sun::ComputeSunDay(unixDay, place.site)) {
  keptKeys_.fill(kNoKey);
  const double before = sun_.noonUtcSeconds - kSecondsPerDay;
  const double after = sun_.noonUtcSeconds + kSecondsPerDay;
  offsetSeconds_ = sun::ClockOffsetSeconds(place_.clock, before);
  hasOneOffset_ = offsetSeconds_ == sun::ClockOffsetSeconds(place_.clock, after);
  sunrise_ = sun::Sunrise(sun_, place.elevationMetres).utcSeconds;
  sunset_ = sun::Sunset(sun_, place.elevationMetres).utcSeconds;

  const auto momentShown = [this, shown](double exact, int64_t ShownSun::*shownMinutes) {
    const int32_t offset = OffsetSeconds(exact);
    const int64_t computed = sun::NearestMinute(exact, offset);
    const int64_t minute = shown ? MinuteShown(computed, shown->*shownMinutes) : computed;
    agreesWithShown_ = agreesWithShown_ && minute == computed;
    return 60.0 * static_cast<double>(minute) - offset;
  };
  shownSunrise_ = momentShown(sunrise_, &ShownSun::sunriseMinutes);
  shownSunset_ = momentShown(sunset_, &ShownSun::sunsetMinutes);
}

int32_t ZmanDay::OffsetSeconds(double utcSeconds) const {
  if (hasOneOffset_ && std::fabs(utcSeconds - sun_.noonUtcSeconds) < kSecondsPerDay) return offsetSeconds_;
  return sun::ClockOffsetSeconds(place_.clock, utcSeconds);
}

bool ZmanDay::IsPesachEve() {
  if (!isPesachEve_) {
    const calendar::Date date = calendar::JewishFromAbsolute(unixDay_ + calendar::kAbsoluteDayOfUnixDay0);
    isPesachEve_ = date.day == 14 && date.month == calendar::kNisan;
  }
  return *isPesachEve_;
}

// The moment of that hour on the place's own meridian that is nearest to 12:00 of the standard clock, as the transit
// is.
double ZmanDay::MeanNoon() const {
  const double utcOfDay = kSecondsPerDay / 2 - place_.site.longitudeRadians / (2 * std::numbers::pi) * kSecondsPerDay;
  return sun_.noonUtcSeconds + std::remainder(utcOfDay - sun_.noonUtcSeconds, kSecondsPerDay);
}

std::optional<double> ZmanDay::AtDepression(int32_t thousandthDegrees, End end) {
  const int32_t key = thousandthDegrees * 2 + (end == End::kEnd ? 1 : 0);
  const size_t slot = SlotOf(key);
  double& moment = keptMoments_[slot];
  if (keptKeys_[slot] != key) {
    const double degrees = thousandthDegrees / 1000.0;
    const sun::SunEvent event =
        end == End::kStart ? sun::MorningDepression(sun_, degrees) : sun::EveningDepression(sun_, degrees);
    const bool isReached = event.crossing == sun::Crossing::kReached;
    moment = isReached ? event.utcSeconds : std::numeric_limits<double>::quiet_NaN();
    keptKeys_[slot] = key;
  }
  return std::isnan(moment) ? std::nullopt : std::optional(moment);
}

double ZmanDay::SeaLevelSun(End end) {
  std::optional<double>& moment = end == End::kStart ? seaLevelSunrise_ : seaLevelSunset_;
  if (!moment) moment = (end == End::kStart ? sun::Sunrise(sun_, 0) : sun::Sunset(sun_, 0)).utcSeconds;
  return *moment;
}

double ZmanDay::NextSunrise(double elevationMetres) {
  if (!nextSun_) nextSun_ = sun::ComputeSunDay(unixDay_ + 1, place_.site);
  return sun::Sunrise(*nextSun_, elevationMetres).utcSeconds;
}

std::optional<double> ZmanDay::At(const Bound& bound, End end) {
  const bool isStart = end == End::kStart;
  const double sun = isStart ? sunrise_ : sunset_;
  const double shareOfDay = bound.thousandths / (1000 * kProportionalMinutesPerDay);
  switch (bound.kind) {
    case BoundKind::kSun: return sun;
    case BoundKind::kSeaLevelSun: return SeaLevelSun(end);
    case BoundKind::kDegrees: return AtDepression(bound.thousandths, end);
    case BoundKind::kMinutes: return Outwards(sun, Seconds(bound.thousandths), end);
    case BoundKind::kProportionalMinutes: return Outwards(sun, (sunset_ - sunrise_) * shareOfDay, end);
    case BoundKind::kTransit: return sun::TransitUtcSeconds(sun_);
    case BoundKind::kMeanNoon: return MeanNoon();
    case BoundKind::kMidnight:
      return isStart ? sun::MidnightBeforeUtcSeconds(sun_) : sun::MidnightAfterUtcSeconds(sun_);
    case BoundKind::kNight: return isStart ? sunset_ : NextSunrise(place_.elevationMetres);
    case BoundKind::kMeanMidnight: return Outwards(MeanNoon(), kSecondsPerDay / 2, end);
    case BoundKind::kDawnParts: return AtDawnParts(bound.thousandths, end);
    case BoundKind::kSeaLevelMinutes: return Outwards(SeaLevelSun(end), Seconds(bound.thousandths), end);
    case BoundKind::kSeaLevelProportionalMinutes:
      return Outwards(SeaLevelSun(end), (SeaLevelSun(End::kEnd) - SeaLevelSun(End::kStart)) * shareOfDay, end);
    case BoundKind::kSeaLevelNight: return isStart ? SeaLevelSun(End::kEnd) : NextSunrise(0);
  }
  return std::nullopt;
}

std::optional<double> ZmanDay::AtDawnParts(int32_t thousandths, End end) {
  constexpr int32_t kDawnThousandthDegrees = 19800;
  constexpr double kParts = 18;
  const std::optional<double> dawn = AtDepression(kDawnThousandthDegrees, End::kStart);
  if (!dawn) return std::nullopt;
  const double seconds = (sunrise_ - *dawn) * thousandths / 1000 / kParts;
  return Outwards(end == End::kStart ? sunrise_ : sunset_, seconds, end);
}

std::optional<double> ZmanDay::At(const Reckoning& reckoning) {
  const double added = Seconds(reckoning.thousandthMinutes);
  if (reckoning.thousandthHours == 0) {
    const std::optional<double> start = At(reckoning.day.start, End::kStart);
    return start ? std::optional(*start + added) : std::nullopt;
  }
  const std::optional<double> end = At(reckoning.day.end, End::kEnd);
  if (!end) return std::nullopt;
  if (reckoning.thousandthHours == kDayThousandthHours) return *end + added;
  const std::optional<double> start = At(reckoning.day.start, End::kStart);
  if (!start) return std::nullopt;
  return *start + (*end - *start) * reckoning.thousandthHours / kDayThousandthHours + added;
}

std::optional<double> ZmanDay::UtcSeconds(const Definition& zman) {
  if (zman.isForPesachEve && !IsPesachEve()) return std::nullopt;
  std::optional<double> moment = At(zman.reckoning);
  if (moment && zman.notBefore) {
    const std::optional<double> other = At(*zman.notBefore);
    moment = other ? std::optional(std::max(*moment, *other)) : std::nullopt;
  }
  if (moment && zman.notAfter) {
    const std::optional<double> other = At(*zman.notAfter);
    moment = other ? std::optional(std::min(*moment, *other)) : std::nullopt;
  }
  return moment;
}

// The minute of a zman that is sunrise, sunset or whole minutes away from them.
std::optional<int64_t> ZmanDay::CountedMinute(const Definition& zman) const {
  const Reckoning& reckoning = zman.reckoning;
  const bool isStart = reckoning.thousandthHours == 0;
  if (!isStart && reckoning.thousandthHours != kDayThousandthHours) return std::nullopt;
  const Bound& bound = isStart ? reckoning.day.start : reckoning.day.end;
  if (bound.kind != BoundKind::kSun && bound.kind != BoundKind::kMinutes) return std::nullopt;
  if (zman.notBefore || zman.notAfter || zman.isForPesachEve) return std::nullopt;
  if (!IsWhole(bound.thousandths) || !IsWhole(reckoning.thousandthMinutes)) return std::nullopt;

  const int32_t outwards = isStart ? -bound.thousandths : bound.thousandths;
  const double moment = (isStart ? shownSunrise_ : shownSunset_) + Seconds(outwards + reckoning.thousandthMinutes);
  return sun::NearestMinute(moment, OffsetSeconds(moment));
}

std::optional<int64_t> ZmanDay::ClockMinute(const Definition& zman) {
  if (const std::optional<int64_t> counted = CountedMinute(zman)) return counted;
  const std::optional<double> moment = UtcSeconds(zman);
  if (!moment) return std::nullopt;
  const int32_t offset = OffsetSeconds(*moment);
  switch (zman.rounding) {
    case Rounding::kDown: return static_cast<int64_t>(std::floor((*moment + offset) / 60));
    case Rounding::kUp: return sun::MinuteNotBefore(*moment, offset);
    case Rounding::kNearest: return sun::NearestMinute(*moment, offset);
  }
  return std::nullopt;
}

}  // namespace hours
