// Times of zmanim that the user has set by hand.
//
// They are kept in a text file, one line a time:
//
//   2024-03-08 17:25 Shkia|Jerusalem
//
// the date (year-month-day, Gregorian), the time (hour:minute, 24 hours, clock time of the place), the zman's English
// description, a "|" and the place's name to the end of the line, with one space between the columns. Both texts are
// 8-bit and stand for themselves, except that "%" and two hexadecimal digits stand for a byte: so are written a "%"
// (%25), a "|" (%7C), line ends and other control characters, and spaces at either end of a text. Of several lines for
// a date, zman and place the last one counts. Lines that start with "#" and all that are not of this form are nobody's;
// they are passed over. Lines end in CR, LF or both; a UTF-8 byte order mark at the start is skipped.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "libraries/calendar/date.h"

namespace ownhours {

struct Time {
  int32_t hour;    // 0 to 23
  int32_t minute;  // 0 to 59

  auto operator<=>(const Time&) const = default;
};

// A Gregorian date of the years 1 to 9999 in one number that grows with time.
using PackedDate = uint32_t;

// None for what is no date.
std::optional<PackedDate> PackDate(uint32_t day, uint32_t month, uint32_t year);
calendar::Date DateOf(PackedDate date);

// What a time is for. The texts are compared byte by byte; the description is not empty.
struct Occasion {
  PackedDate date;
  std::string description;
  std::string place;

  auto operator<=>(const Occasion&) const = default;
};

struct Entry {
  Occasion occasion;
  Time time;

  bool operator==(const Entry&) const = default;
};

using Entries = std::map<Occasion, Time>;

// The times that are to be set; none where an entry is to go.
using Changes = std::map<Occasion, std::optional<Time>>;

// Whether a time for such a thing can be kept.
bool CanBeKept(const Entry& entry);

// The entry that a line is; none when it is none. The entry as a line, without an end.
std::optional<Entry> EntryIn(std::string_view line);
std::string LineOf(const Entry& entry);

// The text of a file with the changes made. A changed time keeps its line; new ones come at the end, in the order of
// Occasion, their lines ended as the text's first one (CR and LF when it has none). Lines that a changed one made void
// go too. Everything else keeps its bytes.
std::string Applied(const Changes& changes, std::string_view text);

// All times at hand. A look-up takes less than 0.1 microseconds, and a fifth of that on a date that has no times.
class OwnTimes {
 public:
  OwnTimes() = default;
  // text: the whole file.
  explicit OwnTimes(std::string_view text);

  // Of most dates there is nothing to find.
  bool HasTimesOn(PackedDate date) const { return zmanimOfDate_.contains(date); }
  std::optional<Time> Find(PackedDate date, std::string_view description, std::string_view place) const;
  void Set(Entry entry);

  Entries All() const;

 private:
  struct Key {
    PackedDate date;
    std::string_view description;
    std::string_view place;
  };
  struct Hash {
    using is_transparent = void;
    size_t operator()(const Key& key) const;
    size_t operator()(const Occasion& occasion) const;
  };
  struct Equal {
    using is_transparent = void;
    bool operator()(const Occasion& left, const Occasion& right) const { return left == right; }
    bool operator()(const Key& left, const Occasion& right) const;
    bool operator()(const Occasion& left, const Key& right) const { return operator()(right, left); }
  };

  // The dates that have times, each with a bit for every zman that has one, by its description's hash: so almost every
  // look-up that finds nothing ends here.
  std::unordered_map<PackedDate, uint64_t> zmanimOfDate_;
  std::unordered_map<Occasion, Time, Hash, Equal> times_;
};

}  // namespace ownhours
