#include "tests/monkey/running_program.h"

#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <sstream>

#include "tests/monkey/journal.h"
#include "tests/monkey/marker/marker.h"

namespace fs = std::filesystem;

namespace {

struct Collection {
  DWORD processId;
  std::vector<HWND> windows;
};

BOOL CALLBACK CollectVisible(HWND window, LPARAM parameter) {
  auto& collection = *reinterpret_cast<Collection*>(parameter);
  DWORD processId = 0;
  GetWindowThreadProcessId(window, &processId);
  if (processId == collection.processId && IsWindowVisible(window)) collection.windows.push_back(window);
  return TRUE;
}

BOOL CALLBACK CountWindow(HWND, LPARAM count) {
  ++*reinterpret_cast<std::size_t*>(count);
  return TRUE;
}

// Polls until the condition holds; false when it does not in time.
bool Eventually(DWORD milliseconds, const std::function<bool()>& condition) {
  constexpr DWORD kPollMilliseconds = 2;
  const ULONGLONG end = GetTickCount64() + milliseconds;
  while (!condition()) {
    if (GetTickCount64() > end) return false;
    Sleep(kPollMilliseconds);
  }
  return true;
}

std::string Hexadecimal(DWORD number) {
  std::ostringstream text;
  text << "0x" << std::hex << number;
  return text.str();
}

// Wine does not answer GetGuiResources, but keeps its GDI objects where Windows has them: in a table that the process's
// environment block points to (of entries of 24 bytes: kernel object, owner, unique part, type, flags, user data).
std::size_t CountGdiObjects(HANDLE process) {
  struct Entry {
    uint64_t object;
    uint32_t owner;
    uint16_t unique;
    uint8_t type;
    uint8_t flags;
    uint64_t userData;
  };
  static_assert(sizeof(Entry) == 24);
  constexpr std::size_t kEntries = 0x4000;
  constexpr std::size_t kTableInEnvironmentBlock = 0xF8;
  PROCESS_BASIC_INFORMATION basic{};
  if (NtQueryInformationProcess(process, ProcessBasicInformation, &basic, sizeof basic, nullptr) != 0) return 0;
  const char* table = nullptr;
  const char* const block = reinterpret_cast<const char*>(basic.PebBaseAddress);
  std::vector<Entry> entries(kEntries);
  if (!ReadProcessMemory(process, block + kTableInEnvironmentBlock, &table, sizeof table, nullptr)) return 0;
  if (!ReadProcessMemory(process, table, entries.data(), kEntries * sizeof(Entry), nullptr)) return 0;
  return static_cast<std::size_t>(
      std::count_if(entries.begin(), entries.end(), [](const Entry& entry) { return entry.type != 0; }));
}

void AddTree(HWND window, int depth, std::ostringstream& text) {
  text << std::string(static_cast<std::size_t>(depth) * 2, ' ') << Describe(window)
       << (IsWindowVisible(window) ? "" : " hidden") << (IsWindowEnabled(window) ? "" : " disabled") << '\n';
  for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    AddTree(child, depth + 1, text);
  }
}

}  // namespace

std::string ClassOf(HWND window) {
  char name[128] = "";
  GetClassNameA(window, name, sizeof name);
  return name;
}

// A program that hangs is not asked for ever.
std::string TextOf(HWND window) {
  char text[256] = "";
  constexpr UINT kMilliseconds = 2000;
  SendMessageTimeoutA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG, kMilliseconds,
                      nullptr);
  return text;
}

std::string Describe(HWND window) {
  return ClassOf(window) + " " + std::to_string(GetDlgCtrlID(window)) + " \"" + TextOf(window) + "\"";
}

std::vector<HWND> VisibleDescendants(HWND window) {
  Collection collection{};
  GetWindowThreadProcessId(window, &collection.processId);
  EnumChildWindows(window, CollectVisible, reinterpret_cast<LPARAM>(&collection));
  return collection.windows;
}

RunningProgram::RunningProgram(const fs::path& programFolder) {
  Start(programFolder);
  try {
    WaitForFrame();
  } catch (...) {
    TerminateProcess(process_.hProcess, 1);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
    throw;
  }
}

RunningProgram::~RunningProgram() {
  UnhookWindowsHookEx(hook_);
  TerminateProcess(process_.hProcess, 1);
  WaitForSingleObject(process_.hProcess, kExitMilliseconds);
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

void RunningProgram::Start(const fs::path& programFolder) {
  std::string commandLine = "\"" + (programFolder / "shabbat.exe").string() + "\"";
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  if (!CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process_)) {
    throw Fault(commandLine + " does not start: error " + std::to_string(GetLastError()));
  }
}

void RunningProgram::WaitForFrame() {
  const bool shown = Eventually(kPatienceMilliseconds, [&] {
    ThrowIfEnded();
    for (const HWND window : TopLevels()) {
      if (ClassOf(window) == "ShabbatMain") frame_ = window;
      const HWND goOn = GetDlgItem(window, IDCONTINUE);
      if (goOn) PostMessageA(goOn, BM_CLICK, 0, 0);
    }
    return frame_ != nullptr;
  });
  if (!shown) throw Fault("the frame does not show up");
  static const HMODULE library = LoadLibraryA(kMarkerLibrary);
  const auto hook = reinterpret_cast<HOOKPROC>(reinterpret_cast<void*>(GetProcAddress(library, kMarkerHook)));
  hook_ = SetWindowsHookExA(WH_GETMESSAGE, hook, library, process_.dwThreadId);
  if (!hook_) throw Fault("no hook: error " + std::to_string(GetLastError()));
}

void RunningProgram::ThrowIfEnded() const {
  DWORD exitCode = 0;
  if (WaitForSingleObject(process_.hProcess, 0) != WAIT_OBJECT_0) return;
  GetExitCodeProcess(process_.hProcess, &exitCode);
  throw Fault("the program has ended with code " + Hexadecimal(exitCode));
}

std::vector<HWND> RunningProgram::TopLevels() const {
  Collection collection{process_.dwProcessId, {}};
  EnumWindows(CollectVisible, reinterpret_cast<LPARAM>(&collection));
  return collection.windows;
}

HWND RunningProgram::MdiClient() const {
  return FindWindowExA(frame_, nullptr, "MDICLIENT", nullptr);
}

std::vector<HWND> RunningProgram::Documents() const {
  std::vector<HWND> documents;
  for (HWND child = GetWindow(MdiClient(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    if (ClassOf(child) == "ShabbatChild") documents.push_back(child);
  }
  return documents;
}

HWND RunningProgram::Dialog() const {
  for (const HWND window : TopLevels()) {
    if (ClassOf(window) == "#32770" && IsWindowEnabled(window)) return window;
  }
  return nullptr;
}

bool RunningProgram::InMenu() const {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  constexpr DWORD kMenuFlags = GUI_INMENUMODE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE;
  return GetGUIThreadInfo(process_.dwThreadId, &info) && (info.flags & kMenuFlags) != 0;
}

HWND RunningProgram::Focus() const {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  if (!GetGUIThreadInfo(process_.dwThreadId, &info)) return nullptr;
  return info.hwndFocus ? info.hwndFocus : info.hwndActive;
}

std::vector<HWND> RunningProgram::ReachableWindows() const {
  std::vector<HWND> reachable;
  for (const HWND window : TopLevels()) {
    if (!IsWindowEnabled(window) || ClassOf(window) == "#32768") continue;
    reachable.push_back(window);
    for (const HWND child : VisibleDescendants(window)) {
      if (IsWindowEnabled(child)) reachable.push_back(child);
    }
  }
  return reachable;
}

// Messages are taken in the order in which they were posted, so when a marker is, all before it have been handled, or
// have opened a dialog that takes them now. What was posted may post more (a key its character), hence two rounds.
ULONGLONG RunningProgram::Settle() {
  static const UINT marker = RegisterWindowMessageA(kMarkerMessage);
  constexpr UINT kAnswerMilliseconds = 1000;
  const ULONGLONG start = GetTickCount64();
  for (int round = 0; round < 2; ++round) {
    ++markers_;
    PostMessageA(frame_, marker, markers_, 0);
    const bool taken = Eventually(kPatienceMilliseconds, [&] {
      ThrowIfEnded();
      return reinterpret_cast<WPARAM>(GetPropA(frame_, kMarkerProperty)) == markers_;
    });
    if (!taken) throw Fault("the program does not take its messages");
  }
  const bool answers = Eventually(kPatienceMilliseconds, [&] {
    ThrowIfEnded();
    return SendMessageTimeoutA(frame_, WM_NULL, 0, 0, SMTO_NORMAL, kAnswerMilliseconds, nullptr) != 0;
  });
  if (!answers) throw Fault("the program does not answer");
  return GetTickCount64() - start;
}

void RunningProgram::WaitForInput() {
  const bool able = Eventually(kPatienceMilliseconds, [&] {
    ThrowIfEnded();
    return IsWindowEnabled(frame_) || Dialog();
  });
  if (!able) throw Fault("the frame is disabled and no dialog is open");
}

void RunningProgram::Exit() {
  PostMessageA(frame_, WM_SYSCOMMAND, SC_CLOSE, 0);
  if (WaitForSingleObject(process_.hProcess, kExitMilliseconds) != WAIT_OBJECT_0) {
    throw Fault("the program does not end when its frame is closed");
  }
  DWORD exitCode = 0;
  GetExitCodeProcess(process_.hProcess, &exitCode);
  if (exitCode != 0) throw Fault("the program ends with code " + Hexadecimal(exitCode) + " when its frame is closed");
}

Holdings RunningProgram::Measure() const {
  Holdings holdings;
  PROCESS_MEMORY_COUNTERS memory{};
  memory.cb = sizeof memory;
  if (GetProcessMemoryInfo(process_.hProcess, &memory, sizeof memory)) holdings.committedBytes = memory.PagefileUsage;
  holdings.gdiObjects = CountGdiObjects(process_.hProcess);
  EnumChildWindows(frame_, CountWindow, reinterpret_cast<LPARAM>(&holdings.windows));
  return holdings;
}

std::string RunningProgram::WindowTree() const {
  std::ostringstream text;
  for (const HWND window : TopLevels()) AddTree(window, 0, text);
  return text.str();
}
