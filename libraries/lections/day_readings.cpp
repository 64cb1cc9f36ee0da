#include "libraries/lections/day_readings.h"

#include "libraries/calendar/jewish.h"
#include "libraries/lections/triennial.h"

namespace lections {
namespace {

using namespace calendar;

constexpr int32_t kFirstDayOfRebuke = 106;  // 18 Tammuz, counted from 1 Nisan

// A date with what the rules ask about it.
struct Day {
  Date date;
  int32_t absolute;
  int32_t daysFromNisan;  // from 1 Nisan of the same Jewish year
  Land land;
  Custom custom;

  Weekday weekday() const { return WeekdayOf(absolute); }
  bool isShabbat() const { return weekday() == Weekday::kSaturday; }
};

Day DayOf(const Date& date, Land land, Custom custom) {
  const int32_t absolute = AbsoluteFromJewish(date);
  return {date, absolute, absolute - AbsoluteFromJewish({1, kNisan, date.year}), land, custom};
}

// The month of which a date is Rosh Chodesh, 0 when it is none; Rosh Hashana is none.
int32_t RoshChodeshOn(const Date& date) {
  if (date.day == 1 && date.month != kTishri) return date.month;
  return date.day == 30 ? date.month + 1 : 0;  // neither Elul nor the last month, Adar or Adar II, has 30 days
}

// Of a Shabbat that is not Rosh Chodesh itself.
bool IsMacharChodesh(const Day& day) {
  return RoshChodeshOn(JewishFromAbsolute(day.absolute + 1)) != 0;
}

// 1 to 8, 0 on other days.
int ChanukahDayOn(const Day& day) {
  const int32_t number = day.absolute - AbsoluteFromJewish({25, kKislev, day.date.year}) + 1;
  return number >= 1 && number <= 8 ? static_cast<int>(number) : 0;
}

// Of a Shabbat that is no festival: Rosh Hashana and Yom Kippur have rows of their own.
bool IsShuva(const Day& day) {
  return day.date.month == kTishri && day.date.day < 10;
}

// The weeks of rebuke and consolation last to the end of the year.
bool IsInWeeksAroundTishaBeAv(const Day& day) {
  return day.daysFromNisan >= kFirstDayOfRebuke;
}

// Chabad reads HaGadol's haftarah only when Pesach begins that night (14 Nisan).
const Haftarot* HaftarotOfSpecialShabbat(const Day& day) {
  const SpecialShabbat* special = SpecialShabbatOn(day.daysFromNisan);
  if (!special) return nullptr;
  const bool isLeftToThePortion = special->occasion == Occasion::kShabbatHaGadol && day.custom == Custom::kChabad &&
                                  day.daysFromNisan != special->lastDay;
  return isLeftToThePortion ? nullptr : &special->haftarot;
}

// Which haftarah a Shabbat takes instead of its portion's; null for none. In order of precedence: Orach Chaim 425:1,
// 428:8, 684:2-3, 685.
const Haftarot* HaftarotInsteadOfPortion(const Day& day, const WeeklyPortion& read) {
  if (const Haftarot* special = HaftarotOfSpecialShabbat(day)) return special;
  if (const int number = ChanukahDayOn(day)) return &HaftarotOfChanukah(number == 8);
  if (IsShuva(day)) return &HaftarotOfShuva(read.portion);
  if (const Haftarot* week = HaftarotOfWeek(read.Last(), day.daysFromNisan)) return week;
  if (IsInWeeksAroundTishaBeAv(day)) return nullptr;
  if (RoshChodeshOn(day.date) != 0) return &HaftarotOfRoshChodesh();
  if (IsMacharChodesh(day)) return &HaftarotOfMacharChodesh();
  return nullptr;
}

// Whether Acharei Mot, on the Shabbat of its own before this one of Kedoshim, gave way to another haftarah.
bool WasAchareiMotDisplaced(const Day& kedoshim) {
  constexpr int kLongestGapWeeks = 2;  // a Shabbat of Pesach may lie between them
  for (int weeks = 1; weeks <= kLongestGapWeeks; ++weeks) {
    const int32_t shabbat = kedoshim.absolute - 7 * weeks;
    const std::optional<WeeklyPortion> read = PortionOnShabbat(shabbat, kedoshim.land);
    if (!read) continue;
    const Day day = DayOf(JewishFromAbsolute(shabbat), kedoshim.land, kedoshim.custom);
    return HaftarotInsteadOfPortion(day, *read) != nullptr;
  }
  return false;
}

const Passage& HaftarahOfShabbat(const Day& day, const WeeklyPortion& read) {
  if (const Haftarot* instead = HaftarotInsteadOfPortion(day, read)) return (*instead)[day.custom];
  const bool isKedoshimAlone = read.portion == kKedoshim;
  if (isKedoshimAlone && WasAchareiMotDisplaced(day)) return HaftarotOfKedoshimAfterSpecialShabbat()[day.custom];
  return HaftarotOf(read)[day.custom];
}

void NameShabbat(const Day& day, const WeeklyPortion& read, DayReadings& readings) {
  const auto name = [&readings](Occasion occasion, int number = 0) { readings.occasions.Add({occasion, number}); };
  if (const SpecialShabbat* special = SpecialShabbatOn(day.daysFromNisan)) name(special->occasion);
  if (IsShuva(day)) name(Occasion::kShabbatShuva);
  if (read.portion == kBeshalach) name(Occasion::kShabbatShira);
  if (read.portion == kDevarim) name(Occasion::kShabbatChazon);
  if (read.portion == kVaetchanan) name(Occasion::kShabbatNachamu);
  if (const int32_t month = RoshChodeshOn(day.date)) name(Occasion::kRoshChodesh, month);
  if (const int number = ChanukahDayOn(day)) name(Occasion::kChanukah, number);
  if (HaftarotInsteadOfPortion(day, read) == &HaftarotOfMacharChodesh()) name(Occasion::kMacharChodesh);
}

// The readings from a second and third scroll, the last of which is the maftir.
void AddMaftir(const Day& day, DayReadings& readings) {
  const SpecialShabbat* special = SpecialShabbatOn(day.daysFromNisan);
  const int chanukah = ChanukahDayOn(day);
  Passage maftir = special ? special->maftir : Passage();
  if (chanukah != 0) maftir = ChanukahDay(chanukah).maftir;
  if (RoshChodeshOn(day.date) != 0) {
    readings.torah.Add({maftir.empty() ? Part::kMaftir : Part::kRoshChodesh, RoshChodeshOnShabbat(), {}});
  }
  if (!maftir.empty()) readings.torah.Add({Part::kMaftir, maftir, {}});
}

bool IsPurimOfWalledCities(const Day& day) {
  const int32_t adarOfPurim = IsJewishLeapYear(day.date.year) ? kAdarII : kAdar;
  return day.land == Land::kIsrael && day.date.month == adarOfPurim && day.date.day == 15;
}

void ReadShabbat(const Day& day, const WeeklyPortion& read, bool triennial, DayReadings& readings) {
  readings.portion = read;
  NameShabbat(day, read, readings);
  const Passage torah = triennial ? TriennialOf(read, day.date.year, day.land) : TorahOf(read);
  readings.torah.Add({Part::kMain, torah, {}});
  AddMaftir(day, readings);
  readings.haftarot.Add({Part::kMain, HaftarahOfShabbat(day, read), {}});
  if (!IsPurimOfWalledCities(day)) return;
  readings.torah.Add({Part::kMaftirOfWalledCities, MaftirOfWalledCities(), {}});
  readings.haftarot.Add({Part::kWalledCities, HaftarotOfWalledCities()[day.custom], {}});
}

void ReadDate(const Day& day, const DateRow& row, DayReadings& readings) {
  const auto add = [](auto& lines, Part part, const Passage& passage) {
    if (!passage.empty()) lines.Add({part, passage, {}});
  };
  if (row.occasion == Occasion::kSimchatTorah) readings.portion = WeeklyPortion{kVezotHaberakhah, false};
  readings.occasions.Add({row.occasion, row.number});
  if (row.second != Occasion::kNone) readings.occasions.Add({row.second, 0});
  add(readings.torah, Part::kMain, row.torah);
  add(readings.torah, Part::kMaftir, row.maftir);
  add(readings.torah, Part::kAfternoon, row.afternoon);
  add(readings.torah, Part::kScroll, row.scroll);
  add(readings.haftarot, Part::kMain, row.haftarot[day.custom]);
  add(readings.haftarot, Part::kAfternoon, row.afternoonHaftarot[day.custom]);
}

const Passage& ChanukahOfWeekday(const Day& day, int number) {
  const ChanukahRow& row = ChanukahDay(number);
  if (day.custom == Custom::kSephardi) return row.sephardi;
  return day.land == Land::kIsrael ? row.inIsrael : row.ashkenazi;
}

// Chanukah and Rosh Chodesh, or both.
void ReadWeekday(const Day& day, DayReadings& readings) {
  const int32_t month = RoshChodeshOn(day.date);
  const int chanukah = ChanukahDayOn(day);
  if (month != 0) readings.occasions.Add({Occasion::kRoshChodesh, month});
  if (chanukah != 0) readings.occasions.Add({Occasion::kChanukah, chanukah});
  if (month != 0) {
    const Passage second = chanukah != 0 ? ChanukahDay(chanukah).maftir : Passage();
    readings.torah.Add({Part::kMain, RoshChodeshOnWeekday() + second, {}});
  } else if (chanukah != 0) {
    readings.torah.Add({Part::kMain, ChanukahOfWeekday(day, chanukah), {}});
  }
}

void ReadBeginning(const Day& day, DayReadings& readings) {
  const bool isMarketDay = day.weekday() == Weekday::kMonday || day.weekday() == Weekday::kThursday;
  const std::optional<WeeklyPortion> coming = PortionOfWeek(day.absolute, day.land);
  if (!isMarketDay || !coming) return;
  readings.portion = coming;
  readings.torah.Add({Part::kMain, RowOf(coming->portion).weekday, {}});
}

// Yom Kippur has an afternoon of its own.
void ReadShabbatAfternoon(const Day& day, DayReadings& readings) {
  const std::optional<WeeklyPortion> coming = PortionOfWeek(day.absolute + 1, day.land);
  if (coming && (day.date.month != kTishri || day.date.day != 10)) {
    readings.torah.Add({Part::kAfternoon, RowOf(coming->portion).weekday, coming});
  }
}

}  // namespace

bool IsJewishDate(const Date& date) {
  return date.year >= kFirstYear && date.year <= kLastYear && date.day >= 1 &&
         date.day <= DaysInJewishMonth(date.month, date.year);
}

DayReadings ReadingsOn(const Date& date, Land land, Custom custom, const Optional& optional) {
  DayReadings readings;
  if (!IsJewishDate(date)) return readings;
  const Day day = DayOf(date, land, custom);
  if (const DateRow* row = RowOfDate(date, day.weekday(), land, IsJewishLeapYear(date.year))) {
    ReadDate(day, *row, readings);
  } else if (day.isShabbat()) {
    if (const std::optional<WeeklyPortion> read = PortionOnShabbat(day.absolute, land)) {
      ReadShabbat(day, *read, optional.triennial, readings);
    }
  } else {
    ReadWeekday(day, readings);
    if (readings.torah.empty() && optional.mondayAndThursday) ReadBeginning(day, readings);
  }
  if (day.isShabbat() && optional.shabbatAfternoon) ReadShabbatAfternoon(day, readings);
  return readings;
}

bool IsYizkor(const Date& date, Land land) {
  const int32_t secondDay = land == Land::kDiaspora ? 1 : 0;
  return date == Date{10, kTishri, date.year} || date == Date{22, kTishri, date.year} ||
         date == Date{21 + secondDay, kNisan, date.year} || date == Date{6 + secondDay, kSivan, date.year};
}

int32_t MonthAnnouncedOn(const Date& date) {
  const int32_t absolute = AbsoluteFromJewish(date);
  if (WeekdayOf(absolute) != Weekday::kSaturday || RoshChodeshOn(date) != 0) return 0;
  for (int32_t ahead = 1; ahead <= 7; ++ahead) {
    if (const int32_t month = RoshChodeshOn(JewishFromAbsolute(absolute + ahead))) return month;
  }
  return 0;
}

}  // namespace lections
