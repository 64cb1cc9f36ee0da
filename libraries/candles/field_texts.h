// The texts of the dialog's fields: dates and times as the user types and sees them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/calendar/date.h"
#include "libraries/candles/candles_core.h"

namespace candles {

// The program's years, Gregorian.
inline constexpr int32_t kFirstFridayYear = 1583;
inline constexpr int32_t kLastFridayYear = 3000;

calendar::Date DateOf(const Occasion& occasion);

// "08.03.2024"
std::string DateText(const calendar::Date& date);

// The Friday on or after a day.
calendar::Date ComingFriday(const calendar::Date& today);

// The first Friday on or after a day that the place has no times for.
calendar::Date FreeFriday(const Entries& entries, const std::string& place, const calendar::Date& today);

// A Friday as typed: day.month.year in digits, blanks around it allowed. Without a Friday there is a complaint, a
// sentence that says what to write instead; for another weekday it names the nearest Fridays.
struct FridayAnswer {
  std::optional<calendar::Date> friday;
  std::string complaint;
};
FridayAnswer ReadFriday(std::string_view text);

struct TypedTime {
  int32_t hour;    // 0 to 23
  int32_t minute;  // 0 to 59
  bool hasHalf;    // "am" or "pm" was written

  bool operator==(const TypedTime&) const = default;
};

// "18:47"
std::string TimeText(int32_t hour, int32_t minute);

// A time as typed: "18:47" and "6:47" in 24-hour form, "6:47 pm", "06:47 p.m." in 12-hour form, whatever letters' case;
// blanks around it allowed. None for anything else.
std::optional<TypedTime> ReadTime(std::string_view text);

// Whether a time without its half may well have been meant for the evening: from 3:00 to 11:59. Short summer nights of
// the north end Shabbat after midnight, so earlier ones may be meant as they stand.
bool MayMeanEvening(const TypedTime& time);

// The place that a typed text names, the blanks around it aside: the known place spelled so, else the first one that
// differs from it in ASCII letter case alone. What names no known place stands as typed.
std::string PlaceMeant(const std::string& typed, const std::vector<std::string>& known);

}  // namespace candles
