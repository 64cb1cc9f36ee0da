// What the toolbar's buttons ask of the frame, observed at the frame.
#include "app/active_document.h"
#include "resources/ids.h"
#include "tests/program/program_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// The commands that reached the frame. They go no further.
std::vector<unsigned>& FrameCommands() {
  static std::vector<unsigned> commands;
  return commands;
}

WNDPROC frameProcedure = nullptr;

LRESULT CALLBACK NoteCommands(HWND frame, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_COMMAND) return CallWindowProcA(frameProcedure, frame, message, wParam, lParam);
  EXPECT_EQ(HIWORD(wParam), 0) << "as from a menu";
  EXPECT_EQ(lParam, 0) << "as from a menu";
  FrameCommands().push_back(LOWORD(wParam));
  return 0;
}

class ToolbarCommandsTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    OpenFrame();
    FrameCommands().clear();
    frameProcedure =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrA(frame_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(NoteCommands)));
  }
  void TearDown() override {
    SetWindowLongPtrA(frame_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(frameProcedure));
    ProgramTest::TearDown();
  }

  static void ClickButton(int id) {
    const HWND button = GetDlgItem(GetDlgItem(ActiveDocument(), IDC_TOOLBAR), id);
    SendMessageA(button, WM_LBUTTONDOWN, 0, MAKELPARAM(10, 10));
    SendMessageA(button, WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
  }
};

}  // namespace

TEST_F(ToolbarCommandsTest, SixButtonsForwardTheFramesOwnCommands) {
  const struct {
    int button;
    unsigned command;
  } expected[] = {{5, 1001}, {6, 1005}, {7, 1007}, {9, 1008}, {10, 1010}, {11, 3001}};
  for (const auto& row : expected) {
    FrameCommands().clear();
    ClickButton(row.button);
    EXPECT_THAT(FrameCommands(), ElementsAre(row.command)) << "button " << row.button;
  }
}

TEST_F(ToolbarCommandsTest, TheViewsAndTheAlmanacAreTheDocumentsOwn) {
  for (const int button : {1, 2, 3, 4}) ClickButton(button);
  EXPECT_THAT(FrameCommands(), IsEmpty());
}
