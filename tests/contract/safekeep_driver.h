// Backing settings up and restoring them, worked from outside.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "companion/safekeep.h"
#include "libraries/safekeep/safekeep_ids.h"
#include "tests/contract/dialog_driver.h"
#include "tests/contract/settings_home.h"

inline constexpr wchar_t kBackUpTitle[] = L"Back Up Settings";
inline constexpr wchar_t kChooseTitle[] = L"Choose Backup to Restore";
inline constexpr wchar_t kRestoreTitle[] = L"Restore Settings";

inline constexpr char kPlaces[] = "[Locations]\r\nHome=Available\r\n";
inline constexpr char kTwelveHours[] = "[Times]\r\nForm=12\r\n";
inline constexpr char kTwentyFourHours[] = "[Times]\r\nForm=24\r\n";

class SafekeepTest : public testing::Test {
 protected:
  static constexpr int kFileName = 0x47C;  // cmb13 of dlgs.h: the field of the system's dialogs for files

  static void ChooseFile(const DialogDriver& run, const wchar_t* caption, const std::filesystem::path& file) {
    const HWND dialog = run.WaitFor(caption);
    SetControlText(dialog, kFileName, file.wstring());
    Press(dialog, IDOK);
  }

  // What is told when the settings are backed up in a file of the settings folder, which does not exist yet.
  std::wstring BackUp(const char* name) const {
    DialogDriver run(SafekeepBackUp);
    ChooseFile(run, kBackUpTitle, home_.Path(name));
    const std::wstring told = run.Answer(kBackUpTitle, run.Owner(), IDI_ASTERISK, IDOK);
    EXPECT_NE(run.Result(), 0);
    return told;
  }

  // What is told when the user chooses the file and agrees.
  std::wstring Restore(const std::filesystem::path& file) const {
    DialogDriver run(SafekeepRestore);
    ChooseFile(run, kChooseTitle, file);
    Press(run.WaitFor(kRestoreTitle), IDOK);
    const std::wstring told = run.Answer(kRestoreTitle, run.Owner(), IDI_ASTERISK, IDOK);
    EXPECT_NE(run.Result(), 0);
    return told;
  }
  std::wstring Restore(const char* name) const { return Restore(home_.Path(name)); }

  // The error that the file itself leads to.
  std::wstring Refusal(const char* name) const {
    DialogDriver run(SafekeepRestore);
    ChooseFile(run, kChooseTitle, home_.Path(name));
    const std::wstring told = run.Answer(L"Error", run.Owner(), IDI_HAND, IDOK);
    EXPECT_EQ(run.Result(), 0);
    return told;
  }

  // The error that follows when the user agrees.
  std::wstring Failure(const char* name) const {
    DialogDriver run(SafekeepRestore);
    ChooseFile(run, kChooseTitle, home_.Path(name));
    Press(run.WaitFor(kRestoreTitle), IDOK);
    const std::wstring told = run.Answer(L"Error", run.Owner(), IDI_HAND, IDOK);
    EXPECT_EQ(run.Result(), 0);
    return told;
  }

  bool IsThere(const char* name) const { return std::filesystem::exists(home_.Path(name)); }

  // The files and folders in a folder of the settings folder.
  std::vector<std::string> NamesIn(const char* folder) const {
    std::vector<std::string> names;
    std::error_code missing;
    for (const auto& entry : std::filesystem::directory_iterator(home_.Path(folder), missing)) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }

  SettingsHome home_;
};
