#include "libraries/ownhours/own_times_editing.h"

#include <utility>

#include "libraries/settings_folder/text_table.h"

namespace ownhours {
namespace {

std::optional<Time> TimeIn(const Entries& entries, const Occasion& occasion) {
  const auto found = entries.find(occasion);
  if (found == entries.end()) return std::nullopt;
  return found->second;
}

}  // namespace

std::vector<Occasion> Editing::OfPlace(std::string_view place) const {
  std::vector<Occasion> found;
  for (const auto& [occasion, time] : now_) {
    if (occasion.place == place) found.push_back(occasion);
  }
  return found;
}

void Editing::Remove(const std::vector<Occasion>& occasions) {
  Changes changes;
  for (const Occasion& occasion : occasions) changes.emplace(occasion, std::nullopt);
  Make(changes);
}

std::vector<Occasion> Editing::Undo() {
  std::vector<Occasion> changed;
  if (undo_.empty()) return changed;
  for (const auto& [occasion, time] : undo_.back()) changed.push_back(occasion);
  Put(undo_.back());
  undo_.pop_back();
  return changed;
}

Changes Editing::Unsaved() const {
  return settings_folder::Difference(stored_, now_);
}

Changes Editing::Put(const Changes& changes) {
  Changes back;
  for (const auto& [occasion, time] : changes) {
    const std::optional<Time> old = TimeIn(now_, occasion);
    if (old == time) continue;
    back.emplace(occasion, old);
    if (time) {
      now_.insert_or_assign(occasion, *time);
    } else {
      now_.erase(occasion);
    }
  }
  return back;
}

void Editing::Make(const Changes& changes) {
  Changes back = Put(changes);
  if (!back.empty()) undo_.push_back(std::move(back));
}

std::vector<Occasion> Conflicts(const Changes& changes, const Entries& stored, const Entries& file) {
  std::vector<Occasion> found;
  for (const auto& [occasion, wanted] : changes) {
    const std::optional<Time> now = TimeIn(file, occasion);
    if (now != wanted && now != TimeIn(stored, occasion)) found.push_back(occasion);
  }
  return found;
}

}  // namespace ownhours
