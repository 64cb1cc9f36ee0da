// An open store and its file "ownhours.txt".
#pragma once

#include <optional>

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

}  // namespace ownhours
