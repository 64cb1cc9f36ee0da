#include "tests/profile_store/failing_calls.h"

#include <utility>

Failing failing = Failing::kNothing;
std::function<void()> doneMeanwhile;
std::function<void()> doneAfterMissing;
bool timesAreRounded = false;
std::atomic<ULONGLONG> fileTimesAsked = 0;

namespace {

void Do(std::function<void()>& deed) {
  if (deed) std::exchange(deed, nullptr)();
}

template <typename Function>
Function Real(const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), name)));
}

HANDLE WINAPI CreateFileDouble(LPCWSTR name, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security, DWORD creation,
                               DWORD flags, HANDLE model) {
  if (failing == Failing::kCreate && (access & GENERIC_WRITE)) {
    SetLastError(ERROR_DISK_FULL);
    return INVALID_HANDLE_VALUE;
  }
  const HANDLE file =
      Real<decltype(&CreateFileW)>("CreateFileW")(name, access, share, security, creation, flags, model);
  const DWORD error = GetLastError();
  if (file == INVALID_HANDLE_VALUE && error == ERROR_FILE_NOT_FOUND) Do(doneAfterMissing);
  SetLastError(error);
  return file;
}

HANDLE WINAPI CreateMutexDouble(LPSECURITY_ATTRIBUTES security, BOOL owned, LPCWSTR name) {
  if (failing != Failing::kLock) return Real<decltype(&CreateMutexW)>("CreateMutexW")(security, owned, name);
  SetLastError(ERROR_ACCESS_DENIED);
  return nullptr;
}

BOOL WINAPI ReadFileDouble(HANDLE file, LPVOID bytes, DWORD size, LPDWORD count, LPOVERLAPPED overlapped) {
  if (failing != Failing::kRead) return Real<decltype(&ReadFile)>("ReadFile")(file, bytes, size, count, overlapped);
  SetLastError(ERROR_CRC);
  return FALSE;
}

BOOL WINAPI WriteFileDouble(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD count, LPOVERLAPPED overlapped) {
  const auto real = Real<decltype(&WriteFile)>("WriteFile");
  if (failing == Failing::kPartOfWrite) return real(file, bytes, size / 2, count, overlapped);
  if (failing != Failing::kWrite) return real(file, bytes, size, count, overlapped);
  SetLastError(ERROR_DISK_FULL);
  return FALSE;
}

BOOL WINAPI GetFileAttributesExDouble(LPCWSTR name, GET_FILEEX_INFO_LEVELS level, LPVOID data) {
  ++fileTimesAsked;
  const BOOL known = Real<decltype(&GetFileAttributesExW)>("GetFileAttributesExW")(name, level, data);
  if (known && timesAreRounded) {
    constexpr ULONGLONG kStep = 20'000'000;  // in units of 100 ns
    FILETIME& time = static_cast<WIN32_FILE_ATTRIBUTE_DATA*>(data)->ftLastWriteTime;
    ULARGE_INTEGER rounded = {{time.dwLowDateTime, time.dwHighDateTime}};
    rounded.QuadPart -= rounded.QuadPart % kStep;
    time = {rounded.LowPart, rounded.HighPart};
  }
  return known;
}

BOOL WINAPI FlushFileBuffersDouble(HANDLE file) {
  Do(doneMeanwhile);
  if (failing != Failing::kFlush) return Real<decltype(&FlushFileBuffers)>("FlushFileBuffers")(file);
  SetLastError(ERROR_IO_DEVICE);
  return FALSE;
}

BOOL WINAPI MoveFileExDouble(LPCWSTR from, LPCWSTR to, DWORD flags) {
  if (failing != Failing::kRename) return Real<decltype(&MoveFileExW)>("MoveFileExW")(from, to, flags);
  SetLastError(ERROR_DISK_FULL);
  return FALSE;
}

}  // namespace

extern "C" {
extern decltype(&CreateFileW) const __imp_CreateFileW;
extern decltype(&CreateMutexW) const __imp_CreateMutexW;
extern decltype(&ReadFile) const __imp_ReadFile;
extern decltype(&WriteFile) const __imp_WriteFile;
extern decltype(&GetFileAttributesExW) const __imp_GetFileAttributesExW;
extern decltype(&FlushFileBuffers) const __imp_FlushFileBuffers;
extern decltype(&MoveFileExW) const __imp_MoveFileExW;
decltype(&CreateFileW) const __imp_CreateFileW = CreateFileDouble;
decltype(&CreateMutexW) const __imp_CreateMutexW = CreateMutexDouble;
decltype(&ReadFile) const __imp_ReadFile = ReadFileDouble;
decltype(&WriteFile) const __imp_WriteFile = WriteFileDouble;
decltype(&GetFileAttributesExW) const __imp_GetFileAttributesExW = GetFileAttributesExDouble;
decltype(&FlushFileBuffers) const __imp_FlushFileBuffers = FlushFileBuffersDouble;
decltype(&MoveFileExW) const __imp_MoveFileExW = MoveFileExDouble;
}
