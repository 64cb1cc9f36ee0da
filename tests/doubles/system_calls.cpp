#include "tests/doubles/system_calls.h"

#include <commdlg.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <utility>

#include "tests/doubles/call_log.h"

namespace {

// The system's own function, past the replaced import.
template <typename Function>
Function Real(const char* module, const char* name) {
  const FARPROC found = GetProcAddress(GetModuleHandleA(module), name);
  Function function;
  std::memcpy(&function, &found, sizeof function);
  return function;
}

#define REAL(module, name) (Real<decltype(&name)>(module, #name))

std::string PropertyKey(HWND window, const char* name) {
  return std::to_string(reinterpret_cast<UINT_PTR>(window)) + " " + name;
}

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

// Behind every block of the program stand bytes that nobody may write. The size that was asked for, by block.
constexpr SIZE_T kGuardSize = 4096;
constexpr char kGuardByte = '\x5A';

std::map<HGLOBAL, SIZE_T>& GuardedBlocks() {
  static std::map<HGLOBAL, SIZE_T> blocks;
  return blocks;
}

void SetGuard(HGLOBAL block, SIZE_T size) {
  static const auto lock = REAL("kernel32.dll", GlobalLock);
  static const auto unlock = REAL("kernel32.dll", GlobalUnlock);
  std::memset(static_cast<char*>(lock(block)) + size, kGuardByte, kGuardSize);
  unlock(block);
  GuardedBlocks()[block] = size;
}

void CheckGuard(HGLOBAL block) {
  static const auto lock = REAL("kernel32.dll", GlobalLock);
  static const auto unlock = REAL("kernel32.dll", GlobalUnlock);
  const auto guarded = GuardedBlocks().extract(block);
  if (!guarded) return;
  const char* const guard = static_cast<const char*>(lock(block)) + guarded.mapped();
  EXPECT_TRUE(std::all_of(guard, guard + kGuardSize, [](char byte) { return byte == kGuardByte; }))
      << "a block was written past its end";
  unlock(block);
}

HGLOBAL WINAPI CountedGlobalAlloc(UINT flags, SIZE_T size) {
  static const auto real = REAL("kernel32.dll", GlobalAlloc);
  if (System().failingBlock > 0 && --System().failingBlock == 0) return nullptr;
  const HGLOBAL block = real(flags, size + kGuardSize);
  if (!block) return nullptr;
  SetGuard(block, size);
  System().blocks.insert(block);
  return block;
}

HGLOBAL WINAPI CountedGlobalFree(HGLOBAL block) {
  static const auto real = REAL("kernel32.dll", GlobalFree);
  if (System().blocks.erase(block) == 0) LogCall("freed a block that was not held");
  CheckGuard(block);
  return real(block);
}

SIZE_T WINAPI SizeWithoutGuard(HGLOBAL block) {
  static const auto real = REAL("kernel32.dll", GlobalSize);
  const auto guarded = GuardedBlocks().find(block);
  return guarded == GuardedBlocks().end() ? real(block) : guarded->second;
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

BOOL WINAPI CountedSetPropA(HWND window, LPCSTR name, HANDLE value) {
  static const auto real = REAL("user32.dll", SetPropA);
  const BOOL set = real(window, name, value);
  if (set) System().properties.insert(PropertyKey(window, name));
  return set;
}

HANDLE WINAPI CountedRemovePropA(HWND window, LPCSTR name) {
  static const auto real = REAL("user32.dll", RemovePropA);
  System().properties.erase(PropertyKey(window, name));
  return real(window, name);
}

HFONT WINAPI CountedCreateFontIndirectA(const LOGFONTA* font) {
  static const auto real = REAL("gdi32.dll", CreateFontIndirectA);
  if (System().failingFont > 0 && --System().failingFont == 0) return nullptr;
  const HFONT made = real(font);
  System().fonts.insert(made);
  return made;
}

HPEN WINAPI CountedCreatePen(int style, int width, COLORREF color) {
  static const auto real = REAL("gdi32.dll", CreatePen);
  const HPEN made = real(style, width, color);
  System().pensAndBrushes.insert(made);
  return made;
}

HBRUSH WINAPI CountedCreateSolidBrush(COLORREF color) {
  static const auto real = REAL("gdi32.dll", CreateSolidBrush);
  const HBRUSH made = real(color);
  System().pensAndBrushes.insert(made);
  return made;
}

BOOL WINAPI CountedDeleteObject(HGDIOBJ object) {
  static const auto real = REAL("gdi32.dll", DeleteObject);
  System().fonts.erase(object);
  System().pensAndBrushes.erase(object);
  return real(object);
}

HDC WINAPI CountedGetDC(HWND window) {
  static const auto real = REAL("user32.dll", GetDC);
  ++System().deviceContexts;
  return real(window);
}

int WINAPI CountedReleaseDC(HWND window, HDC dc) {
  static const auto real = REAL("user32.dll", ReleaseDC);
  --System().deviceContexts;
  return real(window, dc);
}

HDC WINAPI CountedBeginPaint(HWND window, LPPAINTSTRUCT paint) {
  static const auto real = REAL("user32.dll", BeginPaint);
  ++System().deviceContexts;
  return real(window, paint);
}

BOOL WINAPI CountedEndPaint(HWND window, const PAINTSTRUCT* paint) {
  static const auto real = REAL("user32.dll", EndPaint);
  --System().deviceContexts;
  return real(window, paint);
}

LPVOID WINAPI CountedGlobalLock(HGLOBAL block) {
  static const auto real = REAL("kernel32.dll", GlobalLock);
  ++System().locks;
  return real(block);
}

BOOL WINAPI CountedGlobalUnlock(HGLOBAL block) {
  static const auto real = REAL("kernel32.dll", GlobalUnlock);
  --System().locks;
  return real(block);
}

// The block is the system's from now on.
HANDLE WINAPI NotedSetClipboardData(UINT format, HANDLE block) {
  static const auto real = REAL("user32.dll", SetClipboardData);
  static const auto lock = REAL("kernel32.dll", GlobalLock);
  static const auto unlock = REAL("kernel32.dll", GlobalUnlock);
  if (System().clipboardRefuses) return nullptr;
  EXPECT_EQ(format, UINT{CF_TEXT});
  System().clipboardText = static_cast<const char*>(lock(block));
  System().clipboardOwner = GetOpenClipboardWindow();
  unlock(block);
  CheckGuard(block);
  System().blocks.erase(block);
  return real(format, block);
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
decltype(&SetClipboardData) __imp_SetClipboardData = NotedSetClipboardData;
decltype(&GlobalAlloc) __imp_GlobalAlloc = CountedGlobalAlloc;
decltype(&GlobalFree) __imp_GlobalFree = CountedGlobalFree;
decltype(&GlobalSize) __imp_GlobalSize = SizeWithoutGuard;
decltype(&CreateWindowExA) __imp_CreateWindowExA = RefusingCreateWindowExA;
decltype(&SetCursor) __imp_SetCursor = FakeSetCursor;
decltype(&WriteFile) __imp_WriteFile = NotedWriteFile;
decltype(&CreateFileA) __imp_CreateFileA = RefusingCreateFileA;
decltype(&CreateFileW) __imp_CreateFileW = RefusingCreateFileW;
decltype(&FlushFileBuffers) __imp_FlushFileBuffers = RefusingFlushFileBuffers;
decltype(&MoveFileExW) __imp_MoveFileExW = RefusingMoveFileExW;
decltype(&DrawIconEx) __imp_DrawIconEx = NotedDrawIconEx;
decltype(&GrayStringA) __imp_GrayStringA = NotedGrayStringA;
decltype(&SetPropA) __imp_SetPropA = CountedSetPropA;
decltype(&RemovePropA) __imp_RemovePropA = CountedRemovePropA;
decltype(&CreateFontIndirectA) __imp_CreateFontIndirectA = CountedCreateFontIndirectA;
decltype(&CreatePen) __imp_CreatePen = CountedCreatePen;
decltype(&CreateSolidBrush) __imp_CreateSolidBrush = CountedCreateSolidBrush;
decltype(&DeleteObject) __imp_DeleteObject = CountedDeleteObject;
decltype(&GetDC) __imp_GetDC = CountedGetDC;
decltype(&ReleaseDC) __imp_ReleaseDC = CountedReleaseDC;
decltype(&BeginPaint) __imp_BeginPaint = CountedBeginPaint;
decltype(&EndPaint) __imp_EndPaint = CountedEndPaint;
decltype(&GlobalLock) __imp_GlobalLock = CountedGlobalLock;
decltype(&GlobalUnlock) __imp_GlobalUnlock = CountedGlobalUnlock;
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
