// A date of either calendar as it stands in the fields of a dialog: what it says, what is wrong with it, and the same
// day in the fields of the other calendar. Texts are UTF-8.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/persons/personal_date.h"

namespace persons {

// One line of fields.
struct DateFields {
  std::string day;
  int32_t month = 0;  // as the calendar numbers it; 0: none is chosen
  std::string year;

  friend bool operator==(const DateFields&, const DateFields&) = default;
};

// Whether a Jewish date may have its year left empty, which then is kUnknownYear.
enum class YearIs { kNeeded, kOptional };

enum class DateField : uint8_t { kDay, kMonth, kYear };

// date: none where the fields are no date; then message says why, in one sentence, and faulty is the field to be seen
// to.
struct DateReading {
  std::optional<calendar::Date> date;
  std::string message;
  DateField faulty = DateField::kDay;
};
DateReading ReadDate(Calendar calendar, const DateFields& fields, YearIs year);

// Nothing is typed and no month chosen.
bool AreEmpty(const DateFields& fields);

// The fields of a date, and those of the event's day in the other calendar, which are empty where it has no such date.
DateFields FieldsOf(const calendar::Date& date);
DateFields OtherFieldsOf(const EventDate& event);

struct MonthChoice {
  int32_t month;
  std::string name;

  friend bool operator==(const MonthChoice&, const MonthChoice&) = default;
};
std::vector<MonthChoice> GregorianMonths();

// The months in the order of the Jewish year, from Tishri. typedYear: as it stands in the field. Where it is no year,
// or empty, there are Adar and Adar II. chosen: stays among them, though the year does not have it.
std::vector<MonthChoice> JewishMonths(std::string_view typedYear, int32_t chosen);

// "16 Adar 5710", "16 February 1950"; without the year where it is not known.
std::string JewishDateText(const calendar::Date& date);
std::string GregorianDateText(const calendar::Date& date);

}  // namespace persons
