// The persons' dates as the file "persons.txt" keeps them, one line an entry:
//
//   yahrzeit|5710-12-16 jewish|both|Moshe ben Avraham||Har HaMenuchot, row 12
//
// the kind (birthday, yahrzeit, wedding, other); the day of the event (year-month-day, followed by "jewish" where it is
// a Jewish date, months from Nisan = 01 to Adar II = 13, and by "evening" where it was after sunset; a Jewish year that
// is not known is 0000); the Adar in which it is kept in leap years ("adar-1", "adar-2", "both"; empty: as for all);
// the name; what an "other" date is; notes. The file is UTF-8, with or without a mark at its start. Texts stand for
// themselves, except that "%" and two hexadecimal digits stand for a byte: so are written "%", "|", control characters,
// line ends among them, and blanks at either end. Empty lines and those that start with "#" are nobody's. All other
// lines that are not of this form are damaged: they are passed over, told to the user, and stay as they are.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/persons/personal_date.h"

namespace persons {

constexpr char kPersonsFile[] = "persons.txt";

// All texts are UTF-8.
struct Person {
  Kind kind = Kind::kBirthday;
  EventDate event;
  std::optional<AdarCustom> adar;  // none: as for all
  std::string name;                // not empty
  std::string title;               // what an "other" date is; may be empty
  std::string notes;               // may have several lines, ended by "\n"

  friend bool operator==(const Person&, const Person&) = default;
};

// No text of a person is longer, in bytes.
constexpr size_t kLongestName = 200;
constexpr size_t kLongestTitle = 200;
constexpr size_t kLongestNotes = 8000;

// Whether a person can be kept: the date exists, the texts are UTF-8 and not too long, the name is not blank.
bool CanBeKept(const Person& person);

std::optional<Person> PersonIn(std::string_view line);
std::string LineOf(const Person& person);

struct Persons {
  std::vector<Person> persons;        // in the order of the file
  std::vector<int32_t> damagedLines;  // their numbers, from 1
};
Persons PersonsIn(std::string_view fileText);

// One entry before and after: none before is a new one, none after a removed one.
struct Change {
  std::optional<Person> before;
  std::optional<Person> after;

  friend bool operator==(const Change&, const Change&) = default;
};

// The text of a file with the changes made. A changed entry keeps its line; new ones come at the end. Everything else
// keeps its bytes. An entry that is to be changed but is not there any more, because another copy of the program has
// changed or removed it, is added anew, so that neither is lost; one that is to be removed and is not there any more
// stays as the other made it. Both are told in missed. A file that is empty gets a first line that says what it is.
std::string Applied(const std::vector<Change>& changes, std::string_view fileText, std::vector<Change>* missed);

}  // namespace persons
