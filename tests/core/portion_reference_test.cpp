#include <gtest/gtest.h>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/portion_schedule.h"

namespace {

using namespace calendar;

using Read = std::optional<WeeklyPortion>;

constexpr Read kFestival = std::nullopt;

constexpr Read One(Portion portion) {
  return WeeklyPortion{portion, false};
}

constexpr Read Joined(Portion first) {
  return WeeklyPortion{first, true};
}

// From @hebcal/core 6.9.3, an independent program: a year of each of the fourteen types, common ones first, and those
// of its Shabbatot on which the types differ.
TEST(PortionSchedule, AgreesWithAnIndependentProgram) {
  struct Row {
    Date gregorian;
    Read diaspora;
    Read israel;
  };
  // clang-format off
  constexpr Row kRows[] = {
      // 5374
      {{8, 3, 1614}, Joined(kVayakhel), Joined(kVayakhel)},
      {{22, 3, 1614}, One(kTzav), One(kTzav)},
      {{5, 4, 1614}, One(kShmini), One(kShmini)},
      {{26, 4, 1614}, One(kEmor), One(kEmor)},
      {{17, 5, 1614}, One(kNasso), One(kNasso)},
      {{21, 6, 1614}, One(kBalak), One(kBalak)},
      {{5, 7, 1614}, Joined(kMatot), Joined(kMatot)},
      {{30, 8, 1614}, Joined(kNitzavim), Joined(kNitzavim)},
      // 5482
      {{14, 3, 1722}, Joined(kVayakhel), Joined(kVayakhel)},
      {{28, 3, 1722}, One(kTzav), One(kTzav)},
      {{11, 4, 1722}, One(kShmini), One(kShmini)},
      {{9, 5, 1722}, Joined(kBehar), Joined(kBehar)},
      {{23, 5, 1722}, kFestival, One(kNasso)},
      {{27, 6, 1722}, Joined(kChukat), One(kBalak)},
      {{11, 7, 1722}, Joined(kMatot), Joined(kMatot)},
      {{5, 9, 1722}, Joined(kNitzavim), Joined(kNitzavim)},
      // 5593
      {{16, 3, 1833}, Joined(kVayakhel), Joined(kVayakhel)},
      {{30, 3, 1833}, One(kTzav), One(kTzav)},
      {{13, 4, 1833}, One(kShmini), One(kShmini)},
      {{11, 5, 1833}, Joined(kBehar), Joined(kBehar)},
      {{25, 5, 1833}, kFestival, One(kNasso)},
      {{29, 6, 1833}, Joined(kChukat), One(kBalak)},
      {{13, 7, 1833}, Joined(kMatot), Joined(kMatot)},
      {{7, 9, 1833}, Joined(kNitzavim), Joined(kNitzavim)},
      // 5694
      {{10, 3, 1934}, Joined(kVayakhel), Joined(kVayakhel)},
      {{24, 3, 1934}, One(kTzav), One(kTzav)},
      {{7, 4, 1934}, kFestival, One(kShmini)},
      {{14, 4, 1934}, One(kShmini), Joined(kTazria)},
      {{5, 5, 1934}, One(kEmor), One(kBehar)},
      {{26, 5, 1934}, One(kNasso), One(kNasso)},
      {{23, 6, 1934}, One(kChukat), One(kChukat)},
      {{7, 7, 1934}, One(kPinchas), One(kPinchas)},
      {{8, 9, 1934}, One(kNitzavim), One(kNitzavim)},
      // 5734
      {{23, 3, 1974}, One(kPekudei), One(kPekudei)},
      {{6, 4, 1974}, One(kTzav), One(kTzav)},
      {{13, 4, 1974}, kFestival, kFestival},
      {{20, 4, 1974}, One(kShmini), One(kShmini)},
      {{11, 5, 1974}, One(kEmor), One(kEmor)},
      {{1, 6, 1974}, One(kNasso), One(kNasso)},
      {{6, 7, 1974}, One(kBalak), One(kBalak)},
      {{13, 7, 1974}, One(kPinchas), One(kPinchas)},
      {{14, 9, 1974}, One(kNitzavim), One(kNitzavim)},
      // 5710
      {{18, 3, 1950}, Joined(kVayakhel), Joined(kVayakhel)},
      {{1, 4, 1950}, One(kTzav), One(kTzav)},
      {{8, 4, 1950}, kFestival, kFestival},
      {{15, 4, 1950}, One(kShmini), One(kShmini)},
      {{6, 5, 1950}, One(kEmor), One(kEmor)},
      {{27, 5, 1950}, One(kNasso), One(kNasso)},
      {{1, 7, 1950}, One(kBalak), One(kBalak)},
      {{8, 7, 1950}, One(kPinchas), One(kPinchas)},
      {{9, 9, 1950}, One(kNitzavim), One(kNitzavim)},
      // 5811
      {{11, 3, 2051}, Joined(kVayakhel), Joined(kVayakhel)},
      {{25, 3, 2051}, One(kTzav), One(kTzav)},
      {{8, 4, 2051}, One(kShmini), One(kShmini)},
      {{29, 4, 2051}, One(kEmor), One(kEmor)},
      {{20, 5, 2051}, One(kNasso), One(kNasso)},
      {{24, 6, 2051}, One(kBalak), One(kBalak)},
      {{8, 7, 2051}, Joined(kMatot), Joined(kMatot)},
      {{2, 9, 2051}, Joined(kNitzavim), Joined(kNitzavim)},
      // 5817
      {{31, 3, 2057}, One(kShmini), One(kShmini)},
      {{14, 4, 2057}, One(kMetzora), One(kMetzora)},
      {{28, 4, 2057}, One(kAchareiMot), One(kAchareiMot)},
      {{26, 5, 2057}, One(kBechukotai), One(kBechukotai)},
      {{9, 6, 2057}, kFestival, One(kNasso)},
      {{14, 7, 2057}, Joined(kChukat), One(kBalak)},
      {{28, 7, 2057}, Joined(kMatot), Joined(kMatot)},
      {{22, 9, 2057}, Joined(kNitzavim), Joined(kNitzavim)},
      // 5850
      {{25, 3, 2090}, One(kShmini), One(kShmini)},
      {{8, 4, 2090}, One(kMetzora), One(kMetzora)},
      {{22, 4, 2090}, kFestival, One(kAchareiMot)},
      {{29, 4, 2090}, One(kAchareiMot), One(kKedoshim)},
      {{20, 5, 2090}, One(kBehar), One(kBechukotai)},
      {{10, 6, 2090}, One(kNasso), One(kBehaalotcha)},
      {{8, 7, 2090}, One(kChukat), One(kBalak)},
      {{22, 7, 2090}, One(kPinchas), One(kMatot)},
      {{23, 9, 2090}, One(kNitzavim), One(kNitzavim)},
      // 5931
      {{30, 3, 2171}, One(kShmini), One(kShmini)},
      {{13, 4, 2171}, One(kMetzora), One(kMetzora)},
      {{27, 4, 2171}, kFestival, One(kAchareiMot)},
      {{4, 5, 2171}, One(kAchareiMot), One(kKedoshim)},
      {{25, 5, 2171}, One(kBehar), One(kBechukotai)},
      {{15, 6, 2171}, One(kNasso), One(kBehaalotcha)},
      {{13, 7, 2171}, One(kChukat), One(kBalak)},
      {{27, 7, 2171}, One(kPinchas), One(kMatot)},
      {{28, 9, 2171}, One(kNitzavim), One(kNitzavim)},
      // 6137
      {{9, 4, 2377}, One(kTazria), One(kTazria)},
      {{23, 4, 2377}, One(kAchareiMot), One(kAchareiMot)},
      {{30, 4, 2377}, kFestival, kFestival},
      {{7, 5, 2377}, One(kKedoshim), One(kKedoshim)},
      {{28, 5, 2377}, One(kBechukotai), One(kBechukotai)},
      {{18, 6, 2377}, One(kBehaalotcha), One(kBehaalotcha)},
      {{23, 7, 2377}, One(kPinchas), One(kPinchas)},
      {{30, 7, 2377}, One(kMatot), One(kMatot)},
      {{1, 10, 2377}, One(kNitzavim), One(kNitzavim)},
      // 6346
      {{8, 4, 2586}, One(kTazria), One(kTazria)},
      {{22, 4, 2586}, One(kAchareiMot), One(kAchareiMot)},
      {{6, 5, 2586}, One(kKedoshim), One(kKedoshim)},
      {{27, 5, 2586}, One(kBechukotai), One(kBechukotai)},
      {{17, 6, 2586}, One(kBehaalotcha), One(kBehaalotcha)},
      {{22, 7, 2586}, One(kPinchas), One(kPinchas)},
      {{5, 8, 2586}, One(kMasei), One(kMasei)},
      {{30, 9, 2586}, Joined(kNitzavim), Joined(kNitzavim)},
      // 6569
      {{4, 4, 2809}, One(kShmini), One(kShmini)},
      {{18, 4, 2809}, One(kMetzora), One(kMetzora)},
      {{2, 5, 2809}, One(kAchareiMot), One(kAchareiMot)},
      {{23, 5, 2809}, One(kBehar), One(kBehar)},
      {{13, 6, 2809}, One(kNasso), One(kNasso)},
      {{18, 7, 2809}, One(kBalak), One(kBalak)},
      {{1, 8, 2809}, Joined(kMatot), Joined(kMatot)},
      {{26, 9, 2809}, Joined(kNitzavim), Joined(kNitzavim)},
      // 6653
      {{4, 4, 2893}, One(kShmini), One(kShmini)},
      {{18, 4, 2893}, One(kMetzora), One(kMetzora)},
      {{2, 5, 2893}, One(kAchareiMot), One(kAchareiMot)},
      {{30, 5, 2893}, One(kBechukotai), One(kBechukotai)},
      {{13, 6, 2893}, kFestival, One(kNasso)},
      {{18, 7, 2893}, Joined(kChukat), One(kBalak)},
      {{1, 8, 2893}, Joined(kMatot), Joined(kMatot)},
      {{26, 9, 2893}, Joined(kNitzavim), Joined(kNitzavim)},
  };
  // clang-format on
  for (const Row& row : kRows) {
    const int32_t shabbat = AbsoluteFromGregorian(row.gregorian);
    EXPECT_EQ(PortionOnShabbat(shabbat, Land::kDiaspora), row.diaspora) << shabbat;
    EXPECT_EQ(PortionOnShabbat(shabbat, Land::kIsrael), row.israel) << shabbat;
  }
}

}  // namespace
