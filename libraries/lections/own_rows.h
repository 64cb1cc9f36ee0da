// The readings that the dialog of own texts lists, as far as the user has not narrowed them down.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "libraries/lections/own_preview.h"
#include "libraries/lections/own_text.h"

namespace lections {

enum class ShownKinds { kAll, kPortions, kOccasions, kDates, kWithOwnTexts };

enum ReadingColumn { kNameColumn, kNextColumn, kTorahColumn, kHaftarahColumn, kOwnColumn };
inline constexpr int kReadingColumns = 5;

class OwnRows {
 public:
  // today: an absolute day.
  OwnRows(const Settings& settings, int32_t today);

  // Takes the texts of the readings anew. Dates of one year are rows as far as they have texts of the user's, or are
  // asked for by Offer.
  void Renew(const OwnTexts& texts);
  void Offer(const When& date) { offered_.push_back(date); }

  // Narrows the rows down to a kind, and to those in whose name (English or the user's language), date or texts each
  // word that was typed stands, letters' case aside.
  void Narrow(ShownKinds kinds, const std::wstring& typed);

  int Count() const { return static_cast<int>(shown_.size()); }
  size_t CountOfAll() const { return rows_.size(); }
  const OwnRow& RowAt(int row) const { return rows_[shown_[static_cast<size_t>(row)]].row; }
  // -1 when it is not shown.
  int Find(const When& when) const;
  // The first row from start on, or from the top, whose name begins with what is typed; -1 when there is none.
  int Beginning(const std::wstring& typed, int start) const;

  std::wstring Text(int row, int column) const;

 private:
  struct Searched {
    OwnRow row;
    size_t ownTexts;
    std::wstring words;  // in small letters
  };
  void Add(const When& when, int32_t next, const OwnReadings& own, const OwnTexts& texts);

  const Settings settings_;
  const int32_t today_;
  const std::map<When, int32_t> next_;
  std::vector<When> offered_;
  std::vector<Searched> rows_;
  std::vector<size_t> shown_;
};

}  // namespace lections
