// What is read on a Jewish date, in one land and one custom: from the date to the tables, without words.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "libraries/calendar/date.h"
#include "libraries/calendar/portion_schedule.h"
#include "libraries/lections/passage.h"
#include "libraries/lections/reading_tables.h"

namespace lections {

// A list with room for as much as any day has.
template <typename T, size_t kRoom>
class ShortList {
 public:
  constexpr void Add(const T& item) { items_.at(size_++) = item; }
  constexpr bool empty() const { return size_ == 0; }
  constexpr size_t size() const { return size_; }
  constexpr const T& operator[](size_t i) const { return items_[i]; }
  constexpr const T* begin() const { return items_.data(); }
  constexpr const T* end() const { return items_.data() + size_; }

 private:
  std::array<T, kRoom> items_{};
  size_t size_ = 0;
};

// An occasion, its number (the day of a festival) or month (of Rosh Chodesh, as calendar::JewishMonth) where it has
// one, else 0.
struct NumberedOccasion {
  Occasion occasion = Occasion::kNone;
  int number = 0;

  friend bool operator==(const NumberedOccasion&, const NumberedOccasion&) = default;
};

// The part of the day's readings that a line is, in the order in which they are listed.
enum class Part : uint8_t { kMain, kRoshChodesh, kMaftir, kMaftirOfWalledCities, kWalledCities, kAfternoon, kScroll };
constexpr int kPartCount = 7;

struct Line {
  Part part = Part::kMain;
  Passage passage;
  // Names the portion whose beginning is read on a Shabbat afternoon.
  std::optional<calendar::WeeklyPortion> portion;
};

// What a day is called and what is read on it; no Torah reading: the day has none.
struct DayReadings {
  std::optional<calendar::WeeklyPortion> portion;
  ShortList<NumberedOccasion, 4> occasions;
  ShortList<Line, 5> torah;
  ShortList<Line, 3> haftarot;
};

// What is listed only when asked for.
struct Optional {
  bool mondayAndThursday = false;
  bool shabbatAfternoon = false;
  bool triennial = false;  // of the weekly portion a third, instead of all of it

  friend bool operator==(const Optional&, const Optional&) = default;
};

// Nothing for a date that does not exist. Months as calendar::JewishMonth, years 1 to 9999.
DayReadings ReadingsOn(const calendar::Date& date, calendar::Land land, Custom custom, const Optional& optional);

// Whether the calendar has such a date.
bool IsJewishDate(const calendar::Date& date);

// Yizkor is said on Yom Kippur, Shemini Atzeret and the last days of Pesach and Shavuot.
bool IsYizkor(const calendar::Date& date, calendar::Land land);

// The month that begins in the week after a Shabbat on which it is announced, as calendar::JewishMonth; 0 on other
// days. Tishri is not announced.
int32_t MonthAnnouncedOn(const calendar::Date& date);

}  // namespace lections
