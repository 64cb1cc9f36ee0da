// How a dialog that edits the entries of a file saves them.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "libraries/dialogs/dialog_parts.h"

namespace dialogs {

// what: the entries' name in the plural, "times". path: the file's.
struct SavedFile {
  const wchar_t* what;
  std::wstring path;
};

// Writes changes, which map keys to what they are to say. Where another program has changed the same entries meanwhile,
// the user decides; where the file cannot be written, the user is told. Whether they are written: if not, the dialog
// stays.
// write: bool(changes, replaceOthers, std::vector<Key>* conflicts). inWords: a key in words. drop: void(changes,
// conflicts) takes the changes out that are not to be made, with those that mean nothing without them.
template <typename Changes, typename Write, typename InWords, typename Drop>
bool SaveOrTell(HWND dialog, Changes changes, const Write& write, const InWords& inWords, const SavedFile& file,
                const Drop& drop) {
  const std::wstring what = file.what;
  bool replaceOthers = false;
  for (;;) {
    std::vector<typename Changes::key_type> conflicts;
    if (write(changes, replaceOthers, &conflicts)) return true;
    if (conflicts.empty()) break;
    const std::optional<bool> decision =
        Decision(dialog, L"Meanwhile another program has changed " + what + L" that you have changed too, such as\n\n" +
                             inWords(conflicts.front()) +
                             L"\n\nShall yours replace them? With No, those stay and your other changes are saved.");
    if (!decision) return false;
    replaceOthers = *decision;
    if (!replaceOthers) drop(changes, conflicts);
  }
  ShowError(dialog, L"The " + what + L" could not be saved in the file\n" + file.path +
                        L"\n\nSee to it that it can be written (no other program holds it, it is not read-only, the "
                        L"disk is not full), then choose OK again.");
  return false;
}

}  // namespace dialogs
