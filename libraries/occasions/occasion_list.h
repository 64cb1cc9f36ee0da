// The rows of the list, and which of them are shown: those of one kind, those that are searched for.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "libraries/occasions/occasion_cells.h"
#include "libraries/occasions/shown_days.h"

namespace occasions {

// A text as it is searched: letters' case, accents and points aside. Texts are UTF-8.
using Fold = std::string (*)(std::string_view text);

class OccasionList {
 public:
  explicit OccasionList(Fold fold) : fold_(fold) {}

  // Takes all rows of a range; what is shown of them is what was before.
  void Take(Question question, std::vector<Row> rows);

  // Shows the rows of a kind, or of all.
  void ShowKind(std::optional<Kind> kind);

  // Shows those of which each word that was typed stands somewhere: in the title, English or Hebrew, in the remark or
  // in a date.
  void Search(std::string_view typed);

  size_t All() const { return rows_.size(); }
  int Count() const { return static_cast<int>(shown_.size()); }
  const Row& At(int index) const { return rows_[shown_[static_cast<size_t>(index)]]; }
  const Question& question() const { return question_; }

  // Those that are shown, in their order.
  std::vector<Row> Shown() const;

  // The first shown row that is still to come; -1 when there is none.
  int FirstToCome(const ClockMoment& now) const;

  // The first shown row of a day or of a later one, else the last; -1 when nothing is shown.
  int NearestTo(int32_t day) const;

  // The first row from start on, or from the top, whose date begins with what is typed; -1 when there is none.
  int Beginning(std::string_view typed, int start) const;

 private:
  using TitleKey = std::tuple<Occasion, Moment, int32_t, int32_t>;  // all of a row that TitleOf makes words of

  bool IsFound(const Row& row);
  const std::string& FoldedTitle(const Row& row);
  void Narrow();

  Fold fold_;
  Question question_ = {};
  std::vector<Row> rows_;
  std::vector<size_t> shown_;  // of rows_
  std::optional<Kind> kind_;
  std::string typed_;                       // folded
  std::vector<std::string> words_;          // of typed_
  bool isTypedAscii_ = true;                // no letter of Hebrew is looked for
  std::map<TitleKey, std::string> titles_;  // folded, in both languages
};

}  // namespace occasions
