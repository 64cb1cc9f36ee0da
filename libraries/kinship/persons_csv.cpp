#include "libraries/kinship/persons_csv.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "libraries/kinship/date_words.h"
#include "libraries/kinship/person_texts.h"
#include "publishing/core/csv.h"

namespace kinship {
namespace {

using persons::Calendar;
using persons::Person;

using Record = std::vector<std::string>;
// Where each field stands in a record; -1: nowhere.
using Columns = std::array<int, kCsvHeadings.size()>;

constexpr std::array<const char*, 2> kCalendarNames = {"Gregorian", "Jewish"};
constexpr const char* kYesWords[] = {kYes, "y", "x", "1", "true"};
constexpr const char* kNoWords[] = {"", "no", "n", "0", "false"};

Columns ColumnsIn(const Record& headings) {
  Columns columns;
  columns.fill(-1);
  for (size_t i = 0; i < headings.size(); ++i) {
    const auto isIt = [heading = OneLine(headings[i])](const char* wanted) { return IsSameWord(heading, wanted); };
    const auto found = std::ranges::find_if(kCsvHeadings, isIt);
    if (found == kCsvHeadings.end()) continue;
    int& column = columns[static_cast<size_t>(found - kCsvHeadings.begin())];
    if (column < 0) column = static_cast<int>(i);
  }
  return columns;
}

// The one record as it is read.
class PersonRecord {
 public:
  PersonRecord(const Columns& columns, const Record& record) : columns_(columns), record_(record) {}

  bool IsEmpty() const {
    return std::ranges::all_of(record_, [](const std::string& text) { return OneLine(text).empty(); });
  }

  // None where a field cannot be read; message says which then.
  std::optional<Person> Read(std::string* message) const {
    Person person;
    person.name = Word(CsvField::kName);
    person.title = Word(CsvField::kTitle);
    person.notes = SeveralLines(Field(CsvField::kNotes));
    const bool isRead = ReadOccasion(&person, message) && ReadDate(&person, message) && ReadSunset(&person, message) &&
                        ReadAdar(&person, message);
    if (!isRead) return std::nullopt;
    if (auto fault = FaultIn(person)) return Refused(fault->message, message);
    if (!persons::CanBeKept(person))
      return Refused("its letters cannot be told; save the table as \"CSV UTF-8\".", message);
    return person;
  }

 private:
  static std::nullopt_t Refused(std::string why, std::string* message) {
    *message = std::move(why);
    return std::nullopt;
  }

  static bool No(const char* what, const std::string& word, const char* remedy, std::string* message) {
    *message = std::string(what) + " \"" + word + "\" is not known; write " + remedy + ".";
    return false;
  }

  std::string_view Field(CsvField field) const {
    const int column = columns_[static_cast<size_t>(field)];
    return column >= 0 && static_cast<size_t>(column) < record_.size() ? record_[static_cast<size_t>(column)]
                                                                       : std::string_view();
  }
  std::string Word(CsvField field) const { return OneLine(Field(field)); }

  bool ReadOccasion(Person* person, std::string* message) const {
    const std::string word = Word(CsvField::kOccasion);
    const auto kind = KindOfName(word);
    if (!kind) return No("the occasion", word, "Birthday, Yahrzeit, Wedding or Other", message);
    person->kind = *kind;
    return true;
  }

  bool ReadDate(Person* person, std::string* message) const {
    const std::string word = Word(CsvField::kCalendar);
    const auto name = std::ranges::find_if(kCalendarNames, [&](const char* one) { return IsSameWord(one, word); });
    const bool isNamed = name != kCalendarNames.end();
    if (!isNamed && !word.empty()) return No("the calendar", word, "Gregorian or Jewish", message);
    const auto calendar = isNamed ? std::optional(static_cast<Calendar>(name - kCalendarNames.begin())) : std::nullopt;
    const DateInWords date = ReadDateWords(Field(CsvField::kDate), calendar);
    *message = date.message;
    if (!date.date) return false;
    person->event.calendar = date.calendar;
    person->event.date = *date.date;
    return true;
  }

  bool ReadSunset(Person* person, std::string* message) const {
    const std::string word = Word(CsvField::kAfterSunset);
    const auto isIt = [&word](const char* one) { return IsSameWord(one, word); };
    person->event.afterSunset = std::ranges::any_of(kYesWords, isIt);
    if (person->event.afterSunset || std::ranges::any_of(kNoWords, isIt)) return true;
    return No("after sunset", word, "Yes or nothing", message);
  }

  bool ReadAdar(Person* person, std::string* message) const {
    const std::string word = Word(CsvField::kAdar);
    person->adar = AdarOfName(word);
    if (person->adar || word.empty()) return true;
    return No("the Adar", word, "Adar I, Adar II, Both or nothing", message);
  }

  const Columns& columns_;
  const Record& record_;
};

// By which entries are told apart: as the file keeps them, whatever blanks another program left in them.
std::string KeyOf(Person person) {
  person.name = OneLine(person.name);
  person.title = OneLine(person.title);
  person.notes = SeveralLines(person.notes);
  return persons::LineOf(person);
}

std::string RowName(size_t number, std::string_view name) {
  return "Row " + std::to_string(number) + (name.empty() ? "" : " (" + OneLine(name) + ")") + ": ";
}

std::string MissingColumns(const Columns& columns) {
  std::string missing;
  for (size_t i = 0; i < kNeededFields; ++i) {
    if (columns[i] < 0) missing += std::string(missing.empty() ? "\"" : ", \"") + kCsvHeadings[i] + "\"";
  }
  return missing;
}

}  // namespace

const char* CalendarName(Calendar calendar) {
  return kCalendarNames[static_cast<size_t>(calendar)];
}

Import ImportedFrom(std::string_view text, const std::vector<Person>& present) {
  Import import;
  const auto records = publishing::CsvIn(text);
  if (!records) {
    import.problem = "A text in it begins with a quotation mark and does not end with one.";
    return import;
  }
  const Columns columns = records->empty() ? ColumnsIn({}) : ColumnsIn(records->front());
  const std::string missing = MissingColumns(columns);
  if (!missing.empty()) {
    import.problem = "Its first row has to hold the columns' headings, among them " + missing + ".";
    return import;
  }
  std::set<std::string> known;
  for (const Person& person : present) known.insert(KeyOf(person));
  for (size_t i = 1; i < records->size(); ++i) {
    const PersonRecord record(columns, (*records)[i]);
    if (record.IsEmpty()) continue;
    std::string message;
    auto person = record.Read(&message);
    if (!person) {
      const auto name = static_cast<size_t>(columns[0]);
      const Record& texts = (*records)[i];
      import.faults.push_back(RowName(i + 1, name < texts.size() ? texts[name] : "") + message);
    } else if (known.insert(KeyOf(*person)).second) {
      import.added.push_back(std::move(*person));
    } else {
      ++import.alreadyThere;
    }
  }
  return import;
}

}  // namespace kinship
