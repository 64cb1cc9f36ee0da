// A backup of all settings: a zip archive of the settings files (kept_files.h) under their own names, the first entry a
// text for people by which the archive is known as ours.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/safekeep/zip_archive.h"

namespace safekeep {

// By the computer's clock and calendar.
struct Moment {
  int year = 0;
  int month = 0;  // 1 to 12
  int day = 0;
  int hour = 0;  // 0 to 23
  int minute = 0;
  int second = 0;

  bool operator==(const Moment&) const = default;
};

// Moments beyond the years that archives know become the nearest that they know.
DosTime DosTimeOf(const Moment& moment);
Moment MomentOf(const DosTime& time);

// "2026-11-22"; "2026-11-22 17:33"
std::string DateText(const Moment& moment);
std::string MinuteText(const Moment& moment);

// The names that are offered and given: "Times Readings settings 2026-11-22.zip", "Before restoring 2026-11-22
// 17.33.05.zip"; the latter with " (2)" and so on behind it when the number is not 1.
std::string OfferedName(const Moment& moment);
std::string BeforeRestoringName(const Moment& moment, int number);

struct Backup {
  std::string version;  // of the program that made it, as people read it
  Moment made;
  std::vector<ZipEntry> files;  // named as in the table, in its order
};

inline constexpr std::string_view kAboutName = "about these settings.txt";

// The archive. There is at least one file, and they are within the limits of archives.
std::string BackupOf(const Backup& backup);

struct BackupReading {
  std::optional<Backup> backup;
  std::string fault;  // why there is none, in sentences for people; it may hold UTF-8
};

// The backup in the bytes of an archive, all of it checked.
BackupReading ReadBackup(std::string_view archive);

}  // namespace safekeep
