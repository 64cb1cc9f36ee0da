#include "libraries/safekeep/restore.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "libraries/dialogs/chosen_file.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/safekeep/back_up.h"
#include "libraries/safekeep/restore_dialog.h"
#include "libraries/safekeep/settings_files.h"
#include "libraries/settings_folder/watched_file.h"

namespace safekeep {
namespace {

constexpr wchar_t kTitle[] = L"Restore Settings";
constexpr wchar_t kAgain[] = L"restore again";

// None, and the user is told why, when the file is not a sound backup.
std::optional<Backup> BackupOrTell(HWND owner, const std::wstring& path) {
  const std::optional<std::string> archive = dialogs::BytesOfFileOrTell(owner, path, L"a backup of settings", kAgain);
  if (!archive) return std::nullopt;
  BackupReading reading = ReadBackup(*archive);
  if (!reading.backup) {
    dialogs::ShowError(owner, L"The settings cannot be restored from the file\n" + path + L"\n\n" +
                                  dialogs::FromUtf8(reading.fault) + L"\n\nNothing was changed.");
  }
  return std::move(reading.backup);
}

void TellWhatWasRestored(HWND owner, const Backup& backup, const std::wstring& keptBefore) {
  std::wstring text = L"The settings of " + dialogs::FromUtf8(MinuteText(backup.made)) + L" are restored.\n\n";
  if (keptBefore.empty()) {
    text += L"There were no settings before.";
  } else {
    text += L"The settings of before are kept in\n" + keptBefore + L"\n\nRestoring that file brings them back.";
  }
  MessageBoxW(owner, text.c_str(), kTitle, MB_OK | MB_ICONINFORMATION);
}

}  // namespace

bool Restore(HWND owner) {
  const std::wstring path = dialogs::AskForFileToRead(owner, {L"Choose Backup to Restore", kFileFilter, L"zip"});
  if (path.empty()) return false;
  const std::optional<Backup> backup = BackupOrTell(owner, path);
  if (!backup) return false;
  const std::optional<std::vector<ZipEntry>> present = SettingsOrTell(owner, kAgain);
  if (!present || !AskWhetherToRestore(owner, path, *backup, *present)) return false;
  const Restoring restoring = RestoreNow(*backup);
  if (!restoring.isDone) {
    dialogs::ShowError(owner, restoring.fault);
    return false;
  }
  const ULONGLONG restored = GetTickCount64();
  TellWhatWasRestored(owner, *backup, restoring.keptBefore);
  // Whoever reads settings from now on is to see the new ones, however fast the box was answered.
  while (GetTickCount64() - restored <= settings_folder::kSeenWithinMilliseconds) Sleep(1);
  return true;
}

}  // namespace safekeep
