// The occasions of any days at a place, in their order.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "libraries/candles/shabbat_rule.h"
#include "libraries/occasions/customs.h"
#include "libraries/occasions/occasion.h"
#include "libraries/sun/place_settings.h"

namespace occasions {

// The civil years of which there are occasions.
constexpr int32_t kFirstYear = 1583;
constexpr int32_t kLastYear = 3000;

// What occasions depend on.
struct Question {
  std::string place;  // by its exact spelling, for the user's own times
  sun::PlaceSettings settings = {};
  candles::ShabbatRule shabbat;
  candles::OwnTimes ownTimes;
  Customs customs;
  calendar::Land land = calendar::Land::kDiaspora;
  bool hoursAtSeaLevel = false;  // whether proportional hours are reckoned from the sun at sea level
};

// Whatever is kept on civil days from first to last (Rata Die; cut to the years above), of the kinds that the customs
// show, ordered by day, then by time, whole days
// first.
std::vector<Row> RowsBetween(const Question& question, int32_t firstDay, int32_t lastDay);

}  // namespace occasions
