// The user's own texts of readings in their file, "readings.txt". May be used by several threads at once.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "libraries/lections/own_readings.h"
#include "libraries/lections/own_text.h"

namespace lections {

// The texts as the file had them at most 50 ms ago.
std::shared_ptr<const OwnReadings> StoredOwnReadings();

// The file as it is now; nothing when it cannot be read.
std::optional<OwnFile> OwnFileNow();

// Makes the changes in the file as it is now, at once and whole. Where that says something new since stored was read
// (settings_folder::Conflicts), nothing is written unless the changes are to replace it. False when nothing was
// written: for conflicts, which are then told, or because the file cannot be written.
bool WriteOwnChanges(const OwnChanges& changes, const OwnTexts& stored, bool replaceOthers,
                     std::vector<OwnPlace>* conflicts);

// The file's full path, for messages.
std::wstring OwnReadingsPath();

}  // namespace lections
