// The dialog that shows what restoring a backup would do.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "libraries/safekeep/backup_form.h"

namespace safekeep {

// Whether the user wants the settings replaced. path: the backup's. present: the settings files that there are.
bool AskWhetherToRestore(HWND owner, const std::wstring& path, const Backup& backup,
                         const std::vector<ZipEntry>& present);

}  // namespace safekeep
