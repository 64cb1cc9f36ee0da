#include "libraries/safekeep/back_up.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "libraries/dialogs/chosen_file.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/safekeep/program_version.h"
#include "libraries/safekeep/settings_files.h"

namespace safekeep {
namespace {

constexpr wchar_t kTitle[] = L"Back Up Settings";
constexpr wchar_t kAgain[] = L"back up again";

void ShowNews(HWND owner, const std::wstring& text) {
  MessageBoxW(owner, text.c_str(), kTitle, MB_OK | MB_ICONINFORMATION);
}

// None, and the user is told why, when there is nothing to back up.
std::optional<std::vector<ZipEntry>> SomeSettingsOrTell(HWND owner) {
  std::optional<std::vector<ZipEntry>> settings = SettingsOrTell(owner, kAgain);
  if (!settings || !settings->empty()) return settings;
  ShowNews(owner, L"There are no settings yet: everything is as the program came. Nothing needs a backup.");
  return std::nullopt;
}

}  // namespace

bool BackUp(HWND owner) {
  if (!SomeSettingsOrTell(owner)) return false;  // known before a file is asked for
  const dialogs::FileQuestion question = {kTitle, kFileFilter, L"zip"};
  const std::wstring path = dialogs::AskForFileToWrite(owner, question, dialogs::FromUtf8(OfferedName(Now())));
  if (path.empty()) return false;
  if (IsSettingsFile(path)) {
    dialogs::ShowError(
        owner, L"The file\n" + path + L"\nis one of the settings files themselves. Choose another one for the backup.");
    return false;
  }
  // Those of now, however long the question stood.
  std::optional<std::vector<ZipEntry>> settings = SomeSettingsOrTell(owner);
  if (!settings) return false;
  const size_t count = settings->size();
  const std::string archive = BackupOf({PROGRAM_VERSION_TEXT, Now(), std::move(*settings)});
  if (!dialogs::WriteOrTell(owner, path, archive, kAgain)) return false;
  ShowNews(owner, (count == 1 ? L"1 settings file is" : std::to_wstring(count) + L" settings files are") +
                      std::wstring(L" backed up in\n") + path +
                      L"\n\nKeep it where it is safe, on another disk for instance.");
  return true;
}

}  // namespace safekeep
