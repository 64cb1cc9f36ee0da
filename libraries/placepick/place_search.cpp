#include "libraries/placepick/place_search.h"

#include <algorithm>
#include <tuple>

#include "libraries/dialogs/windows_1252.h"
#include "libraries/sun/places.h"

namespace placepick {
namespace {

// What a character is searched as. Not letters are:
constexpr std::u16string_view kSeparator = u" ";
constexpr std::u16string_view kApostrophe = u"'";
constexpr std::u16string_view kNothing = u"";

// U+00C0 to U+00DF; the small letters of U+00E0 to U+00FF stand in the same order.
constexpr std::u16string_view kAccented[] = {
    u"a", u"a", u"a", u"a", u"a", u"a", u"ae", u"c", u"e", u"e", u"e", u"e", u"i", u"i", u"i",  u"i",
    u"d", u"n", u"o", u"o", u"o", u"o", u"o",  u" ", u"o", u"u", u"u", u"u", u"u", u"y", u"th", u"ss",
};
constexpr char16_t kYWithDiaeresis = 0xFF;  // stands where U+00DF has its capital

struct Folding {
  char16_t character;
  std::u16string_view as;
};
constexpr Folding kOthers[] = {
    {u'\u00AA', u"a"},        {u'\u00B2', u"2"},        {u'\u00B3', u"3"},       {u'\u00B4', kApostrophe},
    {u'\u00B9', u"1"},        {u'\u00BA', u"o"},        {u'\u0152', u"oe"},      {u'\u0153', u"oe"},
    {u'\u0160', u"s"},        {u'\u0161', u"s"},        {u'\u0178', u"y"},       {u'\u017D', u"z"},
    {u'\u017E', u"z"},        {u'\u0192', u"f"},        {u'\u02C6', kSeparator}, {u'\u02DC', kSeparator},
    {u'\u2018', kApostrophe}, {u'\u2019', kApostrophe}, {u'\u20AC', kSeparator}, {u'\u2122', kSeparator},
};

constexpr bool IsWithin(char16_t c, char16_t first, char16_t last) {
  return c >= first && c <= last;
}

std::u16string_view FoldedAscii(const char16_t& c) {
  static constexpr std::u16string_view kSmallLetters = u"abcdefghijklmnopqrstuvwxyz";
  if (IsWithin(c, u'A', u'Z')) return kSmallLetters.substr(static_cast<std::size_t>(c - u'A'), 1);
  if (IsWithin(c, u'a', u'z') || IsWithin(c, u'0', u'9')) return {&c, 1};
  return c == u'\'' || c == u'`' ? kApostrophe : kSeparator;
}

std::u16string_view FoldedCharacter(const char16_t& c) {
  if (c < 0x80) return FoldedAscii(c);
  const auto other = std::ranges::find(kOthers, c, &Folding::character);
  if (other != std::end(kOthers)) return other->as;
  if (c == kYWithDiaeresis) return u"y";
  if (IsWithin(c, 0xC0, 0xFF)) return kAccented[(c - 0xC0) % std::size(kAccented)];
  if (IsWithin(c, 0x300, 0x36F)) return kNothing;                  // accents on their own
  if (c < 0xC0 || IsWithin(c, 0x2000, 0x206F)) return kSeparator;  // signs, punctuation
  return {&c, 1};
}

// The words of a folded text.
std::vector<std::u16string_view> WordsOf(std::u16string_view folded) {
  std::vector<std::u16string_view> words;
  for (std::size_t begin = 0; begin < folded.size();) {
    const std::size_t end = std::min(folded.find(u' ', begin), folded.size());
    words.push_back(folded.substr(begin, end - begin));
    begin = end + 1;
  }
  return words;
}

bool BeginsSomeWord(std::u16string_view word, const FoldedText& name) {
  return std::ranges::any_of(name.wordStarts, [&](std::size_t start) {
    return std::u16string_view(name.text).substr(start).starts_with(word);
  });
}

}  // namespace

FoldedText Fold(std::u16string_view text) {
  FoldedText folded;
  bool startsWord = true;
  bool separated = false;
  for (const char16_t& c : text) {
    const std::u16string_view letters = FoldedCharacter(c);
    if (letters == kSeparator || letters == kApostrophe) {
      startsWord = true;
      separated = separated || letters == kSeparator;
      continue;
    }
    if (letters.empty()) continue;
    if (separated && !folded.text.empty()) folded.text += u' ';
    if (startsWord) folded.wordStarts.push_back(folded.text.size());
    folded.text += letters;
    startsWord = false;
    separated = false;
  }
  return folded;
}

PlaceIndex::PlaceIndex(std::vector<Place> places) {
  entries_.reserve(places.size());
  for (Place& place : places) {
    FoldedText folded = Fold(dialogs::Utf16(place.name));
    entries_.push_back({std::move(place), std::move(folded)});
  }
  std::ranges::sort(entries_, {}, [](const Entry& entry) { return std::tie(entry.folded.text, entry.place.name); });
}

std::optional<std::size_t> PlaceIndex::Named(std::string_view name) const {
  const std::u16string folded = Fold(dialogs::Utf16(name)).text;
  const auto first = std::ranges::lower_bound(
      entries_, folded, {}, [](const Entry& entry) -> const std::u16string& { return entry.folded.text; });
  if (first == entries_.end() || first->folded.text != folded) return std::nullopt;
  const auto end = std::find_if(first, entries_.end(), [&](const Entry& entry) { return entry.folded.text != folded; });
  auto found = std::find_if(first, end, [name](const Entry& entry) { return entry.place.name == name; });
  if (found == end) {
    found = std::find_if(first, end, [name](const Entry& entry) {
      return entry.place.isUsersOwn && sun::DifferInCaseOnly(entry.place.name, name);
    });
  }
  return static_cast<std::size_t>((found == end ? first : found) - entries_.begin());
}

std::vector<std::size_t> PlaceIndex::Matching(std::u16string_view typed) const {
  const FoldedText folded = Fold(typed);
  const std::vector<std::u16string_view> words = WordsOf(folded.text);
  std::vector<std::size_t> numbers;
  for (std::size_t number = 0; number < entries_.size(); ++number) {
    const FoldedText& name = entries_[number].folded;
    if (std::ranges::all_of(words, [&](std::u16string_view word) { return BeginsSomeWord(word, name); })) {
      numbers.push_back(number);
    }
  }
  return numbers;
}

std::optional<std::size_t> PlaceIndex::FirstBeginningWith(std::u16string_view typed,
                                                          std::span<const std::size_t> numbers) const {
  const std::u16string folded = Fold(typed).text;
  const auto first = std::ranges::find_if(
      numbers, [&](std::size_t number) { return entries_[number].folded.text.starts_with(folded); });
  if (first == numbers.end()) return std::nullopt;
  return static_cast<std::size_t>(first - numbers.begin());
}

}  // namespace placepick
