// What restoring a backup will do to the settings as they are.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "libraries/safekeep/zip_archive.h"

namespace safekeep {

enum class Fate {
  kReplaced,
  kAdded,  // there is no such file now
  kSame,   // backup and settings folder have the same bytes
  kStays,  // the backup does not have it
};

struct PlannedFile {
  std::string_view name;
  std::string_view what;
  Fate fate;
  std::string inBackup;  // when it was changed last, to the minute; empty when the backup does not have it
  std::string now;       // likewise in the settings folder
};

// The files that the backup or the settings folder has, in the order of the table; those that stay come last.
std::vector<PlannedFile> PlanOf(const std::vector<ZipEntry>& backup, const std::vector<ZipEntry>& present);

// "is replaced"
std::string_view InWords(Fate fate);

}  // namespace safekeep
