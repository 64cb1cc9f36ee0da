// The customs that the user has chosen for the occasions of the year, and how the file "occasions.ini" says them.
//
//   [Occasions]
//   Land=AsReadings|Diaspora|Israel
//   Dawn=<id of a dawn in hours' catalogue>           when fasts begin
//   Nightfall=<id of a nightfall there>|minutes-<n>   when fasts end and the night's commandments may be done
//   NightfallOfAv=AsOthers|<the same>                 when the fast of 9 Av ends
//   Chametz=gra|mga-72-min|mga-16.1|...               the ends of the catalogue's ids
//   Chanukah=Sunset|Nightfall|HalfTwilight|Minutes    ChanukahMinutes=<n>
//   KiddushLevanaFrom=3|7                             KiddushLevanaUntil=HalfMonth|15
//   Selichot=Ashkenazi|Sephardi
//   Hidden=<ids of kinds, with commas>
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/calendar/portion_schedule.h"
#include "libraries/hours/zman.h"
#include "libraries/occasions/occasion.h"

namespace occasions {

enum class LandChoice : uint8_t { kAsReadings, kDiaspora, kIsrael };
enum class ChanukahRule : uint8_t {
  kSunset,
  kNightfall,     // the user's
  kHalfTwilight,  // 13.5 minutes before 7.083 degrees
  kMinutes,       // so many after sunset
};
enum class SelichotCustom : uint8_t { kAshkenazi, kSephardi };

struct Customs {
  LandChoice land = LandChoice::kAsReadings;
  std::string dawn = "dawn-16.1";
  std::string nightfall = "nightfall-7.083";
  std::string nightfallOfAv = "";  // empty: as others
  std::string chametz = "gra";
  ChanukahRule chanukah = ChanukahRule::kNightfall;
  int32_t chanukahMinutes = 10;             // 0 to kMostMinutes
  int32_t kiddushLevanaFromDays = 3;        // or 7
  bool kiddushLevanaUntilHalfMonth = true;  // else 15 days
  SelichotCustom selichot = SelichotCustom::kAshkenazi;
  uint32_t hiddenKinds = 0;  // a bit for each Kind

  bool operator==(const Customs&) const = default;
};

constexpr char kCustomsFile[] = "occasions.ini";
constexpr char kCustomsSection[] = "Occasions";
constexpr int32_t kMostMinutes = 180;
// The id of a nightfall so many minutes after sunset: "minutes-27".
constexpr std::string_view kMinutesId = "minutes-";

// The value of a key; empty when the file has none.
using ReadKey = std::function<std::string(const char* key)>;

// A key that is missing, or whose value means nothing, leaves its default.
Customs CustomsFrom(const ReadKey& read);

struct KeyValue {
  const char* key;
  std::string value;
};

// Each key with the value that says the custom; CustomsFrom reads it back.
std::vector<KeyValue> ValuesOf(const Customs& customs);

calendar::Land LandOf(const Customs& customs, calendar::Land landOfReadings);

constexpr bool IsShown(const Customs& customs, Kind kind) {
  return (customs.hiddenKinds >> static_cast<int>(kind) & 1) == 0;
}

// Whether one of its kinds is.
bool IsShown(const Customs& customs, const Row& row);

// What dawns, nightfalls and authorities for chametz there are to choose, in the catalogue's order. text: UTF-8.
struct Choice {
  std::string id;
  std::string text;
};
std::vector<Choice> DawnChoices();
std::vector<Choice> NightfallChoices();  // without those of minutes that the user types
std::vector<Choice> ChametzChoices();

// The zmanim that a choice names; an id that names none has its default's.
hours::Definition DawnOf(const Customs& customs);
hours::Definition NightfallOf(const std::string& id);
hours::Definition EatingChametz(const Customs& customs);
hours::Definition BurningChametz(const Customs& customs);

// The minutes of an id that names a nightfall by them.
std::optional<int32_t> MinutesOfId(std::string_view id);

// What the catalogue calls a zman, UTF-8, "Alot HaShachar (16.1°)"; empty when it has none of that id.
std::string NameOfZman(const std::string& id, bool hebrew);

// Whose opinion the times of chametz follow, UTF-8, as the catalogue's descriptions have it in brackets.
std::string OpinionOfChametz(const Customs& customs, bool hebrew);

}  // namespace occasions
