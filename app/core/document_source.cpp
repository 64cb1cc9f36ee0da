#include "app/core/document_source.h"

#include <algorithm>
#include <tuple>

#include "app/core/document_words.h"

namespace {

// No Shabbat begins or ends later than this after midnight, and no zman of the evening is.
constexpr uint32_t kFirstHourOfMorning = 6;

// Where the sun rises soon after midnight, dawn is at most this early in the night before.
constexpr int32_t kFirstHourOfNight = 21;

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

// A custom at the end of a name, with its comma; whether there was one.
bool TakeOffCustom(std::string& name, const std::vector<std::string>& customs) {
  for (const std::string& custom : customs) {
    const std::string end = ", " + custom;
    if (custom.empty() || !name.ends_with(end)) continue;
    name.resize(name.size() - end.size());
    return true;
  }
  return false;
}

}  // namespace

const ReadingsEntry* ReadingsOf(const DocumentSource& source, const CalendarDate& date) {
  const auto dateOf = [](const ReadingsEntry& entry) { return entry.date; };
  const ReadingsEntry* const found = Find(source.readings, date, dateOf);
  return found ? found : Find(std::span<const ReadingsEntry>(source.shabbatAfter), date, dateOf);
}

const ShabbatTimeEntry* ShabbatTimesOf(const DocumentSource& source, const CalendarDate& friday) {
  const ShabbatTimeEntry* const found = Find(source.shabbatTimes, friday, FridayOf);
  return found ? found : Find(std::span<const ShabbatTimeEntry>(source.fridayBefore), friday, FridayOf);
}

const ZmanimDay* ZmanimOf(const DocumentSource& source, const CalendarDate& date) {
  return Find(source.zmanimDays, date, [](const ZmanimDay& day) { return day.date; });
}

bool IsAfterMidnight(uint32_t hour) {
  return hour < kFirstHourOfMorning || (hour >= kHoursPerDay && hour < 2 * kHoursPerDay);
}

// Only the hours around midnight can be in question: the libraries are asked about them alone.
int32_t DayOffsetOf(const DocumentSource& source, const ZmanimDay& day, uint32_t zman) {
  const int32_t hour = day.times[zman].hour;
  if (hour >= kHoursPerDay) return hour < 2 * kHoursPerDay ? 1 : 0;
  const bool isNearMidnight = hour < static_cast<int32_t>(kFirstHourOfMorning) || hour >= kFirstHourOfNight;
  return hour >= 0 && isNearMidnight ? source.services.ZmanDayOffset(day, zman) : 0;
}

std::string JewishDateOf(const DocumentSource& source, int32_t absoluteDay, uint32_t language) {
  const CalendarDate jewish = source.services.Jewish(absoluteDay);
  return JewishDateInWords(jewish.uDay, source.services.JewishMonth(jewish, language), jewish.uYear, language);
}

std::string PortionOf(const DocumentSource& source, const CalendarDate& date) {
  const ReadingsEntry* const readings = ReadingsOf(source, date);
  if (!readings) return {};
  const std::string_view text = readings->torah1;
  std::string name = source.services.OfReadings(text.substr(0, text.find(": ")));
  while (TakeOffCustom(name, source.customs)) {
  }
  return name;
}
