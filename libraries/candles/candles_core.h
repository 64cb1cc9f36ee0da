// The store of the user's own candle-lighting and end-of-Shabbat times.
//
// It is a text file, one line an entry:
//
//   2024-03-08 17:25 18:31 Jerusalem
//
// the Friday (year-month-day, Gregorian), candle lighting and end of Shabbat (hour:minute, 24 hours, clock time of the
// place), and the place to the end of the line, with one space between the columns. The place is 8-bit text that stands
// for itself, except that "%" and two hexadecimal digits stand for a byte: so are written a "%" (%25), line ends and
// other control characters, and spaces at either end. Of several entries for a place and Friday the last one counts.
// Lines that start with "#" and all that are not of this form are nobody's entries; they are passed over. Lines end in
// CR, LF or both; a UTF-8 byte order mark at the start is skipped.
#pragma once

#include <compare>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace candles {

struct Times {
  int32_t candleHour;    // 0 to 23
  int32_t candleMinute;  // 0 to 59
  int32_t endHour;
  int32_t endMinute;

  bool operator==(const Times&) const = default;
};

// What an entry is for, ordered by the place's bytes, then by date.
struct Occasion {
  std::string place;
  uint32_t year;
  uint32_t month;
  uint32_t day;

  auto operator<=>(const Occasion&) const = default;
};

struct Entry {
  Occasion occasion;
  Times times;

  bool operator==(const Entry&) const = default;
};

using Entries = std::map<Occasion, Times>;

// The entry that a line is; none when it is none.
std::optional<Entry> EntryIn(std::string_view line);

// The entry as a line, without an end. EntryIn gives it back, unless the place is empty.
std::string LineOf(const Entry& entry);

class Store {
 public:
  Store() = default;
  // text: the whole file.
  explicit Store(std::string_view text);

  // The times for a place, by its exact bytes, and a Gregorian date; none when there is no entry or no such date.
  std::optional<Times> Find(std::string_view place, uint32_t day, uint32_t month, uint32_t year) const;

  // All entries that count.
  Entries All() const;

 private:
  std::unordered_map<std::string, Entry> entriesByDateAndPlace_;
};

}  // namespace candles
