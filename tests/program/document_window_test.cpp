#include "document/document_window.h"

#include <filesystem>
#include <fstream>

#include "app/active_document.h"
#include "app/open_document.h"
#include "app/program.h"
#include "document/document_fonts.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/program/program_fixture.h"
#include "win/text_metrics.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class DocumentWindowTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    OpenFrame();
    document_ = ActiveDocument();
    ASSERT_NE(document_, nullptr);
    CallLog().clear();
  }

  HWND Pane(int id) { return GetDlgItem(document_, id); }
  // Where the focus of a pane ends up: the zmanim view hands it on to its table.
  HWND FocusOfPane(int id) {
    if (id == IDC_ZMANIM_PANE) return GetDlgItem(Pane(id), IDC_ZMANIM_TABLE);
    return id == IDC_READINGS_PANE ? GetDlgItem(Pane(id), IDC_READINGS_LIST_PANE) : Pane(id);
  }
  void Command(unsigned id) { SendMessageA(document_, WM_COMMAND, MAKEWPARAM(id, 0), 0); }

  HWND document_ = nullptr;
};

RECT RectInParent(HWND window) {
  RECT rect;
  GetWindowRect(window, &rect);
  MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

LOGFONTA FontOf(HWND window, const char* property) {
  LOGFONTA font{};
  EXPECT_NE(GetObjectA(GetFontProperty(window, property), sizeof font, &font), 0) << property;
  return font;
}

// Device units of points at the display's resolution.
LONG HeightOf(int points) {
  const HDC display = GetDC(nullptr);
  const int perInch = GetDeviceCaps(display, LOGPIXELSY);
  ReleaseDC(nullptr, display);
  return -(points * perInch / 72);
}

}  // namespace

TEST_F(DocumentWindowTest, HasItsFiveChildren) {
  const struct {
    int id;
    const char* className;
    bool visible;
  } expected[] = {{1, "ShabbatChildTwo", true},
                  {2, "ShabbatChildOne", true},
                  {3, "ShabbatToolbar", true},
                  {4, "ShabbatZmanim", false},
                  {5, "ShabbatParasha", false}};
  for (const auto& row : expected) {
    EXPECT_EQ(ClassOf(Pane(row.id)), row.className);
    EXPECT_EQ(IsWindowVisible(Pane(row.id)) != FALSE, row.visible) << row.id;
  }
}

TEST_F(DocumentWindowTest, HasItsSixFonts) {
  const struct {
    const char* property;
    const char* face;
    int points;
    LONG weight;
  } expected[] = {{"Font", "Courier New", 12, 0},           {"BoldFont", "Courier New", 12, 700},
                  {"ZmanimFont", "Times New Roman", 10, 0}, {"BoldZmanimFont", "Times New Roman", 10, 700},
                  {"ParashaFont", "Times New Roman", 8, 0}, {"BoldParashaFont", "Times New Roman", 12, 700}};
  for (const auto& row : expected) {
    const LOGFONTA font = FontOf(document_, row.property);
    EXPECT_STREQ(font.lfFaceName, row.face);
    EXPECT_EQ(font.lfHeight, HeightOf(row.points)) << row.property;
    EXPECT_EQ(font.lfWeight, row.weight) << row.property;
    EXPECT_EQ(font.lfCharSet, 0) << row.property;
  }
}

TEST_F(DocumentWindowTest, MakingFontsAgainDeletesTheOldOnes) {
  EXPECT_THAT(System().fonts, SizeIs(6));
  MakeDocumentFonts(document_);
  EXPECT_THAT(System().fonts, SizeIs(6));
}

TEST_F(DocumentWindowTest, LaysOutItsChildrenByFontAndMetrics) {
  MoveWindow(document_, 0, 0, 800, 500, TRUE);
  RECT client;
  GetClientRect(document_, &client);
  TEXTMETRICA metrics{};
  const HDC display = GetDC(nullptr);
  const HGDIOBJ old = SelectObject(display, GetFontProperty(document_, "Font"));
  GetTextMetricsA(display, &metrics);
  SelectObject(display, old);
  ReleaseDC(nullptr, display);

  const LONG toolbar = GetSystemMetrics(SM_CYICON) + 3 + 2 * GetSystemMetrics(SM_CYSIZEFRAME) + 4;
  const LONG lines = 2 * metrics.tmHeight;
  const struct {
    int id;
    RECT rect;
  } expected[] = {{3, {0, 0, client.right, toolbar}},
                  {2, {0, toolbar, client.right, toolbar + lines}},
                  {1, {metrics.tmAveCharWidth, toolbar + lines, client.right, client.bottom}},
                  {4, {0, toolbar, client.right, client.bottom}},
                  {5, {0, toolbar, client.right, client.bottom}}};
  for (const auto& row : expected) {
    const RECT rect = RectInParent(Pane(row.id));
    EXPECT_TRUE(EqualRect(&rect, &row.rect))
        << "child " << row.id << ": " << rect.left << "," << rect.top << "," << rect.right << "," << rect.bottom;
  }
}

TEST_F(DocumentWindowTest, GivesTheFocusToTheVisiblePane) {
  const auto focusOfDocument = [this] {
    SetFocus(document_);
    return GetFocus();
  };
  EXPECT_EQ(focusOfDocument(), Pane(1));
  ShowWindow(Pane(1), SW_HIDE);
  ShowWindow(Pane(4), SW_SHOW);
  EXPECT_EQ(focusOfDocument(), FocusOfPane(4));
  ShowWindow(Pane(4), SW_HIDE);
  ShowWindow(Pane(5), SW_SHOW);
  EXPECT_EQ(focusOfDocument(), FocusOfPane(5));
}

TEST_F(DocumentWindowTest, ShabbatTimesCommandBringsItsPanesBack) {
  for (const int pane : {1, 2}) ShowWindow(Pane(pane), SW_HIDE);
  for (const int pane : {4, 5}) ShowWindow(Pane(pane), SW_SHOW);
  Command(1);
  for (const int pane : {1, 2}) EXPECT_TRUE(IsWindowVisible(Pane(pane)));
  for (const int pane : {4, 5}) EXPECT_FALSE(IsWindowVisible(Pane(pane)));
  EXPECT_EQ(GetFocus(), Pane(1));
}

TEST_F(DocumentWindowTest, EachViewShowsItsPanesAndPrintStandsInTheZmanimViewOnly) {
  const struct {
    unsigned button;
    unsigned menuCommand;
    std::vector<int> visible;
    bool print;
  } views[] = {{2, 1112, {4}, true}, {1, 1111, {1, 2}, false}, {3, 1113, {5}, false}, {2, 1112, {4}, true}};
  for (const auto& view : views) {
    for (const bool fromMenu : {false, true}) {
      Command(view.button == 1 ? 3 : 1);  // from another view
      if (fromMenu) {
        SendMessageA(frame_, WM_COMMAND, view.menuCommand, 0);
      } else {
        Command(view.button);
      }
      for (const int pane : {1, 2, 4, 5}) {
        EXPECT_EQ(IsWindowVisible(Pane(pane)) != FALSE, testing::Value(view.visible, testing::Contains(pane)))
            << "view " << view.button << ", pane " << pane;
      }
      EXPECT_EQ(GetFocus(), FocusOfPane(view.visible.front()));
      EXPECT_EQ(IsWindowVisible(GetDlgItem(Pane(3), 9)) != FALSE, view.print) << "view " << view.button;
    }
  }
}

TEST_F(DocumentWindowTest, VerticalScrollOfTheDocumentItselfIsIgnored) {
  EXPECT_EQ(SendMessageA(document_, WM_VSCROLL, SB_LINEDOWN, 0), 0);
  EXPECT_EQ(GetScrollPos(Pane(1), SB_VERT), 0);
}

TEST_F(DocumentWindowTest, DrawsNothingItself) {
  Libraries().draws.clear();
  RedrawWindow(document_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_NOCHILDREN);
  EXPECT_THAT(Libraries().draws, IsEmpty());
}

TEST_F(DocumentWindowTest, AlmanacThatRunsIsBroughtToTheForeground) {
  System().foundWindow = frame_;
  Command(4);
  EXPECT_EQ(System().foregroundWindow, frame_);
  EXPECT_THAT(CallLog(), ElementsAre("find window 'AlmanacApp' 'any'"));
}

std::filesystem::path OwnFolder() {
  char path[MAX_PATH];
  GetModuleFileNameA(nullptr, path, sizeof path);
  return std::filesystem::path(path).parent_path();
}

// A file of the Almanac's name beside the tests' executable, while it lives.
class AlmanacFile {
 public:
  AlmanacFile() { std::ofstream(path_) << "no program"; }
  ~AlmanacFile() { std::filesystem::remove(path_); }
  AlmanacFile(const AlmanacFile&) = delete;
  AlmanacFile& operator=(const AlmanacFile&) = delete;

 private:
  const std::filesystem::path path_ = OwnFolder() / "ALMANAC.EXE";
};

constexpr char kNoAlmanacBox[] =
    "message box 'Could not launch ALMANAC.EXE' caption 'Times / Readings' type 0x10 owner yes";

TEST_F(DocumentWindowTest, AlmanacThatDoesNotRunIsStarted) {
  const AlmanacFile file;
  Command(4);
  EXPECT_THAT(CallLog(), ElementsAre("find window 'AlmanacApp' 'any'", "start 'ALMANAC.EXE' show 1",
                                     "find window 'AlmanacApp' 'any'"));
  EXPECT_EQ(System().foregroundWindow, nullptr);
}

TEST_F(DocumentWindowTest, WithoutAlmanacAndItsProgramTheMessageIsShownAndNothingElseChanges) {
  const AlmanacFile file;
  System().winExecAnswer = 32;
  Command(4);
  EXPECT_THAT(CallLog(), ElementsAre("find window 'AlmanacApp' 'any'", "start 'ALMANAC.EXE' show 1", kNoAlmanacBox));
  EXPECT_TRUE(IsWindowVisible(Pane(1)));
}

TEST_F(DocumentWindowTest, NothingIsStartedWhenTheAlmanacIsNotInTheProgramsFolder) {
  Command(4);
  EXPECT_THAT(CallLog(), ElementsAre("find window 'AlmanacApp' 'any'", kNoAlmanacBox));
  std::filesystem::create_directory(OwnFolder() / "ALMANAC.EXE");
  Command(4);
  std::filesystem::remove(OwnFolder() / "ALMANAC.EXE");
  EXPECT_THAT(CallLog(), ElementsAre("find window 'AlmanacApp' 'any'", kNoAlmanacBox, "find window 'AlmanacApp' 'any'",
                                     kNoAlmanacBox));
}

TEST_F(DocumentWindowTest, ExitButtonReachesTheFrame) {
  DispatchPendingMessages();
  MSG message;
  Command(10);
  ASSERT_TRUE(PeekMessageA(&message, frame_, WM_SYSCOMMAND, WM_SYSCOMMAND, PM_REMOVE));
  EXPECT_EQ(message.wParam, WPARAM{SC_CLOSE});
}

TEST_F(DocumentWindowTest, CommandsWithoutActionAreIgnored) {
  for (const unsigned id : {8u, 99u}) Command(id);
  EXPECT_THAT(CallLog(), IsEmpty());
  EXPECT_TRUE(IsWindowVisible(Pane(1)));
  EXPECT_FALSE(IsWindowVisible(Pane(4)));
}

TEST_F(DocumentWindowTest, AFrameCommandWithoutAFrameBeeps) {
  const HWND lonely = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
  SendFrameCommand(lonely, IDM_EXIT);
  EXPECT_EQ(System().beeps, 1);
  SendFrameCommand(Pane(1), 1);
  EXPECT_EQ(System().beeps, 1);
  DestroyWindow(lonely);
}

TEST_F(DocumentWindowTest, DestructionFreesBlocksAndFontsAndRemovesEveryProperty) {
  EXPECT_THAT(System().blocks, SizeIs(4 + 13));  // place, zmanim, their labels, times, and the buttons' descriptions
  DestroyWindow(document_);
  EXPECT_THAT(System().blocks, IsEmpty());
  EXPECT_THAT(System().fonts, IsEmpty());
  EXPECT_THAT(System().properties, IsEmpty());
  EXPECT_THAT(CallsWith("freed"), IsEmpty());
}

// As when it was closed in a box that its calculation showed.
TEST_F(DocumentWindowTest, AResultForADocumentThatHasGoneIsFreed) {
  DestroyWindow(document_);
  ReplaceBlockProperty(document_, property::kZmanimTimes, GlobalAlloc(GMEM_MOVEABLE, 4));
  EXPECT_THAT(System().blocks, IsEmpty());
  EXPECT_THAT(System().properties, IsEmpty());
}

TEST_F(DocumentWindowTest, DestroyedBeforeAnyCalculationItFreesNothingAndRemovesAllProperties) {
  const std::size_t blocks = System().blocks.size();
  const HWND second = OpenDocument(frame_);
  EXPECT_EQ(System().blocks.size(), blocks + 13);  // the buttons' descriptions
  CallLog().clear();
  DestroyWindow(second);
  EXPECT_EQ(System().blocks.size(), blocks);
  EXPECT_THAT(CallsWith("freed"), IsEmpty());
  DestroyWindow(document_);
  EXPECT_THAT(System().properties, IsEmpty());
}

TEST_F(DocumentWindowTest, AMinimisedDocumentIsFoundAmongOthers) {
  const HWND second = OpenDocument(frame_);
  EXPECT_FALSE(HasMinimisedDocument(Program.mdiClient));
  ShowWindow(second, SW_MINIMIZE);
  EXPECT_TRUE(HasMinimisedDocument(Program.mdiClient));
  ShowWindow(second, SW_RESTORE);
  EXPECT_FALSE(HasMinimisedDocument(Program.mdiClient));
}

TEST_F(DocumentWindowTest, CreationThatStopsHalfWayLeavesNothing) {
  SendMessageA(Program.mdiClient, WM_MDIDESTROY, reinterpret_cast<WPARAM>(document_), 0);
  WNDCLASSA lastChild{};
  ASSERT_TRUE(GetClassInfoA(Program.instance, "ShabbatParasha", &lastChild));
  ASSERT_TRUE(UnregisterClassA("ShabbatParasha", Program.instance));
  EXPECT_EQ(OpenDocument(frame_), nullptr);
  EXPECT_EQ(ActiveDocument(), nullptr);
  EXPECT_THAT(System().properties, IsEmpty());
  EXPECT_THAT(System().fonts, IsEmpty());
  lastChild.lpszClassName = "ShabbatParasha";
  EXPECT_NE(RegisterClassA(&lastChild), 0);
}

TEST_F(DocumentWindowTest, OpeningAndClosingManyDocumentsLeaksNothing) {
  const SystemScript before = System();
  for (int i = 0; i < 500; ++i) {
    OpenAndCompute(frame_);
    const HWND document = ActiveDocument();
    RedrawWindow(document, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    SendMessageA(Program.mdiClient, WM_MDIDESTROY, reinterpret_cast<WPARAM>(document), 0);
  }
  EXPECT_EQ(System().blocks.size(), before.blocks.size());
  EXPECT_EQ(System().properties.size(), before.properties.size());
  EXPECT_EQ(System().fonts.size(), before.fonts.size());
  EXPECT_EQ(System().pensAndBrushes.size(), before.pensAndBrushes.size());
  EXPECT_EQ(System().deviceContexts, before.deviceContexts);
  EXPECT_EQ(System().locks, before.locks);
}

TEST_F(DocumentWindowTest, ANewDocumentIsLaidOutByItsOwnFont) {
  const FontMeasure font = MeasureFontOnDisplay(GetFontProperty(document_, property::kFont));
  const RECT header = RectInParent(Pane(2));
  EXPECT_EQ(header.bottom - header.top, 2 * font.lineHeight);
  EXPECT_EQ(RectInParent(Pane(1)).left, font.averageCharacterWidth);
}
