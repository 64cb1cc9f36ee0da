#include "libraries/occasions/occasion_list.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "libraries/dialogs/typed_words.h"
#include "publishing/core/unicode.h"

namespace occasions {
namespace {

void EraseThoseIn(const std::string& text, std::vector<std::string>& words) {
  std::erase_if(words, [&text](const std::string& word) { return text.find(word) != text.npos; });
}

}  // namespace

void OccasionList::Take(Question question, std::vector<Row> rows) {
  question_ = std::move(question);
  rows_ = std::move(rows);
  shown_.resize(rows_.size());
  std::iota(shown_.begin(), shown_.end(), size_t{0});
  Narrow();
}

void OccasionList::ShowKind(std::optional<Kind> kind) {
  kind_ = kind;
  shown_.resize(rows_.size());
  std::iota(shown_.begin(), shown_.end(), size_t{0});
  Narrow();
}

// What more letters find is among what fewer of them found.
void OccasionList::Search(std::string_view typed) {
  std::string folded = fold_(typed);
  if (folded == typed_) return;
  const bool isNarrower = folded.starts_with(typed_);
  typed_ = std::move(folded);
  words_ = dialogs::WordsIn(typed_);
  isTypedAscii_ = publishing::IsPlainAscii(typed_);
  if (isNarrower) return Narrow();
  ShowKind(kind_);
}

void OccasionList::Narrow() {
  if (!kind_ && words_.empty()) return;
  std::erase_if(shown_, [this](size_t index) {
    const Row& row = rows_[index];
    return (kind_ && !IsOfKind(row, *kind_)) || !IsFound(row);
  });
}

const std::string& OccasionList::FoldedTitle(const Row& row) {
  std::string& title = titles_[{row.occasion, row.moment, row.number, row.notes & kOnShabbat}];
  if (title.empty()) title = fold_(TitleOf(row, Language::kEnglish) + "\n" + TitleOf(row, Language::kHebrew));
  return title;
}

// Most rows are found or not by their title; the other texts are made for the words that it lacks.
bool OccasionList::IsFound(const Row& row) {
  if (words_.empty()) return true;
  std::vector<std::string> missing = words_;
  EraseThoseIn(FoldedTitle(row), missing);
  if (missing.empty()) return true;
  std::string dates = DateText(row.day);
  for (const Language language : {Language::kEnglish, Language::kHebrew}) {
    if (language == Language::kHebrew && isTypedAscii_) continue;
    dates += "\n" + WeekdayName(row.day, language) + "\n" + JewishDateText(row.day, language);
  }
  EraseThoseIn(fold_(dates), missing);
  if (missing.empty()) return true;
  EraseThoseIn(fold_(RemarkOf(question_, row, Language::kEnglish)), missing);
  if (missing.empty() || isTypedAscii_) return missing.empty();
  EraseThoseIn(fold_(RemarkOf(question_, row, Language::kHebrew)), missing);
  return missing.empty();
}

std::vector<Row> OccasionList::Shown() const {
  std::vector<Row> rows;
  rows.reserve(shown_.size());
  for (const size_t index : shown_) rows.push_back(rows_[index]);
  return rows;
}

int OccasionList::FirstToCome(const ClockMoment& now) const {
  for (int index = NearestTo(now.day); index >= 0 && index < Count(); ++index) {
    if (IsToCome(At(index), now)) return index;
  }
  return -1;
}

int OccasionList::NearestTo(int32_t day) const {
  const auto isBefore = [this](size_t index, int32_t wanted) { return rows_[index].day < wanted; };
  const auto found = std::lower_bound(shown_.begin(), shown_.end(), day, isBefore);
  return static_cast<int>(std::min<ptrdiff_t>(found - shown_.begin(), Count() - 1));
}

int OccasionList::Beginning(std::string_view typed, int start) const {
  for (int i = 0; i < Count(); ++i) {
    const int index = (std::max(start, 0) + i) % Count();
    if (DateText(At(index).day).starts_with(typed)) return index;
  }
  return -1;
}

}  // namespace occasions
