// What the program draws, as a text library that writes it down has it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

struct RecordedDraw {
  std::string windowClass;
  int x;
  int y;
  int charset;  // of the font
  std::string text;
};

// A copy of the program folder whose text library writes down what it draws.
void MakeRecordingProgram(const std::filesystem::path& folder);

// All that has been drawn with a settings folder, in order.
std::vector<RecordedDraw> ReadDraws(const std::filesystem::path& settingsFolder);
