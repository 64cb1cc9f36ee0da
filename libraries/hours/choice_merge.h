// Two changes of one choice made one: the user's in the dialog, and what another copy of the program stored meanwhile.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "libraries/hours/choice.h"

namespace hours {

enum class Side { kMine, kTheirs };

// What both changed, each in another way.
struct MergeConflict {
  // A zman of the user's own, null on the side that deleted it; both null: what is chosen.
  const OwnZman* mine;
  const OwnZman* theirs;
};

// Whose change counts; nothing when the user does not want to decide, and then nothing is merged.
using Decide = std::function<std::optional<Side>(const MergeConflict& conflict)>;

// base: what both started from. Zmanim of the user's own are told apart by their numbers: what one side changed, added
// or deleted is so in the result; what both added under one number is there twice, mine under a new number, unless it
// is the same. Of what is chosen, the additions and removals of both sides count; the order is that of the side that
// has changed it, and what the other side added stands behind what it stood behind there. Where the proportional hours
// run, the side that changed it decides. decide is asked about every
// own zman that both changed, or one changed and the other deleted; and once about the whole of what is chosen when
// both changed its order or took other presets, or when nothing or too much would be chosen.
std::optional<Choice> MergedChoice(const Choice& base, const Choice& mine, const Choice& theirs, const Decide& decide);

}  // namespace hours
