#include "libraries/candles/candles_core.h"

#include <array>
#include <cstdio>
#include <utility>

#include "libraries/calendar/gregorian.h"
#include "libraries/settings_folder/text_table.h"

namespace candles {
namespace {

// A line's columns, then the place.
constexpr std::string_view kPattern = "0000-00-00 00:00 00:00 ";

// The date in nine digits, whatever the year, then the place.
std::string KeyOf(std::string_view place, uint32_t day, uint32_t month, uint32_t year) {
  std::string key = std::to_string((year + 10000) * 10000 + month * 100 + day);
  return key.append(place);
}

}  // namespace

std::optional<Entry> EntryIn(std::string_view line) {
  std::array<uint32_t, 7> numbers;
  const auto texts = settings_folder::TakeColumns(line, kPattern, numbers);
  if (!texts) return std::nullopt;
  const auto [year, month, day, candleHour, candleMinute, endHour, endMinute] = numbers;
  const Times times = {static_cast<int32_t>(candleHour), static_cast<int32_t>(candleMinute),
                       static_cast<int32_t>(endHour), static_cast<int32_t>(endMinute)};
  std::optional<std::string> place = settings_folder::TextIn(*texts);
  const bool areTimes = times.candleHour < 24 && times.candleMinute < 60 && times.endHour < 24 && times.endMinute < 60;
  if (!calendar::IsGregorianDate(day, month, year) || !areTimes || !place || place->empty()) return std::nullopt;
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
  settings_folder::ForEachEntry(text, EntryIn, [this](Entry entry) {
    const Occasion& occasion = entry.occasion;
    std::string key = KeyOf(occasion.place, occasion.day, occasion.month, occasion.year);
    entriesByDateAndPlace_.insert_or_assign(std::move(key), std::move(entry));
  });
}

std::optional<Times> Store::Find(std::string_view place, uint32_t day, uint32_t month, uint32_t year) const {
  if (!calendar::IsGregorianDate(day, month, year)) return std::nullopt;
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
