// System calls that would stop a test (boxes, the end of the process, other programs) or that depend on the day: the
// program's objects reach these instead. Calls that are counted go on to the system.
#pragma once

#include <windows.h>

#include <set>
#include <string>

struct SystemScript {
  SYSTEMTIME localTime;
  UINT winExecAnswer;
  HWND foundWindow;  // answer of FindWindow
  HWND foregroundWindow;
  int beeps;
  int answer;                     // of message boxes with a question
  std::string savedFile;          // chosen in a save dialog; empty: cancelled
  std::string offeredFile;        // by the last save dialog
  std::string missingLibrary;     // what LoadLibrary does not find ...
  UINT_PTR missingLibraryHandle;  // ... and answers for it

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
