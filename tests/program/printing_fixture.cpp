#include "tests/program/printing_fixture.h"

#include "resources/ids.h"
#include "zmanim/print_abort_dialog.h"

void PrintingFixture::SetUp() {
  ZmanimViewTest::SetUp();
  ResetPrinter();
}

void PrintingFixture::Print() {
  SendMessageA(frame_, WM_COMMAND, IDM_PRINT, 0);
  EXPECT_EQ(Printer().devices, 0);
  EXPECT_TRUE(IsWindowEnabled(frame_));
  EXPECT_EQ(PrintAbort.dialog, nullptr);
}

std::vector<std::string> PrintedTexts(std::size_t page, const std::string& font) {
  std::vector<std::string> texts;
  for (const Draw& draw : Printer().pages.at(page)) {
    if (draw.font == font) texts.push_back(draw.text);
  }
  return texts;
}

std::vector<std::string> PrintedDates(std::size_t page) {
  std::vector<std::string> dates;
  for (const std::string& text : PrintedTexts(page, kPrintedTimes)) {
    if (text[0] != '<') dates.push_back(text.substr(0, 5));
  }
  return dates;
}
