// Questions and rows as the tests of lists, tables and events of occasions make them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "libraries/calendar/gregorian.h"
#include "libraries/occasions/taken.h"

namespace occasions {

inline Question QuestionAt(const sun::PackedPlace& place, const char* zoneId, calendar::Land land) {
  const sun::Site site = sun::SiteFromPacked(place.latitude, place.longitude, place.zoneHours, place.zoneMinutes);
  Question question;
  question.settings = {site, 0, {site.standardOffsetMinutes * 60, {}}};
  std::string(zoneId).copy(question.settings.clock.zoneId.data(), question.settings.clock.zoneId.size() - 1);
  question.land = land;
  return question;
}

inline constexpr sun::PackedPlace kNewYorkPlace = {4043, -7400, -5, 0};
inline constexpr sun::PackedPlace kJerusalemPlace = {3147, 3514, 2, 0};
inline constexpr sun::PackedPlace kSydneyPlace = {-3352, 15113, 10, 0};

inline int32_t DayOf(int32_t day, int32_t month, int32_t year) {
  return calendar::AbsoluteFromGregorian({day, month, year});
}

// What is taken of all occasions of a year.
inline Taken TakenYear(const sun::PackedPlace& place, const char* zoneId, calendar::Land land, Span span,
                       int32_t year) {
  Taken taken;
  taken.question = QuestionAt(place, zoneId, land);
  taken.packed = place;
  taken.place = "Some Place";
  taken.span = span;
  taken.year = year;
  taken.days = DaysOfYear(span, year);
  taken.rows = RowsBetween(taken.question, taken.days.first, taken.days.last);
  return taken;
}

}  // namespace occasions
