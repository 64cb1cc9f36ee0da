// Choosing zmanim in the finished program: what a new document shows, and how an older one follows.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "tests/end_to_end/command_steps.h"
#include "tests/end_to_end/program_driver.h"
#include "tests/end_to_end/recorded_drawing.h"

namespace fs = std::filesystem;

namespace {

constexpr unsigned kZmanimSelection = 1014;
constexpr unsigned kZmanimView = 1112;
constexpr unsigned kExportText = 1005;
constexpr int kPreset = 111;
constexpr int kUsePreset = 112;
constexpr int kNineteen = 5;  // of the presets, from 0

class ZmanimSelectionTest : public testing::Test {
 protected:
  void SetUp() override {
    WriteFileText(settings_.path() / "stamp.ini", "[Times]\r\nForm=24\r\n");
    MakeRecordingProgram(program_.path());
  }

  // What a document's zmanim view draws, scrolled to either end.
  std::vector<RecordedDraw> ViewOf(const ProgramRun& program, HWND document, int request = SB_LEFT) const {
    const HWND frame = program.WaitForTopLevel("ShabbatMain");
    SendMessageA(GetParent(document), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(document), 0);
    SendMessageA(GetParent(document), WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(document), 0);
    SendMessageA(frame, WM_COMMAND, kZmanimView, 0);
    const HWND table = GetDlgItem(GetDlgItem(document, 4), 2);
    SendMessageA(table, WM_HSCROLL, MAKEWPARAM(request, 0), 0);
    const size_t before = ReadDraws(settings_.path()).size();
    RedrawWindow(document, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    // The program paints before it becomes idle.
    const HWND panes[] = {GetDlgItem(GetDlgItem(document, 4), 1), table, GetDlgItem(GetDlgItem(document, 4), 3)};
    std::vector<RecordedDraw> drawn;
    EXPECT_TRUE(program.Eventually([&] {
      for (const HWND pane : panes) {
        if (GetUpdateRect(pane, nullptr, FALSE)) return false;
      }
      SendMessageA(frame, WM_NULL, 0, 0);
      drawn = ReadDraws(settings_.path());
      return drawn.size() > before;
    }));
    drawn.erase(drawn.begin(), drawn.begin() + static_cast<std::ptrdiff_t>(std::min(before, drawn.size())));
    return drawn;
  }

  // The second document, which shows up before it comes to the top.
  static HWND WaitForNewer(const ProgramRun& program, HWND older) {
    const std::vector<HWND> documents = program.WaitForDocuments(2);
    if (documents.size() != 2) return nullptr;
    return documents[0] == older ? documents[1] : documents[0];
  }

  // The number above the last column.
  int ColumnsOf(const ProgramRun& program, HWND document) const {
    int columns = 0;
    for (const RecordedDraw& draw : ViewOf(program, document, SB_RIGHT)) {
      if (draw.text.size() <= 2) columns = std::max(columns, std::atoi(draw.text.c_str()));
    }
    return columns;
  }

  // The times of the first day, as far as they are in sight, from the left.
  static std::vector<std::string> FirstRow(std::vector<RecordedDraw> drawn) {
    const auto isTime = [](const std::string& text) { return text == "----" || (text.size() == 5 && text[2] == ':'); };
    std::erase_if(drawn, [&](const RecordedDraw& draw) { return !isTime(draw.text); });
    if (drawn.empty()) return {};
    const int top = std::ranges::min_element(drawn, {}, &RecordedDraw::y)->y;
    std::erase_if(drawn, [top](const RecordedDraw& draw) { return draw.y != top; });
    std::ranges::sort(drawn, {}, &RecordedDraw::x);
    const auto same = std::ranges::unique(drawn, {}, &RecordedDraw::x);
    drawn.erase(same.begin(), same.end());
    std::vector<std::string> texts;
    for (const RecordedDraw& draw : drawn) texts.push_back(draw.text);
    return texts;
  }

  TemporaryFolder settings_;
  TemporaryFolder program_;
  TemporaryFolder exports_;
};

}  // namespace

TEST_F(ZmanimSelectionTest, PresetCountsForNewDocumentsAndAfterARestart) {
  std::vector<std::string> newRow;
  {
    ProgramRun program(program_.path(), settings_.path());
    const HWND older = program.WaitForDocuments(1).at(0);
    const std::vector<RecordedDraw> olderBefore = ViewOf(program, older);
    EXPECT_EQ(ColumnsOf(program, older), 25);
    ASSERT_GE(FirstRow(olderBefore).size(), 3u);

    program.PostCommand(kZmanimSelection);
    const HWND dialog = program.WaitForDialog("Zmanim Selection");
    SendDlgItemMessageA(dialog, kPreset, CB_SETCURSEL, kNineteen, 0);
    SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(kPreset, CBN_SELCHANGE), 0);
    SendMessageA(dialog, WM_COMMAND, kUsePreset, 0);
    Click(dialog, IDOK);
    const HWND newer = WaitForNewer(program, older);
    ASSERT_NE(newer, nullptr);

    const std::vector<RecordedDraw> drawn = ViewOf(program, newer);
    EXPECT_EQ(ColumnsOf(program, newer), 19);
    newRow = FirstRow(drawn);
    std::vector<std::string> olderRow = FirstRow(olderBefore);
    // The nineteen begin with 72 minutes before sunrise, the usual zmanim with 16.1 degrees and then that.
    EXPECT_EQ(newRow.at(0), olderRow.at(1));
    EXPECT_NE(newRow.at(0), olderRow.at(0));
    // The older document follows as soon as it is seen, with its times under their own numbers.
    EXPECT_EQ(FirstRow(ViewOf(program, older)), newRow);
    EXPECT_EQ(ColumnsOf(program, older), 19);
    PostMessageA(program.WaitForTopLevel("ShabbatMain"), WM_CLOSE, 0, 0);
    EXPECT_EQ(program.WaitForExit(), 0u);
  }
  ProgramRun program(program_.path(), settings_.path());
  const HWND document = program.WaitForDocuments(1).at(0);
  const std::vector<RecordedDraw> drawn = ViewOf(program, document);
  EXPECT_EQ(FirstRow(drawn), newRow);
  EXPECT_EQ(ColumnsOf(program, document), 19);
}

// As a second running copy does.
TEST_F(ZmanimSelectionTest, SelectionChangedFromOutsideIsShownWithItsOwnTimes) {
  ProgramRun program(program_.path(), settings_.path());
  const HWND document = program.WaitForDocuments(1).at(0);
  const std::vector<std::string> before = FirstRow(ViewOf(program, document));
  ASSERT_GE(before.size(), 3u);
  // The usual zmanim begin with dawn by 16.1 degrees and dawn 72 minutes before sunrise.
  WriteFileText(settings_.path() / "hours.txt", "zman dawn-72-min\r\nzman dawn-16.1\r\n");
  EXPECT_TRUE(program.Eventually([&] {
    return FirstRow(ViewOf(program, document)) == std::vector<std::string>{before[1], before[0]};
  }));
  EXPECT_EQ(ColumnsOf(program, document), 2);

  // Changed again and exported before anything is painted.
  WriteFileText(settings_.path() / "hours.txt", "zman dawn-16.1\r\nzman dawn-72-min\r\n");
  const fs::path file = exports_.path() / "zmanim.txt";
  program.PostCommand(kExportText);
  SaveAs(program, file);
  EXPECT_TRUE(program.Eventually([&] { return ReadFileText(file).ends_with("\r\n\r\n"); }));
  EXPECT_THAT(ReadFileText(file), testing::HasSubstr(" " + before[0] + " " + before[1] + "\r\n"));
}

TEST_F(ZmanimSelectionTest, CancelledSelectionOpensADocumentOfTheSameZmanim) {
  ProgramRun program(program_.path(), settings_.path());
  const HWND older = program.WaitForDocuments(1).at(0);
  program.PostCommand(kZmanimSelection);
  PostMessageA(program.WaitForDialog("Zmanim Selection"), WM_COMMAND, IDCANCEL, 0);
  const HWND newer = WaitForNewer(program, older);
  ASSERT_NE(newer, nullptr);
  EXPECT_EQ(ColumnsOf(program, newer), 25);
  EXPECT_FALSE(fs::exists(settings_.path() / "hours.txt"));
}
