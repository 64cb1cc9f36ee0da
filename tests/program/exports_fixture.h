// What tests of exports start from: a document of 5 and 6 January 2007 in Aachen with two zmanim and one reading, and
// an empty folder for the files.
#pragma once

#include <filesystem>
#include <string>

#include "tests/program/program_fixture.h"

class ExportsFixture : public ProgramTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Runs a menu command with what it posts.
  void Command(unsigned id);
  // The file that a command exports under a name in the folder.
  std::string Exported(unsigned id, const char* name);
  static std::string Bytes(const std::string& file);
  std::string PathOf(const std::string& name) const { return (folder_ / name).string(); }

  std::filesystem::path folder_;
};
