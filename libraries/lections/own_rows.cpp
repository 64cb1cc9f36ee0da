#include "libraries/lections/own_rows.h"

#include <windows.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <sstream>

#include "libraries/dialogs/utf8.h"
#include "libraries/lections/own_readings.h"
#include "libraries/lections/reading_names.h"

namespace lections {
namespace {

using dialogs::FromUtf8;

std::wstring InSmallLetters(std::wstring text) {
  CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
  return text;
}

std::vector<std::wstring> WordsOf(const std::wstring& typed) {
  std::wistringstream stream(InSmallLetters(typed));
  return {std::istream_iterator<std::wstring, wchar_t>(stream), {}};
}

bool IsOfKind(const When& when, size_t ownTexts, ShownKinds kinds) {
  switch (kinds) {
    case ShownKinds::kAll: return true;
    case ShownKinds::kPortions: return when.kind == WhenKind::kPortion;
    case ShownKinds::kOccasions: return when.kind == WhenKind::kOccasion;
    case ShownKinds::kDates: return when.kind == WhenKind::kDate;
    case ShownKinds::kWithOwnTexts: return ownTexts != 0;
  }
  return true;
}

size_t CountFor(const When& when, const OwnTexts& texts) {
  size_t count = 0;
  for (auto text = texts.lower_bound({.when = when}); text != texts.end() && text->first.when == when; ++text) ++count;
  return count;
}

}  // namespace

OwnRows::OwnRows(const Settings& settings, int32_t today)
    : settings_(settings), today_(today), next_(NextDays(settings.land, today)) {}

void OwnRows::Add(const When& when, int32_t next, const OwnReadings& own, const OwnTexts& texts) {
  OwnRow row = RowOf(when, next, settings_, own);
  std::string words = row.name + " " + NameOf(when, kEnglish) + " " + row.torah + " " + row.haftarot;
  if (next != 0) words += " " + DateText(next);
  rows_.push_back({std::move(row), CountFor(when, texts), InSmallLetters(FromUtf8(words))});
}

void OwnRows::Renew(const OwnTexts& texts) {
  const OwnReadings own(texts);
  rows_.clear();
  std::set<When> ofOneYear(offered_.begin(), offered_.end());
  for (const auto& [place, text] : texts) {
    if (IsOfOneYear(place.when)) ofOneYear.insert(place.when);
  }
  for (const When& when : ofOneYear) {
    const std::vector<int32_t> days = NextDaysOf(when, settings_.land, today_, 1);
    Add(when, days.empty() ? 0 : days.front(), own, texts);
  }
  for (const When& when : EveryWhen()) {
    const auto next = next_.find(when);
    Add(when, next == next_.end() ? 0 : next->second, own, texts);
  }
}

void OwnRows::Narrow(ShownKinds kinds, const std::wstring& typed) {
  const std::vector<std::wstring> words = WordsOf(typed);
  shown_.clear();
  for (size_t i = 0; i < rows_.size(); ++i) {
    const Searched& row = rows_[i];
    const auto isIn = [&row](const std::wstring& word) { return row.words.find(word) != std::wstring::npos; };
    if (IsOfKind(row.row.when, row.ownTexts, kinds) && std::ranges::all_of(words, isIn)) shown_.push_back(i);
  }
}

int OwnRows::Find(const When& when) const {
  const auto found = std::ranges::find_if(shown_, [&](size_t row) { return rows_[row].row.when == when; });
  return found == shown_.end() ? -1 : static_cast<int>(found - shown_.begin());
}

int OwnRows::Beginning(const std::wstring& typed, int start) const {
  const std::wstring beginning = InSmallLetters(typed);
  for (int i = 0; i < Count(); ++i) {
    const int row = (start + i) % Count();
    if (InSmallLetters(Text(row, kNameColumn)).starts_with(beginning)) return row;
  }
  return -1;
}

std::wstring OwnRows::Text(int row, int column) const {
  const Searched& searched = rows_[shown_[static_cast<size_t>(row)]];
  switch (column) {
    case kNameColumn: return FromUtf8(searched.row.name);
    case kNextColumn: return searched.row.next == 0 ? std::wstring() : FromUtf8(CivilDateText(searched.row.next));
    case kTorahColumn: return FromUtf8(searched.row.torah);
    case kHaftarahColumn: return FromUtf8(searched.row.haftarot);
    case kOwnColumn: return searched.ownTexts == 0 ? std::wstring() : std::to_wstring(searched.ownTexts);
  }
  return {};
}

}  // namespace lections
