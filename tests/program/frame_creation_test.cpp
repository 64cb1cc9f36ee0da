// The frame that cannot be created: the program ends in order before its message loop.
#include "app/frame_window.h"
#include "app/program.h"
#include "app/start_up.h"
#include "engine/current.h"
#include "tests/program/program_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class FrameCreationTest : public ProgramTest {
 protected:
  void TearDown() override {
    if (Program.mouseHook) UnhookWindowsHookEx(Program.mouseHook);
    ProgramTest::TearDown();
  }

  // Start-up until the frame, which cannot be created, with the classes registered already.
  static int Run() {
    static char commandLine[] = "";
    return RunProgram(GetModuleHandleA(nullptr), GetModuleHandleA(nullptr), commandLine, SW_SHOWNORMAL);
  }
};

}  // namespace

TEST_F(FrameCreationTest, WithoutAnMdiClientThereIsNoFrameAndNoDocument) {
  System().refusedWindowClass = "MDICLIENT";
  EXPECT_EQ(CreateFrameWindow(SW_SHOWNORMAL), nullptr);
  EXPECT_EQ(Program.mdiClient, nullptr);
  EXPECT_EQ(FindWindowExA(nullptr, nullptr, "ShabbatMain", nullptr), nullptr);
  EXPECT_THAT(CallLog(), IsEmpty());
  EXPECT_THAT(System().blocks, IsEmpty());
  EXPECT_THAT(System().properties, IsEmpty());
  EXPECT_STREQ(CurrentLocation.name, "Haifa") << "the default location is taken";
}

TEST_F(FrameCreationTest, TheWindowClassOfTheFrameThatIsRefusedGivesNoFrame) {
  System().refusedWindowClass = "ShabbatMain";
  EXPECT_EQ(CreateFrameWindow(SW_SHOWNORMAL), nullptr);
  EXPECT_THAT(CallLog(), IsEmpty());
}

// Kinship and the libraries stay: only a run that had a message loop releases them.
TEST_F(FrameCreationTest, AProgramWithoutItsFrameSaysSoAndEndsWithCodeOneBeforeTheMessageLoop) {
  for (const char* const refused : {"MDICLIENT", "ShabbatMain"}) {
    CallLog().clear();
    System().refusedWindowClass = refused;
    PostQuitMessage(7);  // a message loop would answer it
    EXPECT_EQ(Run(), 1) << refused;
    EXPECT_THAT(CallLog(),
                ElementsAre("StampCheck  1", "KinshipInit", "load CIVILCAL.DLL", "load LUNARCAL.DLL", "load SOLAR.DLL",
                            "message box 'The program cannot start, because its main window could not be created.\n"
                            "Please close other programs or restart Windows, and start the program again.' caption "
                            "'Times / Readings' type 0x10 owner none"))
        << refused;
    UnhookWindowsHookEx(Program.mouseHook);
    Program.mouseHook = nullptr;
    DispatchPendingMessages();
  }
}
