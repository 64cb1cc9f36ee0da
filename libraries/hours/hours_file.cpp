#include "libraries/hours/hours_file.h"

#include "libraries/hours/description_text.h"
#include "libraries/hours/fingerprint.h"
#include "libraries/settings_folder/settings_folder_win.h"
#include "libraries/settings_folder/watched_file.h"

namespace hours {
namespace {

struct ChoiceFile {
  std::mutex mutex;
  settings_folder::WatchedFile watched{"hours.txt"};
  Choice choice;
  std::vector<AnsweredZman> zmanim;
  uint64_t fingerprint = 0;
};

ChoiceFile choiceFile;

void TakeUp(std::string_view text) {
  choiceFile.choice = ReadChoice(text);
  std::vector<DescribedZman> chosen = ChosenZmanim(choiceFile.choice);
  choiceFile.fingerprint = FingerprintOf(chosen);
  choiceFile.zmanim.clear();
  for (DescribedZman& zman : chosen) {
    choiceFile.zmanim.push_back({std::move(zman.description), DisplayHebrew(zman.hebrew), zman.definition});
  }
}

void Refresh() {
  std::string text;
  if (choiceFile.watched.Refresh(&text)) TakeUp(text);
}

}  // namespace

SelectionLock::SelectionLock() : lock_(choiceFile.mutex) {
  Refresh();
}

const std::vector<AnsweredZman>& SelectionLock::Zmanim() const {
  return choiceFile.zmanim;
}

uint64_t SelectionLock::Fingerprint() const {
  return choiceFile.fingerprint;
}

std::optional<Choice> StoredChoice() {
  const std::lock_guard lock(choiceFile.mutex);
  choiceFile.watched.Distrust();
  Refresh();
  if (!choiceFile.watched.IsKnown()) return std::nullopt;
  return choiceFile.choice;
}

WriteResult WriteChoice(const Choice& choice, const Choice& expected) {
  const std::lock_guard lock(choiceFile.mutex);
  std::string text;
  bool isExpected = true;
  const auto apply = [&](std::string& bytes) {
    isExpected = ReadChoice(bytes) == expected;
    if (isExpected) bytes = Applied(choice, bytes);
    text = bytes;
    return isExpected;
  };
  const bool isWritten = choiceFile.watched.Edit(apply);
  if (isWritten || !isExpected) TakeUp(text);
  if (!isExpected) return WriteResult::kChangedMeanwhile;
  return isWritten ? WriteResult::kWritten : WriteResult::kFailed;
}

std::wstring ChoicePath() {
  return settings_folder::PathNow(L"hours.txt");
}

}  // namespace hours
