// What is kept in a year: which occasion, of which kind, and at which moment of it a family has to act.
#pragma once

#include <cstdint>
#include <optional>

namespace occasions {

// What the user shows and hides together; the bits of Customs::shown.
enum class Kind : uint8_t {
  kShabbat,
  kYomTov,  // with Chol HaMoed and eruv tavshilin
  kFast,
  kChametz,
  kChanukah,
  kMinorDay,
  kOmer,
  kNewMonth,  // Rosh Chodesh and molad
  kKiddushLevana,
  kNamedShabbat,
  kModernDay,
  kSeason,  // tekufot, tal umatar, blessing of the sun
  kSupplication,
};
constexpr int kKinds = static_cast<int>(Kind::kSupplication) + 1;

// In the order in which those without a time stand on a day.
enum class Occasion : uint8_t {
  kRoshHashana,  // numbers of days: 1, 2
  kYomKippur,
  kSukkot,            // 1, in the diaspora 2
  kCholHamoedSukkot,  // the festival's day, 2 or 3 to 6
  kHoshanaRabba,
  kSheminiAtzeret,    // 1 in Israel, where it is Simchat Torah too
  kSimchatTorah,      // of the diaspora
  kPesach,            // 1, 7, in the diaspora 2, 8
  kCholHamoedPesach,  // the festival's day, 2 or 3 to 6
  kShavuot,           // 1, in the diaspora 2
  kShabbat,
  kEruvTavshilin,
  kFastOfGedaliah,
  kTenthOfTevet,
  kFastOfEsther,
  kFastOfFirstborn,
  kSeventeenthOfTammuz,
  kTishaBeAv,
  kFastOfYomKippur,
  kSearchForChametz,
  kChametz,
  kChanukah,  // lights and days, 1 to 8
  kPurim,
  kShushanPurim,
  kPurimMeshulash,  // the third of three days
  kPurimKatan,
  kShushanPurimKatan,
  kTuBiShvat,
  kPesachSheni,
  kLagBaOmer,
  kTuBeAv,
  kOmer,         // 1 to 49
  kRoshChodesh,  // these four: the Jewish month as calendar/jewish.h numbers it, kAdarOfCommonYear for Adar
  kMolad,
  kKiddushLevana,
  kShabbatMevarchim,
  kShabbatShekalim,
  kShabbatZachor,
  kShabbatParah,
  kShabbatHaChodesh,
  kShabbatHaGadol,
  kShabbatChazon,
  kShabbatNachamu,
  kShabbatShuva,
  kShabbatShira,
  kYomHaShoah,
  kYomHaZikaron,
  kYomHaAtzmaut,
  kYomYerushalayim,
  kTekufa,  // the month from which on it is: Tishri, Tevet, Nisan or Tammuz
  kTalUmatar,
  kBlessingOfTheSun,
  kSelichot,
  kBehab,  // 1 to 3
};
constexpr int kOccasions = static_cast<int>(Occasion::kBehab) + 1;

// In place of kAdar as a row's number: the one Adar of a common year.
constexpr int32_t kAdarOfCommonYear = 14;

enum class Moment : uint8_t {
  kWholeDay,
  kCandles,
  kEnd,  // of Shabbat and Yom Tov
  kFastBegins,
  kFastEnds,
  kEatingEnds,
  kBurningEnds,  // on a Shabbat: what is left is removed
  kLights,
  kCount,
  kInstant,  // molad, tekufa
  kFrom,
  kUntil,
};
constexpr int kMoments = static_cast<int>(Moment::kUntil) + 1;

// How a moment was reckoned.
enum class Rule : uint8_t {
  kNone,
  kCandleMinutes,  // the user's minutes before sunset
  kJerusalem,      // forty, in that city
  kOwnTime,        // set by the user for that place and Friday
  kFromFlame,      // when the day before has ended
  kEndMinutes,     // the user's minutes after sunset
  kEndDegrees,     // the user's depression, and the minutes added
  kSunset,         // the solar library's minute
  kChanukahMinutes,
  kHalfTwilight,
  kSunrise,
  kDawn,           // the user's
  kNightfall,      // the user's
  kNightfallOfAv,  // the user's for 9 Av
  kChametzZman,    // the user's authority
  kWithCandles,    // at candle lighting
  kWithEnd,        // at the end of the day
  kBeforeCandles,  // before the Shabbat candles
  kAfterShabbat,   // when Shabbat has ended
  kMolad,
  kSinceMolad,  // so long after it, which is at night
  kFirstNight,  // so long after it is by day: from the nightfall that follows
  kLastNight,   // so long after it is by day: until the dawn before
  kTekufa,
  kMidnight,
};

// What there is to say of a row beside its rule.
enum Note : uint16_t {
  kSunDoesNotSet = 1,   // its lowest point stands for sunset or sunrise
  kSunDoesNotRise = 2,  // its highest point stands for them
  kLowestPoint = 4,     // the sun does not get so low: its lowest point stands for that
  kNeverSoLow = 8,      // the same: the moment has no time
  kAlwaysLower = 16,    // nor where the sun is lower all day
  kFromShabbatToSunday = 32,
  kFromShabbatToThursday = 64,
  kOnShabbat = 128,
  kOnFriday = 256,
  kMovedByLaw = 512,    // a modern day from its date
  kEndsShabbat = 1024,  // of an end: among the days that end is a Shabbat
  kEndsYomTov = 2048,   // or a Yom Tov
  kInHolyNight = 4096,  // of kiddush levana: in the night of a Shabbat or Yom Tov
};

// One line of what is kept: an occasion's day, or a moment of it.
struct Row {
  int32_t day = 0;  // the civil day, Rata Die
  Occasion occasion = Occasion::kShabbat;
  Moment moment = Moment::kWholeDay;
  Rule rule = Rule::kNone;
  uint16_t notes = 0;                  // bits of Note
  int32_t number = 0;                  // as Occasion says; 0 where it says nothing
  std::optional<int32_t> minute = {};  // of the day on the clock in force, 0 to 1439; none for a whole day, and where
                                       // the moment does not occur
  int32_t offsetSeconds = 0;           // of that clock from UTC, at that moment

  bool operator==(const Row&) const = default;
};

Kind KindOf(Occasion occasion);

// Candles of a Yom Tov on Shabbat, and the end of days of both, are of both kinds.
bool IsOfKind(const Row& row, Kind kind);

// Stable names, ASCII: "pesach", "candles".
const char* IdOf(Occasion occasion);
const char* IdOf(Moment moment);
const char* IdOf(Kind kind);

}  // namespace occasions
