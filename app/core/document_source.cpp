#include "app/core/document_source.h"

#include <algorithm>
#include <tuple>

#include "app/core/document_words.h"

namespace {

auto Order(const CalendarDate& date) {
  return std::tuple(date.uYear, date.uMonth, date.uDay);
}

template <typename Entry, typename DateOf>
const Entry* Find(std::span<const Entry> entries, const CalendarDate& date, DateOf dateOf) {
  const auto key = Order(date);
  const auto found =
      std::ranges::lower_bound(entries, key, {}, [&](const Entry& entry) { return Order(dateOf(entry)); });
  return found != entries.end() && Order(dateOf(*found)) == key ? &*found : nullptr;
}

}  // namespace

const ReadingsEntry* ReadingsOf(const DocumentSource& source, const CalendarDate& date) {
  return Find(source.readings, date, [](const ReadingsEntry& entry) { return entry.date; });
}

const ShabbatTimeEntry* ShabbatTimesOf(const DocumentSource& source, const CalendarDate& friday) {
  return Find(source.shabbatTimes, friday, FridayOf);
}

const ZmanimDay* ZmanimOf(const DocumentSource& source, const CalendarDate& date) {
  return Find(source.zmanimDays, date, [](const ZmanimDay& day) { return day.date; });
}

std::string JewishDateOf(const DocumentSource& source, int32_t absoluteDay, uint32_t language) {
  const CalendarDate jewish = source.services.Jewish(absoluteDay);
  return JewishDateInWords(jewish.uDay, source.services.JewishMonth(jewish, language), jewish.uYear, language);
}

std::string PortionOf(const DocumentSource& source, const CalendarDate& date) {
  const ReadingsEntry* const readings = ReadingsOf(source, date);
  if (!readings) return {};
  const std::string_view text = readings->torah1;
  return source.services.OfReadings(text.substr(0, text.find(": ")));
}
