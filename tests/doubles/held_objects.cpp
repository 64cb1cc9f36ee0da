// What the program holds: memory, properties, objects for drawing, device contexts, locks. Calls go on to the system
// unless a script makes them fail.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>

#include "tests/doubles/call_log.h"
#include "tests/doubles/real_call.h"
#include "tests/doubles/system_calls.h"

namespace {

std::string PropertyKey(HWND window, const char* name) {
  return std::to_string(reinterpret_cast<UINT_PTR>(window)) + " " + name;
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
decltype(&SetClipboardData) __imp_SetClipboardData = NotedSetClipboardData;
decltype(&GlobalAlloc) __imp_GlobalAlloc = CountedGlobalAlloc;
decltype(&GlobalFree) __imp_GlobalFree = CountedGlobalFree;
decltype(&GlobalSize) __imp_GlobalSize = SizeWithoutGuard;
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
