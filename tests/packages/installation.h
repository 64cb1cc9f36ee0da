// Installing and uninstalling as a user or administrator does, and what the system holds of it.
#pragma once

#include <windows.h>

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

inline constexpr wchar_t kUninstallKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Times Readings";
inline constexpr wchar_t kSetupKey[] = L"Software\\Times Readings";
inline constexpr wchar_t kFontsKey[] = L"Software\\Microsoft\\Windows NT\\CurrentVersion\\Fonts";
inline constexpr wchar_t kRunOnceKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\RunOnce";

// What packaging/installer.nsi says of its exit codes.
inline constexpr DWORD kDone = 0;
inline constexpr DWORD kCannotWriteFile = 2;
inline constexpr DWORD kInUse = 3;
inline constexpr DWORD kCannotUseFolder = 4;
inline constexpr DWORD kAlreadyRunning = 5;

// What the tests are given: the installer, what it should bring, and the unpacked portable program.
std::filesystem::path SetupFile();
std::filesystem::path ContentsFolder();
std::filesystem::path PortableFolder();  // the one that holds the program

// Where things are once they are installed.
std::filesystem::path AppData();
std::filesystem::path LocalAppData();
std::filesystem::path InstalledFolder();  // unless another one is chosen
std::filesystem::path SettingsFolder();
std::filesystem::path StartMenuFolder();
std::filesystem::path FontFile();

// A program that was started; it is ended with this object if it still runs.
class StartedProgram {
 public:
  explicit StartedProgram(const std::wstring& commandLine);
  ~StartedProgram();
  StartedProgram(const StartedProgram&) = delete;
  StartedProgram& operator=(const StartedProgram&) = delete;

  DWORD WaitForExit() const;
  DWORD processId() const { return process_.dwProcessId; }

 private:
  PROCESS_INFORMATION process_{};
};

// Installs silently, with what else stands on the command line; the exit code.
DWORD Install(const std::wstring& options = L"");

// Uninstalls silently and waits until the uninstaller, which goes on as a copy of itself, is done.
void Uninstall(const std::filesystem::path& folder, const std::wstring& options = L"");

// The same in one process, which tells how it ended and leaves its own file.
DWORD UninstallInPlace(const std::filesystem::path& folder);

// The files below a folder, by their names relative to it, with their bytes.
std::map<std::wstring, std::string> FilesOf(const std::filesystem::path& folder);

// A copy of a folder's files in another folder.
void CopyFiles(const std::filesystem::path& from, const std::filesystem::path& to);

// Makes a folder's name lead to another folder, as a junction does; and takes the name away.
void Link(const std::filesystem::path& name, const std::filesystem::path& target);
void Unlink(const std::filesystem::path& name);

// A path of drive C by the name that another drive gives it, as a drive of the user's own making does.
std::filesystem::path ByAnotherDrive(const std::filesystem::path& path);

// A value of the user's registry as text; nothing where there is none.
std::optional<std::wstring> UserValue(const std::wstring& key, const std::wstring& name);
void SetUserValue(const std::wstring& key, const std::wstring& name, const std::wstring& value);
bool HasUserKey(const std::wstring& key);

// Every file and folder of drive C and every key and value of the user's registry, a line for each.
std::set<std::wstring> StateOfTheSystem();

// The same before anything was installed in it for the first time.
const std::set<std::wstring>& FirstState();

// The lines of a list of files that an installed copy keeps, and a list with a line more.
std::vector<std::wstring> InstalledList(const std::filesystem::path& folder);
void AppendToInstalledList(const std::filesystem::path& folder, const std::wstring& name);
