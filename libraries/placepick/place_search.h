// Finding places by what the user types: the beginnings of words, letters' case and accents aside.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/placepick/place_list.h"

namespace placepick {

// A text as it is searched: small letters without accents ("\u00DF" as "ss", "\u0152" as "oe") and digits, words apart
// by one space. Apostrophes are left out, but a new word begins behind one too: "Ra'anana" is found as "raan" and as
// "anana". Letters outside windows-1252 stay as they are.
struct FoldedText {
  std::u16string text;
  std::vector<std::size_t> wordStarts;  // ascending positions in text
};
FoldedText Fold(std::u16string_view text);

// Places in alphabetical order, letters' case and accents aside, with an index for searching. A place's number is its
// position in this order.
class PlaceIndex {
 public:
  explicit PlaceIndex(std::vector<Place> places);

  std::size_t Size() const { return entries_.size(); }
  const Place& operator[](std::size_t number) const { return entries_[number].place; }

  // The place of that name; if there is none, the one of the user's own whose name differs in ASCII letter case only,
  // or one whose name differs in letters' case and accents only.
  std::optional<std::size_t> Named(std::string_view name) const;

  // The numbers of the places of which each typed word begins some word; all when no word is typed.
  std::vector<std::size_t> Matching(std::u16string_view typed) const;

  // Which of the numbers is the first whose place's name as a whole begins with what is typed: its position in numbers.
  std::optional<std::size_t> FirstBeginningWith(std::u16string_view typed, std::span<const std::size_t> numbers) const;

 private:
  struct Entry {
    Place place;
    FoldedText folded;
  };

  std::vector<Entry> entries_;
};

}  // namespace placepick
