#include "tests/packages/installation.h"

#include <gtest/gtest.h>
#include <shlobj.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <stdexcept>

#include "tests/end_to_end/program_driver.h"

namespace fs = std::filesystem;

namespace {

// How long installing may take, beside other work of the machine.
constexpr DWORD kInstallMilliseconds = 120000;
constexpr DWORD kPollMilliseconds = 10;

fs::path Given(const char* variable) {
  const char* const value = std::getenv(variable);
  if (!value) throw std::runtime_error(std::string(variable) + " is not set; tests/packages/run sets it");
  return value;
}

fs::path SystemFolder(const KNOWNFOLDERID& id) {
  PWSTR path = nullptr;
  SHGetKnownFolderPath(id, 0, nullptr, &path);
  const fs::path folder = path;
  CoTaskMemFree(path);
  return folder;
}

bool SetupRuns() {
  const HANDLE mutex = OpenMutexW(SYNCHRONIZE, FALSE, L"TimesReadingsSetup");
  if (mutex) CloseHandle(mutex);
  return mutex != nullptr;
}

void WaitUntil(const std::function<bool()>& condition) {
  const ULONGLONG end = GetTickCount64() + kInstallMilliseconds;
  while (!condition()) {
    ASSERT_LT(GetTickCount64(), end) << "waited in vain";
    Sleep(kPollMilliseconds);
  }
}

// A path of drive C as the file system under Wine has it, quoted. Wine makes no links itself, but shows those of that
// file system as reparse points.
std::wstring BelowWine(const fs::path& path) {
  return L"\"" + Given("WINEPREFIX").generic_wstring() + L"/drive_c/" + path.relative_path().generic_wstring() + L"\"";
}

void CollectRegistry(HKEY key, const std::wstring& name, std::set<std::wstring>& state) {
  constexpr DWORD kLongestName = 16384;
  std::wstring entry(kLongestName, L'\0');
  for (DWORD index = 0;; ++index) {
    DWORD length = kLongestName;
    DWORD size = 0;
    if (RegEnumValueW(key, index, entry.data(), &length, nullptr, nullptr, nullptr, &size) != ERROR_SUCCESS) break;
    state.insert(name + L"\\" + entry.substr(0, length) + L"=");
  }
  for (DWORD index = 0;; ++index) {
    DWORD length = kLongestName;
    if (RegEnumKeyExW(key, index, entry.data(), &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
    const std::wstring path = name + L"\\" + entry.substr(0, length);
    state.insert(path);
    HKEY child = nullptr;
    if (RegOpenKeyExW(key, entry.substr(0, length).c_str(), 0, KEY_READ, &child) != ERROR_SUCCESS) continue;
    CollectRegistry(child, path, state);
    RegCloseKey(child);
  }
}

// Takes the first state. Before that it lets the system make what any program makes it write when it first runs: the
// portable program beside its own settings, and the installer, which ends where it cannot write.
class FirstStateTaken : public testing::Environment {
 public:
  void SetUp() override {
    fs::create_directories(PortableFolder() / "settings");
    ProgramRun program(PortableFolder(), "");
    program.WaitForDocuments(1);
    PostMessageA(program.WaitForTopLevel("ShabbatMain"), WM_CLOSE, 0, 0);
    ASSERT_EQ(program.WaitForExit(), 0u);
    ASSERT_EQ(Install(L"/D=Z:\\proc\\Times Readings"), kCannotUseFolder);
    state = StateOfTheSystem();
  }
  std::set<std::wstring> state;
};

const auto* const first = static_cast<const FirstStateTaken*>(testing::AddGlobalTestEnvironment(new FirstStateTaken));

fs::path ListFile(const fs::path& folder) {
  return folder / "installed-files.txt";
}

}  // namespace

fs::path SetupFile() {
  return Given("TIMES_READINGS_SETUP");
}
fs::path ContentsFolder() {
  return Given("TIMES_READINGS_CONTENTS");
}
fs::path PortableFolder() {
  const fs::path folder = Given("TIMES_READINGS_PORTABLE");
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.path().filename() == "shabbat.exe") return entry.path().parent_path();
  }
  ADD_FAILURE() << "the portable archive has no shabbat.exe";
  return folder;
}

fs::path AppData() {
  return SystemFolder(FOLDERID_RoamingAppData);
}
fs::path LocalAppData() {
  return SystemFolder(FOLDERID_LocalAppData);
}
fs::path InstalledFolder() {
  return LocalAppData() / "Programs" / "Times Readings";
}
fs::path SettingsFolder() {
  return AppData() / "Times Readings";
}
fs::path StartMenuFolder() {
  return SystemFolder(FOLDERID_Programs) / "Times Readings";
}
fs::path FontFile() {
  return LocalAppData() / "Microsoft" / "Windows" / "Fonts" / "DisplayHebrew1.ttf";
}

StartedProgram::StartedProgram(const std::wstring& commandLine) {
  std::wstring line = commandLine;
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  const auto start = [&] {
    return CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, L"C:\\", &startup, &process_);
  };
  // Seldom, some once in hundreds of starts, Wine answers an internal error instead of starting a program.
  constexpr int kTries = 5;
  BOOL started = start();
  for (int i = 1; i < kTries && !started && GetLastError() == ERROR_INTERNAL_ERROR; ++i) started = start();
  EXPECT_TRUE(started) << fs::path(commandLine) << ": error " << GetLastError();
}

StartedProgram::~StartedProgram() {
  TerminateProcess(process_.hProcess, 1);
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

DWORD StartedProgram::WaitForExit() const {
  EXPECT_EQ(WaitForSingleObject(process_.hProcess, kInstallMilliseconds), DWORD{WAIT_OBJECT_0}) << "still running";
  DWORD exitCode = STILL_ACTIVE;
  GetExitCodeProcess(process_.hProcess, &exitCode);
  return exitCode;
}

DWORD Install(const std::wstring& options) {
  return StartedProgram(L"\"" + SetupFile().wstring() + L"\" /S " + options).WaitForExit();
}

void Uninstall(const fs::path& folder, const std::wstring& options) {
  const fs::path uninstaller = folder / "uninstall.exe";
  StartedProgram(L"\"" + uninstaller.wstring() + L"\" /S " + options).WaitForExit();
  WaitUntil([&] { return !fs::exists(uninstaller) && !SetupRuns(); });
}

DWORD UninstallInPlace(const fs::path& folder) {
  return StartedProgram(L"\"" + (folder / "uninstall.exe").wstring() + L"\" /S _?=" + folder.wstring()).WaitForExit();
}

std::map<std::wstring, std::string> FilesOf(const fs::path& folder) {
  std::map<std::wstring, std::string> files;
  if (!fs::exists(folder)) return files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_directory()) continue;
    files[entry.path().lexically_relative(folder).wstring()] = ReadFileText(entry.path());
  }
  return files;
}

void CopyFiles(const fs::path& from, const fs::path& to) {
  for (const auto& [name, bytes] : FilesOf(from)) {
    fs::create_directories((to / name).parent_path());
    WriteFileText(to / name, bytes);
  }
}

void Link(const fs::path& name, const fs::path& target) {
  const StartedProgram ln(L"Z:\\bin\\ln -s " + BelowWine(target) + L" " + BelowWine(name));
  WaitUntil([&] { return fs::exists(name); });
}

void Unlink(const fs::path& name) {
  const StartedProgram rm(L"Z:\\bin\\rm " + BelowWine(name));
  WaitUntil([&] { return !fs::exists(name); });
}

fs::path ByAnotherDrive(const fs::path& path) {
  return (fs::path(L"Z:\\") / Given("WINEPREFIX").relative_path() / "drive_c" / path.relative_path()).make_preferred();
}

std::optional<std::wstring> UserValue(const std::wstring& key, const std::wstring& name) {
  wchar_t text[2048] = L"";
  DWORD size = sizeof text;
  DWORD type = 0;
  if (RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), RRF_RT_REG_SZ | RRF_RT_REG_DWORD, &type, text,
                   &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  DWORD number = 0;
  std::memcpy(&number, text, sizeof number);
  return type == REG_DWORD ? std::to_wstring(number) : std::wstring(text);
}

void SetUserValue(const std::wstring& key, const std::wstring& name, const std::wstring& value) {
  RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), REG_SZ, value.c_str(),
                  static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

bool HasUserKey(const std::wstring& key) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return false;
  RegCloseKey(opened);
  return true;
}

std::set<std::wstring> StateOfTheSystem() {
  std::set<std::wstring> state;
  for (const auto& entry : fs::recursive_directory_iterator(L"C:\\", fs::directory_options::skip_permission_denied)) {
    state.insert(entry.path().wstring());
  }
  CollectRegistry(HKEY_CURRENT_USER, L"HKCU", state);
  return state;
}

const std::set<std::wstring>& FirstState() {
  return first->state;
}

std::vector<std::wstring> InstalledList(const fs::path& folder) {
  const std::string bytes = ReadFileText(ListFile(folder));
  std::vector<std::wstring> lines;
  std::wstring line;
  for (std::size_t i = 2; i + 1 < bytes.size(); i += 2) {  // after the mark of byte order
    const auto unit =
        static_cast<wchar_t>(static_cast<unsigned char>(bytes[i]) | static_cast<unsigned char>(bytes[i + 1]) << 8);
    if (unit == L'\n') {
      lines.push_back(line);
      line.clear();
    } else if (unit != L'\r') {
      line += unit;
    }
  }
  return lines;
}

void AppendToInstalledList(const fs::path& folder, const std::wstring& name) {
  const std::wstring line = name + L"\r\n";
  std::ofstream(ListFile(folder), std::ios::binary | std::ios::app)
      .write(reinterpret_cast<const char*>(line.data()), static_cast<std::streamsize>(line.size() * sizeof(wchar_t)));
}
