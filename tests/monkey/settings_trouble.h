// What other programs do to the settings meanwhile: they hold files, rewrite them, leave nonsense in them.
#pragma once

#include <windows.h>

#include <filesystem>
#include <set>
#include <string>

#include "tests/monkey/dice.h"

class SettingsTrouble {
 public:
  explicit SettingsTrouble(std::filesystem::path folder) : folder_(std::move(folder)) {}
  ~SettingsTrouble() { Release(); }
  SettingsTrouble(const SettingsTrouble&) = delete;
  SettingsTrouble& operator=(const SettingsTrouble&) = delete;

  // Does something to a file; what it was.
  std::string Make(Dice& dice);
  void Release();
  bool holds() const { return held_ != INVALID_HANDLE_VALUE; }

  // What is wrong with the files as the program left them; empty when nothing is. Files in which nonsense was left are
  // not judged: the program keeps lines that it does not know.
  std::string Judge() const;

 private:
  std::string Hold(const std::string& file);
  std::string Rewrite(const std::string& file, const std::string& text);

  std::filesystem::path folder_;
  HANDLE held_ = INVALID_HANDLE_VALUE;
  std::set<std::string> spoiled_;
};
