// What the user has chosen: zmanim of the catalogue and the user's own, in an order, kept in a text file.
//
//   zman dawn-72-min
//   zman own-1
//   own 1 degrees-before-sunrise 11.5 up First light|\xE0\xE5\xF8
//   own 2 hours-gra 6.5 later minutes-after-midday 30 up Mincha
//   proportional-hours sea-level
//
// A line "zman" chooses the zman with an id; the order of these lines is the order of the zmanim. A line "own" makes a
// zman: its number (the id is "own-" and the number), form and amount (own_forms.h), where there are two times "later"
// or "earlier" with form and amount of the second, rounding (down, up, nearest), then the description in windows-1252
// and, after a "|", the Hebrew one in windows-1255, in logical order. A line "proportional-hours" says "sea-level"
// where elevation does not move them, else "elevation" or is not there. There is one space between columns. Of several
// lines with an id or number, or about the hours, the first counts. A file that chooses nothing is the choice of those
// who have not chosen. Lines that start with "#" and all that are not of these forms or name no zman are nobody's; they
// are passed over. Lines end in CR, LF or both; a UTF-8 byte order mark at the start is skipped.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/hours/own_zman.h"
#include "libraries/hours/zman.h"

namespace hours {

// What a day's record has room for.
constexpr size_t kMostChosen = 100;

struct Choice {
  std::vector<std::string> chosen;  // ids, each once, each of the catalogue or of own; none means the default ones
  std::vector<OwnZman> own;         // whether chosen or not, each number once
  bool areHoursAtSeaLevel = false;  // definitions are as WithHoursAtSeaLevel makes them

  bool operator==(const Choice&) const = default;
};

// text: the whole file. chosen is not empty and holds at most kMostChosen.
Choice ReadChoice(std::string_view text);

// The text of a file that ReadChoice makes the choice of; comments and damaged lines of the old text stay. A text that
// already says so stays as it is. What is beyond kMostChosen is left out.
std::string Applied(const Choice& choice, std::string_view text);

// Adds a zman to choice.own under the first free number and answers its id; chosen is not touched. The zman's own
// number does not matter. An empty id when there is no number left.
std::string AddOwn(Choice& choice, OwnZman zman);

// Removes it from own and from chosen.
void RemoveOwn(Choice& choice, uint32_t number);

// A zman with what it is called.
struct DescribedZman {
  std::string description;  // windows-1252, at most 48 bytes
  std::string hebrew;       // windows-1255 in logical order, at most 48 bytes
  Definition definition;
};

// All zmanim that can be chosen, those of the catalogue first, each with its id. No two descriptions are equal: a
// user's zman with a description that is taken gets " (2)" behind it, and so on; likewise in Hebrew. Definitions are
// those in force, with the hours at sea level where the choice has them there.
struct OfferedZman {
  std::string id;
  DescribedZman zman;
};
std::vector<OfferedZman> OfferedZmanim(const Choice& choice);

// The chosen ones in their order.
std::vector<DescribedZman> ChosenZmanim(const Choice& choice);

// A ready-made choice.
struct Preset {
  const char* name;  // UTF-8, all of windows-1252
  std::span<const char* const> ids;
};

// The default first, then those by opinion and place, and last the nineteen that the program has built in.
std::span<const Preset> Presets();

}  // namespace hours
