// The yearly cycle of Torah portions: which are read on each Shabbat, in the Land of Israel and in the diaspora.
//
// The cycle opens with Bereshit on the first Shabbat after Simchat Torah and closes with Vezot Haberachah on Simchat
// Torah itself. A Shabbat that is a festival or Chol HaMoed has no portion of the cycle. Years are Jewish years, 1 to
// 9999; days are absolute days.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace calendar {

// The portions in the order of the Torah, 0 to 53.
enum Portion : uint8_t {
  kBereshit,
  kNoach,
  kLechLecha,
  kVayera,
  kChayeiSarah,
  kToldot,
  kVayetzei,
  kVayishlach,
  kVayeshev,
  kMiketz,
  kVayigash,
  kVayechi,
  kShemot,
  kVaera,
  kBo,
  kBeshalach,
  kYitro,
  kMishpatim,
  kTerumah,
  kTetzaveh,
  kKiTisa,
  kVayakhel,
  kPekudei,
  kVayikra,
  kTzav,
  kShmini,
  kTazria,
  kMetzora,
  kAchareiMot,
  kKedoshim,
  kEmor,
  kBehar,
  kBechukotai,
  kBamidbar,
  kNasso,
  kBehaalotcha,
  kShlach,
  kKorach,
  kChukat,
  kBalak,
  kPinchas,
  kMatot,
  kMasei,
  kDevarim,
  kVaetchanan,
  kEikev,
  kReeh,
  kShoftim,
  kKiTeitzei,
  kKiTavo,
  kNitzavim,
  kVayeilech,
  kHaazinu,
  kVezotHaberakhah,
};

constexpr int32_t kPortionCount = 54;

// The diaspora keeps second days of festivals; where they fall on Shabbat, it is a portion behind Israel for some
// weeks.
enum class Land : int32_t { kDiaspora, kIsrael };

// One portion, or two joined in one reading: the one named and the next.
struct WeeklyPortion {
  Portion portion;
  bool joinedWithNext;

  constexpr Portion Last() const { return static_cast<Portion>(portion + (joinedWithNext ? 1 : 0)); }

  friend bool operator==(const WeeklyPortion&, const WeeklyPortion&) = default;
};

// What is read on a Shabbat: nothing when a festival displaces it, when the day is no Shabbat, or outside the years.
std::optional<WeeklyPortion> PortionOnShabbat(int32_t absoluteDay, Land land);

// The portion of the week of any day: that of the first Shabbat on or after the day which has one; after Ha'azinu,
// until Simchat Torah, Vezot Haberachah. This is the portion whose beginning is read on Mondays and Thursdays, and on a
// Shabbat afternoon if asked for the day after. Nothing outside the years, or when that Shabbat is outside them.
std::optional<WeeklyPortion> PortionOfWeek(int32_t absoluteDay, Land land);

// The days of a year on which a portion is read, alone or joined, in ascending order: Vezot Haberachah on Simchat
// Torah, every other on Shabbat. One day; but Vayeilech, being read either before Rosh Hashana or after it, has none in
// some years and two in others. Empty outside the years.
std::vector<int32_t> DaysOfPortion(Portion portion, int32_t jewishYear, Land land);

}  // namespace calendar
