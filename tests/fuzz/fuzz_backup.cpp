#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/safekeep/backup_form.h"
#include "libraries/safekeep/kept_files.h"
#include "libraries/safekeep/restore_plan.h"
#include "tests/fuzz/check.h"

using namespace safekeep;

namespace {

bool IsSame(const ZipEntry& left, const ZipEntry& right) {
  return left.name == right.name && left.changed == right.changed && left.bytes == right.bytes;
}

bool AreSame(const std::vector<ZipEntry>& left, const std::vector<ZipEntry>& right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(), IsSame);
}

// Whatever an archive holds is within the limits, and what is written of it is read as the same.
void CheckZip(std::string_view archive) {
  const ZipReading zip = ReadZip(archive);
  FUZZ_CHECK(zip.fault == ZipFault::kNone || zip.entries.empty());
  size_t bytes = 0;
  for (const ZipEntry& entry : zip.entries) bytes += entry.bytes.size();
  FUZZ_CHECK(zip.entries.size() <= kMostEntries && bytes <= kMostBytes);
  if (zip.fault == ZipFault::kNone) FUZZ_CHECK(AreSame(ReadZip(ZipOf(zip.entries)).entries, zip.entries));
}

// A backup that is accepted holds settings files only, and is read again from what is written of it.
void CheckBackup(std::string_view archive) {
  const BackupReading reading = ReadBackup(archive);
  FUZZ_CHECK(reading.backup.has_value() == reading.fault.empty());
  if (!reading.backup) return;
  FUZZ_CHECK(!reading.backup->files.empty());
  for (const ZipEntry& file : reading.backup->files) FUZZ_CHECK(FindKeptFile(file.name));
  FUZZ_CHECK(PlanOf(reading.backup->files, {}).size() == reading.backup->files.size());
  const BackupReading again = ReadBackup(BackupOf(*reading.backup));
  FUZZ_CHECK(again.backup && again.backup->made == reading.backup->made &&
             again.backup->version == reading.backup->version && AreSame(again.backup->files, reading.backup->files));
}

}  // namespace

// The first byte says what the rest is: an archive, or the about text of a backup with one file, whose sums no fuzzer
// would guess.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const std::string_view rest(reinterpret_cast<const char*>(data) + 1, size - 1);
  if (data[0] == 'a') {
    CheckBackup(ZipOf(std::vector<ZipEntry>{{std::string(kAboutName), {}, std::string(rest)}, {"stamp.ini", {}, ""}}));
  } else {
    CheckZip(rest);
    CheckBackup(rest);
  }
  return 0;
}
