// One run of the program, seen from outside: its windows, whether it answers, what it holds, how it ends.
#pragma once

#include <windows.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

// How long the program may take for anything before it counts as hung. The longest range has 32,001 days, and another
// build may have the machine.
inline constexpr DWORD kPatienceMilliseconds = 60000;
inline constexpr DWORD kExitMilliseconds = 30000;

struct Holdings {
  std::size_t committedBytes = 0;
  std::size_t gdiObjects = 0;
  std::size_t windows = 0;
};

class RunningProgram {
 public:
  // Starts the program with the settings and in the working folder that the process at hand has; throws Fault when its
  // frame does not show up. A box that names settings that cannot be read is answered by Continue.
  explicit RunningProgram(const std::filesystem::path& programFolder);
  ~RunningProgram();  // ends a program that still runs
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

  HWND frame() const { return frame_; }
  HWND MdiClient() const;
  std::vector<HWND> Documents() const;

  // The enabled dialog or message box that is uppermost; null when there is none.
  HWND Dialog() const;
  bool InMenu() const;
  HWND Focus() const;

  // Every visible window that a user's hand reaches: no disabled ones.
  std::vector<HWND> ReachableWindows() const;

  // Waits until all that was posted so far has been handled; throws Fault when the program has ended or does not
  // answer. Answers the milliseconds that it took.
  ULONGLONG Settle();

  // Waits until the user can go on: the frame is enabled or a dialog is open.
  void WaitForInput();

  // Closes the frame, which must end the program with code 0 in good time; throws Fault otherwise.
  void Exit();

  Holdings Measure() const;
  std::string WindowTree() const;

 private:
  void Start(const std::filesystem::path& programFolder);
  void WaitForFrame();
  void ThrowIfEnded() const;
  std::vector<HWND> TopLevels() const;

  PROCESS_INFORMATION process_{};
  HWND frame_ = nullptr;
  HHOOK hook_ = nullptr;
  WPARAM markers_ = 0;
};

std::string ClassOf(HWND window);
std::string TextOf(HWND window);
// Class, id and text, for the journal.
std::string Describe(HWND window);
std::vector<HWND> VisibleDescendants(HWND window);
