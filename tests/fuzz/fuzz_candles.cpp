#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>

#include "libraries/calendar/gregorian.h"
#include "libraries/candles/candles_core.h"
#include "tests/fuzz/check.h"

namespace {

using candles::Store;
using candles::Times;

struct Entry {
  int32_t day;
  int32_t month;
  int32_t year;
  Times times;
};

bool IsEntry(const Entry& entry) {
  return entry.year >= 1 && entry.day >= 1 && entry.day <= calendar::DaysInGregorianMonth(entry.month, entry.year) &&
         entry.times.candleHour < 24 && entry.times.candleMinute < 60 && entry.times.endHour < 24 &&
         entry.times.endMinute < 60;
}

std::string Written(const Entry& entry, const std::string& place) {
  const Times& times = entry.times;
  char columns[80];
  std::snprintf(columns, sizeof columns, "%04d-%02d-%02d %02d:%02d %02d:%02d ", entry.year, entry.month, entry.day,
                times.candleHour, times.candleMinute, times.endHour, times.endMinute);
  std::string line = columns;
  for (const char c : place) {
    char byte[4];
    std::snprintf(byte, sizeof byte, "%%%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
    line += byte;
  }
  return line;
}

std::optional<Times> Find(const std::string& text, const Entry& entry, const std::string& place) {
  return Store(text).Find(place, static_cast<uint32_t>(entry.day), static_cast<uint32_t>(entry.month),
                          static_cast<uint32_t>(entry.year));
}

// Below whatever text, an entry counts when its numbers are a date and times, and else changes nothing.
void CheckEntryBelow(const std::string& text, const Entry& entry, const std::string& place) {
  const std::string below = text + "\n" + Written(entry, place) + "\n";
  FUZZ_CHECK(Find(below, entry, place) == (IsEntry(entry) ? entry.times : Find(text, entry, place)));
  FUZZ_CHECK(Find(below, entry, place + "x") == Find(text, entry, place + "x"));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const auto number = [&input](int32_t last) { return input.ConsumeIntegralInRange(0, last); };
  const Entry entry = {number(40), number(20), number(9999), {number(30), number(70), number(30), number(70)}};
  const auto anyDay = input.ConsumeIntegral<uint32_t>();
  const auto anyMonth = input.ConsumeIntegral<uint32_t>();
  const auto anyYear = input.ConsumeIntegral<uint32_t>();
  const std::string place = input.ConsumeRandomLengthString(40);
  const std::string text = input.ConsumeRemainingBytesAsString();
  Store(text).Find(place, anyDay, anyMonth, anyYear);
  if (!place.empty()) CheckEntryBelow(text, entry, place);
  return 0;
}
