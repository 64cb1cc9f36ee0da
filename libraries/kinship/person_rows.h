// The rows of the list: what is sorted and searched, reckoned once for each entry and year.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/kinship/person_dates.h"
#include "libraries/persons/persons_editing.h"

namespace kinship {

// What the system knows of letters. Texts are UTF-8.
struct Letters {
  std::string (*small)(std::string_view text);
  // Keys in whose byte order a person would look the texts up, whatever their letters' case.
  std::string (*sortKey)(std::string_view text);
};

class PersonRows {
 public:
  using Id = persons::Editing::Id;

  explicit PersonRows(const Letters& letters) : letters_(letters) {}

  // Takes all entries. Those that have not changed since keep what was reckoned of them, unless other years are shown.
  void Take(const std::map<Id, persons::Person>& persons, const Shown& shown);

  // The order of all rows; where a column says the same, by the next day, then by name. All rows are shown after this
  // and after Take.
  void Sort(Column column, bool descending);

  // Which rows are shown: those of which each word that was typed stands somewhere in a column, letters' case aside.
  void Search(std::string_view typed);

  int Count() const { return static_cast<int>(found_.size()); }
  Id IdOf(int row) const { return RowOf(row).id; }
  const persons::Person& PersonOf(int row) const { return RowOf(row).person; }
  std::string Text(int row, Column column) const;

  // In their order, those that are shown, or all.
  std::vector<persons::Person> People(bool all) const;

  // From the top, the rows of those that have one.
  std::vector<int> RowsOf(const std::vector<Id>& ids) const;

  // The first row from start on, or from the top, whose name begins with what is typed; -1 when there is none.
  int Beginning(std::string_view typed, int start) const;

 private:
  struct Row {
    Id id = 0;
    persons::Person person;
    PersonDates dates;
    std::string searched;  // all columns in small letters
    std::string nameKey;
  };

  void ShowAll();
  Row MadeRow(Id id, const persons::Person& person) const;
  const Row& RowOf(int row) const { return rows_[found_[static_cast<size_t>(row)]]; }
  int64_t NumberIn(const Row& row, Column column) const;
  std::vector<std::string> KeysOf(Column column) const;

  const Letters letters_;
  Shown shown_;
  std::vector<Row> rows_;       // by id
  std::vector<size_t> sorted_;  // of rows_
  std::vector<size_t> found_;   // of sorted_
  std::string typed_;           // what found_ was searched for, in small letters
};

}  // namespace kinship
