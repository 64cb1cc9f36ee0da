// How the dialog keeps what was chosen, beside what another copy of the program has stored since it opened.
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/hours/choice_merge.h"
#include "libraries/hours/definition_text.h"
#include "libraries/hours/hours_file.h"
#include "libraries/hours/hours_ids.h"
#include "libraries/hours/selection_dialog.h"

namespace hours {
namespace {

using dialogs::Wide;

constexpr wchar_t kAnswers[] = L"\n\nYes keeps your change, No takes the other one, Cancel goes back to the dialog.";

std::wstring Quoted(const OwnZman& zman) {
  return L"\u201C" + Wide(zman.description) + L"\u201D";
}

std::wstring Described(const OwnZman& zman) {
  return Quoted(zman) + L": " + Wide(DefinitionText(DefinitionOf(zman)));
}

std::wstring QuestionAbout(const MergeConflict& conflict) {
  if (conflict.mine && conflict.theirs) {
    return L"While this dialog was open, another copy of the program has changed a zman of your own that you have "
           L"changed, too.\n\nYours: " +
           Described(*conflict.mine) + L"\nThe other: " + Described(*conflict.theirs) + L"\n\nKeep yours?";
  }
  if (conflict.mine) {
    return L"While this dialog was open, another copy of the program has deleted the zman " + Quoted(*conflict.mine) +
           L" of your own, which you have changed. Keep it?";
  }
  if (conflict.theirs) {
    return L"While this dialog was open, another copy of the program has changed the zman " +
           Described(*conflict.theirs) + L". You have deleted it. Delete it all the same?";
  }
  return L"While this dialog was open, another copy of the program has changed which zmanim are chosen, or their "
         L"order, in a way that does not go together with your change. Keep yours?";
}

}  // namespace

void SelectionDialog::Accept() {
  if (choice_.chosen.empty()) {
    dialogs::ShowError(dialog_, L"No zman is chosen. Add at least one, or press Restore Defaults.");
    Focus(IDC_OFFERED);
    return;
  }
  if (choice_ == stored_ || Save()) EndDialog(dialog_, IDOK);
}

// Nothing is held while the user is asked, so the file is looked at anew for writing.
bool SelectionDialog::Save() {
  const auto decide = [this](const MergeConflict& conflict) -> std::optional<Side> {
    const std::optional<bool> isMine = dialogs::Decision(dialog_, QuestionAbout(conflict) + kAnswers);
    if (!isMine) return std::nullopt;
    return *isMine ? Side::kMine : Side::kTheirs;
  };
  WriteResult result = WriteResult::kChangedMeanwhile;
  while (result == WriteResult::kChangedMeanwhile) {
    std::optional<Choice> now;
    const auto read = [&now] { return (now = StoredChoice()).has_value(); };
    if (!dialogs::IsKnown(dialog_, ChoicePath(), read)) return false;
    const std::optional<Choice> merged = MergedChoice(stored_, choice_, *now, decide);
    if (!merged) return false;
    result = WriteChoice(*merged, *now);
  }
  if (result == WriteResult::kWritten) return true;
  dialogs::ShowError(dialog_, L"The selection could not be saved in the file\n" + ChoicePath() +
                                  L"\n\nSee to it that it can be written (no other program holds it, it is not "
                                  L"read-only, the disk is not full), then choose OK again.");
  return false;
}

}  // namespace hours
