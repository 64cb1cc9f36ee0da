#include "libraries/lections/reading_names.h"

#include <cstdio>
#include <string_view>

#include "libraries/calendar/gregorian.h"
#include "libraries/lections/numerals.h"

namespace lections {
namespace {

std::string Filled(const char* pattern, std::string_view name, std::string_view number) {
  std::string text;
  for (const char* c = pattern; *c != '\0'; ++c) {
    if (*c == '@') {
      text += name;
    } else if (*c == '#') {
      text += number;
    } else {
      text += *c;
    }
  }
  return text;
}

}  // namespace

std::string NameOf(const calendar::WeeklyPortion& read, const Language& language) {
  const std::string first = PortionName(language, read.portion);
  return read.joinedWithNext ? first + "-" + PortionName(language, read.Last()) : first;
}

std::string NameOf(const NumberedOccasion& occasion, bool isLeapYear, const Language& language) {
  const char* const name = OccasionName(language, occasion.occasion);
  if (occasion.number == 0) return name;
  if (occasion.occasion == Occasion::kRoshChodesh) {
    return Filled(language.words.monthly, name, MonthName(language.months, occasion.number, isLeapYear));
  }
  return Filled(language.words.numbered, name, Number(occasion.number, language.notation.numerals));
}

std::string CivilDateText(int32_t day) {
  const calendar::Date civil = calendar::GregorianFromAbsolute(day);
  char text[40];
  std::snprintf(text, sizeof text, "%02d.%02d.%04d", civil.day, civil.month, civil.year);
  return text;
}

}  // namespace lections
