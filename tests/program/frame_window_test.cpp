#include "app/frame_window.h"

#include "app/active_document.h"
#include "app/open_document.h"
#include "app/program.h"
#include "document/tooltip.h"
#include "engine/current.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/program/program_fixture.h"

using testing::SizeIs;

namespace {

using FrameWindowTest = ProgramTest;

void ListNoUserPlace(const std::string& name) {
  Libraries().settings["shabbat2.ini|Locations|" + name] = "";
}

void Command(HWND frame, unsigned id) {
  SendMessageA(frame, WM_COMMAND, MAKEWPARAM(id, 0), 0);
}

}  // namespace

TEST_F(FrameWindowTest, StandsOverTheScreenWithTheTitle) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  EXPECT_EQ(TextOf(frame), "Times / Readings");
  EXPECT_EQ(ClassOf(frame), "ShabbatMain");
  RECT rect;
  GetWindowRect(frame, &rect);
  EXPECT_EQ(rect.right - rect.left, GetSystemMetrics(SM_CXSCREEN));
  EXPECT_EQ(rect.bottom - rect.top,
            GetSystemMetrics(SM_CYSCREEN) - GetSystemMetrics(SM_CYCAPTION) - 2 * GetSystemMetrics(SM_CYSIZEFRAME));
  const LONG style = GetWindowLongA(frame, GWL_STYLE);
  EXPECT_EQ(style & (WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN), LONG{WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN});
}

TEST_F(FrameWindowTest, ANewDocumentHasItsYearsUnderTheNamesOfTheDaysUntilItIsComputed) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  CurrentRange = {{1, 3, 2007}, {2, 4, 2008}};
  CurrentLocation = {"Jerusalem", 3147, 3513, 2, 0};
  const HWND document = OpenDocument(frame);
  EXPECT_EQ(TextOf(document), "Jerusalem (1.3.2007 - 2.4.2008)");
  EXPECT_EQ(GetIntegerProperty(document, "StartDay"), 2007);
  EXPECT_EQ(GetIntegerProperty(document, "StartMonth"), 3);
  EXPECT_EQ(GetIntegerProperty(document, "StartYear"), 0);
  EXPECT_EQ(GetIntegerProperty(document, "EndDay"), 2008);
  EXPECT_EQ(GetIntegerProperty(document, "EndMonth"), 4);
  EXPECT_EQ(GetIntegerProperty(document, "EndYear"), 0);
}

TEST_F(FrameWindowTest, ADocumentIsAsLargeAsTheFramesClientArea) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  SetWindowPos(frame, nullptr, 0, 0, 700, 500, SWP_NOZORDER);
  RECT client;
  GetClientRect(frame, &client);
  const HWND document = OpenDocument(frame);
  RECT rect;
  GetWindowRect(document, &rect);
  EXPECT_EQ(rect.right - rect.left, client.right);
  EXPECT_EQ(rect.bottom - rect.top, client.bottom);
}

TEST_F(FrameWindowTest, TheMdiClientFillsTheClientAreaAfterAChangeOfSize) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  for (const int width : {640, 900}) {
    SetWindowPos(frame, nullptr, 0, 0, width, 500, SWP_NOZORDER);
    RECT client;
    GetClientRect(frame, &client);
    RECT mdi;
    GetWindowRect(Program.mdiClient, &mdi);
    EXPECT_EQ(mdi.right - mdi.left, client.right);
    EXPECT_EQ(mdi.bottom - mdi.top, client.bottom);
  }
}

TEST_F(FrameWindowTest, DestroyingItEndsTheMessageLoopWithCodeZero) {
  ListNoUserPlace("Aachen");
  DestroyWindow(OpenFrame());
  frame_ = nullptr;
  MSG message;
  ASSERT_TRUE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 0u);
  EXPECT_EQ(System().blocks.size(), 0u);
}

TEST_F(FrameWindowTest, ExitPostsTheSystemsCloseCommand) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  DispatchPendingMessages();
  MSG message;
  Command(frame, IDM_EXIT);
  ASSERT_TRUE(PeekMessageA(&message, frame, WM_SYSCOMMAND, WM_SYSCOMMAND, PM_REMOVE));
  EXPECT_EQ(message.wParam, WPARAM{SC_CLOSE});
}

TEST_F(FrameWindowTest, DeactivationTakesTheTooltipAway) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  const HWND tooltip =
      CreateWindowExA(0, "ShabbatComment", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, Program.instance, nullptr);
  ASSERT_NE(tooltip, nullptr);
  Tooltip.window = tooltip;
  SendMessageA(frame, WM_ACTIVATEAPP, FALSE, 0);
  EXPECT_FALSE(IsWindow(tooltip));
  EXPECT_EQ(Tooltip.window, nullptr);
  EXPECT_FALSE(Tooltip.enabled);
  SendMessageA(frame, WM_ACTIVATEAPP, TRUE, 0);
  EXPECT_TRUE(Tooltip.enabled);
}

TEST_F(FrameWindowTest, CloseAllDestroysEveryDocument) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  for (int i = 0; i < 4; ++i) OpenAndCompute(frame);
  EXPECT_EQ(CountDocuments(), 5);
  Command(frame, IDM_WINDOW_CLOSE_ALL);
  EXPECT_EQ(CountDocuments(), 0);
  EXPECT_THAT(System().blocks, SizeIs(0));
  EXPECT_THAT(System().properties, SizeIs(0));
  EXPECT_THAT(System().fonts, SizeIs(0));
}

TEST_F(FrameWindowTest, CascadeAndTileMoveTheDocuments) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  OpenAndCompute(frame);
  const auto widthOf = [](HWND window) {
    RECT rect;
    GetWindowRect(window, &rect);
    return rect.right - rect.left;
  };
  const auto heightOf = [](HWND window) {
    RECT rect;
    GetWindowRect(window, &rect);
    return rect.bottom - rect.top;
  };
  Command(frame, IDM_WINDOW_TILE_VERTICALLY);
  EXPECT_LT(widthOf(ActiveDocument()), widthOf(Program.mdiClient) * 2 / 3);
  Command(frame, IDM_WINDOW_TILE);
  EXPECT_GT(widthOf(ActiveDocument()), widthOf(Program.mdiClient) * 2 / 3);
  EXPECT_LT(heightOf(ActiveDocument()), heightOf(Program.mdiClient) * 2 / 3);
  Command(frame, IDM_WINDOW_CASCADE);
  EXPECT_GT(heightOf(ActiveDocument()), heightOf(Program.mdiClient) / 2);
}
