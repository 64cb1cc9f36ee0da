#include "tests/program/exports_fixture.h"

#include <fstream>
#include <sstream>

#include "app/active_document.h"
#include "app/compute_document.h"
#include "engine/current.h"

namespace fs = std::filesystem;

void ExportsFixture::SetUp() {
  ProgramTest::SetUp();
  Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
  Libraries().zmanimCount = 2;
  Libraries().readings = {{"6.1.5767", {"Vayechi", "", "", "H1", "", "", "Extra"}}};
  OpenFrame();
  CurrentRange = {{5, 1, 2007}, {6, 1, 2007}};
  CalculateShabbatTimes(ActiveDocument(), 5, 1, 2007, 6, 1, 2007);
  folder_ = fs::temp_directory_path() / ("exports_test_" + std::to_string(GetCurrentProcessId()));
  fs::create_directories(folder_);
  CallLog().clear();
}

void ExportsFixture::TearDown() {
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
  ProgramTest::TearDown();
}

void ExportsFixture::Command(unsigned id) {
  SendMessageA(frame_, WM_COMMAND, id, 0);
  DispatchPendingMessages();
}

std::string ExportsFixture::Exported(unsigned id, const char* name) {
  System().savedFile = PathOf(name);
  Command(id);
  return Bytes(System().savedFile);
}

std::string ExportsFixture::Bytes(const std::string& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}
