// The choice's file "hours.txt". May be used by several threads at once.
#pragma once

#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "libraries/hours/choice.h"

namespace hours {

// A chosen zman as the library answers for it.
struct AnsweredZman {
  std::string description;
  std::string displayHebrew;  // as DisplayHebrew gives it
  Definition definition;
};

// Keeps the chosen zmanim, and whatever else the library remembers between its calls, from other threads while it
// lives.
class SelectionLock {
 public:
  SelectionLock();

  // The chosen zmanim in their order, at most 50 ms old.
  const std::vector<AnsweredZman>& Zmanim() const;

  // Theirs, as FingerprintOf gives it.
  uint64_t Fingerprint() const;

 private:
  std::lock_guard<std::mutex> lock_;
};

// The choice as it is in the file now; nothing when the file cannot be read.
std::optional<Choice> StoredChoice();

// Writes the choice, at once and whole, into a file that holds the expected one; else the file is as it was.
enum class WriteResult { kWritten, kChangedMeanwhile, kFailed };
WriteResult WriteChoice(const Choice& choice, const Choice& expected);

// The file's full path, for messages.
std::wstring ChoicePath();

}  // namespace hours
