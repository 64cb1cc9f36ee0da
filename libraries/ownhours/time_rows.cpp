#include "libraries/ownhours/time_rows.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <set>
#include <utility>

#include "libraries/dialogs/typed_words.h"
#include "libraries/dialogs/windows_1252.h"

namespace ownhours {
namespace {

std::wstring DateText(PackedDate packed) {
  const calendar::Date date = DateOf(packed);
  char text[48];
  std::snprintf(text, sizeof text, "%02d.%02d.%04d", date.day, date.month, date.year);
  return dialogs::Wide(text);
}

std::wstring SmallLetters(const std::wstring& text) {
  std::wstring small = text;
  CharLowerBuffW(small.data(), static_cast<DWORD>(small.size()));
  return small;
}

// Negative, 0 or positive as a person would look texts up, whatever their letters' case.
int Order(const std::wstring& left, const std::wstring& right) {
  if (left == right) return 0;
  return CompareStringW(LOCALE_INVARIANT, NORM_IGNORECASE, left.c_str(), -1, right.c_str(), -1) - CSTR_EQUAL;
}

}  // namespace

void TimeRows::Fill(const Entries& entries, const std::wstring& typed, int column, bool descending) {
  const std::vector<std::wstring> words = dialogs::WordsIn(SmallLetters(typed));
  rows_.clear();
  for (const auto& [occasion, time] : entries) {
    Row row{{occasion, time},
            {dialogs::Wide(occasion.place),
             DateText(occasion.date),
             dialogs::Wide(occasion.description),
             dialogs::Wide(stamp::TimeText(time.hour, time.minute, form_)),
             {}}};
    std::wstring all;
    for (const std::wstring& text : row.texts) all += SmallLetters(text) + L'\n';
    const auto isThere = [&all](const std::wstring& word) { return all.find(word) != all.npos; };
    if (std::ranges::all_of(words, isThere)) rows_.push_back(std::move(row));
  }
  std::ranges::sort(rows_, [](const Row& left, const Row& right) {
    const int order = Order(left.texts[kPlaceColumn], right.texts[kPlaceColumn]);
    return order != 0 ? order < 0 : left.entry.occasion < right.entry.occasion;
  });
  const auto isBefore = [column](const Row& left, const Row& right) {
    switch (column) {
      case kDateColumn: return left.entry.occasion.date < right.entry.occasion.date;
      case kTimeColumn: return left.entry.time < right.entry.time;
    }
    return Order(left.texts[column], right.texts[column]) < 0;
  };
  std::ranges::stable_sort(rows_, [&](const Row& left, const Row& right) {
    return descending ? isBefore(right, left) : isBefore(left, right);
  });
}

std::vector<int> TimeRows::RowsOf(const std::vector<Occasion>& occasions) const {
  const std::set<Occasion> wanted(occasions.begin(), occasions.end());
  std::vector<int> found;
  for (int row = 0; row < Count(); ++row) {
    if (wanted.contains(EntryOf(row).occasion)) found.push_back(row);
  }
  return found;
}

const std::wstring& TimeRows::Text(int row, int column) {
  Row& shown = rows_[static_cast<size_t>(row)];
  std::wstring& text = shown.texts[column];
  if (column == kCalculatedColumn && !std::exchange(shown.isCalculated, true)) {
    text = Calculated(shown.entry.occasion);
  }
  return text;
}

int TimeRows::Beginning(const std::wstring& typed, int start) const {
  const std::wstring wanted = SmallLetters(typed);
  const int count = Count();
  for (int i = 0; i < count; ++i) {
    const int row = (std::max(start, 0) + i) % count;
    if (SmallLetters(rows_[static_cast<size_t>(row)].texts[kPlaceColumn]).starts_with(wanted)) return row;
  }
  return -1;
}

std::wstring TimeRows::Calculated(const Occasion& occasion) const {
  if (!calculate_) return {};
  const calendar::Date date = DateOf(occasion.date);
  const auto number = [](int32_t part) { return static_cast<uint32_t>(part); };
  int32_t hour = 0;
  int32_t minute = 0;
  if (!calculate_(number(date.day), number(date.month), number(date.year), occasion.description.c_str(),
                  occasion.place.c_str(), &hour, &minute)) {
    return {};
  }
  return dialogs::Wide(stamp::TimeText(hour, minute, form_));
}

std::wstring InWords(const Occasion& occasion) {
  return dialogs::Wide(occasion.place) + L", " + DateText(occasion.date) + L": " + dialogs::Wide(occasion.description);
}

}  // namespace ownhours
