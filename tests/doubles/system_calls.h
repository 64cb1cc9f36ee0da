// System calls that would stop a test (boxes, the end of the process, other programs) or that depend on the day: the
// program's objects reach these instead. Calls that are counted go on to the system. A write past the end of a memory
// block fails the test when the block is freed.
#pragma once

#include <windows.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

// What a save dialog was asked for. A filter is its texts and patterns in turn.
struct SaveDialog {
  HWND owner;
  std::vector<std::string> filter;
  DWORD filterIndex;
  std::string offeredFile;
  DWORD size;  // of the file name's buffer
  std::string extension;
  DWORD flags;
};

// An icon that was drawn; and the brush's colour when by graying.
struct DrawnIcon {
  int x;
  int y;
  int width;
  int height;
  HICON icon;
  COLORREF gray;
  bool operator==(const DrawnIcon&) const = default;
};
inline constexpr COLORREF kNotGray = CLR_INVALID;

struct SystemScript {
  SYSTEMTIME localTime;
  UINT winExecAnswer;
  HWND foundWindow;  // answer of FindWindow
  HWND foregroundWindow;
  int beeps;
  int answer;                           // of message boxes with a question
  std::function<int()> onRetryBox{};    // answers boxes that offer to try again; none: Cancel
  std::string savedFile;                // chosen in a save dialog; empty: cancelled
  DWORD chosenType = 0;                 // in it, from 1; 0: the one it began with
  SaveDialog saveDialog;                // the last one
  std::function<void()> whileSaving{};  // what happens while it is open
  // The same for the dialog that takes names of any script.
  std::wstring savedDocument{};
  DWORD offeredType = 0;  // from 1
  std::wstring offeredDocument{};
  std::string missingLibrary;     // what LoadLibrary does not find ...
  UINT_PTR missingLibraryHandle;  // ... and answers for it

  DWORD saveDialogError;           // why a save dialog had no answer; 0: it was cancelled
  int failingWrites;               // of files, that are still to come
  bool diskIsFull;                 // writes of files end before their last byte
  DWORD createError = 0;           // why no file can be created; 0: all can
  bool flushFails = false;         // what was written does not reach the disk
  int failingRenames = 0;          // of files, that are still to come ...
  DWORD renameError = 0;           // ... and why
  std::string refusedWindowClass;  // of which no window can be created

  std::string clipboardText{};    // what the program put there last ...
  HWND clipboardOwner = nullptr;  // ... and which window had it open
  bool clipboardRefuses = false;

  // Which block and which font cannot be made, counted from now on from 1; 0: all can.
  int failingBlock = 0;
  int failingFont = 0;

  // The mouse cursor, and what it was when a file was written last.
  HCURSOR cursor;
  HCURSOR cursorWhileWriting;
  std::vector<DrawnIcon> drawnIcons;

  // What the program holds: blocks by handle, and properties as "window name".
  std::set<HGLOBAL> blocks;
  std::set<std::string> properties;
  std::set<HGDIOBJ> fonts;
  std::set<HGDIOBJ> pensAndBrushes;
  int deviceContexts;  // of windows, and begun paintings
  int locks;           // of blocks
};

SystemScript& System();

// 20 November 2026, a Friday; no other program; nothing held.
void ResetSystem();
