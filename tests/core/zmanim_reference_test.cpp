// The catalogue against an independent implementation, over places on all sides of the globe up to 59 degrees.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <iterator>
#include <limits>
#include <set>
#include <string>

#include "libraries/hours/catalogue.h"
#include "libraries/hours/zman_day.h"
#include "libraries/sun/clock_in_force.h"

namespace {

struct ReferencePlace {
  const char* name;
  int32_t packedLatitude, packedLongitude, zoneHours, zoneMinutes, elevationMetres;
};

constexpr int32_t kNever = std::numeric_limits<int32_t>::min();  // stands for a zman that does not occur
constexpr size_t kReferenceZmanim = 172;

struct ReferenceDay {
  size_t place;
  uint32_t year, month, day;
  int32_t secondsFromMidnightUtc[kReferenceZmanim];  // of the date's 00:00
};

#include "zmanim_reference_moments.h"

static_assert(std::size(kReferenceIds) == kReferenceZmanim);

// One zman of the reference beside the catalogue's.
struct Comparison {
  const ReferenceDay& reference;
  const hours::CatalogueZman& zman;
  std::optional<double> expectedUtcSeconds;
  std::optional<double> utcSeconds;
  std::optional<int64_t> clockMinute;
  int32_t offsetSeconds;

  std::string Name() const {
    return std::string(zman.id) + " in " + kReferencePlaces[reference.place].name + " on " +
           std::to_string(reference.year) + "-" + std::to_string(reference.month) + "-" + std::to_string(reference.day);
  }
};

int64_t ShownMinutes(const sun::SunEvent& event, int32_t offsetSeconds) {
  const sun::HourAndMinute time = sun::TimeOfDay(sun::NearestMinute(event.utcSeconds, offsetSeconds));
  return time.hour * 60 + time.minute;
}

template <typename Visit>
void CompareAll(Visit visit) {
  for (const ReferenceDay& reference : kReferenceDays) {
    const ReferencePlace& at = kReferencePlaces[reference.place];
    const sun::Site site = sun::SiteFromPacked(at.packedLatitude, at.packedLongitude, at.zoneHours, at.zoneMinutes);
    const sun::PlaceSettings place = {
        site, static_cast<double>(at.elevationMetres), {site.standardOffsetMinutes * 60, {}}};
    const int32_t offset = place.clock.standardOffsetSeconds;
    const int32_t unixDay = sun::UnixDayOfDate(reference.day, reference.month, reference.year);
    const sun::SunDay sunDay = sun::ComputeSunDay(unixDay, site);
    hours::ZmanDay day(unixDay, place,
                       {ShownMinutes(sun::Sunrise(sunDay, place.elevationMetres), offset),
                        ShownMinutes(sun::Sunset(sunDay, place.elevationMetres), offset)});
    for (size_t i = 0; i < kReferenceZmanim; ++i) {
      const hours::CatalogueZman* zman = hours::FindInCatalogue(kReferenceIds[i]);
      ASSERT_NE(zman, nullptr) << kReferenceIds[i];
      const int32_t seconds = reference.secondsFromMidnightUtc[i];
      std::optional<double> expected;
      if (seconds != kNever) expected = unixDay * 86400.0 + seconds;
      visit(Comparison{reference, *zman, expected, day.UtcSeconds(zman->definition), day.ClockMinute(zman->definition),
                       offset});
    }
  }
}

TEST(ZmanimReference, CoversTheWholeCatalogue) {
  const std::set<std::string> ids(std::begin(kReferenceIds), std::end(kReferenceIds));
  for (const hours::CatalogueZman& zman : hours::Catalogue()) EXPECT_TRUE(ids.contains(zman.id)) << zman.id;
}

TEST(ZmanimReference, ZmanimOccurExactlyWhereTheReferenceSaysSo) {
  CompareAll([](const Comparison& one) {
    EXPECT_EQ(one.utcSeconds.has_value(), one.expectedUtcSeconds.has_value()) << one.Name();
    EXPECT_EQ(one.clockMinute.has_value(), one.expectedUtcSeconds.has_value()) << one.Name();
  });
}

TEST(ZmanimReference, EveryMomentAgreesWithinTwentySeconds) {
  double worst = 0;
  double sum = 0;
  double count = 0;
  std::string worstName;
  CompareAll([&](const Comparison& one) {
    if (!one.utcSeconds || !one.expectedUtcSeconds) return;
    const double error = std::fabs(*one.utcSeconds - *one.expectedUtcSeconds);
    EXPECT_LT(error, 20) << one.Name();
    sum += error;
    ++count;
    if (error > worst) worstName = one.Name();
    worst = std::max(worst, error);
  });
  std::printf("%g moments, mean difference %g s, worst %g s: %s\n", count, sum / count, worst, worstName.c_str());
  EXPECT_GT(count, 18000);
  EXPECT_LT(sum / count, 2);
}

// What is shown beside our own exact moment.
TEST(ZmanimReference, EveryMinuteIsTheMomentRoundedAsTheCatalogueSays) {
  CompareAll([](const Comparison& one) {
    if (!one.clockMinute) return;
    const double shown = 60.0 * static_cast<double>(*one.clockMinute) - one.offsetSeconds;
    const double later = shown - *one.utcSeconds;
    const hours::Reckoning& reckoning = one.zman.definition.reckoning;
    const hours::BoundKind kind = (reckoning.thousandthHours == 0 ? reckoning.day.start : reckoning.day.end).kind;
    const bool isEnd = reckoning.thousandthHours == 0 || reckoning.thousandthHours == hours::kDayThousandthHours;
    const bool isCounted = isEnd && (kind == hours::BoundKind::kSun || kind == hours::BoundKind::kMinutes) &&
                           reckoning.day.end.thousandths % 1000 == 0;
    if (isCounted || one.zman.definition.rounding == hours::Rounding::kNearest) {
      EXPECT_LE(std::fabs(later), 30.001) << one.Name();
    } else if (one.zman.definition.rounding == hours::Rounding::kDown) {
      EXPECT_TRUE(later > -60 && later <= 0) << one.Name() << " " << later;
    } else {
      EXPECT_TRUE(later >= 0 && later < 60) << one.Name() << " " << later;
    }
  });
}

}  // namespace
