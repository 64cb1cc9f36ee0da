#include "app/core/door_year.h"

#include "app/core/range_check.h"

namespace {

constexpr CalendarDate kFirstDay{1, 1, kFirstYear};
constexpr CalendarDate kLastDay{31, 12, kLastYear};

// The first day of the Jewish year, among those that ranges may have and the day after them.
int32_t FirstDayOf(const DocumentServices& services, uint32_t year) {
  int32_t low = services.AbsoluteDay(kFirstDay);
  int32_t high = services.AbsoluteDay(kLastDay) + 1;
  while (low < high) {
    const int32_t middle = low + (high - low) / 2;
    if (services.Jewish(middle).uYear < year) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low;
}

}  // namespace

uint32_t YearOf(const DocumentServices& services, DoorYear kind, const CalendarDate& date) {
  return kind == DoorYear::kCivil ? date.uYear : services.Jewish(services.AbsoluteDay(date)).uYear;
}

// The Jewish years at both ends are not whole.
YearLimits LimitsOf(const DocumentServices& services, DoorYear kind) {
  if (kind == DoorYear::kCivil) return {kFirstYear, kLastYear};
  return {YearOf(services, kind, kFirstDay) + 1, YearOf(services, kind, kLastDay) - 1};
}

std::optional<DateRange> DaysOfYear(const DocumentServices& services, DoorYear kind, uint32_t year) {
  const YearLimits limits = LimitsOf(services, kind);
  if (year < limits.first || year > limits.last) return std::nullopt;
  if (kind == DoorYear::kCivil) return DateRange{{1, 1, year}, {31, 12, year}};
  return DateRange{services.Gregorian(FirstDayOf(services, year)),
                   services.Gregorian(FirstDayOf(services, year + 1) - 1)};
}
