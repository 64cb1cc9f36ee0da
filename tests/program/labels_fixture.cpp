#include "tests/program/labels_fixture.h"

#include <fstream>
#include <sstream>

#include "app/active_document.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "win/scoped.h"
#include "zmanim/zmanim_measures.h"

using testing::HasSubstr;
namespace fs = std::filesystem;

namespace {

int questions = 0;

// Alpha is said at 1:1, Beta at 2:2 and so on, in whatever column they stand.
int32_t MinutesOf(const std::string& name) {
  const int letter = name[0] - 'A' + 1;
  return 61 * letter;
}

std::string TimeOf(const std::string& name) {
  return "<" + std::to_string(MinutesOf(name) / 60) + ":" + std::to_string(MinutesOf(name) % 60) + ">";
}

std::string Joined(const std::vector<std::string>& texts, const std::string& before, const std::string& between) {
  std::string all = before;
  for (std::size_t i = 0; i < texts.size(); ++i) all += (i ? between : "") + texts[i];
  return all;
}

std::vector<std::string> Numbered(const std::vector<std::string>& names) {
  std::vector<std::string> numbered;
  for (const std::string& name : names) numbered.push_back(std::to_string(numbered.size() + 1) + " = " + name);
  return numbered;
}

}  // namespace

int TakeQuestions() {
  return std::exchange(questions, 0);
}

void LabelsTest::SetUp() {
  PrintingFixture::SetUp();
  folder_ = fs::temp_directory_path() / ("labels_test_" + std::to_string(GetCurrentProcessId()));
  fs::create_directories(folder_);
  Printer().width = 20000;
  Printer().height = 20000;
  Libraries().zmanMinutes = [](uint32_t index, const CalendarDate&) {
    ++questions;
    return MinutesOf(Libraries().zmanNames[index]);
  };
  Select({"Alpha", "Beta", "Gamma"});
  ComputeDays(1);
  PaintAll();
  TakeQuestions();
}

void LabelsTest::TearDown() {
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
  PrintingFixture::TearDown();
}

void LabelsTest::Select(const std::vector<std::string>& names) {
  Libraries().zmanNames.clear();
  for (const std::string& name : names) {
    Libraries().zmanNames[static_cast<uint32_t>(Libraries().zmanNames.size())] = name;
  }
  Libraries().zmanimCount = static_cast<uint32_t>(names.size());
}

Columns LabelsTest::ColumnsOf(const std::vector<std::string>& names) {
  Columns columns{names, {}};
  for (const std::string& name : names) columns.times.push_back(TimeOf(name));
  return columns;
}

void LabelsTest::ExpectPainted(const Columns& columns) {
  Libraries().draws.clear();
  Libraries().brokenTexts.clear();
  PaintAll();
  PaintAll();  // what the first painting has found out of date
  ASSERT_FALSE(Libraries().brokenTexts.empty());
  EXPECT_THAT(Libraries().brokenTexts.back().text, testing::StartsWith(Joined(Numbered(columns.names), "", ",   ")));
  const std::vector<Draw> draws = DrawsOf(table_);
  ASSERT_GT(draws.size(), columns.times.size());
  for (std::size_t i = 0; i < columns.times.size(); ++i) EXPECT_EQ(draws[i + 1].text, columns.times[i]) << i;
}

std::string LabelsTest::Exported(unsigned command) {
  System().savedFile = (folder_ / "export").string();
  SendMessageA(frame_, WM_COMMAND, command, 0);
  DispatchPendingMessages();
  std::ostringstream text;
  text << std::ifstream(System().savedFile, std::ios::binary).rdbuf();
  return text.str();
}

std::string LabelsTest::Delimited() {
  const std::string file = (folder_ / "delimited").string();
  WithDialog([this] { SendMessageA(frame_, WM_COMMAND, IDM_EXPORT_ZMANIM, 0); },
             [&](HWND dialog) {
               SetField(dialog, IDC_DELIMITED_FILE, file.c_str());
               Click(dialog, IDOK);
             });
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

void LabelsTest::ExpectFiles(const Columns& columns) {
  const std::string legend = Joined(Numbered(columns.names), "", ",  ");
  const std::string text = Exported(IDM_EXPORT_TEXT);
  std::istringstream words(text.substr(text.find("05.01.2007") + 10));
  std::string unwrapped = text;
  for (std::size_t at; (at = unwrapped.find("\r\n")) != unwrapped.npos;) unwrapped.erase(at, 2);
  EXPECT_THAT(unwrapped, HasSubstr(legend));
  for (const std::string& time : columns.times) {
    std::string word;
    words >> word;
    EXPECT_EQ(word, time);
  }
  const std::string rows = Exported(IDM_EXPORT_RTF_BY_DAY);
  EXPECT_THAT(rows, HasSubstr(legend));
  EXPECT_THAT(rows, HasSubstr(Joined(columns.times, "05.01.2007\\cell\r\n", "\\cell\r\n")));
  const std::string rowOfColumns = Exported(IDM_EXPORT_RTF);
  EXPECT_THAT(rowOfColumns, HasSubstr(legend));
  EXPECT_THAT(rowOfColumns, HasSubstr(Joined(columns.times, "05.01.2007\\par\r\n\\cell\r\n", "\\par\r\n\\cell\r\n")));
  const std::string delimited = Delimited();
  EXPECT_THAT(delimited, testing::StartsWith(Joined(columns.names, "Gregorian date;", ";")));
  EXPECT_THAT(delimited, HasSubstr(Joined(columns.times, "\r\n05.01.2007;", ";")));
}

void LabelsTest::ExpectPrinted(const Columns& columns) {
  Print();
  ASSERT_FALSE(Printer().pages.empty());
  std::string heading;
  for (const std::string& word : PrintedTexts(0, kPrintedBold)) heading += word;
  EXPECT_THAT(heading, HasSubstr(Joined(Numbered(columns.names), "", ",     ")));
  const std::vector<std::string> times = PrintedTexts(0, kPrintedTimes);
  ASSERT_GT(times.size(), columns.times.size());
  for (std::size_t i = 0; i < columns.times.size(); ++i) EXPECT_EQ(times[i + 1], columns.times[i]) << i;
}

POINT LabelsTest::CellPoint(const ZmanimCell& cell) {
  const ScopedWindowDc dc(table_);
  const PaneRect rect = MeasureZmanimTable(table_, dc.dc(), GetFontProperty(document_, property::kZmanimFont),
                                           GetBlockProperty(document_, property::kZmanimTimes),
                                           GetBlockProperty(document_, property::kZmanimLabels))
                            .CellRect(cell);
  return {rect.x + rect.width / 2, rect.y + rect.height / 2};
}

void LabelsTest::ClickCell(const ZmanimCell& cell) {
  const POINT point = CellPoint(cell);
  SendMessageA(table_, WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
}

void LabelsTest::PostClick(const ZmanimCell& cell) {
  const POINT point = CellPoint(cell);
  PostMessageA(table_, WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
  DispatchPendingMessages();
}
