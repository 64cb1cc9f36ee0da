// A document of zmanim whose times tell by themselves which zmanim they are: every name has a time of its own.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/program/printing_fixture.h"
#include "zmanim/core/zmanim_geometry.h"

// The first columns of a document, wherever they are shown: what is under each number in the legend, and the times of
// 5 January 2007.
struct Columns {
  std::vector<std::string> names;
  std::vector<std::string> times;
};

class LabelsTest : public PrintingFixture {
 protected:
  void SetUp() override;
  void TearDown() override;

  // The selection as another program, or the dialog, leaves it behind; nothing else is told of it.
  static void Select(const std::vector<std::string>& names);
  static Columns ColumnsOf(const std::vector<std::string>& names);

  // What the commands and the eyes of a user find.
  void ExpectPainted(const Columns& columns);
  void ExpectFiles(const Columns& columns);
  void ExpectPrinted(const Columns& columns);

  std::string Exported(unsigned command);
  std::string Delimited();

  POINT CellPoint(const ZmanimCell& cell);
  void ClickCell(const ZmanimCell& cell);
  // The same by a message that has a time, as the mouse's have.
  void PostClick(const ZmanimCell& cell);

  std::filesystem::path folder_;
};

// How often the library was asked for a time since the last look.
int TakeQuestions();
