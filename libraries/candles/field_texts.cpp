#include "libraries/candles/field_texts.h"

#include <algorithm>
#include <cstdio>

#include "libraries/calendar/gregorian.h"
#include "libraries/sun/places.h"

namespace candles {
namespace {

constexpr int32_t kMostDigits = 9;  // as many as fit 32 bits
constexpr int32_t kDaysInWeek = 7;
constexpr const char* kWeekdayNames[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

std::string_view Trimmed(std::string_view text) {
  const size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Takes a number of digits off the text; none when it does not start with one.
std::optional<int32_t> TakeNumber(std::string_view& text) {
  const size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
  if (count == 0 || count > kMostDigits) return std::nullopt;
  int32_t number = 0;
  for (const char digit : text.substr(0, count)) number = number * 10 + (digit - '0');
  text.remove_prefix(count);
  return number;
}

bool Take(std::string_view& text, char expected) {
  if (!text.starts_with(expected)) return false;
  text.remove_prefix(1);
  return true;
}

std::optional<calendar::Date> DateIn(std::string_view text) {
  const std::optional<int32_t> day = TakeNumber(text);
  if (!day || !Take(text, '.')) return std::nullopt;
  const std::optional<int32_t> month = TakeNumber(text);
  if (!month || !Take(text, '.')) return std::nullopt;
  const std::optional<int32_t> year = TakeNumber(text);
  if (!year || !text.empty()) return std::nullopt;
  return calendar::Date{*day, *month, *year};
}

bool IsInRange(int32_t number, int32_t least, int32_t most) {
  return number >= least && number <= most;
}

std::string RangeComplaint(const char* part, int32_t least, int32_t most) {
  return std::string("The ") + part + " of the Friday must be in the range " + std::to_string(least) + "-" +
         std::to_string(most) + ".";
}

std::string WeekdayComplaint(const calendar::Date& date) {
  const calendar::Date after = ComingFriday(date);
  const calendar::Date before = calendar::GregorianFromAbsolute(calendar::AbsoluteFromGregorian(after) - kDaysInWeek);
  const bool hasBefore = before.year >= kFirstFridayYear;
  const bool hasAfter = after.year <= kLastFridayYear;
  const auto weekday = static_cast<size_t>(calendar::WeekdayOf(calendar::AbsoluteFromGregorian(date)));
  std::string complaint = DateText(date) + " is a " + kWeekdayNames[weekday] + ". Times are kept by the Friday: ";
  complaint += hasBefore && hasAfter ? "the nearest are " : "the nearest is ";
  if (hasBefore) complaint += DateText(before);
  if (hasBefore && hasAfter) complaint += " and ";
  if (hasAfter) complaint += DateText(after);
  return complaint + ".";
}

enum class Half { kNone, kMorning, kAfternoon };

// The half of the day that a text names: "am", "a.m.", "p.m" and so on, or nothing.
std::optional<Half> HalfIn(std::string_view text) {
  if (text.empty()) return Half::kNone;
  const char letter = text.front();
  text.remove_prefix(1);
  Take(text, '.');
  if (!Take(text, 'm') && !Take(text, 'M')) return std::nullopt;
  Take(text, '.');
  if (!text.empty()) return std::nullopt;
  if (letter == 'a' || letter == 'A') return Half::kMorning;
  if (letter == 'p' || letter == 'P') return Half::kAfternoon;
  return std::nullopt;
}

}  // namespace

calendar::Date DateOf(const Occasion& occasion) {
  return {static_cast<int32_t>(occasion.day), static_cast<int32_t>(occasion.month),
          static_cast<int32_t>(occasion.year)};
}

std::string DateText(const calendar::Date& date) {
  char text[48];
  std::snprintf(text, sizeof text, "%02d.%02d.%04d", date.day, date.month, date.year);
  return text;
}

calendar::Date ComingFriday(const calendar::Date& today) {
  const int32_t day = calendar::AbsoluteFromGregorian(today);
  const int32_t friday = static_cast<int32_t>(calendar::Weekday::kFriday);
  const int32_t wait = (friday - static_cast<int32_t>(calendar::WeekdayOf(day)) + kDaysInWeek) % kDaysInWeek;
  return calendar::GregorianFromAbsolute(day + wait);
}

calendar::Date FreeFriday(const Entries& entries, const std::string& place, const calendar::Date& today) {
  calendar::Date friday = ComingFriday(today);
  while (entries.contains({place, static_cast<uint32_t>(friday.year), static_cast<uint32_t>(friday.month),
                           static_cast<uint32_t>(friday.day)})) {
    friday = calendar::GregorianFromAbsolute(calendar::AbsoluteFromGregorian(friday) + kDaysInWeek);
  }
  return friday;
}

FridayAnswer ReadFriday(std::string_view text) {
  const std::optional<calendar::Date> date = DateIn(Trimmed(text));
  if (!date) return {{}, "The Friday must be a date written day.month.year, such as 08.03.2024."};
  if (!IsInRange(date->month, 1, 12)) return {{}, RangeComplaint("month", 1, 12)};
  if (!IsInRange(date->year, kFirstFridayYear, kLastFridayYear)) {
    return {{}, RangeComplaint("year", kFirstFridayYear, kLastFridayYear)};
  }
  const int32_t lastDay = calendar::DaysInGregorianMonth(date->month, date->year);
  if (!IsInRange(date->day, 1, lastDay)) return {{}, RangeComplaint("day", 1, lastDay)};
  if (ComingFriday(*date) != *date) return {{}, WeekdayComplaint(*date)};
  return {date, {}};
}

std::string TimeText(int32_t hour, int32_t minute) {
  char text[32];
  std::snprintf(text, sizeof text, "%02d:%02d", hour, minute);
  return text;
}

std::optional<TypedTime> ReadTime(std::string_view text) {
  text = Trimmed(text);
  const size_t hourDigits = text.find(':');
  const std::optional<int32_t> hour = TakeNumber(text);
  if (!hour || hourDigits > 2 || !Take(text, ':')) return std::nullopt;
  const size_t lengthBefore = text.size();
  const std::optional<int32_t> minute = TakeNumber(text);
  if (!minute || lengthBefore - text.size() != 2 || *minute > 59) return std::nullopt;
  const std::optional<Half> half = HalfIn(Trimmed(text));
  if (!half) return std::nullopt;
  if (*half == Half::kNone) {
    if (*hour > 23) return std::nullopt;
    return TypedTime{*hour, *minute, false};
  }
  if (!IsInRange(*hour, 1, 12)) return std::nullopt;
  return TypedTime{*hour % 12 + (*half == Half::kAfternoon ? 12 : 0), *minute, true};
}

bool MayMeanEvening(const TypedTime& time) {
  return !time.hasHalf && IsInRange(time.hour, 3, 11);
}

std::string PlaceMeant(const std::string& typed, const std::vector<std::string>& known) {
  const auto isKnown = [&known](std::string_view place) { return std::ranges::find(known, place) != known.end(); };
  if (isKnown(typed)) return typed;
  const std::string_view trimmed = Trimmed(typed);
  if (isKnown(trimmed)) return std::string(trimmed);
  const auto like = [trimmed](const std::string& place) { return sun::DifferInCaseOnly(place, trimmed); };
  const auto found = std::ranges::find_if(known, like);
  return found == known.end() ? typed : *found;
}

}  // namespace candles
