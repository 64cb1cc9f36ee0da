// The monkey: does one thing after another to the program, whatever is open, as its dice fall.
#pragma once

#include <windows.h>

#include <filesystem>
#include <memory>
#include <string>

#include "tests/monkey/dice.h"
#include "tests/monkey/input.h"
#include "tests/monkey/journal.h"
#include "tests/monkey/running_program.h"
#include "tests/monkey/settings_trouble.h"

class Monkey {
 public:
  Monkey(uint64_t seed, std::filesystem::path programFolder, const std::filesystem::path& settingsFolder);

  // One action, handled by the program when the function returns. Throws Fault.
  void Step();

  // Closes every dialog and document, and has the program open one document anew, so that what it holds can be
  // compared with what it held at such a moment before.
  void Rest();

  // Rests and ends the program, then sees to it that it starts and ends once more with the settings that it has left.
  void Finish();

  const Journal& journal() const { return journal_; }
  ULONGLONG slowestMilliseconds() const { return slowestMilliseconds_; }
  const RunningProgram* program() const { return program_.get(); }
  const Holdings& firstRest() const { return firstRest_; }
  const Holdings& lastRest() const { return lastRest_; }

 private:
  std::string Act();
  std::string ActInMenu();
  std::string ActInDialog(HWND dialog);
  std::string ActInMessageBox(HWND box);
  std::string FillField(HWND field);
  std::string ActInFrame();
  std::string ChooseCommand();
  std::string PressToolbar();
  std::string MoveWindows();
  std::string Touch();
  std::string DriveSecondCopy();
  std::string Restart();
  void KeepFewDocuments();
  void LeaveDialogs();
  void Settle();

  Dice dice_;
  Input input_;
  Journal journal_;
  std::filesystem::path programFolder_;
  SettingsTrouble trouble_;
  std::unique_ptr<RunningProgram> program_;
  std::unique_ptr<RunningProgram> secondCopy_;
  HWND lastDialog_ = nullptr;
  std::size_t stepsInDialog_ = 0;
  ULONGLONG slowestMilliseconds_ = 0;
  Holdings firstRest_;
  Holdings lastRest_;
  bool rested_ = false;
};

// Controls that lead out of the program: into the system's own dialogs for files and printers, in which Wine crashes by
// itself, to the browser, to another program, or to the end.
bool LeadsOut(HWND window);
