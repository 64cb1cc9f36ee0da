#include "tests/end_to_end/program_driver.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

fs::path BuildFolder() {
  char path[MAX_PATH];
  GetModuleFileNameA(nullptr, path, sizeof path);
  return fs::path(path).parent_path().parent_path();
}

struct Search {
  DWORD processId;
  std::string className;
  std::vector<HWND> found;
};

BOOL CALLBACK CollectVisible(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  DWORD processId = 0;
  GetWindowThreadProcessId(window, &processId);
  if (processId == search.processId && IsWindowVisible(window) && ClassOf(window) == search.className) {
    search.found.push_back(window);
  }
  return TRUE;
}

fs::path UnusedFolder() {
  static int count = 0;
  return fs::temp_directory_path() /
         ("times_readings_" + std::to_string(GetCurrentProcessId()) + "_" + std::to_string(++count));
}

}  // namespace

fs::path ProgramFolder() {
  return BuildFolder() / "program";
}
fs::path FakeLibrariesFolder() {
  return BuildFolder() / "fake_libraries";
}

TemporaryFolder::TemporaryFolder() : path_(UnusedFolder()) {
  fs::create_directories(path_);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

void WriteFileText(const fs::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

std::string ReadFileText(const fs::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

ProgramRun::ProgramRun(const fs::path& programFolder, const fs::path& settingsFolder, const fs::path& currentFolder) {
  // No library may be found anywhere but in the program's folder.
  SetEnvironmentVariableA("PATH", "C:\\windows\\system32;C:\\windows");
  SetEnvironmentVariableA("TIMES_READINGS_HOME", settingsFolder.string().c_str());
  std::string commandLine = "\"" + (programFolder / "shabbat.exe").string() + "\"";
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  const BOOL started =
      CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                     (currentFolder.empty() ? programFolder : currentFolder).string().c_str(), &startup, &process_);
  EXPECT_TRUE(started) << commandLine << ": error " << GetLastError();
}

ProgramRun::~ProgramRun() {
  TerminateProcess(process_.hProcess, 1);
  WaitForSingleObject(process_.hProcess, kPatienceMilliseconds);
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

bool ProgramRun::Eventually(const std::function<bool()>& condition) const {
  constexpr DWORD kPollMilliseconds = 10;
  const ULONGLONG end = GetTickCount64() + kPatienceMilliseconds;
  while (GetTickCount64() < end) {
    if (condition()) return true;
    if (WaitForSingleObject(process_.hProcess, kPollMilliseconds) == WAIT_OBJECT_0) return condition();
  }
  return false;
}

HWND ProgramRun::FindTopLevel(const std::string& className, const std::function<bool(HWND)>& accepts) const {
  Search search{process_.dwProcessId, className, {}};
  EnumWindows(CollectVisible, reinterpret_cast<LPARAM>(&search));
  for (const HWND window : search.found) {
    if (!accepts || accepts(window)) return window;
  }
  return nullptr;
}

HWND ProgramRun::WaitForDialogThat(const std::function<bool(HWND)>& accepts, const std::string& what) const {
  HWND dialog = nullptr;
  EXPECT_TRUE(Eventually([&] { return (dialog = FindTopLevel("#32770", accepts)) != nullptr; })) << "no " << what;
  return dialog;
}

HWND ProgramRun::WaitForDialog(const std::string& title) const {
  return WaitForDialogThat(
      [&](HWND window) { return TextOf(window) == title && IsWindowEnabled(window) && !GetDlgItem(window, IDYES); },
      title);
}

HWND ProgramRun::WaitForQuestion() const {
  return WaitForDialogThat([](HWND window) { return GetDlgItem(window, IDYES) != nullptr; }, "question");
}

bool ProgramRun::HasDialog(const std::string& title) const {
  return FindTopLevel("#32770", [&](HWND window) { return TextOf(window) == title; }) != nullptr;
}

void ProgramRun::PostCommand(unsigned id) const {
  PostMessageA(FindTopLevel("ShabbatMain"), WM_COMMAND, id, 0);
}

HWND ProgramRun::WaitForTopLevel(const std::string& className) const {
  HWND window = nullptr;
  EXPECT_TRUE(Eventually([&] { return (window = FindTopLevel(className)) != nullptr; })) << "no window " << className;
  return window;
}

std::vector<HWND> ProgramRun::Documents() const {
  Search search{process_.dwProcessId, "ShabbatChild", {}};
  const HWND frame = FindTopLevel("ShabbatMain");
  if (frame) EnumChildWindows(frame, CollectVisible, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

std::vector<HWND> ProgramRun::WaitForDocuments(std::size_t count) const {
  std::vector<HWND> documents;
  EXPECT_TRUE(Eventually([&] { return (documents = Documents()).size() == count; }))
      << documents.size() << " documents";
  return documents;
}

DWORD ProgramRun::WaitForExit() {
  EXPECT_EQ(WaitForSingleObject(process_.hProcess, kPatienceMilliseconds), DWORD{WAIT_OBJECT_0}) << "still running";
  DWORD exitCode = STILL_ACTIVE;
  GetExitCodeProcess(process_.hProcess, &exitCode);
  return exitCode;
}

void SetText(HWND dialog, int control, const std::string& text) {
  SendDlgItemMessageA(dialog, control, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void Click(HWND dialog, int button) {
  PostMessageA(GetDlgItem(dialog, button), BM_CLICK, 0, 0);
}

std::string TextOf(HWND window) {
  char text[1024] = "";
  SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
  return text;
}

std::string ClassOf(HWND window) {
  char name[128] = "";
  GetClassNameA(window, name, sizeof name);
  return name;
}
