#include "libraries/hours/choice_merge.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "libraries/hours/choice_editing.h"

namespace hours {
namespace {

using Ids = std::vector<std::string>;

const OwnZman* OwnOf(const Choice& choice, uint32_t number) {
  const auto found = std::ranges::find(choice.own, number, &OwnZman::number);
  return found == choice.own.end() ? nullptr : &*found;
}

bool IsSame(const OwnZman* a, const OwnZman* b) {
  return a && b ? *a == *b : a == b;
}

bool Has(const Ids& ids, const std::string& id) {
  return std::ranges::find(ids, id) != ids.end();
}

// Makes my choice call the zmanim that I added by other numbers than theirs have: the same zman by their number, others
// by new ones as long as there are any.
class Renumbering {
 public:
  Renumbering(const Choice& base, const Choice& mine, const Choice& theirs)
      : base_(base), theirs_(theirs), choice_(mine) {
    for (const Choice* choice : {&base, &mine, &theirs}) {
      for (const OwnZman& zman : choice->own) taken_.insert(zman.number);
    }
    const Ids chosen = mine.chosen;
    for (OwnZman& zman : choice_.own) {
      const std::string oldId = OwnId(zman.number);
      if (OwnOf(base, zman.number) || !Renumber(zman)) continue;
      const auto row = std::ranges::find(chosen, oldId) - chosen.begin();
      if (static_cast<size_t>(row) < chosen.size()) choice_.chosen[static_cast<size_t>(row)] = OwnId(zman.number);
    }
  }

  Choice Result() && { return std::move(choice_); }

 private:
  bool Renumber(OwnZman& zman) {
    uint32_t number = SameAddition(zman);
    if (number == 0 && OwnOf(theirs_, zman.number)) number = FreeNumber();
    if (number == 0) return false;
    zman.number = number;
    return true;
  }

  uint32_t SameAddition(OwnZman zman) const {
    for (const OwnZman& other : theirs_.own) {
      zman.number = other.number;
      if (!OwnOf(base_, other.number) && other == zman) return other.number;
    }
    return 0;
  }

  uint32_t FreeNumber() {
    uint32_t number = 1;
    while (taken_.contains(number)) ++number;
    if (number > kMostOwnNumber) return 0;
    taken_.insert(number);
    return number;
  }

  const Choice& base_;
  const Choice& theirs_;
  Choice choice_;
  std::set<uint32_t> taken_;
};

class Merge {
 public:
  Merge(const Choice& base, const Choice& mine, const Choice& theirs, const Decide& decide)
      : base_(base), mine_(mine), theirs_(theirs), decide_(decide) {}

  // Whether the user has decided all that had to be.
  bool Run() {
    const bool isMine = mine_.areHoursAtSeaLevel != base_.areHoursAtSeaLevel;
    merged_.areHoursAtSeaLevel = (isMine ? mine_ : theirs_).areHoursAtSeaLevel;
    return MergeOwn() && MergeChosen();
  }
  Choice Result() && { return std::move(merged_); }

 private:
  bool MergeOwn() {
    std::vector<uint32_t> numbers;  // theirs first, as they stand in the file
    for (const Choice* choice : {&theirs_, &mine_}) {
      for (const OwnZman& zman : choice->own) {
        if (std::ranges::find(numbers, zman.number) == numbers.end()) numbers.push_back(zman.number);
      }
    }
    return std::ranges::all_of(numbers, [this](uint32_t number) { return MergeOwn(number); });
  }

  bool MergeOwn(uint32_t number) {
    const OwnZman* const base = OwnOf(base_, number);
    const OwnZman* const mine = OwnOf(mine_, number);
    const OwnZman* const theirs = OwnOf(theirs_, number);
    std::optional<Side> side = Side::kTheirs;
    if (!IsSame(mine, theirs) && !IsSame(mine, base)) {
      side = IsSame(theirs, base) ? Side::kMine : decide_({mine, theirs});
      if (!side) return false;
    }
    const OwnZman* const kept = *side == Side::kMine ? mine : theirs;
    if (!kept) {
      gone_.insert(OwnId(number));
    } else {
      merged_.own.push_back(*kept);
      if (base && !mine) keptByThem_.insert(OwnId(number));
      if (base && !theirs) keptByMe_.insert(OwnId(number));
    }
    return true;
  }

  // Whoever deletes a zman removes it from the choice as well: where it is kept all the same, that does not count.
  bool IsChosenInBoth(const std::string& id) const {
    if (gone_.contains(id)) return false;
    const bool inBase = Has(base_.chosen, id);
    const bool inMine = Has(mine_.chosen, id);
    const bool inTheirs = Has(theirs_.chosen, id);
    if (keptByMe_.contains(id)) return inMine;
    if (keptByThem_.contains(id)) return inTheirs;
    return inMine == inBase ? inTheirs : inMine;
  }

  Ids Remaining(const Ids& ids) const {
    Ids remaining;
    std::ranges::copy_if(ids, std::back_inserter(remaining),
                         [this](const std::string& id) { return IsChosenInBoth(id); });
    return remaining;
  }

  // The zmanim that all three choose, in the order of one of them.
  Ids Shared(const Ids& ids) const {
    Ids shared;
    std::ranges::copy_if(ids, std::back_inserter(shared), [this](const std::string& id) {
      return Has(base_.chosen, id) && Has(mine_.chosen, id) && Has(theirs_.chosen, id);
    });
    return shared;
  }

  bool MergeChosen() {
    const Ids orderBefore = Shared(base_.chosen);
    const Ids myOrder = Shared(mine_.chosen);
    const Ids theirOrder = Shared(theirs_.chosen);
    const bool isMovedByMe = myOrder != orderBefore;
    const bool isMovedByThem = theirOrder != orderBefore;
    const bool isTheirOrder = isMovedByThem && !isMovedByMe;
    merged_.chosen = isTheirOrder ? Joined(theirs_.chosen, mine_.chosen) : Joined(mine_.chosen, theirs_.chosen);
    const bool isMovedApart = isMovedByMe && isMovedByThem && myOrder != theirOrder;
    const bool hasRoom = !merged_.chosen.empty() && merged_.chosen.size() <= kMostChosen;
    if (hasRoom && !isMovedApart && !AreOtherPresets()) return true;

    const std::optional<Side> side = decide_({nullptr, nullptr});
    if (!side) return false;
    merged_.chosen = *side == Side::kMine ? mine_.chosen : theirs_.chosen;
    std::erase_if(merged_.chosen, [this](const std::string& id) { return gone_.contains(id); });
    return true;
  }

  // What remains of the one, and what remains of the other behind what it stood behind there.
  Ids Joined(const Ids& one, const Ids& other) const {
    Ids joined = Remaining(one);
    size_t behind = 0;  // the number of zmanim before the next one's place
    for (const std::string& id : Remaining(other)) {
      const auto there = std::ranges::find(joined, id);
      if (there == joined.end()) {
        joined.insert(joined.begin() + static_cast<std::ptrdiff_t>(behind++), id);
      } else {
        behind = static_cast<size_t>(there - joined.begin()) + 1;
      }
    }
    return joined;
  }

  // Each side has replaced the whole choice.
  bool AreOtherPresets() const {
    const std::optional<size_t> mine = PresetInUse(mine_);
    const std::optional<size_t> theirs = PresetInUse(theirs_);
    const bool isReplaced = mine_.chosen != base_.chosen && theirs_.chosen != base_.chosen;
    return isReplaced && mine && theirs && mine != theirs;
  }

  const Choice& base_;
  const Choice& mine_;
  const Choice& theirs_;
  const Decide& decide_;
  Choice merged_;
  std::set<std::string> gone_;        // ids of own zmanim that are not in the result
  std::set<std::string> keptByMe_;    // that they deleted
  std::set<std::string> keptByThem_;  // that I deleted
};

}  // namespace

std::optional<Choice> MergedChoice(const Choice& base, const Choice& mine, const Choice& theirs, const Decide& decide) {
  if (theirs == base) return mine;
  if (mine == base) return theirs;
  const Choice renumbered = Renumbering(base, mine, theirs).Result();
  Merge merge(base, renumbered, theirs, decide);
  if (!merge.Run()) return std::nullopt;
  return std::move(merge).Result();
}

}  // namespace hours
