#include "libraries/calendar/portion_schedule.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "libraries/calendar/date.h"
#include "libraries/calendar/jewish.h"

namespace calendar {
namespace {

using enum Weekday;
using enum YearLength;

// The seven pairs that are joined in some years.
enum Pair : uint8_t {
  kVP = 1 << 0,  // Vayakhel-Pekudei
  kTM = 1 << 1,  // Tazria-Metzora
  kAK = 1 << 2,  // Acharei Mot-Kedoshim
  kBB = 1 << 3,  // Behar-Bechukotai
  kCB = 1 << 4,  // Chukat-Balak
  kMM = 1 << 5,  // Matot-Masei
  kNV = 1 << 6,  // Nitzavim-Vayeilech
};

constexpr std::pair<Portion, Pair> kPairs[] = {{kVayakhel, kVP}, {kTazria, kTM}, {kAchareiMot, kAK}, {kBehar, kBB},
                                               {kChukat, kCB},   {kMatot, kMM},  {kNitzavim, kNV}};

struct JoinedPairs {
  YearType type;
  uint8_t diaspora;
  uint8_t israel;
};

// Which pairs each of the fourteen year types joins (Tur and Shulchan Aruch, Orach Chaim 428; the tables of the printed
// calendars).
constexpr JoinedPairs kJoinedPairs[] = {
    // Common years.
    {{kMonday, kShort, false}, kVP | kTM | kAK | kBB | kMM | kNV, kVP | kTM | kAK | kBB | kMM | kNV},
    {{kMonday, kFull, false}, kVP | kTM | kAK | kBB | kCB | kMM | kNV, kVP | kTM | kAK | kBB | kMM | kNV},
    {{kTuesday, kRegular, false}, kVP | kTM | kAK | kBB | kCB | kMM | kNV, kVP | kTM | kAK | kBB | kMM | kNV},
    {{kThursday, kRegular, false}, kVP | kTM | kAK | kBB | kMM, kVP | kTM | kAK | kMM},
    {{kThursday, kFull, false}, kTM | kAK | kBB | kMM, kTM | kAK | kBB | kMM},
    {{kSaturday, kShort, false}, kVP | kTM | kAK | kBB | kMM, kVP | kTM | kAK | kBB | kMM},
    {{kSaturday, kFull, false}, kVP | kTM | kAK | kBB | kMM | kNV, kVP | kTM | kAK | kBB | kMM | kNV},
    // Leap years.
    {{kMonday, kShort, true}, kCB | kMM | kNV, kMM | kNV},
    {{kMonday, kFull, true}, kMM, 0},
    {{kTuesday, kRegular, true}, kMM, 0},
    {{kThursday, kShort, true}, 0, 0},
    {{kThursday, kFull, true}, kNV, kNV},
    {{kSaturday, kShort, true}, kMM | kNV, kMM | kNV},
    {{kSaturday, kFull, true}, kCB | kMM | kNV, kMM | kNV},
};

// Days are counted from 1 Tishri = 0 here. A year has at most 55 Shabbatot.
using YearOfShabbatot = std::array<std::optional<WeeklyPortion>, 55>;

constexpr int32_t DaysUntilShabbat(Weekday weekday) {
  return static_cast<int32_t>(kSaturday) - static_cast<int32_t>(weekday);
}

constexpr int32_t SimchatTorah(Land land) {
  return land == Land::kIsrael ? 21 : 22;
}

// The festivals with their Chol HaMoed that can fall on a Shabbat.
constexpr bool IsFestival(int32_t day, int32_t daysInYear, Land land) {
  constexpr int32_t kDaysFromNisanToYearEnd = 177;
  constexpr int32_t kDaysFromNisanToSivan = 59;
  const int32_t secondDay = land == Land::kIsrael ? 0 : 1;
  const int32_t firstOfNisan = daysInYear - kDaysFromNisanToYearEnd;
  const int32_t pesach = firstOfNisan + 14;
  const int32_t shavuot = firstOfNisan + kDaysFromNisanToSivan + 5;
  const bool roshHashanaOrYomKippur = day <= 1 || day == 9;
  const bool sukkot = day >= 14 && day <= SimchatTorah(land);
  return roshHashanaOrYomKippur || sukkot || (day >= pesach && day <= pesach + 6 + secondDay) ||
         (day >= shavuot && day <= shavuot + secondDay);
}

constexpr bool IsJoined(int32_t portion, uint8_t joinedPairs) {
  return std::ranges::any_of(
      kPairs, [&](const auto& pair) { return pair.first == portion && (pair.second & joinedPairs) != 0; });
}

constexpr YearOfShabbatot LayOut(const YearType& type, uint8_t joinedPairs, Land land) {
  const int32_t daysInYear = (type.leap ? 383 : 353) + static_cast<int32_t>(type.length);
  // A year that begins on Monday or Tuesday has two Shabbatot before Sukkot which are no festivals, others have one.
  const bool twoBeforeSukkot = type.newYear == kMonday || type.newYear == kTuesday;
  int32_t portion = twoBeforeSukkot ? kVayeilech : kHaazinu;
  YearOfShabbatot shabbatot{};
  for (int32_t day = DaysUntilShabbat(type.newYear); day < daysInYear; day += 7) {
    if (IsFestival(day, daysInYear, land)) continue;
    const WeeklyPortion read{static_cast<Portion>(portion), IsJoined(portion, joinedPairs)};
    shabbatot[static_cast<size_t>(day / 7)] = read;
    portion = read.portion == kHaazinu ? kBereshit : read.Last() + 1;
  }
  return shabbatot;
}

struct Schedule {
  YearType type;
  YearOfShabbatot diaspora;
  YearOfShabbatot israel;
};

constexpr auto kSchedules = [] {
  std::array<Schedule, std::size(kJoinedPairs)> schedules{};
  std::ranges::transform(kJoinedPairs, schedules.begin(), [](const JoinedPairs& joined) {
    return Schedule{joined.type, LayOut(joined.type, joined.diaspora, Land::kDiaspora),
                    LayOut(joined.type, joined.israel, Land::kIsrael)};
  });
  return schedules;
}();

// Every year has one of the fourteen types.
const YearOfShabbatot& ShabbatotOf(int32_t jewishYear, Land land) {
  const Schedule& schedule = *std::ranges::find(kSchedules, YearTypeOf(jewishYear), &Schedule::type);
  return land == Land::kIsrael ? schedule.israel : schedule.diaspora;
}

// The year of a day, 0 for one outside the calendar's years.
int32_t YearOf(int32_t absoluteDay) {
  const Date date = JewishFromAbsolute(absoluteDay);
  return AbsoluteFromJewish(date) == absoluteDay ? date.year : 0;
}

}  // namespace

std::optional<WeeklyPortion> PortionOnShabbat(int32_t absoluteDay, Land land) {
  const int32_t year = YearOf(absoluteDay);
  if (year == 0 || WeekdayOf(absoluteDay) != kSaturday) return std::nullopt;
  return ShabbatotOf(year, land)[static_cast<size_t>((absoluteDay - JewishNewYear(year)) / 7)];
}

std::optional<WeeklyPortion> PortionOfWeek(int32_t absoluteDay, Land land) {
  const int32_t year = YearOf(absoluteDay);
  if (year == 0) return std::nullopt;
  int32_t shabbat = absoluteDay + DaysUntilShabbat(WeekdayOf(absoluteDay));
  std::optional<WeeklyPortion> coming = PortionOnShabbat(shabbat, land);
  while (!coming && YearOf(shabbat) != 0) {
    shabbat += 7;
    coming = PortionOnShabbat(shabbat, land);
  }
  const bool untilSimchatTorah = absoluteDay - JewishNewYear(year) <= SimchatTorah(land);
  if (coming && coming->portion == kBereshit && untilSimchatTorah) return WeeklyPortion{kVezotHaberakhah, false};
  return coming;
}

std::vector<int32_t> DaysOfPortion(Portion portion, int32_t jewishYear, Land land) {
  if (jewishYear < kFirstYear || jewishYear > kLastYear) return {};
  const int32_t newYear = JewishNewYear(jewishYear);
  if (portion == kVezotHaberakhah) return {newYear + SimchatTorah(land)};
  const YearOfShabbatot& shabbatot = ShabbatotOf(jewishYear, land);
  const int32_t firstShabbat = newYear + DaysUntilShabbat(WeekdayOf(newYear));
  std::vector<int32_t> days;
  for (size_t week = 0; week < shabbatot.size(); ++week) {
    const std::optional<WeeklyPortion>& read = shabbatot[week];
    if (read && read->portion <= portion && portion <= read->Last()) {
      days.push_back(firstShabbat + 7 * static_cast<int32_t>(week));
    }
  }
  return days;
}

}  // namespace calendar
