#include "libraries/sun/zone_of_place.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>

#include "libraries/sun/clock_rules.h"
#include "libraries/sun/zone_map.h"

namespace {

using sun::FindZone;
using sun::ZoneReason;

std::string ZonesText(double latitude, double longitude) {
  std::string text;
  for (const char* zone : sun::ZonesAt(latitude, longitude)) {
    if (zone) text += (text.empty() ? "" : " ") + std::string(zone);
  }
  return text;
}

// Towns near borders of zones, by the tz database's own descriptions of its zones.
TEST(ZoneMap, KnowsWhereTownsNearBordersLie) {
  EXPECT_EQ(ZonesText(26.2034, -98.2300), "America/Chicago") << "McAllen, across the river from Matamoros' zone";
  EXPECT_EQ(ZonesText(26.0508, -98.2979), "America/Matamoros") << "Reynosa";
  EXPECT_EQ(ZonesText(48.3809, -89.2477), "America/Toronto") << "Thunder Bay";
  EXPECT_EQ(ZonesText(-28.6433, 153.6150), "Australia/Sydney") << "Byron Bay";
  EXPECT_EQ(ZonesText(-28.0167, 153.4000), "Australia/Brisbane") << "Gold Coast";
  EXPECT_EQ(ZonesText(55.7068, 21.1391), "Europe/Vilnius") << "Klaipeda";
  EXPECT_EQ(ZonesText(18.0000, -76.8000), "America/Jamaica") << "Kingston";
  EXPECT_EQ(ZonesText(31.7780, 35.2354), "Asia/Jerusalem") << "Jerusalem";
  EXPECT_EQ(ZonesText(31.5290, 35.0938).find("Asia/Hebron"), 0u) << "Hebron";
  EXPECT_EQ(ZonesText(35.7796, -5.8137), "Africa/Casablanca") << "Tangier";
}

TEST(ZoneMap, EveryZoneInItIsKnown) {
  for (double latitude = -89.5; latitude < 90; ++latitude) {
    for (double longitude = -179.5; longitude < 180; ++longitude) {
      for (const char* zone : sun::ZonesAt(latitude, longitude)) {
        ASSERT_TRUE(!zone || sun::IsKnownZone(zone)) << zone;
      }
    }
  }
}

TEST(ZoneMap, AnswersAtTheEdgesOfTheWorldAndBeyond) {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  constexpr double kEndless = std::numeric_limits<double>::infinity();
  for (const double latitude : {-90.0, 90.0, -1e300, kEndless, -kEndless, kNone}) {
    for (const double longitude : {-180.0, 180.0, 1e300, kEndless, -kEndless, kNone}) ZonesText(latitude, longitude);
  }
  EXPECT_EQ(ZonesText(-16.85, 179.99), "Pacific/Fiji");
  EXPECT_EQ(ZonesText(-16.85, -179.99), "Pacific/Fiji") << "Taveuni lies on both sides of the meridian";
}

TEST(ZoneOfPlace, IsOneWhoseStandardOffsetIsTheGivenOne) {
  EXPECT_STREQ(FindZone(3213, -11056, -7, 0).zoneId, "America/Phoenix") << "Tucson";
  EXPECT_STREQ(FindZone(3801, 1231, 1, 0).zoneId, "Europe/Rome") << "Trapani, though Africa is nearer than Rome";
  EXPECT_STREQ(FindZone(-2800, 15326, 10, 0).zoneId, "Australia/Brisbane") << "the Gold Coast has no summer time";
  EXPECT_STREQ(FindZone(-2839, 15337, 10, 0).zoneId, "Australia/Sydney") << "Byron Bay has";
  EXPECT_EQ(FindZone(-2839, 15337, 10, 0).reason, ZoneReason::kStandard);
}

// Valenca in Portugal lies two kilometres from Tui in Spain.
TEST(ZoneOfPlace, MayBeThatOfTheOtherBankOfARiver) {
  EXPECT_STREQ(FindZone(4202, -838, 0, 0).zoneId, "Europe/Lisbon");
  EXPECT_STREQ(FindZone(4202, -838, 1, 0).zoneId, "Europe/Madrid");
}

// Western Greenland kept -3 until 2023.
TEST(ZoneOfPlace, MayBeOneThatHasShownTheOffsetBefore) {
  const sun::ZoneOfPlace nuuk = FindZone(6412, -5150, -3, 0);
  EXPECT_STREQ(nuuk.zoneId, "America/Nuuk");
  EXPECT_EQ(nuuk.reason, ZoneReason::kFormer);
}

TEST(ZoneOfPlace, IsNoneWhereTheOffsetFitsNothing) {
  EXPECT_EQ(FindZone(5046, 605, 0, 20).zoneId, nullptr);
  EXPECT_EQ(FindZone(5046, 605, 0, 20).reason, ZoneReason::kOffsetOfNone);
  EXPECT_EQ(FindZone(5046, 605, 25, 0).zoneId, nullptr);
  EXPECT_STREQ(sun::ZoneThere(5046, 605), "Europe/Berlin");
}

// Kiryat Arba beside Hebron: both zones hold there.
TEST(ZoneOfPlace, IsJerusalemsBeforeHebrons) {
  EXPECT_STREQ(FindZone(3132, 3507, 2, 0).zoneId, "Asia/Jerusalem");
}

TEST(ZoneOfPlace, SurvivesAnyNumbers) {
  constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
  constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
  EXPECT_EQ(FindZone(kLeast, kLeast, kLeast, kLeast).zoneId, nullptr);
  EXPECT_EQ(FindZone(kMost, kMost, kMost, kMost).zoneId, nullptr);
  FindZone(kLeast, kMost, 2, 0);
}

}  // namespace
