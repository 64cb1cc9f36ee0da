#include "libraries/kinship/person_dates.h"

#include "libraries/calendar/gregorian.h"
#include "libraries/kinship/person_texts.h"
#include "libraries/persons/date_fields.h"

namespace kinship {
namespace {

using persons::AdarCustom;
using persons::Observance;
using persons::Person;

constexpr int kDaysOfOutlook = 3;

std::string DatesText(const persons::Observances& observances) {
  std::string text;
  for (const Observance& day : observances) {
    if (!text.empty()) text += ", ";
    text += NumericDay(day.absoluteDay);
  }
  return text;
}

AdarCustom CustomFor(const Person& person, const Shown& shown) {
  return persons::CustomOf(person.kind, person.adar, shown.ofYahrzeit);
}

int32_t FirstDay(const Shown& shown) {
  const bool isCurrent = calendar::GregorianFromAbsolute(shown.today).year == shown.year;
  return isCurrent ? shown.today : calendar::AbsoluteFromGregorian({1, 1, shown.year});
}

// Of a Jewish date after sunset, the Gregorian day that was then ending.
std::string DayOfEvent(const persons::EventDate& event, const calendar::Date& jewish) {
  const auto gregorian = persons::GregorianDateOf(event);
  const std::string evening = event.afterSunset ? ", after sunset" : "";
  if (!gregorian) return persons::JewishDateText(jewish) + evening;
  return DayInWords(calendar::AbsoluteFromGregorian(*gregorian)) + evening + ": " + persons::JewishDateText(jewish);
}

}  // namespace

std::string HeadingOf(Column column, const Shown& shown) {
  switch (column) {
    case Column::kName: return "Name";
    case Column::kOccasion: return "Occasion";
    case Column::kJewishDate: return "Jewish date";
    case Column::kNext: return "Next";
    case Column::kDay: return "Day";
    case Column::kYears: return "Years";
    case Column::kYear: return std::to_string(shown.year);
    case Column::kSecondYear: return std::to_string(shown.year + 1);
    case Column::kThirdYear: return std::to_string(shown.year + 2);
    case Column::kNotes: return "Notes";
  }
  return {};
}

PersonDates Reckoned(const Person& person, const Shown& shown) {
  PersonDates dates;
  dates.jewish = persons::JewishDateOf(person.event);
  const AdarCustom adar = CustomFor(person, shown);
  dates.next = persons::NextKept(dates.jewish, person.kind, adar, FirstDay(shown));
  for (int i = 0; i < kShownYears && shown.year + i <= persons::kLastGregorianYear; ++i) {
    dates.inYears[static_cast<size_t>(i)] =
        persons::KeptInGregorianYear(dates.jewish, person.kind, adar, shown.year + i);
  }
  return dates;
}

std::string CellOf(const Person& person, const PersonDates& dates, Column column) {
  switch (column) {
    case Column::kName: return person.name;
    case Column::kOccasion: return OccasionOf(person);
    case Column::kJewishDate: return persons::JewishDateText(dates.jewish);
    case Column::kNext: return dates.next ? NumericDay(dates.next->absoluteDay) : "";
    case Column::kDay: return dates.next ? WeekdayName(dates.next->absoluteDay) : "";
    case Column::kYears: return dates.next && dates.next->years ? std::to_string(*dates.next->years) : "";
    case Column::kYear: return DatesText(dates.inYears[0]);
    case Column::kSecondYear: return DatesText(dates.inYears[1]);
    case Column::kThirdYear: return DatesText(dates.inYears[2]);
    case Column::kNotes: return OneLine(person.notes);
  }
  return {};
}

std::string Outlook(const Person& person, const Shown& shown) {
  const calendar::Date jewish = persons::JewishDateOf(person.event);
  std::string text = DayOfEvent(person.event, jewish) + ".\nNext:";
  int32_t from = shown.today;
  for (int i = 0; i < kDaysOfOutlook; ++i) {
    const auto next = persons::NextKept(jewish, person.kind, CustomFor(person, shown), from);
    if (!next) break;
    text += "\n" + DayInWords(next->absoluteDay);
    if (next->years) text += " (" + std::to_string(*next->years) + ")";
    from = next->absoluteDay + 1;
  }
  return text;
}

}  // namespace kinship
