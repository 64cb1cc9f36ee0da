#include "libraries/kinship/person_rows.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <set>
#include <tuple>
#include <utility>

#include "libraries/calendar/jewish.h"
#include "libraries/dialogs/typed_words.h"

namespace kinship {
namespace {

using persons::Person;

constexpr int64_t kLast = std::numeric_limits<int64_t>::max();
constexpr char kBetweenColumns = '\n';  // no word that is typed holds it

bool IsText(Column column) {
  return column == Column::kName || column == Column::kOccasion || column == Column::kNotes;
}

// By month and day of the year from Tishri on, then by year.
int64_t OrderInYear(const calendar::Date& jewish) {
  const int32_t month = jewish.month < calendar::kTishri ? jewish.month + calendar::kAdarII : jewish.month;
  return (int64_t{month} * 100 + jewish.day) * 10000 + jewish.year;
}

int64_t FirstOf(const persons::Observances& days) {
  return days.empty() ? kLast : days[0].absoluteDay;
}

// Rows without a number come last in either direction.
int NumberOrder(int64_t left, int64_t right, bool descending) {
  if (left == right) return 0;
  const bool isTurned = descending && left != kLast && right != kLast;
  return (left < right) != isTurned ? -1 : 1;
}

}  // namespace

void PersonRows::Take(const std::map<Id, Person>& persons, const Shown& shown) {
  const bool areKept = std::exchange(shown_, shown) == shown;
  std::vector<Row> old = std::exchange(rows_, {});
  rows_.reserve(persons.size());
  auto known = old.begin();
  for (const auto& [id, person] : persons) {
    while (known != old.end() && known->id < id) ++known;
    const bool isKept = areKept && known != old.end() && known->id == id && known->person == person;
    rows_.push_back(isKept ? std::move(*known) : MadeRow(id, person));
  }
  sorted_.resize(rows_.size());
  std::iota(sorted_.begin(), sorted_.end(), size_t{0});
  ShowAll();
}

PersonRows::Row PersonRows::MadeRow(Id id, const Person& person) const {
  Row row = {id, person, Reckoned(person, shown_), {}, letters_.sortKey(person.name)};
  std::string all;
  for (int i = 0; i < kColumns; ++i) all += CellOf(person, row.dates, static_cast<Column>(i)) + kBetweenColumns;
  row.searched = letters_.small(all);
  return row;
}

int64_t PersonRows::NumberIn(const Row& row, Column column) const {
  const auto& next = row.dates.next;
  switch (column) {
    case Column::kJewishDate: return OrderInYear(row.dates.jewish);
    case Column::kNext: return next ? next->absoluteDay : kLast;
    case Column::kDay: return next ? static_cast<int64_t>(calendar::WeekdayOf(next->absoluteDay)) : kLast;
    case Column::kYears: return next && next->years ? *next->years : kLast;
    case Column::kYear: return FirstOf(row.dates.inYears[0]);
    case Column::kSecondYear: return FirstOf(row.dates.inYears[1]);
    case Column::kThirdYear: return FirstOf(row.dates.inYears[2]);
    case Column::kName:
    case Column::kOccasion:
    case Column::kNotes: break;
  }
  return 0;
}

// Of a column of texts, the keys of all rows_; none for others.
std::vector<std::string> PersonRows::KeysOf(Column column) const {
  std::vector<std::string> keys;
  if (!IsText(column)) return keys;
  for (const Row& row : rows_) {
    keys.push_back(column == Column::kName ? row.nameKey : letters_.sortKey(CellOf(row.person, row.dates, column)));
  }
  return keys;
}

void PersonRows::Sort(Column column, bool descending) {
  const std::vector<std::string> keys = KeysOf(column);
  const auto order = [&](size_t left, size_t right) {
    if (!keys.empty()) return descending ? keys[right].compare(keys[left]) : keys[left].compare(keys[right]);
    return NumberOrder(NumberIn(rows_[left], column), NumberIn(rows_[right], column), descending);
  };
  const auto isBefore = [&](size_t left, size_t right) {
    const int byColumn = order(left, right);
    if (byColumn != 0) return byColumn < 0;
    const Row& a = rows_[left];
    const Row& b = rows_[right];
    const int64_t aNext = NumberIn(a, Column::kNext);
    const int64_t bNext = NumberIn(b, Column::kNext);
    return std::tie(aNext, a.nameKey, a.id) < std::tie(bNext, b.nameKey, b.id);
  };
  std::ranges::sort(sorted_, isBefore);
  ShowAll();
}

// What more letters find is among what fewer of them found.
void PersonRows::Search(std::string_view typed) {
  std::string small = letters_.small(typed);
  const std::vector<std::string> words = dialogs::WordsIn(small);
  const bool isNarrower = small.starts_with(typed_);
  typed_ = std::move(small);
  if (!isNarrower) found_ = sorted_;
  std::erase_if(found_, [&](size_t row) {
    const std::string& searched = rows_[row].searched;
    const auto isMissing = [&searched](const std::string& word) { return searched.find(word) == searched.npos; };
    return std::ranges::any_of(words, isMissing);
  });
}

// All rows are shown.
void PersonRows::ShowAll() {
  found_ = sorted_;
  typed_.clear();
}

std::string PersonRows::Text(int row, Column column) const {
  const Row& shown = RowOf(row);
  return CellOf(shown.person, shown.dates, column);
}

std::vector<Person> PersonRows::People(bool all) const {
  std::vector<Person> people;
  for (const size_t row : all ? sorted_ : found_) people.push_back(rows_[row].person);
  return people;
}

std::vector<int> PersonRows::RowsOf(const std::vector<Id>& ids) const {
  const std::set<Id> wanted(ids.begin(), ids.end());
  std::vector<int> rows;
  for (int row = 0; row < Count(); ++row) {
    if (wanted.contains(IdOf(row))) rows.push_back(row);
  }
  return rows;
}

int PersonRows::Beginning(std::string_view typed, int start) const {
  const std::string wanted = letters_.small(typed);
  for (int i = 0; i < Count(); ++i) {
    const int row = (std::max(start, 0) + i) % Count();
    if (RowOf(row).searched.starts_with(wanted)) return row;
  }
  return -1;
}

}  // namespace kinship
