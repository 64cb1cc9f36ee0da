// A document of zmanim and a scripted printer.
#pragma once

#include <string>
#include <vector>

#include "tests/doubles/printing_calls.h"
#include "tests/program/zmanim_view_fixture.h"

// The fonts of tables and headings, as the draws name them.
inline constexpr char kPrintedTimes[] = "Times New Roman 400";
inline constexpr char kPrintedBold[] = "Times New Roman 700";

class PrintingFixture : public ZmanimViewTest {
 protected:
  void SetUp() override;

  // Runs the command and expects everything given back after it.
  void Print();
};

// The texts of a printed page in one of its fonts, and its dates as "05.01".
std::vector<std::string> PrintedTexts(std::size_t page, const std::string& font);
std::vector<std::string> PrintedDates(std::size_t page);
