#include "libraries/persons/date_fields.h"

#include <algorithm>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/calendar/month_names.h"

namespace persons {
namespace {

constexpr int32_t kMostGregorianDays = 31;
constexpr int32_t kMostJewishDays = 30;
constexpr int32_t kSomeLeapYear = 3;    // the first of a cycle that has two Adars
constexpr int32_t kSomeCommonYear = 1;  // the first of a cycle
constexpr int kMostDigits = 4;

std::string_view Trimmed(std::string_view text) {
  const size_t first = text.find_first_not_of(" \t");
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// A number of at most four digits; none for all else.
std::optional<int32_t> NumberIn(std::string_view text) {
  const std::string_view digits = Trimmed(text);
  if (digits.empty() || digits.size() > kMostDigits) return std::nullopt;
  int32_t number = 0;
  for (const char digit : digits) {
    if (digit < '0' || digit > '9') return std::nullopt;
    number = number * 10 + (digit - '0');
  }
  return number;
}

// Which year stands for one that is not known when it comes to the months' names.
int32_t YearOfNames(int32_t month, int32_t year) {
  if (year != kUnknownYear) return year;
  return month == calendar::kAdarII ? kSomeLeapYear : kSomeCommonYear;
}

std::string JewishName(int32_t month, int32_t year) {
  return calendar::JewishMonthName(month, YearOfNames(month, year), calendar::kEnglish);
}

std::string GregorianName(int32_t month, int32_t year) {
  return calendar::GregorianMonthName(month, year, calendar::kEnglish);
}

// Of a year that is not known, the days that the month has in some year: Cheshvan, Kislev and Adar I have 30 in some.
int32_t MostDaysOf(const calendar::Date& jewish) {
  if (jewish.year != kUnknownYear) return calendar::DaysInJewishMonth(jewish.month, jewish.year);
  switch (jewish.month) {
    case calendar::kCheshvan:
    case calendar::kKislev:
    case calendar::kAdar: return kMostJewishDays;
  }
  return calendar::DaysInJewishMonth(jewish.month, kSomeLeapYear);
}

DateReading Fault(DateField field, std::string message) {
  return {std::nullopt, std::move(message), field};
}

std::string Between(const char* what, int32_t first, int32_t last) {
  return std::string("The ") + what + " must be between " + std::to_string(first) + " and " + std::to_string(last);
}

DateReading ReadParts(const DateFields& fields, int32_t mostDays, const std::string& yearFault,
                      const std::optional<int32_t>& year, bool isYearOptional) {
  if (Trimmed(fields.day).empty()) return Fault(DateField::kDay, "Enter the day.");
  const std::optional<int32_t> day = NumberIn(fields.day);
  if (!day || *day < 1 || *day > mostDays) return Fault(DateField::kDay, Between("day", 1, mostDays) + ".");
  if (fields.month == 0) return Fault(DateField::kMonth, "Choose the month.");
  if (Trimmed(fields.year).empty() && !isYearOptional) return Fault(DateField::kYear, "Enter the year.");
  if (!year) return Fault(DateField::kYear, yearFault);
  return {calendar::Date{*day, fields.month, *year}, {}, {}};
}

DateReading ReadGregorian(const DateFields& fields) {
  std::optional<int32_t> year = NumberIn(fields.year);
  if (year && (*year < kFirstGregorianYear || *year > kLastGregorianYear)) year.reset();
  const std::string yearFault =
      Between("year", kFirstGregorianYear, kLastGregorianYear) + "; enter earlier dates as Jewish dates.";
  DateReading reading = ReadParts(fields, kMostGregorianDays, yearFault, year, false);
  if (!reading.date) return reading;
  const calendar::Date& date = *reading.date;
  if (date.day <= calendar::DaysInGregorianMonth(date.month, date.year)) return reading;
  return Fault(DateField::kDay, std::to_string(date.day) + " " + GregorianName(date.month, date.year) +
                                    " does not exist in " + std::to_string(date.year) + ".");
}

DateReading ReadJewish(const DateFields& fields, bool isYearOptional) {
  std::optional<int32_t> year = NumberIn(fields.year);
  if (year && (*year < kFirstJewishYear || *year > kLastJewishYear)) year.reset();
  if (Trimmed(fields.year).empty() && isYearOptional) year = kUnknownYear;
  const std::string yearFault = Between("Jewish year", kFirstJewishYear, kLastJewishYear) +
                                (isYearOptional ? "; leave it empty where it is not known." : ".");
  DateReading reading = ReadParts(fields, kMostJewishDays, yearFault, year, isYearOptional);
  if (!reading.date) return reading;
  const calendar::Date& date = *reading.date;
  if (date.year != kUnknownYear && date.month > calendar::MonthsInJewishYear(date.year)) {
    return Fault(DateField::kMonth, "There is no Adar II in " + std::to_string(date.year) + ".");
  }
  if (date.day <= MostDaysOf(date)) return reading;
  const std::string end = date.year == kUnknownYear ? " does not exist." : " does not exist in ";
  return Fault(DateField::kDay, std::to_string(date.day) + " " + JewishName(date.month, date.year) + end +
                                    (date.year == kUnknownYear ? "" : std::to_string(date.year) + "."));
}

}  // namespace

DateReading ReadDate(Calendar calendar, const DateFields& fields, YearIs year) {
  if (calendar == Calendar::kGregorian) return ReadGregorian(fields);
  return ReadJewish(fields, year == YearIs::kOptional);
}

bool AreEmpty(const DateFields& fields) {
  return Trimmed(fields.day).empty() && fields.month == 0 && Trimmed(fields.year).empty();
}

DateFields FieldsOf(const calendar::Date& date) {
  return {std::to_string(date.day), date.month, date.year == kUnknownYear ? "" : std::to_string(date.year)};
}

DateFields OtherFieldsOf(const EventDate& event) {
  if (event.calendar == Calendar::kGregorian) return FieldsOf(JewishDateOf(event));
  const std::optional<calendar::Date> date = GregorianDateOf(event);
  return date ? FieldsOf(*date) : DateFields{};
}

std::vector<MonthChoice> GregorianMonths() {
  std::vector<MonthChoice> months;
  for (int32_t month = 1; month <= 12; ++month) months.push_back({month, GregorianName(month, kFirstGregorianYear)});
  return months;
}

std::vector<MonthChoice> JewishMonths(std::string_view typedYear, int32_t chosen) {
  int32_t year = NumberIn(typedYear).value_or(kUnknownYear);
  if (year < kFirstJewishYear || year > kLastJewishYear) year = kUnknownYear;
  const bool hasTwoAdars = year == kUnknownYear || calendar::IsJewishLeapYear(year) || chosen == calendar::kAdarII;
  std::vector<MonthChoice> months;
  const auto add = [&](int32_t month) {
    months.push_back({month, JewishName(month, month == calendar::kAdarII ? kUnknownYear : year)});
  };
  for (int32_t month = calendar::kTishri; month <= calendar::kAdar; ++month) add(month);
  if (hasTwoAdars) add(calendar::kAdarII);
  for (int32_t month = calendar::kNisan; month < calendar::kTishri; ++month) add(month);
  return months;
}

std::string JewishDateText(const calendar::Date& date) {
  const std::string text = std::to_string(date.day) + " " + JewishName(date.month, date.year);
  return date.year == kUnknownYear ? text : text + " " + std::to_string(date.year);
}

std::string GregorianDateText(const calendar::Date& date) {
  return std::to_string(date.day) + " " + GregorianName(date.month, date.year) + " " + std::to_string(date.year);
}

}  // namespace persons
