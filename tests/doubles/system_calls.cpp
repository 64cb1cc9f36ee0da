#include "tests/doubles/system_calls.h"

#include <commdlg.h>
#include <gtest/gtest.h>

#include <cstring>
#include <utility>

#include "tests/doubles/call_log.h"
#include "tests/doubles/real_call.h"

namespace {

int WINAPI FakeMessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type) {
  LogCall("message box '%s' caption '%s' type 0x%x owner %s", text, caption, type, owner ? "yes" : "none");
  switch (type & MB_TYPEMASK) {
    case MB_YESNO: return System().answer;
    case MB_RETRYCANCEL:
    case MB_CANCELTRYCONTINUE: return System().onRetryBox ? System().onRetryBox() : IDCANCEL;
  }
  return IDOK;
}

// Zero-terminated texts; an empty one ends them.
std::vector<std::string> FilterTexts(const char* filter) {
  std::vector<std::string> texts;
  for (const char* text = filter; *text; text += texts.back().size() + 1) texts.emplace_back(text);
  return texts;
}

BOOL WINAPI FakeGetSaveFileNameA(LPOPENFILENAMEA dialog) {
  const char* pattern = dialog->lpstrFilter + std::strlen(dialog->lpstrFilter) + 1;
  LogCall("save dialog '%s' '%s' extension %s size %lu", dialog->lpstrFilter, pattern, dialog->lpstrDefExt,
          dialog->nMaxFile);
  System().saveDialog = {dialog->hwndOwner,    FilterTexts(dialog->lpstrFilter),
                         dialog->nFilterIndex, dialog->lpstrFile,
                         dialog->nMaxFile,     dialog->lpstrDefExt,
                         dialog->Flags};
  if (System().whileSaving) System().whileSaving();
  if (System().chosenType != 0) dialog->nFilterIndex = System().chosenType;
  if (System().savedFile.empty()) return FALSE;
  std::strcpy(dialog->lpstrFile, System().savedFile.c_str());
  return TRUE;
}

BOOL WINAPI FakeGetSaveFileNameW(LPOPENFILENAMEW dialog) {
  LogCall("save dialog for a document");
  System().offeredType = dialog->nFilterIndex;
  System().offeredDocument = dialog->lpstrFile;
  if (System().whileSaving) System().whileSaving();
  if (System().chosenType != 0) dialog->nFilterIndex = System().chosenType;
  if (System().savedDocument.empty()) return FALSE;
  EXPECT_LT(System().savedDocument.size(), dialog->nMaxFile);
  System().savedDocument.copy(dialog->lpstrFile, dialog->nMaxFile);
  dialog->lpstrFile[System().savedDocument.size()] = L'\0';
  return TRUE;
}

// Logged as UTF-8.
int WINAPI FakeMessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT type) {
  const auto utf8 = [](LPCWSTR wide) {
    char bytes[1024] = "";
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, bytes, sizeof bytes, nullptr, nullptr);
    return std::string(bytes);
  };
  return FakeMessageBoxA(owner, utf8(text).c_str(), utf8(caption).c_str(), type);
}

DWORD WINAPI FakeCommDlgExtendedError() {
  return System().saveDialogError;
}

void WINAPI FakeFatalAppExitA(UINT action, LPCSTR text) {
  LogCall("fatal exit %u '%s'", action, text);
}

UINT WINAPI FakeWinExec(LPCSTR commandLine, UINT show) {
  LogCall("start '%s' show %u", commandLine, show);
  return System().winExecAnswer;
}

HWND WINAPI FakeFindWindowA(LPCSTR className, LPCSTR title) {
  LogCall("find window '%s' '%s'", className, title ? title : "any");
  return System().foundWindow;
}

BOOL WINAPI FakeSetForegroundWindow(HWND window) {
  System().foregroundWindow = window;
  return TRUE;
}

BOOL WINAPI FakeMessageBeep(UINT) {
  ++System().beeps;
  return TRUE;
}

void WINAPI FakeGetLocalTime(LPSYSTEMTIME time) {
  *time = System().localTime;
}

HMODULE WINAPI LoggedLoadLibraryA(LPCSTR name) {
  static const auto real = REAL("kernel32.dll", LoadLibraryA);
  if (name == System().missingLibrary) {
    LogCall("load %s failed", name);
    return reinterpret_cast<HMODULE>(System().missingLibraryHandle);
  }
  LogCall("load %s", name);
  return real(name);
}

BOOL WINAPI LoggedFreeLibrary(HMODULE module) {
  static const auto real = REAL("kernel32.dll", FreeLibrary);
  char path[MAX_PATH] = "";
  GetModuleFileNameA(module, path, sizeof path);
  const char* name = std::strrchr(path, '\\');
  LogCall("unload %s", name ? name + 1 : path);
  return real(module);
}

HWND WINAPI RefusingCreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR title, DWORD style, int x, int y, int width,
                                    int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter) {
  static const auto real = REAL("user32.dll", CreateWindowExA);
  if (!IS_INTRESOURCE(className) && className == System().refusedWindowClass) return nullptr;
  return real(exStyle, className, title, style, x, y, width, height, parent, menu, instance, parameter);
}

HCURSOR WINAPI FakeSetCursor(HCURSOR cursor) {
  return std::exchange(System().cursor, cursor);
}

BOOL WINAPI NotedWriteFile(HANDLE file, LPCVOID bytes, DWORD count, LPDWORD written, LPOVERLAPPED overlapped) {
  static const auto real = REAL("kernel32.dll", WriteFile);
  System().cursorWhileWriting = System().cursor;
  if (System().failingWrites > 0) {
    --System().failingWrites;
    return FALSE;
  }
  return real(file, bytes, System().diskIsFull && count > 0 ? count - 1 : count, written, overlapped);
}

HANDLE WINAPI RefusingCreateFileA(LPCSTR name, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                                  DWORD creation, DWORD flags, HANDLE model) {
  static const auto real = REAL("kernel32.dll", CreateFileA);
  if (System().createError == 0) return real(name, access, share, security, creation, flags, model);
  SetLastError(System().createError);
  return INVALID_HANDLE_VALUE;
}

HANDLE WINAPI RefusingCreateFileW(LPCWSTR name, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                                  DWORD creation, DWORD flags, HANDLE model) {
  static const auto real = REAL("kernel32.dll", CreateFileW);
  if (System().createError == 0) return real(name, access, share, security, creation, flags, model);
  SetLastError(System().createError);
  return INVALID_HANDLE_VALUE;
}

BOOL WINAPI RefusingFlushFileBuffers(HANDLE file) {
  static const auto real = REAL("kernel32.dll", FlushFileBuffers);
  return !System().flushFails && real(file);
}

BOOL WINAPI RefusingMoveFileExW(LPCWSTR from, LPCWSTR to, DWORD flags) {
  static const auto real = REAL("kernel32.dll", MoveFileExW);
  if (System().failingRenames == 0) return real(from, to, flags);
  --System().failingRenames;
  SetLastError(System().renameError);
  return FALSE;
}

BOOL WINAPI NotedDrawIconEx(HDC dc, int x, int y, HICON icon, int width, int height, UINT step, HBRUSH brush,
                            UINT flags) {
  static const auto real = REAL("user32.dll", DrawIconEx);
  System().drawnIcons.push_back({x, y, width, height, icon, kNotGray});
  return real(dc, x, y, icon, width, height, step, brush, flags);
}

// The icon is what the procedure draws.
BOOL WINAPI NotedGrayStringA(HDC dc, HBRUSH brush, GRAYSTRINGPROC procedure, LPARAM data, int count, int x, int y,
                             int width, int height) {
  static const auto real = REAL("user32.dll", GrayStringA);
  LOGBRUSH color{};
  GetObjectA(brush, sizeof color, &color);
  const std::size_t before = System().drawnIcons.size();
  const BOOL drawn = real(dc, brush, procedure, data, count, x, y, width, height);
  EXPECT_EQ(System().drawnIcons.size(), before + 1) << "graying draws one icon";
  System().drawnIcons.back() = {x, y, width, height, System().drawnIcons.back().icon, color.lbColor};
  return drawn;
}

}  // namespace

extern "C" {
decltype(&MessageBoxA) __imp_MessageBoxA = FakeMessageBoxA;
decltype(&MessageBoxW) __imp_MessageBoxW = FakeMessageBoxW;
decltype(&GetSaveFileNameW) __imp_GetSaveFileNameW = FakeGetSaveFileNameW;
decltype(&GetSaveFileNameA) __imp_GetSaveFileNameA = FakeGetSaveFileNameA;
decltype(&CommDlgExtendedError) __imp_CommDlgExtendedError = FakeCommDlgExtendedError;
decltype(&FatalAppExitA) __imp_FatalAppExitA = FakeFatalAppExitA;
decltype(&WinExec) __imp_WinExec = FakeWinExec;
decltype(&FindWindowA) __imp_FindWindowA = FakeFindWindowA;
decltype(&SetForegroundWindow) __imp_SetForegroundWindow = FakeSetForegroundWindow;
decltype(&MessageBeep) __imp_MessageBeep = FakeMessageBeep;
decltype(&GetLocalTime) __imp_GetLocalTime = FakeGetLocalTime;
decltype(&LoadLibraryA) __imp_LoadLibraryA = LoggedLoadLibraryA;
decltype(&FreeLibrary) __imp_FreeLibrary = LoggedFreeLibrary;
decltype(&CreateWindowExA) __imp_CreateWindowExA = RefusingCreateWindowExA;
decltype(&SetCursor) __imp_SetCursor = FakeSetCursor;
decltype(&WriteFile) __imp_WriteFile = NotedWriteFile;
decltype(&CreateFileA) __imp_CreateFileA = RefusingCreateFileA;
decltype(&CreateFileW) __imp_CreateFileW = RefusingCreateFileW;
decltype(&FlushFileBuffers) __imp_FlushFileBuffers = RefusingFlushFileBuffers;
decltype(&MoveFileExW) __imp_MoveFileExW = RefusingMoveFileExW;
decltype(&DrawIconEx) __imp_DrawIconEx = NotedDrawIconEx;
decltype(&GrayStringA) __imp_GrayStringA = NotedGrayStringA;
}

SystemScript& System() {
  static SystemScript script;
  return script;
}

void ResetSystem() {
  System() = {.localTime = {.wYear = 2026,
                            .wMonth = 11,
                            .wDayOfWeek = 5,
                            .wDay = 20,
                            .wHour = 12,
                            .wMinute = 0,
                            .wSecond = 0,
                            .wMilliseconds = 0},
              .winExecAnswer = 33,
              .foundWindow = nullptr,
              .foregroundWindow = nullptr,
              .beeps = 0,
              .answer = IDYES,
              .savedFile = {},
              .saveDialog = {},
              .missingLibrary = {},
              .missingLibraryHandle = 0,
              .saveDialogError = 0,
              .failingWrites = 0,
              .diskIsFull = false,
              .refusedWindowClass = {},
              .cursor = nullptr,
              .cursorWhileWriting = nullptr,
              .drawnIcons = {},
              .blocks = {},
              .properties = {},
              .fonts = {},
              .pensAndBrushes = {},
              .deviceContexts = 0,
              .locks = 0};
}
