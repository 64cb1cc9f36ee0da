// Finding places by what the user types: any part of a name, of another name or of the country.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/placepick/folding.h"
#include "libraries/placepick/place_list.h"

namespace placepick {

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

  // The numbers of the places in whose names and country each typed word stands somewhere; all when no word is typed.
  // Those used last come first, in their order, then the user's own, then the others; the last two by how well they
  // fit: a name that begins with what is typed, one of whose words each typed one begins, another name that begins so,
  // words of any that do, the rest.
  std::vector<std::size_t> Matching(std::u16string_view typed, std::span<const std::size_t> lastUsed) const;

  // Where among the numbers of Matching the place stands that is most likely meant: whose name begins with what is
  // typed, else of whose names a word does, else the first. None when there are no numbers.
  std::optional<std::size_t> Best(std::u16string_view typed, std::span<const std::size_t> numbers) const;

  // The other name of a place that what is typed means, as far as the name itself does not have it; empty for none.
  std::u16string_view MeantName(std::size_t number, std::u16string_view typed) const;

  // Which of the numbers is the first whose place's name as a whole begins with what is typed: its position in numbers.
  std::optional<std::size_t> FirstBeginningWith(std::u16string_view typed, std::span<const std::size_t> numbers) const;

 private:
  struct Entry {
    Place place;
    std::u16string name;  // folded
    std::u16string all;   // the folded name, other names and country, a line end before each
  };

  enum class Fit { kNameBegins, kWordsOfNameBegin, kOtherBegins, kWordsBegin, kSomewhere, kNowhere };
  static Fit FitOf(const Entry& entry, std::u16string_view typed, std::span<const std::u16string_view> words);

  std::vector<Entry> entries_;
};

}  // namespace placepick
