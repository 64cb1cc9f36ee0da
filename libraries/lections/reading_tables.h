// What is read when, as tables: the weekly portions, the special Shabbatot, the dates of the year, Chanukah.
//
// Sources: Mishnah and Talmud Megillah 29a-31b; Maimonides, Hilchot Tefillah 12-13; Shulchan Aruch, Orach Chaim, with
// Rema and Mishnah Berurah, at the sections that each table names; the haftarot as the printed chumashim list them.
#pragma once

#include <cstdint>
#include <span>

#include "libraries/calendar/date.h"
#include "libraries/calendar/portion_schedule.h"
#include "libraries/lections/passage.h"

namespace lections {

enum class Custom : uint8_t { kAshkenazi, kSephardi, kChabad };
constexpr int kCustomCount = 3;

// A haftarah in the three customs.
class Haftarot {
 public:
  enum ChabadAs { kAsAshkenazi, kAsSephardi };

  constexpr Haftarot() = default;
  constexpr Haftarot(const char* all) : ashkenazi_(all), sephardi_(all), chabad_(all) {}
  constexpr Haftarot(const char* ashkenazi, const char* sephardi, ChabadAs chabad)
      : ashkenazi_(ashkenazi), sephardi_(sephardi), chabad_(chabad == kAsAshkenazi ? ashkenazi : sephardi) {}
  constexpr Haftarot(const char* ashkenazi, const char* sephardi, const char* chabad)
      : ashkenazi_(ashkenazi), sephardi_(sephardi), chabad_(chabad) {}

  constexpr bool empty() const { return ashkenazi_.empty() && sephardi_.empty(); }
  constexpr const Passage& operator[](Custom custom) const {
    return custom == Custom::kAshkenazi ? ashkenazi_ : custom == Custom::kSephardi ? sephardi_ : chabad_;
  }

 private:
  Passage ashkenazi_;
  Passage sephardi_;
  Passage chabad_;
};

// What a day is called beside, or instead of, its portion. Languages name them in this order.
enum class Occasion : uint8_t {
  kNone,
  kRoshHashana,  // numbered by its days
  kFastOfGedaliah,
  kShabbatShuva,
  kYomKippur,
  kSukkot,  // numbered
  kHoshanaRabba,
  kSheminiAtzeret,
  kSimchatTorah,
  kChanukah,  // numbered
  kFastOfTevet,
  kShabbatShira,
  kShabbatShekalim,
  kShabbatZachor,
  kFastOfEsther,
  kPurim,
  kShushanPurim,  // in walled cities
  kShabbatParah,
  kShabbatHaChodesh,
  kShabbatHaGadol,
  kPesach,   // numbered
  kShavuot,  // numbered in the diaspora
  kFastOfTammuz,
  kShabbatChazon,
  kTishaBeAv,
  kShabbatNachamu,
  kRoshChodesh,  // with the name of the month
  kMacharChodesh,
  kCholHaMoed,
  kShabbatCholHaMoed,
  kShabbat,
};
constexpr int kOccasionCount = static_cast<int>(Occasion::kShabbat) + 1;

// The portions by calendar::Portion. weekday is the beginning that is read on Mondays, Thursdays and the Shabbat
// afternoon before.
struct PortionRow {
  Passage torah;
  Passage weekday;
  Haftarot haftarot;
};
const PortionRow& RowOf(calendar::Portion portion);

// All of two joined portions, from the beginning of the first to the end of the second.
Passage TorahOf(const calendar::WeeklyPortion& read);
const Haftarot& HaftarotOf(const calendar::WeeklyPortion& read);

// Portions that have another haftarah on a date: the three weeks of rebuke and the seven of consolation on Rosh
// Chodesh, and what was missed then. Null when there is none. daysFromNisan: of the Shabbat, counted from 1 Nisan.
const Haftarot* HaftarotOfWeek(calendar::Portion last, int32_t daysFromNisan);

// Kedoshim alone, when Acharei Mot gave its haftarah up to a special Shabbat before it.
const Haftarot& HaftarotOfKedoshimAfterSpecialShabbat();

// The four special Shabbatot and HaGadol: a Shabbat of so many days from 1 Nisan.
struct SpecialShabbat {
  Occasion occasion;
  int32_t firstDay;
  int32_t lastDay;
  Passage maftir;  // none: the portion's own end
  Haftarot haftarot;
};
const SpecialShabbat* SpecialShabbatOn(int32_t daysFromNisan);

// Shabbat Shuva with Vayeilech, which leaves Ha'azinu for the Shabbat after Yom Kippur, or with Ha'azinu itself.
const Haftarot& HaftarotOfShuva(calendar::Portion portion);

const Haftarot& HaftarotOfRoshChodesh();
const Haftarot& HaftarotOfMacharChodesh();
const Passage& RoshChodeshOnShabbat();
const Passage& RoshChodeshOnWeekday();

// A day of Chanukah, 1 to 8: the prince's offering that is a Shabbat's or Rosh Chodesh's second reading, and what a
// plain weekday reads.
struct ChanukahRow {
  Passage maftir;
  Passage ashkenazi;  // in the diaspora
  Passage sephardi;
  Passage inIsrael;  // Ashkenazim there
};
const ChanukahRow& ChanukahDay(int day);
const Haftarot& HaftarotOfChanukah(bool secondShabbat);

enum Lands : uint8_t { kDiasporaOnly = 1, kIsraelOnly = 2, kBothLands = 3 };

// Weekdays, as a set of bits; bit 0 is Sunday.
constexpr uint8_t kAnyDay = 0x7F;
constexpr uint8_t kOnSunday = 0x01;
constexpr uint8_t kOnMonday = 0x02;
constexpr uint8_t kOnThursday = 0x10;
constexpr uint8_t kOnShabbat = 0x40;
constexpr uint8_t kOnWeekday = 0x3F;

// Adar, in a leap year Adar II.
constexpr int32_t kAdarOfPurim = 14;

// A date with readings of its own. Of several rows that fit a day the first counts.
struct DateRow {
  int32_t month;
  int32_t day;
  uint8_t lands = kBothLands;
  uint8_t weekdays = kAnyDay;
  Occasion occasion = Occasion::kNone;
  int number = 0;                     // of the day within the festival
  Occasion second = Occasion::kNone;  // what else the day is called
  Passage torah = {};
  Passage maftir = {};
  Haftarot haftarot = {};
  Passage afternoon = {};
  Haftarot afternoonHaftarot = {};
  Passage scroll = {};
};
const DateRow* RowOfDate(const calendar::Date& date, calendar::Weekday weekday, calendar::Land land, bool isLeapYear);

// 15 Adar on Shabbat, as walled cities keep it: the Purim reading as maftir, the haftarah of Zachor once more.
const Passage& MaftirOfWalledCities();
const Haftarot& HaftarotOfWalledCities();

}  // namespace lections
