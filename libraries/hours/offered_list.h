// The zmanim that can be chosen as a list to choose from: under headings, and found by what the user types.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/hours/choice.h"

namespace hours {

struct ListedZman {
  std::string id;
  std::string description;  // windows-1252
  std::string authority;    // windows-1252
  Definition definition;
  size_t group;  // its kind; behind all kinds stand the user's own
};

struct ListRow {
  bool isHeading;
  size_t number;  // of a group, or of a zman

  bool operator==(const ListRow&) const = default;
};

class OfferedList {
 public:
  explicit OfferedList(const Choice& choice);

  const ListedZman& operator[](size_t number) const { return zmanim_[number]; }
  // Null when there is none.
  const ListedZman* Find(std::string_view id) const;

  // The name of a group, windows-1252.
  static std::string GroupName(size_t group);

  // The zmanim of which each typed word (windows-1252) begins a word of the description, the authority or the kind,
  // under their headings; all when no word is typed. Letters' case does not matter, nor do quotation marks,
  // apostrophes and degree signs: "gro" finds GR"O.
  std::vector<ListRow> Matching(std::string_view typed) const;

 private:
  std::vector<ListedZman> zmanim_;
  std::vector<std::vector<std::string>> words_;  // of each zman
};

}  // namespace hours
