// The entries of a file as the user changes them in a dialog, with undo, and how the changes meet those that others
// make in the file meanwhile.
#pragma once

#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "libraries/settings_folder/text_table.h"

namespace settings_folder {

// What entries say of a key; none where they say nothing.
template <typename Key, typename Value>
std::optional<Value> ValueIn(const std::map<Key, Value>& entries, const Key& key) {
  const auto found = entries.find(key);
  if (found == entries.end()) return std::nullopt;
  return found->second;
}

// Key: what an entry is for; Value: what it says.
template <typename Key, typename Value>
class TableEditing {
 public:
  using Entries = std::map<Key, Value>;
  using Changes = std::map<Key, std::optional<Value>>;

  explicit TableEditing(Entries stored) : stored_(std::move(stored)), now_(stored_) {}

  const Entries& Stored() const { return stored_; }
  const Entries& Now() const { return now_; }

  // Each call is one step for Undo; what changes nothing is none.
  void Make(const Changes& changes) {
    Changes back = Put(changes);
    if (!back.empty()) undo_.push_back(std::move(back));
  }
  void Set(const Key& key, Value value) { Make({{key, std::move(value)}}); }
  void Remove(const std::vector<Key>& keys) {
    Changes changes;
    for (const Key& key : keys) changes.emplace(key, std::nullopt);
    Make(changes);
  }

  bool CanUndo() const { return !undo_.empty(); }
  // Takes the last step back: what it had changed.
  std::vector<Key> Undo() {
    std::vector<Key> changed;
    if (undo_.empty()) return changed;
    for (const auto& [key, value] : undo_.back()) changed.push_back(key);
    Put(undo_.back());
    undo_.pop_back();
    return changed;
  }

  // What is to be written.
  Changes Unsaved() const { return Difference(stored_, now_); }

 private:
  // What takes the changes back.
  Changes Put(const Changes& changes) {
    Changes back;
    for (const auto& [key, value] : changes) {
      std::optional<Value> old = ValueIn(now_, key);
      if (old == value) continue;
      back.emplace(key, std::move(old));
      if (value) {
        now_.insert_or_assign(key, *value);
      } else {
        now_.erase(key);
      }
    }
    return back;
  }

  Entries stored_;
  Entries now_;
  std::vector<Changes> undo_;
};

// The keys of changes of which the file says something new: neither what it said when the changes were begun nor what
// they want.
template <typename Key, typename Value>
std::vector<Key> Conflicts(const std::map<Key, std::optional<Value>>& changes, const std::map<Key, Value>& stored,
                           const std::map<Key, Value>& file) {
  std::vector<Key> found;
  for (const auto& [key, wanted] : changes) {
    const std::optional<Value> now = ValueIn(file, key);
    if (now != wanted && now != ValueIn(stored, key)) found.push_back(key);
  }
  return found;
}

}  // namespace settings_folder
