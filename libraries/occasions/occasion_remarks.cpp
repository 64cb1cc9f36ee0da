#include <cmath>
#include <cstdlib>
#include <iterator>

#include "libraries/calendar/jewish.h"
#include "libraries/occasions/announcement.h"
#include "libraries/occasions/words.h"

namespace occasions {
namespace {

constexpr Words kAtSunset = {"at sunset", "בשקיעה"};
constexpr Words kMinuteBefore = {"1 minute before sunset", "דקה אחת לפני השקיעה"};
constexpr Words kMinutesBefore = {"%1 minutes before sunset", "%1 דקות לפני השקיעה"};
constexpr Words kMinuteAfter = {"1 minute after sunset", "דקה אחת אחרי השקיעה"};
constexpr Words kMinutesAfter = {"%1 minutes after sunset", "%1 דקות אחרי השקיעה"};
constexpr Words kAndMinutes = {" and %1 min", " ועוד %1 דק׳"};
constexpr Words kLessMinutes = {" less %1 min", " פחות %1 דק׳"};

// In the order of Rule; %1 is what the rule's own text is.
constexpr Words kRules[] = {
    {"", ""},
    {"%1", "%1"},
    {"%1, the custom of Jerusalem", "%1, מנהג ירושלים"},
    {"your own time for this Shabbat", "זמן שקבעתם לשבת זו"},
    {"from a burning flame, when the day before has ended", "מאש דולקת, בצאת היום הקודם"},
    {"%1", "%1"},
    {"sun %1 below the horizon", "השמש %1 מתחת לאופק"},
    kAtSunset,
    {"%1", "%1"},
    {"13.5 minutes before the sun is 7.083° below the horizon", "13.5 דקות לפני שהשמש 7.083° מתחת לאופק"},
    {"at sunrise", "בזריחה"},
    {"%1", "%1"},
    {"%1", "%1"},
    {"%1", "%1"},
    {"%1", "%1"},
    {"with candle lighting", "עם הדלקת הנרות"},
    {"with the end of the day", "עם צאת היום"},
    {"before the Shabbat candles", "לפני נרות השבת"},
    {"when Shabbat has ended", "בצאת השבת"},
    {"%1 in Jerusalem's mean time", "%1 לפי הזמן הממוצע של ירושלים"},
    {"%1", "%1"},
    {"%1, which is by day: from nightfall", "%1, שחל ביום: מצאת הכוכבים"},
    {"%1, which is by day: until dawn", "%1, שחל ביום: עד עלות השחר"},
    {"%1 in Jerusalem's mean time, by Shmuel", "%1 לפי הזמן הממוצע של ירושלים, לשיטת שמואל"},
    {"the night after Shabbat, from midnight", "בליל מוצאי שבת, מחצות"},
};
static_assert(std::size(kRules) == static_cast<size_t>(Rule::kMidnight) + 1);

constexpr Words kBeforeLighting = {"before candle lighting", "לפני הדלקת הנרות"};
constexpr Words kDaysAfterMolad = {"%1 days after the molad", "%1 ימים אחרי המולד"};
constexpr Words kHalfMonthAfterMolad = {"half a month after the molad", "חצי חודש אחרי המולד"};
constexpr Words kFourthHour = {"end of the 4th proportional hour, %1", "סוף השעה הזמנית הרביעית, %1"};
constexpr Words kFifthHour = {"end of the 5th proportional hour, %1", "סוף השעה הזמנית החמישית, %1"};

constexpr Words kMevarchim = {"Rosh Chodesh on %1", "ראש חודש: %1"};
constexpr Words kMoladOfIt = {"molad %1", "המולד: %1"};
constexpr Words kShushan = {"Purim of walled cities", "פורים של ערים מוקפות חומה"};
constexpr Words kShushanOnShabbat = {"walled cities: scroll on Friday, prayers today, meal on Sunday",
                                     "ערים מוקפות חומה: מגילה ביום שישי, תפילות היום, סעודה ביום ראשון"};
constexpr Words kMeshulash = {"walled cities: meal, gifts of food", "ערים מוקפות חומה: סעודה ומשלוח מנות"};
constexpr Words kFromEvening = {"from the evening prayer on", "מתפילת ערבית"};
constexpr Words kFromFridayEvening = {"from the evening on; first said on Saturday night, after Shabbat",
                                      "מן הערב; אומרים לראשונה במוצאי שבת"};
constexpr Words kUntilYomKippur = {"before dawn, until Yom Kippur", "לפני עלות השחר, עד יום כיפור"};
constexpr Words kUntilTheSeder = {"until a meal of a commandment, at the latest the Seder",
                                  "עד סעודת מצווה, ולכל המאוחר עד הסדר"};
constexpr Words kOnPesachSheni = {"Pesach Sheni: some fast on Thursday, 17 Iyar",
                                  "פסח שני: יש הצמים ביום חמישי, י״ז באייר"};

constexpr Words kNotInHolyNight = {"not said in the night of a Shabbat or Yom Tov", "אין אומרים בליל שבת ויום טוב"};
constexpr Words kAfterYomKippur = {"many wait until Yom Kippur has ended", "נהוג להמתין עד מוצאי יום כיפור"};
constexpr Words kAfterTishaBeAv = {"many wait until the fast of 9 Av has ended", "נהוג להמתין עד מוצאי תשעה באב"};

constexpr Words kToSunday = {"its date is a Shabbat: kept on Sunday", "חל בשבת: נדחה ליום ראשון"};
constexpr Words kToThursday = {"its date is a Shabbat: kept on Thursday", "חל בשבת: מוקדם ליום חמישי"};
constexpr Words kByLaw = {"moved from its date by law", "הועבר ממועדו לפי החוק"};
constexpr Words kIntoShabbat = {"at nightfall, in Shabbat", "בצאת הכוכבים, בתוך השבת"};
constexpr Words kOnThursdayNight = {"on Thursday night: the eve of Pesach is a Shabbat",
                                    "בערב יום חמישי: ערב פסח חל בשבת"};
constexpr Words kChametzOnFriday = {"on Friday: the eve of Pesach is a Shabbat", "ביום שישי: ערב פסח חל בשבת"};

constexpr Words kNoNight = {"no time: the sun does not get that low then", "אין זמן: השמש אינה יורדת כל כך אז"};
constexpr Words kNoDay = {"no time: the sun is lower all day then", "אין זמן: השמש נמוכה יותר כל היום"};
constexpr Words kNoSunset = {"the sun does not set then: its lowest point counts",
                             "השמש אינה שוקעת אז: נקודתה הנמוכה קובעת"};
constexpr Words kNoSunrise = {"the sun does not rise then: its highest point counts",
                              "השמש אינה זורחת אז: נקודתה הגבוהה קובעת"};
constexpr Words kByLowestPoint = {"the sun does not get that low then: its lowest point counts",
                                  "השמש אינה יורדת כל כך אז: נקודתה הנמוכה קובעת"};

std::string Joined(const std::string& first, const std::string& second) {
  if (first.empty() || second.empty()) return first + second;
  return first + "; " + second;
}

// A negative number of minutes is on the sunset's other side.
std::string BeforeSunset(int64_t minutes, Language language) {
  if (minutes == 0) return kAtSunset.In(language);
  const bool isOne = std::llabs(minutes) == 1;
  const Words& before = isOne ? kMinuteBefore : kMinutesBefore;
  const Words& after = isOne ? kMinuteAfter : kMinutesAfter;
  return (minutes > 0 ? before : after).In(language, std::to_string(std::llabs(minutes)));
}

// At most three digits after the point, none of them a needless zero.
std::string Degrees(double degrees) {
  std::string text = std::to_string(std::round(degrees * 1000) / 1000);
  text.resize(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text + "°";
}

std::string EndByDegrees(const candles::ShabbatRule& rule, Language language) {
  const std::string degrees = kRules[static_cast<size_t>(Rule::kEndDegrees)].In(language, Degrees(rule.endDegrees));
  if (rule.minutesAfterDegrees == 0) return degrees;
  const Words& added = rule.minutesAfterDegrees > 0 ? kAndMinutes : kLessMinutes;
  return degrees + added.In(language, std::to_string(std::llabs(rule.minutesAfterDegrees)));
}

std::string LevanaInWords(const Customs& customs, const Row& row, Language language) {
  constexpr int32_t kLastDay = 15;
  if (row.moment == Moment::kUntil && customs.kiddushLevanaUntilHalfMonth) return kHalfMonthAfterMolad.In(language);
  const int32_t days = row.moment == Moment::kFrom ? customs.kiddushLevanaFromDays : kLastDay;
  return kDaysAfterMolad.In(language, std::to_string(days));
}

std::string NightfallInWords(const std::string& id, Language language) {
  const std::optional<int32_t> minutes = MinutesOfId(id);
  return minutes ? BeforeSunset(-*minutes, language) : NameOfZman(id, language == Language::kHebrew);
}

// What "%1" of the rule's words is.
std::string OwnText(const Question& question, const Row& row, Language language) {
  const candles::ShabbatRule& shabbat = question.shabbat;
  const Customs& customs = question.customs;
  const bool isHebrew = language == Language::kHebrew;
  switch (row.rule) {
    case Rule::kCandleMinutes: return BeforeSunset(shabbat.candleMinutes, language);
    case Rule::kJerusalem: return BeforeSunset(candles::kJerusalemMinutes, language);
    case Rule::kEndMinutes: return BeforeSunset(-int64_t{shabbat.endMinutes}, language);
    case Rule::kChanukahMinutes: return BeforeSunset(-customs.chanukahMinutes, language);
    case Rule::kDawn: return NameOfZman(customs.dawn, isHebrew);
    case Rule::kNightfall: return NightfallInWords(customs.nightfall, language);
    case Rule::kNightfallOfAv:
      return NightfallInWords(customs.nightfallOfAv.empty() ? customs.nightfall : customs.nightfallOfAv, language);
    case Rule::kChametzZman:
      return (row.moment == Moment::kEatingEnds ? kFourthHour : kFifthHour)
          .In(language, OpinionOfChametz(customs, isHebrew));
    case Rule::kMolad: return MoladInWords(row, language);
    case Rule::kSinceMolad:
    case Rule::kFirstNight:
    case Rule::kLastNight: return LevanaInWords(customs, row, language);
    case Rule::kTekufa: return TekufaInWords(row, language);
    default: return "";
  }
}

std::string RuleInWords(const Question& question, const Row& row, Language language) {
  if (row.rule == Rule::kEndDegrees) return EndByDegrees(question.shabbat, language);
  if (row.occasion == Occasion::kEruvTavshilin) return kBeforeLighting.In(language);
  return kRules[static_cast<size_t>(row.rule)].In(language, OwnText(question, row, language));
}

// Orach Chaim 426:2, with Rema and Mishnah Berurah.
std::string AboutLevana(const Row& row, Language language) {
  if (row.moment == Moment::kFrom && row.number == calendar::kTishri) return kAfterYomKippur.In(language);
  if (row.moment == Moment::kFrom && row.number == calendar::kAv) return kAfterTishaBeAv.In(language);
  return (row.notes & kInHolyNight) != 0 ? kNotInHolyNight.In(language) : "";
}

bool IsPesachSheni(int32_t day) {
  const calendar::Date date = calendar::JewishFromAbsolute(day);
  return date.month == calendar::kIyar && date.day == 14;
}

// What there is to know of an occasion beside its moments.
std::string AboutOccasion(const Question& question, const Row& row, Language language) {
  switch (row.occasion) {
    case Occasion::kShabbatMevarchim:
      return Joined(kMevarchim.In(language, RoshChodeshInWords(row, language)),
                    kMoladOfIt.In(language, MoladInWords(row, language)));
    case Occasion::kShushanPurim: return ((row.notes & kOnShabbat) != 0 ? kShushanOnShabbat : kShushan).In(language);
    case Occasion::kPurimMeshulash: return kMeshulash.In(language);
    case Occasion::kTalUmatar: return ((row.notes & kOnFriday) != 0 ? kFromFridayEvening : kFromEvening).In(language);
    case Occasion::kSelichot:
      return question.customs.selichot == SelichotCustom::kSephardi ? kUntilYomKippur.In(language) : "";
    case Occasion::kFastOfFirstborn:
      return (row.notes & kFromShabbatToThursday) == 0 ? kUntilTheSeder.In(language) : "";
    case Occasion::kKiddushLevana: return AboutLevana(row, language);
    case Occasion::kBehab: return IsPesachSheni(row.day) ? kOnPesachSheni.In(language) : "";
    default: return "";
  }
}

std::string MovedInWords(const Row& row, Language language) {
  const bool isOnFriday = (row.notes & kOnFriday) != 0;
  const bool isOnShabbat = (row.notes & kOnShabbat) != 0;
  if (row.notes & kFromShabbatToSunday) return kToSunday.In(language);
  if (row.notes & kFromShabbatToThursday) return kToThursday.In(language);
  if (row.notes & kMovedByLaw) return kByLaw.In(language);
  if (row.occasion == Occasion::kTenthOfTevet && row.moment == Moment::kFastEnds && isOnFriday) {
    return kIntoShabbat.In(language);
  }
  if (row.occasion == Occasion::kSearchForChametz && isOnShabbat) return kOnThursdayNight.In(language);
  if (row.occasion == Occasion::kChametz && isOnFriday) return kChametzOnFriday.In(language);
  return "";
}

std::string SunInWords(const Row& row, Language language) {
  if (row.notes & kNeverSoLow) return kNoNight.In(language);
  if (row.notes & kAlwaysLower) return kNoDay.In(language);
  if (row.notes & kSunDoesNotSet) return kNoSunset.In(language);
  if (row.notes & kSunDoesNotRise) return kNoSunrise.In(language);
  if (row.notes & kLowestPoint) return kByLowestPoint.In(language);
  return "";
}

}  // namespace

std::string RemarkOf(const Question& question, const Row& row, Language language) {
  const std::string remark = Joined(RuleInWords(question, row, language), AboutOccasion(question, row, language));
  return Joined(Joined(remark, MovedInWords(row, language)), SunInWords(row, language));
}

}  // namespace occasions
