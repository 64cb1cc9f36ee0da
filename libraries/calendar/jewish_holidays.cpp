#include <algorithm>

#include "libraries/calendar/holiday.h"
#include "libraries/calendar/jewish.h"

namespace calendar {
namespace {

// Marks in place of a month: the Adar of a common year, the first Adar of a leap year, and that Adar in which Purim is.
constexpr int32_t kAdarOfCommonYear = 20;
constexpr int32_t kAdarI = 21;
constexpr int32_t kAdarOfPurim = 22;

constexpr WeekdayShift kShabbatOnOrBefore = OnOrBefore(Weekday::kSaturday);
constexpr WeekdayShift kShabbatOnOrAfter = OnOrAfter(Weekday::kSaturday);

// A fast that falls on Shabbat is postponed to Sunday; one that must not be postponed comes earlier, on Thursday.
constexpr WeekdayShift kShabbatToSunday = {0, 0, 0, 0, 0, 0, 1};
constexpr WeekdayShift kShabbatToThursday = {0, 0, 0, 0, 0, 0, -2};

constexpr WeekdayShift kFridayAndShabbatToThursday = {0, 0, 0, 0, 0, -1, -2};
constexpr WeekdayShift kFridayAndShabbatToSunday = {0, 0, 0, 0, 0, 2, 1};
constexpr WeekdayShift kSundayOnly = {0, kNotKept, kNotKept, kNotKept, kNotKept, kNotKept, kNotKept};

// Independence Day Law of 5709 and its amendments: in 5710, when 5 Iyar was a Shabbat, it was kept on Sunday; from 5711
// on, Friday and Shabbat give way to Thursday; from 5764 on, Monday to Tuesday, lest the day before it begin as Shabbat
// ends. Remembrance Day is the day before, so the shifts for 4 Iyar are the same, one weekday earlier.
constexpr WeekdayShift kIndependenceSince5764 = {0, 1, 0, 0, 0, -1, -2};
constexpr WeekdayShift kRemembranceSince5711 = {0, 0, 0, 0, -1, -2, 0};
constexpr WeekdayShift kRemembranceSince5764 = {1, 0, 0, 0, -1, -2, 0};

// Martyrs' and Heroes' Remembrance Day Law of 5719, as amended in 5721: not on Friday; as amended in 5757: not on
// Sunday either. The Knesset had resolved on the day in 5711.
constexpr WeekdayShift kHolocaustDaySince5711 = {0, 0, 0, 0, 0, -1, 0};
constexpr WeekdayShift kHolocaustDaySince5757 = {1, 0, 0, 0, 0, -1, 0};

// From Tishri to Elul. Festivals, fasts and the four portions by the Shulchan Aruch, Orach Chaim (fasts 550 and 686,
// the firstborn 470, the four portions 685), which also fixes what Shabbat moves; modern days by the laws of the
// Knesset.
constexpr Holiday kHolidays[] = {
    {"Rosh Hashana, first day", {{{1, kTishri, 1}}}},
    {"Rosh Hashana, second day", {{{1, kTishri, 2}}}},
    {"Fast of Gedaliah", {{{1, kTishri, 3, kShabbatToSunday}}}},
    {"Shabbat Shuva", {{{1, kTishri, 9, kShabbatOnOrBefore}}}},
    {"Eve of Yom Kippur", {{{1, kTishri, 9}}}},
    {"Yom Kippur", {{{1, kTishri, 10}}}},
    {"Eve of Sukkot", {{{1, kTishri, 14}}}},
    {"Sukkot, first day", {{{1, kTishri, 15}}}},
    {"Sukkot, second day (in Israel Chol HaMoed)", {{{1, kTishri, 16}}}},
    {"Sukkot, third day (Chol HaMoed)", {{{1, kTishri, 17}}}},
    {"Sukkot, fourth day (Chol HaMoed)", {{{1, kTishri, 18}}}},
    {"Sukkot, fifth day (Chol HaMoed)", {{{1, kTishri, 19}}}},
    {"Sukkot, sixth day (Chol HaMoed)", {{{1, kTishri, 20}}}},
    {"Hoshana Rabba", {{{1, kTishri, 21}}}},
    {"Shemini Atzeret (in Israel also Simchat Torah)", {{{1, kTishri, 22}}}},
    {"Simchat Torah (diaspora)", {{{1, kTishri, 23}}}},
    {"Rosh Chodesh Cheshvan (30 Tishri)", {{{1, kTishri, 30}}}},
    {"Rosh Chodesh Cheshvan (1 Cheshvan)", {{{1, kCheshvan, 1}}}},
    {"Yitzhak Rabin Memorial Day", {{{5758, kCheshvan, 12, kFridayAndShabbatToThursday}}}},
    {"Sigd", {{{5769, kCheshvan, 29, kFridayAndShabbatToThursday}}}},
    {"Rosh Chodesh Kislev (30 Cheshvan)", {{{1, kCheshvan, 30}}}},
    {"Rosh Chodesh Kislev (1 Kislev)", {{{1, kKislev, 1}}}},
    {"Ben-Gurion Day", {{{5737, kKislev, 6, kFridayAndShabbatToSunday}}}},
    {"Chanukah, first day", {{{1, kKislev, 25}}}},
    {"Chanukah, second day", {{{1, kKislev, 25, kAsItFalls, 1}}}},
    {"Chanukah, third day", {{{1, kKislev, 25, kAsItFalls, 2}}}},
    {"Chanukah, fourth day", {{{1, kKislev, 25, kAsItFalls, 3}}}},
    {"Chanukah, fifth day", {{{1, kKislev, 25, kAsItFalls, 4}}}},
    {"Chanukah, sixth day", {{{1, kKislev, 25, kAsItFalls, 5}}}},
    {"Chanukah, seventh day", {{{1, kKislev, 25, kAsItFalls, 6}}}},
    {"Chanukah, eighth day", {{{1, kKislev, 25, kAsItFalls, 7}}}},
    {"Rosh Chodesh Tevet (30 Kislev)", {{{1, kKislev, 30}}}},
    {"Rosh Chodesh Tevet (1 Tevet)", {{{1, kTevet, 1}}}},
    {"Fast of 10 Tevet", {{{1, kTevet, 10}}}},
    {"Rosh Chodesh Shevat", {{{1, kShevat, 1}}}},
    // Beshalach is the sixteenth portion, and no festival falls on a Shabbat between Bereshit, read on the first
    // Shabbat after 23 Tishri, and it.
    {"Shabbat Shira", {{{1, kTishri, 24, kShabbatOnOrAfter, 15 * 7}}}},
    {"Tu BiShvat", {{{1, kShevat, 15}}}},
    {"Family Day", {{{5750, kShevat, 30}}}},
    {"Rosh Chodesh Adar (30 Shevat)", {{{1, kAdarOfCommonYear, 0}}}},
    {"Rosh Chodesh Adar (1 Adar)", {{{1, kAdarOfCommonYear, 1}}}},
    {"Rosh Chodesh Adar I (30 Shevat)", {{{1, kAdarI, 0}}}},
    {"Rosh Chodesh Adar I (1 Adar I)", {{{1, kAdarI, 1}}}},
    {"Purim Katan", {{{1, kAdarI, 14}}}},
    {"Shushan Purim Katan", {{{1, kAdarI, 15}}}},
    {"Rosh Chodesh Adar II (30 Adar I)", {{{1, kAdarI, 30}}}},
    {"Rosh Chodesh Adar II (1 Adar II)", {{{1, kAdarII, 1}}}},
    {"Shabbat Shekalim", {{{1, kAdarOfPurim, 1, kShabbatOnOrBefore}}}},
    {"Shabbat Zachor", {{{1, kAdarOfPurim, 13, kShabbatOnOrBefore}}}},
    {"Fast of Esther", {{{1, kAdarOfPurim, 13, kShabbatToThursday}}}},
    {"Purim", {{{1, kAdarOfPurim, 14}}}},
    {"Shushan Purim", {{{1, kAdarOfPurim, 15}}}},
    {"Purim Meshulash, third day (walled cities)", {{{1, kAdarOfPurim, 16, kSundayOnly}}}},
    {"Shabbat Parah", {{{1, kNisan, 1, kShabbatOnOrBefore, -7}}}},
    {"Shabbat HaChodesh", {{{1, kNisan, 1, kShabbatOnOrBefore}}}},
    {"Rosh Chodesh Nisan", {{{1, kNisan, 1}}}},
    {"Yom HaAliyah", {{{5777, kNisan, 10}}}},
    {"Shabbat HaGadol", {{{1, kNisan, 14, kShabbatOnOrBefore}}}},
    {"Fast of the Firstborn", {{{1, kNisan, 14, kShabbatToThursday}}}},
    {"Eve of Pesach", {{{1, kNisan, 14}}}},
    {"Pesach, first day", {{{1, kNisan, 15}}}},
    {"Pesach, second day (in Israel Chol HaMoed)", {{{1, kNisan, 16}}}},
    {"Pesach, third day (Chol HaMoed)", {{{1, kNisan, 17}}}},
    {"Pesach, fourth day (Chol HaMoed)", {{{1, kNisan, 18}}}},
    {"Pesach, fifth day (Chol HaMoed)", {{{1, kNisan, 19}}}},
    {"Pesach, sixth day (Chol HaMoed)", {{{1, kNisan, 20}}}},
    {"Pesach, seventh day", {{{1, kNisan, 21}}}},
    {"Pesach, eighth day (diaspora)", {{{1, kNisan, 22}}}},
    {"Yom HaShoah", {{{5711, kNisan, 27, kHolocaustDaySince5711}, {5757, kNisan, 27, kHolocaustDaySince5757}}}},
    {"Rosh Chodesh Iyar (30 Nisan)", {{{1, kNisan, 30}}}},
    {"Rosh Chodesh Iyar (1 Iyar)", {{{1, kIyar, 1}}}},
    {"Yom HaZikaron", {{{5711, kIyar, 4, kRemembranceSince5711}, {5764, kIyar, 4, kRemembranceSince5764}}}},
    {"Yom HaAtzma'ut",
     {{{5709, kIyar, 5, kShabbatToSunday},
       {5711, kIyar, 5, kFridayAndShabbatToThursday},
       {5764, kIyar, 5, kIndependenceSince5764}}}},
    // The law was passed in Tammuz 5764.
    {"Herzl Day", {{{5765, kIyar, 10, kShabbatToSunday}}}},
    {"Pesach Sheni", {{{1, kIyar, 14}}}},
    {"Lag BaOmer", {{{1, kIyar, 18}}}},
    {"Yom Yerushalayim", {{{5728, kIyar, 28}}}},
    {"Rosh Chodesh Sivan", {{{1, kSivan, 1}}}},
    {"Eve of Shavuot", {{{1, kSivan, 5}}}},
    {"Shavuot, first day", {{{1, kSivan, 6}}}},
    {"Shavuot, second day (diaspora)", {{{1, kSivan, 7}}}},
    {"Rosh Chodesh Tammuz (30 Sivan)", {{{1, kSivan, 30}}}},
    {"Rosh Chodesh Tammuz (1 Tammuz)", {{{1, kTammuz, 1}}}},
    {"Fast of 17 Tammuz", {{{1, kTammuz, 17, kShabbatToSunday}}}},
    {"Jabotinsky Day", {{{5765, kTammuz, 29}}}},
    {"Rosh Chodesh Av", {{{1, kAv, 1}}}},
    {"Shabbat Chazon", {{{1, kAv, 9, kShabbatOnOrBefore}}}},
    {"Tisha BeAv", {{{1, kAv, 9, kShabbatToSunday}}}},
    {"Shabbat Nachamu", {{{1, kAv, 10, kShabbatOnOrAfter}}}},
    {"Tu BeAv", {{{1, kAv, 15}}}},
    {"Rosh Chodesh Elul (30 Av)", {{{1, kAv, 30}}}},
    {"Rosh Chodesh Elul (1 Elul)", {{{1, kElul, 1}}}},
    {"Eve of Rosh Hashana", {{{1, kElul, 29}}}},
};

}  // namespace

std::span<const Holiday> JewishHolidays() {
  return kHolidays;
}

const Holiday& JewishHolidayNamed(std::string_view name) {
  return *std::ranges::find(kHolidays, name, &Holiday::name);
}

std::optional<int32_t> JewishBaseDay(const HolidayRule& rule, int32_t year) {
  const bool leap = IsJewishLeapYear(year);
  int32_t month = rule.month;
  if (month == kAdarOfCommonYear) {
    if (leap) return std::nullopt;
    month = kAdar;
  } else if (month == kAdarI) {
    if (!leap) return std::nullopt;
    month = kAdar;
  } else if (month == kAdarOfPurim) {
    month = leap ? kAdarII : kAdar;
  }
  if (rule.day > DaysInJewishMonth(month, year)) return std::nullopt;
  return AbsoluteFromJewish({1, month, year}) + rule.day - 1;
}

}  // namespace calendar
