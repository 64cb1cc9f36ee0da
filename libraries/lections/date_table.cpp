// The dates of the year that have readings of their own. Orach Chaim 488-490 (Pesach), 494 (Shavuot), 559 (Tisha BeAv),
// 566 (fasts), 584 and 601 (Rosh Hashana), 621-622 (Yom Kippur), 659-669 (Sukkot to Simchat Torah), 693 and 688
// (Purim); for Israel the luach of Rabbi Y. M. Tucazinsky.
#include <algorithm>

#include "libraries/calendar/jewish.h"
#include "libraries/lections/reading_tables.h"

namespace lections {
namespace {

using enum Haftarot::ChabadAs;
using enum Occasion;
using namespace calendar;

constexpr char kFastTorah[] = "Exodus 32:11-14, 34:1-10";
// Sephardim have no haftarah on the afternoon of a fast, but on Tisha BeAv.
constexpr Haftarot kFastHaftarot = {"Isaiah 55:6-56:8", "", kAsAshkenazi};
constexpr Haftarot kTishaBeAvAfternoon = {"Isaiah 55:6-56:8", "Hosea 14:2-10, Micah 7:18-20", kAsAshkenazi};
constexpr char kFestivals[] = "Leviticus 22:26-23:44";
// The festivals at the end of Re'eh; a Shabbat begins with the tithes.
constexpr char kTithes[] = "Deuteronomy 14:22-16:17";
constexpr char kFirstborn[] = "Deuteronomy 15:19-16:17";
constexpr char kCholHaMoedOnShabbat[] = "Exodus 33:12-34:26";
constexpr char kPesachOffering[] = "Numbers 28:16-25";
constexpr char kPesachOfferingLater[] = "Numbers 28:19-25";
constexpr char kEighthDay[] = "Numbers 29:35-30:1";
constexpr char kShavuotOffering[] = "Numbers 28:26-31";
constexpr char kSinai[] = "Exodus 19:1-20:23";
constexpr Haftarot kPesachFirst = {"Joshua 3:5-7, 5:2-6:1, 6:27", "Joshua 5:2-6:1, 6:27", kAsSephardi};
constexpr Haftarot kSimchatTorahHaftarot = {"Joshua 1:1-18", "Joshua 1:1-9", kAsAshkenazi};
constexpr char kSimchatTorahTorah[] = "Deuteronomy 33:1-34:12, Genesis 1:1-2:3";

// A fast, on its date unless that is a Shabbat, else on the other date.
constexpr DateRow Fast(int32_t month, int32_t day, uint8_t weekdays, Occasion occasion) {
  return {.month = month,
          .day = day,
          .weekdays = weekdays,
          .occasion = occasion,
          .torah = kFastTorah,
          .afternoon = kFastTorah,
          .afternoonHaftarot = kFastHaftarot};
}

constexpr DateRow TishaBeAv(int32_t day, uint8_t weekdays) {
  return {.month = kAv,
          .day = day,
          .weekdays = weekdays,
          .occasion = kTishaBeAv,
          .torah = "Deuteronomy 4:25-40",
          .haftarot = "Jeremiah 8:13-9:23",
          .afternoon = kFastTorah,
          .afternoonHaftarot = kTishaBeAvAfternoon,
          .scroll = "Lamentations"};
}

// Chol HaMoed of Sukkot: a weekday of the diaspora reads three days' offerings, its doubt about the date between them;
// Israel the day's alone. number: of the day of Sukkot.
constexpr DateRow SukkotWeekday(int number, uint8_t lands, const char* torah) {
  return {.month = kTishri,
          .day = 14 + number,
          .lands = lands,
          .weekdays = kOnWeekday,
          .occasion = kSukkot,
          .number = number,
          .second = number == 7 ? kHoshanaRabba : kCholHaMoed,
          .torah = torah};
}

constexpr DateRow SukkotShabbat(int number, uint8_t lands, const char* maftir) {
  return {.month = kTishri,
          .day = 14 + number,
          .lands = lands,
          .weekdays = kOnShabbat,
          .occasion = kSukkot,
          .number = number,
          .second = kShabbatCholHaMoed,
          .torah = kCholHaMoedOnShabbat,
          .maftir = maftir,
          .haftarot = "Ezekiel 38:18-39:16",
          .scroll = "Ecclesiastes"};
}

// Chol HaMoed of Pesach; when Shabbat is its third day, Sunday and Monday read what the days before them would have.
constexpr DateRow PesachWeekday(int number, uint8_t lands, uint8_t weekdays, const char* torah) {
  return {.month = kNisan,
          .day = 14 + number,
          .lands = lands,
          .weekdays = weekdays,
          .occasion = kPesach,
          .number = number,
          .second = kCholHaMoed,
          .torah = torah};
}

constexpr DateRow PesachShabbat(int number) {
  return {.month = kNisan,
          .day = 14 + number,
          .weekdays = kOnShabbat,
          .occasion = kPesach,
          .number = number,
          .second = kShabbatCholHaMoed,
          .torah = kCholHaMoedOnShabbat,
          .maftir = kPesachOfferingLater,
          .haftarot = "Ezekiel 37:1-14",
          .scroll = "Song of Songs"};
}

constexpr DateRow Festival(int32_t month, int32_t day, uint8_t lands, uint8_t weekdays, Occasion occasion, int number,
                           const char* torah, const char* maftir, const Haftarot& haftarot, const char* scroll = "") {
  return {.month = month,
          .day = day,
          .lands = lands,
          .weekdays = weekdays,
          .occasion = occasion,
          .number = number,
          .second = weekdays == kOnShabbat ? kShabbat : kNone,
          .torah = torah,
          .maftir = maftir,
          .haftarot = haftarot,
          .scroll = scroll};
}

constexpr DateRow YomKippur(uint8_t weekdays) {
  DateRow row = Festival(kTishri, 10, kBothLands, weekdays, kYomKippur, 0, "Leviticus 16:1-34", "Numbers 29:7-11",
                         "Isaiah 57:14-58:14");
  row.afternoon = "Leviticus 18:1-30";
  row.afternoonHaftarot = "Jonah 1:1-4:11, Micah 7:18-20";
  return row;
}

// Rows of one date stand together, those of a weekday of its own first.
// clang-format off
constexpr DateRow kDates[] = {
    Festival(kTishri, 1, kBothLands, kOnShabbat, kRoshHashana, 1, "Genesis 21:1-34", "Numbers 29:1-6",
             "I Samuel 1:1-2:10"),
    Festival(kTishri, 1, kBothLands, kAnyDay, kRoshHashana, 1, "Genesis 21:1-34", "Numbers 29:1-6",
             "I Samuel 1:1-2:10"),
    Festival(kTishri, 2, kBothLands, kAnyDay, kRoshHashana, 2, "Genesis 22:1-24", "Numbers 29:1-6", "Jeremiah 31:2-20"),
    Fast(kTishri, 3, kOnWeekday, kFastOfGedaliah),
    Fast(kTishri, 4, kOnSunday, kFastOfGedaliah),
    YomKippur(kOnShabbat),
    YomKippur(kAnyDay),

    // Where no Shabbat lies between the first and the eighth day, Ecclesiastes is read on the eighth, in Israel on the
    // first.
    Festival(kTishri, 15, kIsraelOnly, kOnShabbat, kSukkot, 1, kFestivals, "Numbers 29:12-16", "Zechariah 14:1-21",
             "Ecclesiastes"),
    Festival(kTishri, 15, kDiasporaOnly, kOnShabbat, kSukkot, 1, kFestivals, "Numbers 29:12-16", "Zechariah 14:1-21"),
    Festival(kTishri, 15, kBothLands, kAnyDay, kSukkot, 1, kFestivals, "Numbers 29:12-16", "Zechariah 14:1-21"),
    Festival(kTishri, 16, kDiasporaOnly, kAnyDay, kSukkot, 2, kFestivals, "Numbers 29:12-16", "I Kings 8:2-21"),
    SukkotShabbat(2, kIsraelOnly, "Numbers 29:17-19"),
    SukkotShabbat(3, kIsraelOnly, "Numbers 29:20-22"),
    SukkotShabbat(4, kIsraelOnly, "Numbers 29:23-25"),
    SukkotShabbat(5, kIsraelOnly, "Numbers 29:26-28"),
    SukkotShabbat(6, kIsraelOnly, "Numbers 29:29-31"),
    SukkotShabbat(3, kDiasporaOnly, "Numbers 29:17-22"),
    SukkotShabbat(4, kDiasporaOnly, "Numbers 29:20-25"),
    SukkotShabbat(5, kDiasporaOnly, "Numbers 29:23-28"),
    SukkotShabbat(6, kDiasporaOnly, "Numbers 29:26-31"),
    SukkotWeekday(2, kIsraelOnly, "Numbers 29:17-19"),
    SukkotWeekday(3, kIsraelOnly, "Numbers 29:20-22"),
    SukkotWeekday(4, kIsraelOnly, "Numbers 29:23-25"),
    SukkotWeekday(5, kIsraelOnly, "Numbers 29:26-28"),
    SukkotWeekday(6, kIsraelOnly, "Numbers 29:29-31"),
    SukkotWeekday(7, kIsraelOnly, "Numbers 29:32-34"),
    SukkotWeekday(3, kDiasporaOnly, "Numbers 29:17-25"),
    SukkotWeekday(4, kDiasporaOnly, "Numbers 29:20-28"),
    SukkotWeekday(5, kDiasporaOnly, "Numbers 29:23-31"),
    SukkotWeekday(6, kDiasporaOnly, "Numbers 29:26-34"),
    SukkotWeekday(7, kDiasporaOnly, "Numbers 29:26-34"),
    Festival(kTishri, 22, kDiasporaOnly, kOnShabbat, kSheminiAtzeret, 0, kTithes, kEighthDay, "I Kings 8:54-66",
             "Ecclesiastes"),
    Festival(kTishri, 22, kDiasporaOnly, kAnyDay, kSheminiAtzeret, 0, kTithes, kEighthDay, "I Kings 8:54-66"),
    Festival(kTishri, 22, kIsraelOnly, kOnShabbat, kSimchatTorah, 0, kSimchatTorahTorah, kEighthDay,
             kSimchatTorahHaftarot),
    Festival(kTishri, 22, kIsraelOnly, kAnyDay, kSimchatTorah, 0, kSimchatTorahTorah, kEighthDay,
             kSimchatTorahHaftarot),
    Festival(kTishri, 23, kDiasporaOnly, kAnyDay, kSimchatTorah, 0, kSimchatTorahTorah, kEighthDay,
             kSimchatTorahHaftarot),

    Fast(kTevet, 10, kOnWeekday, kFastOfTevet),
    Fast(kAdarOfPurim, 11, kOnThursday, kFastOfEsther),
    Fast(kAdarOfPurim, 13, kOnWeekday, kFastOfEsther),
    {.month = kAdarOfPurim, .day = 14, .occasion = kPurim, .torah = "Exodus 17:8-16", .scroll = "Esther"},
    {.month = kAdarOfPurim, .day = 15, .lands = kIsraelOnly, .weekdays = kOnWeekday, .occasion = kShushanPurim,
     .torah = "Exodus 17:8-16", .scroll = "Esther"},

    // The Song of Songs likewise: on the last day, in Israel on the first.
    Festival(kNisan, 15, kIsraelOnly, kOnShabbat, kPesach, 1, "Exodus 12:21-51", kPesachOffering, kPesachFirst,
             "Song of Songs"),
    Festival(kNisan, 15, kDiasporaOnly, kOnShabbat, kPesach, 1, "Exodus 12:21-51", kPesachOffering, kPesachFirst),
    Festival(kNisan, 15, kBothLands, kAnyDay, kPesach, 1, "Exodus 12:21-51", kPesachOffering, kPesachFirst),
    Festival(kNisan, 16, kDiasporaOnly, kAnyDay, kPesach, 2, kFestivals, kPesachOffering, "II Kings 23:1-9, 23:21-25"),
    PesachWeekday(2, kIsraelOnly, kOnWeekday, "Leviticus 22:26-23:44, Numbers 28:19-25"),
    PesachShabbat(3),
    PesachWeekday(3, kBothLands, kOnWeekday, "Exodus 13:1-16, Numbers 28:19-25"),
    PesachWeekday(4, kBothLands, kOnSunday, "Exodus 13:1-16, Numbers 28:19-25"),
    PesachWeekday(4, kBothLands, kOnWeekday, "Exodus 22:24-23:19, Numbers 28:19-25"),
    PesachShabbat(5),
    PesachWeekday(5, kBothLands, kOnMonday, "Exodus 22:24-23:19, Numbers 28:19-25"),
    PesachWeekday(5, kBothLands, kOnWeekday, "Exodus 34:1-26, Numbers 28:19-25"),
    PesachWeekday(6, kBothLands, kOnWeekday, "Numbers 9:1-14, 28:19-25"),
    Festival(kNisan, 21, kBothLands, kOnShabbat, kPesach, 7, "Exodus 13:17-15:26", kPesachOfferingLater,
             "II Samuel 22:1-51", "Song of Songs"),
    Festival(kNisan, 21, kBothLands, kAnyDay, kPesach, 7, "Exodus 13:17-15:26", kPesachOfferingLater,
             "II Samuel 22:1-51"),
    Festival(kNisan, 22, kDiasporaOnly, kOnShabbat, kPesach, 8, kTithes, kPesachOfferingLater, "Isaiah 10:32-12:6",
             "Song of Songs"),
    Festival(kNisan, 22, kDiasporaOnly, kAnyDay, kPesach, 8, kFirstborn, kPesachOfferingLater, "Isaiah 10:32-12:6"),

    Festival(kSivan, 6, kIsraelOnly, kAnyDay, kShavuot, 0, kSinai, kShavuotOffering, "Ezekiel 1:1-28, 3:12", "Ruth"),
    Festival(kSivan, 6, kDiasporaOnly, kAnyDay, kShavuot, 1, kSinai, kShavuotOffering, "Ezekiel 1:1-28, 3:12"),
    Festival(kSivan, 7, kDiasporaOnly, kOnShabbat, kShavuot, 2, kTithes, kShavuotOffering,
             {"Habakkuk 3:1-19", "Habakkuk 2:20-3:19", kAsSephardi}, "Ruth"),
    Festival(kSivan, 7, kDiasporaOnly, kAnyDay, kShavuot, 2, kFirstborn, kShavuotOffering,
             {"Habakkuk 3:1-19", "Habakkuk 2:20-3:19", kAsSephardi}, "Ruth"),

    Fast(kTammuz, 17, kOnWeekday, kFastOfTammuz),
    Fast(kTammuz, 18, kOnSunday, kFastOfTammuz),
    TishaBeAv(9, kOnWeekday),
    TishaBeAv(10, kOnSunday),
};
// clang-format on

}  // namespace

const DateRow* RowOfDate(const Date& date, Weekday weekday, Land land, bool isLeapYear) {
  const int32_t adarOfPurim = isLeapYear ? kAdarII : kAdar;
  const auto landBit = land == Land::kIsrael ? kIsraelOnly : kDiasporaOnly;
  const auto weekdayBit = 1 << static_cast<int>(weekday);
  const auto* row = std::ranges::find_if(kDates, [&](const DateRow& candidate) {
    const int32_t month = candidate.month == kAdarOfPurim ? adarOfPurim : candidate.month;
    return candidate.day == date.day && month == date.month && (candidate.lands & landBit) != 0 &&
           (candidate.weekdays & weekdayBit) != 0;
  });
  return row == std::end(kDates) ? nullptr : row;
}

}  // namespace lections
