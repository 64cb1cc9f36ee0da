#include "win/crash_report.h"

#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <span>

#include "win/core/crash_text.h"

namespace {

constexpr std::size_t kMostModules = 256;
constexpr std::size_t kMostCalls = 64;
constexpr std::size_t kTextBytes = 32 * 1024;
constexpr ULONG kStackForReport = 64 * 1024;  // kept free, so that a stack overflow can be reported too

// All that a report needs was laid out before: a crashed program can rely on little.
struct Watch {
  std::wstring folder;
  std::wstring file;
  std::wstring previousFile;
  std::wstring boxText;
  std::wstring boxTextWithoutReport;
  bool hasReport = false;
  const char* program = nullptr;
  uint32_t windowsVersion[3] = {};
  CrashModule modules[kMostModules] = {};
  uint64_t calls[kMostCalls] = {};
  char text[kTextBytes] = {};
};

Watch watch;

void ReadWindowsVersion(uint32_t (&version)[3]) {
  // GetVersionEx answers what the manifest declares.
  LONG(WINAPI * getVersion)(OSVERSIONINFOW*) = nullptr;
  const FARPROC found = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion");
  static_assert(sizeof found == sizeof getVersion);
  std::memcpy(&getVersion, &found, sizeof getVersion);
  OSVERSIONINFOW answer{};
  answer.dwOSVersionInfoSize = sizeof answer;
  if (!getVersion || getVersion(&answer) != 0) return;
  version[0] = answer.dwMajorVersion;
  version[1] = answer.dwMinorVersion;
  version[2] = answer.dwBuildNumber;
}

// In wide characters, since the other form of the call takes memory of the heap.
void ReadModuleName(HMODULE module, char (&name)[sizeof CrashModule::name]) {
  wchar_t wide[sizeof name] = L"";
  GetModuleBaseNameW(GetCurrentProcess(), module, wide, sizeof name);
  std::transform(std::begin(wide), std::end(wide), std::begin(name),
                 [](wchar_t c) { return c == L'\0' || (c >= L' ' && c <= L'~') ? static_cast<char>(c) : '?'; });
}

// From the version resource as it lies in memory.
void ReadModuleVersion(HMODULE module, uint16_t (&version)[4]) {
  constexpr std::size_t kFixedInfoOffset = 40;  // behind three 16-bit sizes and the key "VS_VERSION_INFO", aligned
  const HRSRC resource = FindResourceA(module, MAKEINTRESOURCEA(VS_VERSION_INFO), RT_VERSION);
  const HGLOBAL block = resource ? LoadResource(module, resource) : nullptr;
  const void* const bytes = block ? LockResource(block) : nullptr;
  VS_FIXEDFILEINFO info;
  if (!bytes || SizeofResource(module, resource) < kFixedInfoOffset + sizeof info) return;
  std::memcpy(&info, static_cast<const char*>(bytes) + kFixedInfoOffset, sizeof info);
  if (info.dwSignature != VS_FFI_SIGNATURE) return;
  version[0] = HIWORD(info.dwFileVersionMS);
  version[1] = LOWORD(info.dwFileVersionMS);
  version[2] = HIWORD(info.dwFileVersionLS);
  version[3] = LOWORD(info.dwFileVersionLS);
}

std::span<const CrashModule> ReadModules() {
  static HMODULE loaded[kMostModules];
  DWORD bytes = 0;
  if (!EnumProcessModules(GetCurrentProcess(), loaded, sizeof loaded, &bytes)) return {};
  const std::size_t count = std::min(bytes / sizeof loaded[0], kMostModules);
  for (std::size_t i = 0; i < count; ++i) {
    CrashModule& module = watch.modules[i];
    MODULEINFO info{};
    GetModuleInformation(GetCurrentProcess(), loaded[i], &info, sizeof info);
    module.base = reinterpret_cast<uintptr_t>(info.lpBaseOfDll);
    module.sizeBytes = info.SizeOfImage;
    ReadModuleName(loaded[i], module.name);
    ReadModuleVersion(loaded[i], module.version);
  }
  return {watch.modules, count};
}

bool IsReadable(uint64_t address) {
  MEMORY_BASIC_INFORMATION region{};
  if (VirtualQuery(reinterpret_cast<const void*>(address), &region, sizeof region) == 0) return false;
  return region.State == MEM_COMMIT && !(region.Protect & (PAGE_NOACCESS | PAGE_GUARD));
}

// Unwinds from a context. A damaged stack ends it early.
std::span<const uint64_t> ReadCalls(CONTEXT context) {
  std::size_t count = 0;
  // A call of what is not there begins with the address 0.
  while (count < kMostCalls && (count == 0 || context.Rip != 0)) {
    watch.calls[count++] = context.Rip;
    if (!IsReadable(context.Rsp)) break;
    DWORD64 base = 0;
    const auto function = RtlLookupFunctionEntry(context.Rip, &base, nullptr);
    if (function) {
      void* handlerData = nullptr;
      DWORD64 frame = 0;
      RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &handlerData, &frame, nullptr);
    } else {  // a function without a frame: its return address is on top
      std::memcpy(&context.Rip, reinterpret_cast<const void*>(context.Rsp), sizeof context.Rip);
      context.Rsp += sizeof context.Rip;
    }
  }
  return {watch.calls, count};
}

CrashFacts FactsOf(const EXCEPTION_RECORD& exception) {
  SYSTEMTIME now;
  GetSystemTime(&now);
  CrashFacts facts{};
  facts.program = watch.program;
  std::copy(std::begin(watch.windowsVersion), std::end(watch.windowsVersion), facts.windowsVersion);
  const uint16_t utc[] = {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
  std::copy(std::begin(utc), std::end(utc), facts.utc);
  facts.code = exception.ExceptionCode;
  facts.address = reinterpret_cast<uintptr_t>(exception.ExceptionAddress);
  facts.isAccess = exception.ExceptionCode == EXCEPTION_ACCESS_VIOLATION && exception.NumberParameters >= 2;
  if (facts.isAccess) {
    facts.access = exception.ExceptionInformation[0];
    facts.accessedAddress = exception.ExceptionInformation[1];
  }
  return facts;
}

bool Append(HANDLE file, std::size_t length) {
  DWORD written = 0;
  return WriteFile(file, watch.text, static_cast<DWORD>(length), &written, nullptr) && written == length;
}

// In several writes: to look at modules and at the stack may fail in a damaged program, and what stands is kept then.
void WriteReport(const EXCEPTION_POINTERS& crash) {
  CreateDirectoryW(watch.folder.c_str(), nullptr);
  MoveFileExW(watch.file.c_str(), watch.previousFile.c_str(), MOVEFILE_REPLACE_EXISTING);
  const HANDLE file = CreateFileW(watch.file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL | FILE_FLAG_WRITE_THROUGH, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;
  const CrashFacts facts = FactsOf(*crash.ExceptionRecord);
  watch.hasReport = Append(file, WriteCrash(facts, watch.text));
  const auto modules = ReadModules();
  Append(file, WritePlace(facts.address, modules, watch.text));
  Append(file, WriteCalls(ReadCalls(*crash.ContextRecord), modules, watch.text));
  CloseHandle(file);
}

DWORD WINAPI ShowBox(void*) {
  const std::wstring& text = watch.hasReport ? watch.boxText : watch.boxTextWithoutReport;
  MessageBoxW(nullptr, text.c_str(), L"Times / Readings", MB_OK | MB_ICONSTOP | MB_SETFOREGROUND);
  return 0;
}

BOOL CALLBACK FindVisible(HWND window, LPARAM found) {
  if (!IsWindowVisible(window)) return TRUE;
  *reinterpret_cast<bool*>(found) = true;
  return FALSE;
}

// In a thread of its own: a box in this one would have the windows paint, which may be what crashed. Where that thread
// cannot begin, because this one holds what it needs, the end comes without a box.
void TellUser() {
  constexpr DWORD kPatienceMilliseconds = 10000;
  DWORD id = 0;
  const HANDLE thread = CreateThread(nullptr, 0, ShowBox, nullptr, 0, &id);
  if (!thread) return;
  while (WaitForSingleObject(thread, kPatienceMilliseconds) == WAIT_TIMEOUT) {
    bool isBoxThere = false;
    EnumThreadWindows(id, FindVisible, reinterpret_cast<LPARAM>(&isBoxThere));
    if (!isBoxThere) return;
  }
}

enum Stage : LONG { kRunning, kWriting, kTelling };

LONG WINAPI OnUnhandledException(EXCEPTION_POINTERS* crash) {
  static volatile LONG stage = kRunning;
  static volatile LONG crashedThread = 0;
  const LONG thread = static_cast<LONG>(GetCurrentThreadId());
  const LONG before = InterlockedCompareExchange(&stage, kWriting, kRunning);
  if (before == kWriting && crashedThread != thread) Sleep(INFINITE);  // another's report, and then the end
  if (before == kRunning) {
    crashedThread = thread;
    WriteReport(*crash);
  }
  // Once more in the same thread: the report is as far as it got.
  if (before != kTelling && InterlockedExchange(&stage, kTelling) == kWriting) TellUser();
  TerminateProcess(GetCurrentProcess(), crash->ExceptionRecord->ExceptionCode);
  return EXCEPTION_EXECUTE_HANDLER;
}

void OnAbort(int) {
  RaiseException(kProgramGaveUp, EXCEPTION_NONCONTINUABLE, 0, nullptr);
}

}  // namespace

void WatchForCrashes(const std::wstring& folder, const char* program) {
  watch.folder = folder;
  watch.file = folder + L"\\crash report.txt";
  watch.previousFile = folder + L"\\crash report (previous).txt";
  watch.boxTextWithoutReport =
      L"Times / Readings has to close, because of an error in the program. What you have saved is kept.";
  watch.boxText = watch.boxTextWithoutReport + L"\n\nA report was written to the file\n" + watch.file +
                  L"\n\nIt holds nothing of what you have entered, and nobody has been sent it. The help says under "
                  L"\"Reports of errors\" what to do with it.";
  watch.program = program;
  ReadWindowsVersion(watch.windowsVersion);
  ULONG stack = kStackForReport;
  SetThreadStackGuarantee(&stack);
  SetUnhandledExceptionFilter(OnUnhandledException);
  std::signal(SIGABRT, OnAbort);
}
