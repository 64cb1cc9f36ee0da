// The times as the user changes them in the dialog, and how the changes go into a file that others write too.
#pragma once

#include <string_view>
#include <vector>

#include "libraries/ownhours/own_times.h"

namespace ownhours {

class Editing {
 public:
  explicit Editing(Entries stored) : stored_(std::move(stored)), now_(stored_) {}

  const Entries& Stored() const { return stored_; }
  const Entries& Now() const { return now_; }
  std::vector<Occasion> OfPlace(std::string_view place) const;

  // Each is one step for Undo; what changes nothing is none.
  void Set(const Occasion& occasion, Time time) { Make({{occasion, time}}); }
  void Remove(const std::vector<Occasion>& occasions);

  bool CanUndo() const { return !undo_.empty(); }
  // Takes the last step back: what it had changed.
  std::vector<Occasion> Undo();

  // What is to be written.
  Changes Unsaved() const;

 private:
  // What takes the changes back.
  Changes Put(const Changes& changes);
  void Make(const Changes& changes);

  Entries stored_;
  Entries now_;
  std::vector<Changes> undo_;
};

// The occasions of changes for which the file says something new: neither what it said when the changes were begun nor
// what they want.
std::vector<Occasion> Conflicts(const Changes& changes, const Entries& stored, const Entries& file);

}  // namespace ownhours
