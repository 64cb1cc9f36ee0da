#include "libraries/candles/candles_core.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "libraries/settings_folder/text_lines.h"

namespace candles {
namespace {

constexpr uint32_t kLastYear = 9999;

// A line is columns of fixed widths, then the place. In the pattern "0" stands for any digit.
constexpr std::string_view kPattern = "0000-00-00 00:00 00:00 ";

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool HasPattern(std::string_view line) {
  return line.size() > kPattern.size() && std::equal(kPattern.begin(), kPattern.end(), line.begin(),
                                                     [](char p, char c) { return p == '0' ? IsDigit(c) : p == c; });
}

uint32_t Number(std::string_view digits) {
  uint32_t number = 0;
  for (const char digit : digits) number = number * 10 + static_cast<uint32_t>(digit - '0');
  return number;
}

bool IsDate(uint32_t day, uint32_t month, uint32_t year) {
  constexpr uint32_t kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month < 1 || month > 12 || year < 1 || year > kLastYear) return false;
  const bool isLeapYear = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  return day >= 1 && day <= kDays[month - 1] + (month == 2 && isLeapYear ? 1 : 0);
}

// The date in nine digits, whatever the year, then the place.
std::string KeyOf(std::string_view place, uint32_t day, uint32_t month, uint32_t year) {
  std::string key = std::to_string((year + 10000) * 10000 + month * 100 + day);
  return key.append(place);
}

// The bytes that a written place stands for; none when it is damaged.
std::optional<std::string> Place(std::string_view written) {
  return settings_folder::PercentDecoded(written.substr(0, written.find_last_not_of(" \t") + 1));
}

}  // namespace

std::optional<Entry> EntryIn(std::string_view line) {
  if (!HasPattern(line)) return std::nullopt;
  const uint32_t year = Number(line.substr(0, 4));
  const uint32_t month = Number(line.substr(5, 2));
  const uint32_t day = Number(line.substr(8, 2));
  const auto part = [line](size_t at) { return static_cast<int32_t>(Number(line.substr(at, 2))); };
  const Times times = {part(11), part(14), part(17), part(20)};
  std::optional<std::string> place = Place(line.substr(kPattern.size()));
  const bool areTimes = times.candleHour < 24 && times.candleMinute < 60 && times.endHour < 24 && times.endMinute < 60;
  if (!IsDate(day, month, year) || !areTimes || !place || place->empty()) return std::nullopt;
  return Entry{{std::move(*place), year, month, day}, times};
}

std::string LineOf(const Entry& entry) {
  const Occasion& occasion = entry.occasion;
  const Times& times = entry.times;
  char columns[64];
  std::snprintf(columns, sizeof columns, "%04u-%02u-%02u %02d:%02d %02d:%02d ", occasion.year, occasion.month,
                occasion.day, times.candleHour, times.candleMinute, times.endHour, times.endMinute);
  return columns + settings_folder::PercentCoded(occasion.place);
}

Store::Store(std::string_view text) {
  text.remove_prefix(settings_folder::MarkLength(text));
  while (!text.empty()) {
    std::optional<Entry> entry = EntryIn(settings_folder::TakeLine(text).content);
    if (!entry) continue;
    const Occasion& occasion = entry->occasion;
    std::string key = KeyOf(occasion.place, occasion.day, occasion.month, occasion.year);
    entriesByDateAndPlace_.insert_or_assign(std::move(key), std::move(*entry));
  }
}

std::optional<Times> Store::Find(std::string_view place, uint32_t day, uint32_t month, uint32_t year) const {
  if (!IsDate(day, month, year)) return std::nullopt;
  const auto found = entriesByDateAndPlace_.find(KeyOf(place, day, month, year));
  if (found == entriesByDateAndPlace_.end()) return std::nullopt;
  return found->second.times;
}

Entries Store::All() const {
  Entries all;
  for (const auto& [key, entry] : entriesByDateAndPlace_) all.emplace(entry.occasion, entry.times);
  return all;
}

}  // namespace candles
