// The settings files of this moment: read together, kept in a backup, replaced together.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "libraries/safekeep/backup_form.h"

namespace safekeep {

// By the computer's clock.
Moment Now();

std::wstring PathOf(std::string_view name);

// Whether a path is that of one of the settings files, whether there is such a file or not.
bool IsSettingsFile(const std::wstring& path);

// The settings files that there are, in the order of the table; none, and the user is told why, when one of them cannot
// be read, or is too large for a backup. They are read under the writers' lock, so they are of one moment.
std::optional<std::vector<ZipEntry>> SettingsOrTell(HWND owner, const std::wstring& again);

// The folder of the backups that are made before settings are restored.
std::wstring BackupsFolder();

struct Restoring {
  bool isDone = false;
  std::wstring fault;       // why it is not, for people
  std::wstring keptBefore;  // the backup of the settings of before; empty where there were none
};

// Backs the present settings up, then replaces those that the backup has, all under the writers' lock. Unless isDone,
// everything is as it was, or the fault says what is not.
Restoring RestoreNow(const Backup& backup);

}  // namespace safekeep
