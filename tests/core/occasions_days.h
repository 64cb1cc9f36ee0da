// Questions about occasions, and rows as short texts, as the tests of occasions have them.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/occasions/occasions_core.h"

namespace occasions {

// By the defaults, at sea level. zoneId: "" for the standard clock all year.
inline Question QuestionAt(const char* place, int32_t latitude, int32_t longitude, int32_t zoneHours,
                           int32_t zoneMinutes, const char* zoneId, calendar::Land land = calendar::Land::kDiaspora) {
  Question question;
  question.place = place;
  const sun::Site site = sun::SiteFromPacked(latitude, longitude, zoneHours, zoneMinutes);
  question.settings = {site, 0, {site.standardOffsetMinutes * 60, {}}};
  std::string(zoneId).copy(question.settings.clock.zoneId.data(), question.settings.clock.zoneId.size() - 1);
  if (question.place == "Jerusalem") {
    question.shabbat.isJerusalem = true;
    question.shabbat.candleMinutes = candles::kJerusalemMinutes;
  }
  question.land = land;
  return question;
}

inline Question InJerusalem() {
  return QuestionAt("Jerusalem", 3146, 3513, 2, 0, "Asia/Jerusalem", calendar::Land::kIsrael);
}

inline Question InNewYork() {
  return QuestionAt("New York", 4043, -7400, -5, 0, "America/New_York");
}

inline int32_t CivilDay(int32_t year, int32_t month, int32_t day) {
  return calendar::AbsoluteFromGregorian({day, month, year});
}

// "2025-04-10 Thu"
inline std::string DayText(int32_t day) {
  constexpr const char* kNames[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  const calendar::Date civil = calendar::GregorianFromAbsolute(day);
  char text[48];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %s", civil.year, civil.month, civil.day,
                kNames[static_cast<size_t>(calendar::WeekdayOf(day))]);
  return text;
}

// "18:05", "-" for a whole day, "----" for what does not occur.
inline std::string TimeText(const Row& row) {
  if (!row.minute) return row.moment == Moment::kWholeDay ? "-" : "----";
  char text[16];
  std::snprintf(text, sizeof text, "%02d:%02d", *row.minute / 60, *row.minute % 60);
  return text;
}

// "pesach 1 candles"; without a number where it is 0.
inline std::string WhatText(const Row& row) {
  const std::string number = row.number == 0 ? "" : " " + std::to_string(row.number);
  return std::string(IdOf(row.occasion)) + number + (row.moment == Moment::kWholeDay ? "" : " ") +
         (row.moment == Moment::kWholeDay ? "" : IdOf(row.moment));
}

using Wanted = std::vector<Occasion>;

// "2025-04-10 Thu search-for-chametz from" of the rows of some occasions, of all when none is named.
inline std::vector<std::string> DaysOf(const std::vector<Row>& rows, const Wanted& wanted = {}) {
  std::vector<std::string> texts;
  for (const Row& row : rows) {
    if (!wanted.empty() && std::ranges::find(wanted, row.occasion) == wanted.end()) continue;
    texts.push_back(DayText(row.day) + " " + WhatText(row));
  }
  return texts;
}

inline std::vector<Row> RowsOfJewishYear(const Question& question, int32_t year) {
  return RowsBetween(question, calendar::JewishNewYear(year), calendar::JewishNewYear(year + 1) - 1);
}

// The first row of an occasion and moment.
inline const Row* FindRow(const std::vector<Row>& rows, Occasion occasion, Moment moment, int32_t number = 0) {
  const auto found = std::ranges::find_if(
      rows, [&](const Row& row) { return row.occasion == occasion && row.moment == moment && row.number == number; });
  return found == rows.end() ? nullptr : &*found;
}

// The same, which has to be there.
inline Row TheRow(const std::vector<Row>& rows, Occasion occasion, Moment moment, int32_t number = 0) {
  const Row* const row = FindRow(rows, occasion, moment, number);
  if (row) return *row;
  ADD_FAILURE() << "no " << IdOf(occasion) << ' ' << number << ' ' << IdOf(moment);
  return {};
}

}  // namespace occasions
