// The persons as the user changes them in a window, before they are saved.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "libraries/persons/person.h"

namespace persons {

class Editing {
 public:
  // Tells an entry from all others, equal ones included, for as long as the window lives.
  using Id = uint32_t;

  explicit Editing(const std::vector<Person>& stored);

  const std::map<Id, Person>& Now() const { return now_; }

  // Each is one step for Undo; what changes nothing is none. The ids of the new ones.
  std::vector<Id> Add(const std::vector<Person>& added);
  void Change(Id id, const Person& person);
  void Remove(const std::vector<Id>& ids);

  bool CanUndo() const { return !undo_.empty(); }
  // Takes the last step back: the entries that it had changed or removed, and those that it had added, which are gone.
  std::vector<Id> Undo();

  bool IsSaved() const { return now_ == stored_; }
  // What is to be written.
  std::vector<persons::Change> Unsaved() const;
  // What is now counts as stored. Steps can be taken back all the same.
  void WasSaved() { stored_ = now_; }

 private:
  using Step = std::map<Id, std::optional<Person>>;  // what takes the step back
  Step Put(const Step& wanted);
  void Make(const Step& wanted);

  std::map<Id, Person> stored_;
  std::map<Id, Person> now_;
  std::vector<Step> undo_;
  Id next_ = 0;
};

}  // namespace persons
