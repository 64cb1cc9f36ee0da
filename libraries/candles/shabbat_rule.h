// When candles are lit and when Shabbat ends, by the user's settings: the one reading of them for libraries.
//
//   shabbat2.ini  [Shabbat]  CandleLighting=minutes  DoMinutes=0|1  End=minutes
//                            DegreesBelowHorizon=degrees  AddMinutesAfterDegrees=minutes
//
// The program's own Shabbat times read the same keys by the same rules; tests hold the two together.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "libraries/candles/candles_core.h"
#include "libraries/sun/place_settings.h"

namespace candles {

constexpr int32_t kJerusalemMinutes = 40;  // the custom of the city (Luach Eretz Yisrael)

struct ShabbatRule {
  int32_t candleMinutes = 18;  // before sunset; any number
  bool isJerusalem = false;    // the minutes are the city's, whatever the settings say
  bool endsByMinutes = true;
  int32_t endMinutes = 45;  // after sunset
  double endDegrees = 8.0;  // the sun's depression
  int32_t minutesAfterDegrees = 0;

  bool operator==(const ShabbatRule&) const = default;
};

// place: the name; only one that is exactly "Jerusalem" is that city.
ShabbatRule ReadShabbatRule(const sun::SettingsReader& reader, std::string_view place);

// Minutes from the sunset of a day since 1970-01-01, the solar library's minute, to the end of Shabbat or Yom Tov.
// Where the sun does not get as low as the rule wants, its lowest point ends the day.
int32_t MinutesToEnd(int32_t unixDay, const sun::PlaceSettings& place, const ShabbatRule& rule);

// The times that the user has set for a place and the Friday of an absolute day.
using OwnTimes = std::function<std::optional<Times>(int32_t friday)>;

}  // namespace candles
