#include <iterator>

#include "libraries/calendar/jewish.h"
#include "libraries/calendar/month_names.h"
#include "libraries/occasions/words.h"
#include "publishing/core/hebrew_numeral.h"

namespace occasions {
namespace {

// What a row's number adds to the name.
enum class NumberIs : uint8_t { kNothing, kDay, kCholHamoedDay, kMonth, kFast };

struct OccasionName {
  Words words;
  NumberIs number = NumberIs::kNothing;
};

// In the order of Occasion.
constexpr OccasionName kNames[] = {
    {{"Rosh Hashana", "ראש השנה"}, NumberIs::kDay},
    {{"Yom Kippur", "יום כיפור"}},
    {{"Sukkot", "סוכות"}, NumberIs::kDay},
    {{"Sukkot", "סוכות"}, NumberIs::kCholHamoedDay},
    {{"Hoshana Rabba", "הושענא רבה"}},
    {{"Shemini Atzeret", "שמיני עצרת"}},
    {{"Simchat Torah", "שמחת תורה"}},
    {{"Pesach", "פסח"}, NumberIs::kDay},
    {{"Pesach", "פסח"}, NumberIs::kCholHamoedDay},
    {{"Shavuot", "שבועות"}, NumberIs::kDay},
    {{"Shabbat", "שבת"}},
    {{"Eruv tavshilin", "עירוב תבשילין"}},
    {{"Fast of Gedaliah", "צום גדליה"}},
    {{"Fast of 10 Tevet", "צום עשרה בטבת"}},
    {{"Fast of Esther", "תענית אסתר"}},
    {{"Fast of the Firstborn", "תענית בכורות"}},
    {{"Fast of 17 Tammuz", "צום שבעה עשר בתמוז"}},
    {{"Fast of Tisha BeAv", "צום תשעה באב"}},
    {{"Fast of Yom Kippur", "צום יום כיפור"}},
    {{"Search for chametz", "בדיקת חמץ"}},
    {{"Chametz", "חמץ"}},
    {{"Chanukah", "חנוכה"}, NumberIs::kDay},
    {{"Purim", "פורים"}},
    {{"Shushan Purim", "שושן פורים"}},
    {{"Purim Meshulash, third day", "פורים המשולש, היום השלישי"}},
    {{"Purim Katan", "פורים קטן"}},
    {{"Shushan Purim Katan", "שושן פורים קטן"}},
    {{"Tu BiShvat", "ט״ו בשבט"}},
    {{"Pesach Sheni", "פסח שני"}},
    {{"Lag BaOmer", "ל״ג בעומר"}},
    {{"Tu BeAv", "ט״ו באב"}},
    {{"Omer", "ספירת העומר"}},
    {{"Rosh Chodesh", "ראש חודש"}, NumberIs::kMonth},
    {{"Molad", "מולד"}, NumberIs::kMonth},
    {{"Kiddush levana", "קידוש לבנה"}, NumberIs::kMonth},
    {{"Shabbat Mevarchim", "שבת מברכים"}, NumberIs::kMonth},
    {{"Shabbat Shekalim", "שבת שקלים"}},
    {{"Shabbat Zachor", "שבת זכור"}},
    {{"Shabbat Parah", "שבת פרה"}},
    {{"Shabbat HaChodesh", "שבת החודש"}},
    {{"Shabbat HaGadol", "שבת הגדול"}},
    {{"Shabbat Chazon", "שבת חזון"}},
    {{"Shabbat Nachamu", "שבת נחמו"}},
    {{"Shabbat Shuva", "שבת שובה"}},
    {{"Shabbat Shira", "שבת שירה"}},
    {{"Yom HaShoah", "יום השואה"}},
    {{"Yom HaZikaron", "יום הזיכרון"}},
    {{"Yom HaAtzma'ut", "יום העצמאות"}},
    {{"Yom Yerushalayim", "יום ירושלים"}},
    {{"Tekufa of", "תקופת"}, NumberIs::kMonth},
    {{"Tal umatar", "טל ומטר"}},
    {{"Blessing of the sun", "ברכת החמה"}},
    {{"Selichot", "סליחות"}},
    {{"BeHaB", "תענית בה״ב"}, NumberIs::kFast},
};
static_assert(std::size(kNames) == kOccasions);

// In Israel.
constexpr Words kSheminiAtzeretAndSimchatTorah = {"Shemini Atzeret and Simchat Torah", "שמיני עצרת ושמחת תורה"};

// From the first.
constexpr Words kDays[] = {{"first day", "היום הראשון"},   {"second day", "היום השני"},  {"third day", "היום השלישי"},
                           {"fourth day", "היום הרביעי"},  {"fifth day", "היום החמישי"}, {"sixth day", "היום השישי"},
                           {"seventh day", "היום השביעי"}, {"eighth day", "היום השמיני"}};
constexpr Words kCholHamoed = {" (Chol HaMoed)", " (חול המועד)"};
constexpr Words kLights[] = {{"first light", "נר ראשון"},   {"second light", "נר שני"},  {"third light", "נר שלישי"},
                             {"fourth light", "נר רביעי"},  {"fifth light", "נר חמישי"}, {"sixth light", "נר שישי"},
                             {"seventh light", "נר שביעי"}, {"eighth light", "נר שמיני"}};
constexpr Words kFasts[] = {{"first Monday", "שני קמא"}, {"Thursday", "חמישי"}, {"second Monday", "שני תניינא"}};

// In the order of Moment; empty where the name alone says it or the number does.
constexpr Words kMoments[] = {{"", ""},
                              {"candle lighting", "הדלקת נרות"},
                              {"end", "צאת החג"},
                              {"begins", "תחילת הצום"},
                              {"ends", "סוף הצום"},
                              {"last time to eat", "סוף זמן אכילה"},
                              {"last time to burn", "סוף זמן ביעור"},
                              {"", ""},
                              {"", ""},
                              {"", ""},
                              {"from", "תחילת הזמן"},
                              {"until", "סוף הזמן"}};
static_assert(std::size(kMoments) == occasions::kMoments);

constexpr Words kEndOfShabbat = {"end", "צאת השבת"};
constexpr Words kEndOfYomKippur = {"end", "צאת הצום"};
constexpr Words kRemoval = {"last time to remove what is left", "סוף זמן ביטול"};

// In the order of Kind.
constexpr Words kKindNames[] = {{"Shabbat", "שבת"},
                                {"Yom Tov and Chol HaMoed", "יום טוב וחול המועד"},
                                {"Fasts", "צומות"},
                                {"Chametz", "חמץ"},
                                {"Chanukah", "חנוכה"},
                                {"Purim and other days", "פורים וימים אחרים"},
                                {"Omer", "ספירת העומר"},
                                {"Rosh Chodesh and molad", "ראש חודש ומולד"},
                                {"Kiddush levana", "קידוש לבנה"},
                                {"Named Shabbatot", "שבתות מיוחדות"},
                                {"Modern days", "ימים לאומיים"},
                                {"Tekufot, tal umatar, blessing of the sun", "תקופות, טל ומטר, ברכת החמה"},
                                {"Selichot and BeHaB", "סליחות ובה״ב"}};
static_assert(std::size(kKindNames) == kKinds);

constexpr Words kWeekdays[] = {{"Sunday", "יום ראשון"},    {"Monday", "יום שני"},     {"Tuesday", "יום שלישי"},
                               {"Wednesday", "יום רביעי"}, {"Thursday", "יום חמישי"}, {"Friday", "יום שישי"},
                               {"Shabbat", "שבת"}};

// Of letters in windows-1255 and the geresh.
std::string Utf8OfHebrew(const char* text) {
  constexpr unsigned char kAlef = 0xE0;
  constexpr unsigned char kGeresh = 0xD7;
  std::string utf8;
  for (; *text != '\0'; ++text) {
    const auto byte = static_cast<unsigned char>(*text);
    if (byte >= kAlef) {
      utf8 += {'\xD7', static_cast<char>(0x90 + byte - kAlef)};
    } else if (byte == kGeresh) {
      utf8 += "׳";
    } else {
      utf8 += *text;
    }
  }
  return utf8;
}

std::string MonthInWords(int32_t month, int32_t year, Language language) {
  constexpr uint32_t kHebrewNames = 4;
  if (language == Language::kHebrew) return Utf8OfHebrew(calendar::JewishMonthName(month, year, kHebrewNames));
  return calendar::JewishMonthName(month, year, calendar::kEnglish);
}

std::string MonthOfNumber(int32_t number, Language language) {
  constexpr int32_t kCommonYear = 5785;
  constexpr int32_t kLeapYear = 5784;
  if (number == kAdarOfCommonYear) return MonthInWords(calendar::kAdar, kCommonYear, language);
  return MonthInWords(number, kLeapYear, language);
}

constexpr Words kOmerDay = {"Omer: 1 day", "ספירת העומר: יום אחד"};
constexpr Words kOmerDays = {"Omer: %1 days", "ספירת העומר: %1 ימים"};
constexpr Words kOneWeek = {", that is 1 week", ", שהם שבוע אחד"};
constexpr Words kWeeks = {", that is %1 weeks", ", שהם %1 שבועות"};
constexpr Words kAndOneDay = {" and 1 day", " ויום אחד"};
constexpr Words kAndDays = {" and %1 days", " ו-%1 ימים"};

std::string OmerTitle(int32_t number, Language language) {
  constexpr int32_t kDaysOfWeek = 7;
  const auto counted = [&](int32_t count, const Words& one, const Words& many) {
    return (count == 1 ? one : many).In(language, std::to_string(count));
  };
  const int32_t weeks = number / kDaysOfWeek;
  const int32_t days = number % kDaysOfWeek;
  std::string title = counted(number, kOmerDay, kOmerDays);
  if (weeks > 0) title += counted(weeks, kOneWeek, kWeeks);
  if (weeks > 0 && days > 0) title += counted(days, kAndOneDay, kAndDays);
  return title;
}

const Words& MomentWords(const Row& row) {
  const bool isOfShabbat = row.occasion == Occasion::kShabbat || (row.notes & kOnShabbat) != 0;
  if (row.moment == Moment::kEnd && row.occasion == Occasion::kYomKippur) return kEndOfYomKippur;
  if (row.moment == Moment::kEnd && isOfShabbat) return kEndOfShabbat;
  if (row.moment == Moment::kBurningEnds && isOfShabbat) return kRemoval;
  return kMoments[static_cast<size_t>(row.moment)];
}

}  // namespace

std::string NameOf(const Row& row, Language language) {
  const OccasionName& name = kNames[static_cast<size_t>(row.occasion)];
  const bool isInIsrael = row.occasion == Occasion::kSheminiAtzeret && row.number == 1;
  const std::string words = (isInIsrael ? kSheminiAtzeretAndSimchatTorah : name.words).In(language);
  const auto index = static_cast<size_t>(row.number - 1);
  switch (name.number) {
    case NumberIs::kNothing: return words;
    case NumberIs::kDay: return words + ", " + kDays[index].In(language);
    case NumberIs::kCholHamoedDay: return words + ", " + kDays[index].In(language) + kCholHamoed.In(language);
    case NumberIs::kMonth: return words + " " + MonthOfNumber(row.number, language);
    case NumberIs::kFast: return words + ", " + kFasts[index].In(language);
  }
  return words;
}

std::string TitleOf(const Row& row, Language language) {
  if (row.moment == Moment::kCount) return OmerTitle(row.number, language);
  const OccasionName& name = kNames[static_cast<size_t>(row.occasion)];
  if (row.moment == Moment::kLights) {
    return name.words.In(language) + ": " + kLights[static_cast<size_t>(row.number - 1)].In(language);
  }
  const std::string moment = MomentWords(row).In(language);
  return moment.empty() ? NameOf(row, language) : NameOf(row, language) + ": " + moment;
}

std::string KindName(Kind kind, Language language) {
  return kKindNames[static_cast<size_t>(kind)].In(language);
}

std::string WeekdayName(int32_t day, Language language) {
  return kWeekdays[static_cast<size_t>(calendar::WeekdayOf(day))].In(language);
}

std::string JewishDateText(int32_t day, Language language) {
  const calendar::Date date = calendar::JewishFromAbsolute(day);
  const std::string month = MonthInWords(date.month, date.year, language);
  constexpr int32_t kThousand = 1000;
  if (language == Language::kHebrew && date.year % kThousand != 0) {
    return publishing::HebrewNumeral(static_cast<uint32_t>(date.day)) + " ב" + month + " " +
           publishing::HebrewNumeral(static_cast<uint32_t>(date.year % kThousand));
  }
  return std::to_string(date.day) + " " + month + " " + std::to_string(date.year);
}

}  // namespace occasions
