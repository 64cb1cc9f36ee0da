#include "libraries/kinship/person_table.h"

#include <initializer_list>
#include <utility>
#include <vector>

#include "libraries/kinship/date_words.h"
#include "libraries/kinship/person_texts.h"
#include "libraries/kinship/persons_csv.h"

namespace kinship {
namespace {

using persons::Person;
using publishing::Align;
using publishing::Table;

// What the list shows beside the columns that are read in again.
constexpr Column kShownInCsv[] = {Column::kJewishDate, Column::kNext,       Column::kDay,      Column::kYears,
                                  Column::kYear,       Column::kSecondYear, Column::kThirdYear};

std::string ReadAgain(const Person& person, CsvField field) {
  switch (field) {
    case CsvField::kName: return person.name;
    case CsvField::kOccasion: return KindName(person.kind);
    case CsvField::kDate: return DateWords(person.event);
    case CsvField::kTitle: return person.title;
    case CsvField::kCalendar: return CalendarName(person.event.calendar);
    case CsvField::kAfterSunset: return person.event.afterSunset ? kYes : "";
    case CsvField::kAdar: return person.adar ? AdarName(*person.adar) : "";
    case CsvField::kNotes: return person.notes;
  }
  return {};
}

}  // namespace

Table TableOf(const std::vector<Person>& people, const Shown& shown) {
  Table table;
  table.title = "Birthdays, yahrzeit and other dates";
  table.remarks = {"As of " + DayInWords(shown.today)};
  for (int i = 0; i < kColumns; ++i) {
    const auto column = static_cast<Column>(i);
    table.columns.push_back({HeadingOf(column, shown), column == Column::kYears ? Align::kEnd : Align::kStart});
  }
  std::vector<std::vector<std::string>> rows;
  for (const Person& person : people) {
    const PersonDates dates = Reckoned(person, shown);
    std::vector<std::string> row;
    for (int i = 0; i < kColumns; ++i) row.push_back(CellOf(person, dates, static_cast<Column>(i)));
    rows.push_back(std::move(row));
  }
  table.rows = publishing::ListedTexts(std::move(rows));
  return table;
}

Table CsvTableOf(const std::vector<Person>& people, const Shown& shown) {
  Table table;
  for (const char* const heading : kCsvHeadings) table.columns.push_back({heading, Align::kStart});
  for (const Column column : kShownInCsv) table.columns.push_back({HeadingOf(column, shown), Align::kStart});
  std::vector<std::vector<std::string>> rows;
  for (const Person& person : people) {
    const PersonDates dates = Reckoned(person, shown);
    std::vector<std::string> row;
    for (size_t i = 0; i < kCsvHeadings.size(); ++i) row.push_back(ReadAgain(person, static_cast<CsvField>(i)));
    for (const Column column : kShownInCsv) row.push_back(CellOf(person, dates, column));
    rows.push_back(std::move(row));
  }
  table.rows = publishing::ListedTexts(std::move(rows));
  return table;
}

}  // namespace kinship
