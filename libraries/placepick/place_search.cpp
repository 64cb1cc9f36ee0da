#include "libraries/placepick/place_search.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "libraries/dialogs/windows_1252.h"
#include "libraries/sun/places.h"

namespace placepick {
namespace {

constexpr char16_t kBetweenNames = u'|';

// The pieces of a text between separators; none of an empty text.
std::vector<std::u16string_view> PiecesOf(std::u16string_view text, char16_t separator) {
  std::vector<std::u16string_view> pieces;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(separator), text.size());
    pieces.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return pieces;
}

std::vector<std::u16string_view> WordsOf(std::u16string_view folded) {
  return PiecesOf(folded, u' ');
}

bool HasAll(std::u16string_view text, std::span<const std::u16string_view> words) {
  return std::ranges::all_of(words, [text](std::u16string_view word) { return text.find(word) != text.npos; });
}

// Whether a word stands behind one of the characters.
bool StandsBehind(std::u16string_view text, std::u16string_view word, std::u16string_view characters) {
  for (std::size_t at = text.find(word); at != text.npos; at = text.find(word, at + 1)) {
    if (at > 0 && characters.find(text[at - 1]) != characters.npos) return true;
  }
  return false;
}

}  // namespace

PlaceIndex::PlaceIndex(std::vector<Place> places) {
  entries_.reserve(places.size());
  for (Place& place : places) {
    std::u16string name = Fold(dialogs::Utf16(place.name)).text;
    std::u16string all = u"\n" + name;
    for (const std::u16string_view other : PiecesOf(place.otherNames, kBetweenNames)) all += u"\n" + Fold(other).text;
    all += u"\n" + Fold(place.country).text;
    entries_.push_back({std::move(place), std::move(name), std::move(all)});
  }
  std::ranges::sort(entries_, {}, [](const Entry& entry) { return std::tie(entry.name, entry.place.name); });
}

std::optional<std::size_t> PlaceIndex::Named(std::string_view name) const {
  const std::u16string folded = Fold(dialogs::Utf16(name)).text;
  const auto first = std::ranges::lower_bound(entries_, folded, {}, &Entry::name);
  if (first == entries_.end() || first->name != folded) return std::nullopt;
  const auto end = std::find_if(first, entries_.end(), [&](const Entry& entry) { return entry.name != folded; });
  auto found = std::find_if(first, end, [name](const Entry& entry) { return entry.place.name == name; });
  if (found == end) {
    found = std::find_if(first, end, [name](const Entry& entry) {
      return entry.place.isUsersOwn && sun::DifferInCaseOnly(entry.place.name, name);
    });
  }
  return static_cast<std::size_t>((found == end ? first : found) - entries_.begin());
}

PlaceIndex::Fit PlaceIndex::FitOf(const Entry& entry, std::u16string_view typed,
                                  std::span<const std::u16string_view> words) {
  if (!HasAll(entry.all, words)) return Fit::kNowhere;
  if (entry.name.starts_with(typed)) return Fit::kNameBegins;
  const auto beginIn = [words](std::u16string_view text) {
    return std::ranges::all_of(words, [text](std::u16string_view word) { return StandsBehind(text, word, u"\n "); });
  };
  const std::size_t endOfName = entry.name.size() + 1;
  if (beginIn(std::u16string_view(entry.all).substr(0, endOfName))) return Fit::kWordsOfNameBegin;
  if (StandsBehind(entry.all, typed, u"\n")) return Fit::kOtherBegins;
  return beginIn(entry.all) ? Fit::kWordsBegin : Fit::kSomewhere;
}

std::vector<std::size_t> PlaceIndex::Matching(std::u16string_view typed, std::span<const std::size_t> lastUsed) const {
  const std::u16string folded = Fold(typed).text;
  const std::vector<std::u16string_view> words = WordsOf(folded);
  struct Found {
    std::size_t used;  // the place among those used last, as many as there are for all others
    bool isBuiltIn;
    Fit fit;
    std::size_t number;
  };
  std::vector<Found> found;
  for (std::size_t number = 0; number < entries_.size(); ++number) {
    const Entry& entry = entries_[number];
    const Fit fit = FitOf(entry, folded, words);
    if (fit == Fit::kNowhere) continue;
    const auto used = static_cast<std::size_t>(std::ranges::find(lastUsed, number) - lastUsed.begin());
    found.push_back({used, !entry.place.isUsersOwn, fit, number});
  }
  std::ranges::sort(found, {}, [](const Found& f) { return std::tuple(f.used, f.isBuiltIn, f.fit, f.number); });
  std::vector<std::size_t> numbers;
  for (const Found& f : found) numbers.push_back(f.number);
  return numbers;
}

std::optional<std::size_t> PlaceIndex::Best(std::u16string_view typed, std::span<const std::size_t> numbers) const {
  const std::u16string folded = Fold(typed).text;
  const std::vector<std::u16string_view> words = WordsOf(folded);
  // What is used or the user's own needs no better fit than a word that begins so.
  const auto fitOf = [&](std::size_t number) {
    const Fit fit = FitOf(entries_[number], folded, words);
    return fit == Fit::kWordsOfNameBegin || fit == Fit::kOtherBegins ? Fit::kWordsBegin : fit;
  };
  const auto best = std::ranges::min_element(numbers, {}, fitOf);
  if (best == numbers.end()) return std::nullopt;
  return static_cast<std::size_t>(best - numbers.begin());
}

std::u16string_view PlaceIndex::MeantName(std::size_t number, std::u16string_view typed) const {
  const std::u16string folded = Fold(typed).text;
  const std::vector<std::u16string_view> words = WordsOf(folded);
  const Entry& entry = entries_[number];
  if (HasAll(entry.name, words)) return {};
  const std::vector<std::u16string_view> others = PiecesOf(entry.place.otherNames, kBetweenNames);
  const auto begins = [&](std::u16string_view other) { return Fold(other).text.starts_with(folded); };
  const auto has = [&](std::u16string_view other) { return HasAll(Fold(other).text, words); };
  auto meant = std::ranges::find_if(others, begins);
  if (meant == others.end()) meant = std::ranges::find_if(others, has);
  return meant == others.end() ? std::u16string_view() : *meant;
}

std::optional<std::size_t> PlaceIndex::FirstBeginningWith(std::u16string_view typed,
                                                          std::span<const std::size_t> numbers) const {
  const std::u16string folded = Fold(typed).text;
  const auto first =
      std::ranges::find_if(numbers, [&](std::size_t number) { return entries_[number].name.starts_with(folded); });
  if (first == numbers.end()) return std::nullopt;
  return static_cast<std::size_t>(first - numbers.begin());
}

}  // namespace placepick
