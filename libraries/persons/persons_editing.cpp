#include "libraries/persons/persons_editing.h"

#include <utility>

#include "libraries/settings_folder/text_table.h"

namespace persons {
namespace {

std::optional<Person> PersonOf(const std::map<Editing::Id, Person>& persons, Editing::Id id) {
  const auto found = persons.find(id);
  if (found == persons.end()) return std::nullopt;
  return found->second;
}

}  // namespace

Editing::Editing(const std::vector<Person>& stored) {
  for (const Person& person : stored) stored_.emplace_hint(stored_.end(), next_++, person);
  now_ = stored_;
}

std::vector<Editing::Id> Editing::Add(const std::vector<Person>& added) {
  std::vector<Id> ids;
  Step wanted;
  for (const Person& person : added) {
    ids.push_back(next_);
    wanted.emplace(next_++, person);
  }
  Make(wanted);
  return ids;
}

void Editing::Change(Id id, const Person& person) {
  if (now_.contains(id)) Make({{id, person}});
}

void Editing::Remove(const std::vector<Id>& ids) {
  Step wanted;
  for (const Id id : ids) wanted.emplace(id, std::nullopt);
  Make(wanted);
}

std::vector<Editing::Id> Editing::Undo() {
  std::vector<Id> changed;
  if (undo_.empty()) return changed;
  for (const auto& [id, person] : undo_.back()) changed.push_back(id);
  Put(undo_.back());
  undo_.pop_back();
  return changed;
}

std::vector<persons::Change> Editing::Unsaved() const {
  std::vector<persons::Change> changes;
  for (const auto& [id, wanted] : settings_folder::Difference(stored_, now_)) {
    changes.push_back({PersonOf(stored_, id), wanted});
  }
  return changes;
}

Editing::Step Editing::Put(const Step& wanted) {
  Step back;
  for (const auto& [id, person] : wanted) {
    const std::optional<Person> old = PersonOf(now_, id);
    if (old == person) continue;
    back.emplace(id, old);
    if (person) {
      now_.insert_or_assign(id, *person);
    } else {
      now_.erase(id);
    }
  }
  return back;
}

void Editing::Make(const Step& wanted) {
  Step back = Put(wanted);
  if (!back.empty()) undo_.push_back(std::move(back));
}

}  // namespace persons
