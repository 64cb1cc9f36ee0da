// Drives the finished program from outside: a folder with the real files, a settings folder of its own, and the windows
// that show up. Everything is polled; nothing is waited for by the clock alone.
#pragma once

#include <windows.h>

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

// How long anything may take before a test gives up.
inline constexpr DWORD kPatienceMilliseconds = 20000;

// The folder of the built program, and that of the fake libraries.
std::filesystem::path ProgramFolder();
std::filesystem::path FakeLibrariesFolder();

// A folder that is empty at first and gone at the end.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

void WriteFileText(const std::filesystem::path& file, const std::string& text);
std::string ReadFileText(const std::filesystem::path& file);

// One run of the program. Its settings folder is given, so that a second run can find what a first one left.
class ProgramRun {
 public:
  // currentFolder: where the program is started; empty: in its own folder.
  ProgramRun(const std::filesystem::path& programFolder, const std::filesystem::path& settingsFolder,
             const std::filesystem::path& currentFolder = {});
  ~ProgramRun();  // ends a program that still runs
  ProgramRun(const ProgramRun&) = delete;
  ProgramRun& operator=(const ProgramRun&) = delete;

  // Polls until the condition holds or the program has ended; whether it held.
  bool Eventually(const std::function<bool()>& condition) const;

  // The program's visible top-level window of a class; null when it does not show up.
  HWND WaitForTopLevel(const std::string& className) const;

  // The program's dialog or message box of a title, able to take input.
  HWND WaitForDialog(const std::string& title) const;

  // A box that asks for Yes or No, whatever its title.
  HWND WaitForQuestion() const;

  // Whether a dialog or box of a title is open now.
  bool HasDialog(const std::string& title) const;

  // Sends a menu command to the frame without waiting for what it does.
  void PostCommand(unsigned id) const;

  // The frame's document windows, the uppermost first, once there are count of them.
  std::vector<HWND> WaitForDocuments(std::size_t count) const;

  HANDLE Process() const { return process_.hProcess; }

  // The exit code; waits for the end. Fails the test and ends the program when it goes on.
  DWORD WaitForExit();

 private:
  HWND WaitForDialogThat(const std::function<bool(HWND)>& accepts, const std::string& what) const;
  HWND FindTopLevel(const std::string& className, const std::function<bool(HWND)>& accepts = nullptr) const;
  std::vector<HWND> Documents() const;

  PROCESS_INFORMATION process_{};
};

// A control's text, and what a click on a button of a dialog does (it is not waited for).
void SetText(HWND dialog, int control, const std::string& text);
void Click(HWND dialog, int button);

std::string TextOf(HWND window);
std::string ClassOf(HWND window);
