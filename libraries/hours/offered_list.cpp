#include "libraries/hours/offered_list.h"

#include <algorithm>

#include "libraries/hours/catalogue.h"
#include "libraries/hours/description_text.h"

namespace hours {
namespace {

constexpr char kOwnGroup[] = "Your own";

size_t OwnGroup() {
  return KindNames().size();
}

// Letters, digits and the point in numbers; 0xC0 and above are letters of windows-1252.
bool IsPartOfWord(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || c == '.' || static_cast<unsigned char>(c) >= 0xC0;
}

bool IsPassedOver(char c) {
  constexpr std::string_view kMarks = "\"'\x91\x92\x93\x94\xB0";
  return kMarks.find(c) != std::string_view::npos;
}

char SmallLetter(char c) {
  const auto byte = static_cast<unsigned char>(c);
  const bool isCapital = (byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7);
  return isCapital ? static_cast<char>(byte + 0x20) : c;
}

std::vector<std::string> WordsOf(std::string_view text) {
  std::vector<std::string> words;
  std::string word;
  const auto end = [&] {
    while (word.ends_with('.')) word.pop_back();  // of a sentence or an abbreviation, or typed half
    if (!word.empty()) words.push_back(std::move(word));
    word.clear();
  };
  for (const char c : text) {
    if (IsPassedOver(c)) continue;
    const char small = SmallLetter(c);
    if (IsPartOfWord(small)) {
      word += small;
    } else {
      end();
    }
  }
  end();
  return words;
}

bool BeginsSome(const std::string& typed, const std::vector<std::string>& words) {
  return std::ranges::any_of(words, [&typed](const std::string& word) { return word.starts_with(typed); });
}

}  // namespace

OfferedList::OfferedList(const Choice& choice) {
  for (OfferedZman& offered : OfferedZmanim(choice)) {
    const CatalogueZman* known = FindInCatalogue(offered.id);
    ListedZman zman = {std::move(offered.id), std::move(offered.zman.description),
                       known ? EightBitFromUtf8(known->authority) : std::string("A zman of your own"),
                       offered.zman.definition, known ? static_cast<size_t>(known->kind) : OwnGroup()};
    words_.push_back(WordsOf(zman.description + " " + zman.authority + " " + GroupName(zman.group)));
    zmanim_.push_back(std::move(zman));
  }
}

const ListedZman* OfferedList::Find(std::string_view id) const {
  const auto found = std::ranges::find(zmanim_, id, &ListedZman::id);
  return found == zmanim_.end() ? nullptr : &*found;
}

std::string OfferedList::GroupName(size_t group) {
  return group < KindNames().size() ? EightBitFromUtf8(KindNames()[group]) : kOwnGroup;
}

std::vector<ListRow> OfferedList::Matching(std::string_view typed) const {
  const std::vector<std::string> typedWords = WordsOf(typed);
  std::vector<ListRow> rows;
  for (size_t number = 0, group = OwnGroup() + 1; number < zmanim_.size(); ++number) {
    const auto isFound = [&](const std::string& word) { return BeginsSome(word, words_[number]); };
    if (!std::ranges::all_of(typedWords, isFound)) continue;
    if (zmanim_[number].group != group) {
      group = zmanim_[number].group;
      rows.push_back({true, group});
    }
    rows.push_back({false, number});
  }
  return rows;
}

}  // namespace hours
