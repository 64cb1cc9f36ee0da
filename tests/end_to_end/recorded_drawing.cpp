#include "tests/end_to_end/recorded_drawing.h"

#include <sstream>

#include "tests/end_to_end/program_driver.h"

namespace fs = std::filesystem;

void MakeRecordingProgram(const fs::path& folder) {
  fs::copy(ProgramFolder(), folder, fs::copy_options::recursive);
  fs::copy_file(FakeLibrariesFolder() / "recording_glyphs" / "glyphs.dll", folder / "glyphs.dll",
                fs::copy_options::overwrite_existing);
}

std::vector<RecordedDraw> ReadDraws(const fs::path& settingsFolder) {
  std::vector<RecordedDraw> draws;
  std::istringstream lines(ReadFileText(settingsFolder / "drawn.txt"));
  RecordedDraw draw;
  while (lines >> draw.windowClass >> draw.x >> draw.y >> draw.charset && lines.get() == ' ' &&
         std::getline(lines, draw.text)) {
    draws.push_back(draw);
  }
  return draws;
}
