#include "libraries/safekeep/settings_files.h"

#include <map>
#include <utility>

#include "libraries/dialogs/chosen_file.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/safekeep/kept_files.h"
#include "libraries/safekeep/program_version.h"
#include "libraries/safekeep/replacement.h"
#include "libraries/settings_folder/settings_folder.h"
#include "libraries/settings_folder/settings_folder_win.h"
#include "libraries/settings_folder/whole_file.h"

namespace safekeep {
namespace {

using settings_folder::FileStamp;
using settings_folder::Patience;
using settings_folder::ReadResult;
using settings_folder::ReplaceResult;

constexpr wchar_t kBusy[] =
    L"Another copy of the program is writing settings just now. Nothing was changed. Wait a moment, then ";

Moment MomentOf(const SYSTEMTIME& time) {
  return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond};
}

// fileTime: 100 ns since 1601, UTC.
DosTime DosTimeOfFile(uint64_t fileTime) {
  const FILETIME time = {static_cast<DWORD>(fileTime), static_cast<DWORD>(fileTime >> 32)};
  SYSTEMTIME utc;
  SYSTEMTIME local;
  if (!FileTimeToSystemTime(&time, &utc) || !SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local)) return {};
  return DosTimeOf(MomentOf(local));
}

// The settings as they stand, with the stamps by which their files are known.
struct Present {
  std::vector<ZipEntry> files;
  std::map<std::string, FileStamp> stamps;
  std::wstring fault;  // why they are not known, for people
};

// The caller holds the writers' lock.
Present ReadPresent(const std::wstring& again) {
  Present present;
  size_t bytes = 0;
  for (const KeptFile& kept : KeptFiles()) {
    const std::wstring path = PathOf(kept.name);
    const FileStamp stamp = settings_folder::StampOf(path);
    bytes += static_cast<size_t>(stamp.sizeBytes);
    if (stamp.sizeBytes > kMostEntryBytes || bytes > kMostBytes) {
      present.fault = L"The settings file\n" + path +
                      L"\nis far too large to be one of this program's. Nothing was changed.\n\nMove it to another "
                      L"place if it is not, then " +
                      again + L".";
      return present;
    }
    ZipEntry file = {std::string(kept.name), DosTimeOfFile(stamp.lastWriteTime), ""};
    const ReadResult read = settings_folder::ReadWholeFile(path, Patience::kShort, &file.bytes);
    if (read == ReadResult::kUnreadable) {
      present.fault = L"The settings file\n" + path +
                      L"\ncannot be read. Nothing was changed, and no backup was made, for it would lack this "
                      L"file.\n\nSee to it that no other program holds it and that you may open it, then " +
                      again + L".";
      return present;
    }
    present.stamps[file.name] = stamp;
    if (read == ReadResult::kRead) present.files.push_back(std::move(file));
  }
  return present;
}

// Replaces and removes settings files that are as their stamps say.
class Writer {
 public:
  explicit Writer(std::map<std::string, FileStamp> stamps) : stamps_(std::move(stamps)) {}

  bool Put(const std::string& name, const std::optional<std::string>& bytes) {
    const std::wstring path = PathOf(name);
    FileStamp& known = stamps_[name];
    if (!bytes) {
      if (settings_folder::StampOf(path) != known || !DeleteFileW(path.c_str())) return false;
      known = {};
      return true;
    }
    FileStamp written;
    if (settings_folder::ReplaceWholeFile(path, *bytes, known, &written) != ReplaceResult::kReplaced) return false;
    // Asked again: some disks round the time once the file is closed.
    known = settings_folder::StampOf(path);
    return true;
  }

 private:
  std::map<std::string, FileStamp> stamps_;
};

// Writes a backup under a name that is not in use yet; its path, empty when it cannot be written.
std::wstring KeepBefore(const std::vector<ZipEntry>& files) {
  constexpr int kMostNames = 1000;
  const Moment now = Now();
  const std::string archive = BackupOf({PROGRAM_VERSION_TEXT, now, files});
  if (!settings_folder::MakeFolder(BackupsFolder())) return {};
  for (int number = 1; number <= kMostNames; ++number) {
    const std::wstring name = dialogs::FromUtf8(BeforeRestoringName(now, number));
    const std::wstring path = settings_folder::PathNow(settings_folder::Joined(BackupsFolder(), name));
    FileStamp written;
    if (settings_folder::StampOf(path).exists) continue;
    const ReplaceResult result = settings_folder::ReplaceWholeFile(path, archive, {}, &written);
    if (result == ReplaceResult::kReplaced) return path;
    if (result == ReplaceResult::kFailed) return {};
  }
  return {};
}

std::vector<Replacement> ReplacementsOf(const Backup& backup, const std::vector<ZipEntry>& present) {
  std::map<std::string_view, const std::string*> before;
  for (const ZipEntry& file : present) before[file.name] = &file.bytes;
  std::vector<Replacement> replacements;
  for (const ZipEntry& file : backup.files) {
    const auto found = before.find(file.name);
    replacements.push_back(
        {file.name, file.bytes, found == before.end() ? std::nullopt : std::optional(*found->second)});
  }
  return replacements;
}

std::wstring FaultOf(const ReplacementResult& result, const std::wstring& keptBefore) {
  const std::wstring remedy =
      L"\n\nSee to it that no other program holds or changes it, that it is not read-only and that the disk is not "
      L"full, then restore again.";
  std::wstring fault = L"The settings file\n" + PathOf(result.failed) + L"\ncould not be written. ";
  if (result.left.empty()) return fault + L"So nothing was restored, and all settings are as they were." + remedy;
  fault += L"Of those before it, these could not be put back, and are as in the backup now:\n";
  for (const std::string& name : result.left) fault += PathOf(name) + L"\n";
  if (!keptBefore.empty()) fault += L"\nThe settings of before are kept in\n" + keptBefore;
  return fault + remedy;
}

}  // namespace

Moment Now() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return MomentOf(now);
}

std::wstring PathOf(std::string_view name) {
  return settings_folder::PathNow(dialogs::FromUtf8(name));
}

bool IsSettingsFile(const std::wstring& path) {
  for (const KeptFile& kept : KeptFiles()) {
    if (dialogs::IsSamePath(path, PathOf(kept.name))) return true;
  }
  return false;
}

std::optional<std::vector<ZipEntry>> SettingsOrTell(HWND owner, const std::wstring& again) {
  Present present;
  {
    const settings_folder::WriterLock lock;
    if (lock.Held()) {
      present = ReadPresent(again);
    } else {
      present.fault = kBusy + again + L".";
    }
  }
  if (present.fault.empty()) return std::move(present.files);
  dialogs::ShowError(owner, present.fault);
  return std::nullopt;
}

std::wstring BackupsFolder() {
  return settings_folder::WithoutLengthLimit(
      settings_folder::FullPath(settings_folder::Joined(settings_folder::FolderNow(), L"backups")));
}

Restoring RestoreNow(const Backup& backup) {
  const std::wstring again = L"restore again";
  const settings_folder::WriterLock lock;
  if (!lock.Held()) return {false, kBusy + again + L".", L""};
  Present present = ReadPresent(again);
  if (!present.fault.empty()) return {false, present.fault, L""};
  if (present.files.empty()) settings_folder::MakeFolder(settings_folder::FolderNow());
  const std::wstring keptBefore = present.files.empty() ? L"" : KeepBefore(present.files);
  if (keptBefore.empty() && !present.files.empty()) {
    return {false,
            L"The present settings could not be kept in the folder\n" + BackupsFolder() +
                L"\nfirst, so nothing was restored.\n\nSee to it that you may write there and that the disk is not "
                L"full, then restore again.",
            L""};
  }
  Writer writer(std::move(present.stamps));
  const auto put = [&writer](const std::string& name, const std::optional<std::string>& bytes) {
    return writer.Put(name, bytes);
  };
  const ReplacementResult result = ReplaceAll(ReplacementsOf(backup, present.files), put);
  if (result.failed.empty()) return {true, L"", keptBefore};
  // What is as it was needs no backup of before.
  if (result.left.empty() && !keptBefore.empty()) DeleteFileW(keptBefore.c_str());
  return {false, FaultOf(result, keptBefore), keptBefore};
}

}  // namespace safekeep
