// What a person's date is, and on which days it is kept.
//
// Sources: Shulchan Aruch, Orach Chaim 55:9-10 (birthdays) and 568:7 with Rema and Mishnah Berurah (yahrzeit in Adar);
// Magen Avraham 568:20 (30 Cheshvan and 30 Kislev, by the first anniversary); E. M. Reingold, N. Dershowitz,
// "Calendrical Calculations", "Hebrew Birthday" and "Hebrew Yahrzeit".
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "libraries/calendar/date.h"

namespace persons {

enum class Kind : uint8_t { kBirthday, kYahrzeit, kWedding, kOther };
constexpr int kKinds = 4;

// Where the month of a leap year is not given by the date itself, because the year of the event had one Adar.
enum class AdarCustom : uint8_t { kAdarI, kAdarII, kBoth };

enum class Calendar : uint8_t { kGregorian, kJewish };

// The day of an event as the user gave it. A civil day after sunset is the next Jewish day.
struct EventDate {
  Calendar calendar = Calendar::kGregorian;
  calendar::Date date = {};  // a Jewish year may be kUnknownYear
  bool afterSunset = false;

  friend bool operator==(const EventDate&, const EventDate&) = default;
};
constexpr int32_t kUnknownYear = 0;

// The years in which events lie and are kept. Before the Gregorian calendar began, a date can be given as a Jewish one.
constexpr int32_t kFirstGregorianYear = 1583;
constexpr int32_t kLastGregorianYear = 3000;
constexpr int32_t kFirstJewishYear = 1;
constexpr int32_t kLastJewishYear = 6761;  // begins in the last Gregorian one

// Whether the date exists, within the years above. Where the year is not known, a day that some year has: up to 30 of
// Adar (I), which then can only be Adar I.
bool IsDate(const EventDate& event);

// The Jewish date of an event that IsDate; its year is kUnknownYear where it is not known.
calendar::Date JewishDateOf(const EventDate& event);

// The Gregorian date of the event, before sunset that of the Jewish date's daytime; none where the year is not known,
// or where it lies outside the years above.
std::optional<calendar::Date> GregorianDateOf(const EventDate& event);

// A day on which an event is kept: the daytime of the Jewish day that begins the evening before.
struct Observance {
  int32_t absoluteDay = 0;
  std::optional<int32_t> years;  // since the event, 0 for its own day; none where its year is not known

  friend bool operator==(const Observance&, const Observance&) = default;
};

// One or two days in ascending order, or none.
class Observances {
 public:
  void Add(const Observance& observance) { days_[size_++] = observance; }
  bool empty() const { return size_ == 0; }
  size_t size() const { return size_; }
  const Observance& operator[](size_t i) const { return days_[i]; }
  const Observance* begin() const { return days_.data(); }
  const Observance* end() const { return days_.data() + size_; }

 private:
  std::array<Observance, 2> days_ = {};
  size_t size_ = 0;
};

// What is kept in a Jewish year, from the event's own year on, in which it is the event's own day alone. adar counts
// only where IsAdarByCustom. jewish: as JewishDateOf answers it.
Observances KeptInJewishYear(const calendar::Date& jewish, Kind kind, AdarCustom adar, int32_t jewishYear);

// What is kept in a Gregorian year: none or two days where the event lies near its end.
Observances KeptInGregorianYear(const calendar::Date& jewish, Kind kind, AdarCustom adar, int32_t gregorianYear);

// The first day on or after a day; none where the years end before it.
std::optional<Observance> NextKept(const calendar::Date& jewish, Kind kind, AdarCustom adar, int32_t fromAbsoluteDay);

// Whether the month in which the date is kept in leap years is a matter of custom: Adar of a common year, or of one
// that is not known, but for its 30th.
bool IsAdarByCustom(const calendar::Date& jewish);

// The custom of an event whose own is not given: for yahrzeit that of all, for all others Adar II.
AdarCustom CustomOf(Kind kind, const std::optional<AdarCustom>& own, AdarCustom ofYahrzeit);

// The Jewish day on which a child comes of age, as an absolute day: a boy is 13, a girl 12. None beyond the years
// above.
std::optional<int32_t> ComesOfAge(const calendar::Date& jewishBirth, int32_t years);

}  // namespace persons
