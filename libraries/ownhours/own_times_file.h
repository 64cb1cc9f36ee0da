// An open store and its file "ownhours.txt".
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "libraries/ownhours/own_times.h"

namespace ownhours {

class OpenStore {
 public:
  // The file as it stands now; nothing when it cannot be read.
  static std::optional<OpenStore> Load();

  const OwnTimes& Times() const { return times_; }
  void Set(const Entry& entry);

  // Makes what was set since the last Save in the file as it is now, at once and whole; false when that fails, and the
  // file is as it was.
  bool Save();

 private:
  explicit OpenStore(OwnTimes times) : times_(std::move(times)) {}

  OwnTimes times_;
  Changes unsaved_;
};

// The times as they are in the file now; nothing when it cannot be read.
std::optional<Entries> StoredEntries();

// Makes the changes in the file as it is now, at once and whole. Where that says something new since stored was read
// (settings_folder::Conflicts), nothing is written unless the changes are to replace it. False when nothing was
// written: for conflicts, which are then told, or because the file cannot be written.
bool WriteChanges(const Changes& changes, const Entries& stored, bool replaceOthers, std::vector<Occasion>* conflicts);

// The file's full path, for messages.
std::wstring StorePath();

}  // namespace ownhours
