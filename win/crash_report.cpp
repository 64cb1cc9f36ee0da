#include "win/crash_report.h"

#include <windows.h>

#include <psapi.h>
#include <winternl.h>

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
  volatile LONG reportingThread = 0;  // 0: nothing has happened
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
    GetModuleBaseNameA(GetCurrentProcess(), loaded[i], module.name, sizeof module.name);
    for (char& c : module.name) {
      if (c != '\0' && (c < ' ' || c > '~')) c = '?';
    }
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
  while (count < kMostCalls && context.Rip != 0) {
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

CrashFacts FactsOf(const EXCEPTION_RECORD& exception, std::span<const CrashModule> modules) {
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
  facts.modules = modules;
  return facts;
}

bool Append(HANDLE file, std::size_t length) {
  DWORD written = 0;
  return WriteFile(file, watch.text, static_cast<DWORD>(length), &written, nullptr) && written == length;
}

// The calls come last, in a write of their own: unwinding a damaged stack may fail, and what stands is kept then.
bool WriteReport(const EXCEPTION_POINTERS& crash) {
  CreateDirectoryW(watch.folder.c_str(), nullptr);
  MoveFileExW(watch.file.c_str(), watch.previousFile.c_str(), MOVEFILE_REPLACE_EXISTING);
  const HANDLE file = CreateFileW(watch.file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL | FILE_FLAG_WRITE_THROUGH, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const auto modules = ReadModules();
  const bool written = Append(file, WriteCrashText(FactsOf(*crash.ExceptionRecord, modules), watch.text)) &&
                       Append(file, WriteCalls(ReadCalls(*crash.ContextRecord), modules, watch.text));
  CloseHandle(file);
  return written;
}

DWORD WINAPI ShowBox(void*) {
  const std::wstring& text = watch.hasReport ? watch.boxText : watch.boxTextWithoutReport;
  MessageBoxW(nullptr, text.c_str(), L"Times / Readings", MB_OK | MB_ICONSTOP | MB_SETFOREGROUND);
  return 0;
}

// In a thread of its own: a box in this one would have the windows paint, which may be what crashed.
void TellUser() {
  const HANDLE thread = CreateThread(nullptr, 0, ShowBox, nullptr, 0, nullptr);
  if (thread) WaitForSingleObject(thread, INFINITE);
}

LONG WINAPI OnUnhandledException(EXCEPTION_POINTERS* crash) {
  static volatile LONG tellingUser = 0;
  const LONG thread = static_cast<LONG>(GetCurrentThreadId());
  const LONG reporting = InterlockedCompareExchange(&watch.reportingThread, thread, 0);
  if (reporting == 0) {
    watch.hasReport = WriteReport(*crash);
    InterlockedExchange(&tellingUser, 1);
    TellUser();
  } else if (reporting != thread && !tellingUser) {
    Sleep(INFINITE);  // another thread's report is on its way, and then the end
  }
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
