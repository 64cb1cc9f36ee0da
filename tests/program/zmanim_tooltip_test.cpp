// The tooltips over the zmanim view, asked as the system asks when one is about to show.
#include <windows.h>

#include <commctrl.h>

#include <optional>

#include "engine/optional_entries.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/program/labels_fixture.h"
#include "win/scoped.h"
#include "zmanim/calculate_zmanim.h"
#include "zmanim/core/zmanim_block.h"
#include "zmanim/zmanim_measures.h"

using testing::IsEmpty;

namespace {

int definitionQuestions = 0;

// "What <name> is"; longer than the record of a tooltip has room for.
uint32_t Definition(uint32_t index, WCHAR* text, uint32_t size) {
  ++definitionQuestions;
  const std::string name = Libraries().zmanNames[index];
  const std::wstring whole = L"What " + std::wstring(name.begin(), name.end()) + L" is" + std::wstring(100, L'.');
  if (text) lstrcpynW(text, whole.c_str(), static_cast<int>(size));
  return static_cast<uint32_t>(whole.size()) + 1;
}

std::wstring Defined(const std::wstring& name) {
  return name + L"\r\nWhat " + name + L" is" + std::wstring(100, L'.');
}

class ZmanimTooltipTest : public LabelsTest {
 protected:
  void SetUp() override {
    const INITCOMMONCONTROLSEX tooltips{sizeof tooltips, ICC_TAB_CLASSES};
    InitCommonControlsEx(&tooltips);
    LabelsTest::SetUp();
    ComputeDays(40);
    OptionalEntries.HoursGetDefinition = Definition;
    definitionQuestions = 0;
  }

  HWND Tooltip() { return static_cast<HWND>(GetPropA(container_, property::kZmanimTooltip)); }

  static void MoveMouseTo(HWND pane, POINT point) { SendMessageA(pane, WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y)); }

  // The one tool of the tooltip; nothing when it has none.
  std::optional<TTTOOLINFOW> Tool() {
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    if (!Tooltip() || !SendMessageW(Tooltip(), TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool))) return std::nullopt;
    EXPECT_EQ(SendMessageW(Tooltip(), TTM_GETTOOLCOUNT, 0, 0), 1);
    return tool;
  }

  // What the tooltip would show with the mouse there; nothing when there is none.
  std::optional<std::wstring> TipAt(HWND pane, POINT point) {
    MoveMouseTo(pane, point);
    return Tip();
  }
  std::optional<std::wstring> Tip() {
    const std::optional<TTTOOLINFOW> tool = Tool();
    if (!tool) return std::nullopt;
    NMTTDISPINFOW question{};
    question.hdr = {Tooltip(), tool->uId, static_cast<UINT>(TTN_GETDISPINFOW)};
    question.lpszText = question.szText;
    SendMessageW(tool->hwnd, WM_NOTIFY, tool->uId, reinterpret_cast<LPARAM>(&question));
    return question.lpszText;
  }

  // The mouse stays where it is, which a test cannot choose; the frame moves.
  void PutUnderTheMouse(POINT point) {
    POINT mouse;
    RECT frame;
    GetCursorPos(&mouse);
    GetWindowRect(frame_, &frame);
    ClientToScreen(table_, &point);
    SetWindowPos(frame_, HWND_TOPMOST, frame.left + mouse.x - point.x, frame.top + mouse.y - point.y, 0, 0,
                 SWP_NOSIZE | SWP_NOACTIVATE);
  }

  // The middle of a number of the heading.
  POINT NumberPoint(uint32_t zman) {
    const ScopedWindowDc dc(heading_);
    const ZmanimGeometry geometry =
        MeasureZmanimTable(table_, dc.dc(), GetFontProperty(document_, property::kBoldZmanimFont), nullptr,
                           GetBlockProperty(document_, property::kZmanimLabels));
    return {geometry.ColumnX(zman) + geometry.ColumnWidth() / 2, geometry.rowHeight / 2};
  }
};

}  // namespace

TEST_F(ZmanimTooltipTest, NameAndDefinitionOverATimeAndOverItsNumber) {
  EXPECT_EQ(TipAt(table_, CellPoint({0, 1})), Defined(L"Beta"));
  EXPECT_EQ(TipAt(table_, CellPoint({3, 0})), Defined(L"Alpha"));
  EXPECT_EQ(TipAt(heading_, NumberPoint(2)), Defined(L"Gamma"));
}

// The name's bytes are windows-1252.
TEST_F(ZmanimTooltipTest, ALibraryWithoutDefinitionsGivesTheNameAlone) {
  OptionalEntries.HoursGetDefinition = nullptr;
  Select({"Alot (16.1\xB0)"});
  ComputeDays(1);
  EXPECT_EQ(TipAt(table_, CellPoint({0, 0})), L"Alot (16.1\u00B0)");
}

TEST_F(ZmanimTooltipTest, NoneBesideTheZmanim) {
  const POINT date{1, CellPoint({0, 0}).y};
  RECT table;
  GetClientRect(table_, &table);
  MoveMouseTo(table_, date);
  EXPECT_EQ(Tooltip(), nullptr) << "made for nothing";
  const POINT outside[] = {date, CellPoint({0, 3}), {CellPoint({0, 0}).x, -1}, {-1, 1}, {table.right + 1, 1}};
  for (const POINT& point : outside) {
    MoveMouseTo(table_, CellPoint({0, 0}));
    ASSERT_TRUE(Tool());
    EXPECT_EQ(TipAt(table_, point), std::nullopt) << point.x << "," << point.y;
  }
  for (const POINT& point : {POINT{1, 1}, NumberPoint(3), POINT{table.right + 1, 1}}) {
    MoveMouseTo(heading_, NumberPoint(0));
    ASSERT_TRUE(Tool());
    EXPECT_EQ(TipAt(heading_, point), std::nullopt) << point.x << "," << point.y;
  }
  EXPECT_EQ(TipAt(legend_, {1, 1}), std::nullopt);
}

TEST_F(ZmanimTooltipTest, ATimeSetByHandSaysSo) {
  Libraries().ownTimes["Aachen|Beta|6.1.2007"] = {7, 7};
  ComputeDays(40);
  EXPECT_EQ(TipAt(table_, CellPoint({1, 1})), Defined(L"Beta") + L"\r\nSet by hand.");
  EXPECT_EQ(TipAt(table_, CellPoint({1, 2})), Defined(L"Gamma"));
  EXPECT_EQ(TipAt(table_, CellPoint({2, 1})), Defined(L"Beta"));
  EXPECT_EQ(TipAt(heading_, NumberPoint(1)), Defined(L"Beta"));
  EXPECT_EQ(Libraries().openOwnTimes, 0);
}

// Another program has stored a time that the document does not show.
TEST_F(ZmanimTooltipTest, AStoredTimeThatIsNotTheShownOneIsNotSetByHand) {
  Libraries().ownTimes["Aachen|Beta|6.1.2007"] = {7, 7};
  EXPECT_EQ(TipAt(table_, CellPoint({1, 1})), Defined(L"Beta"));
}

TEST_F(ZmanimTooltipTest, TheBuiltInZmanimHaveTheirRules) {
  Libraries().settings["shab30.ini|Settings|EnableZmanim"] = "0";
  ComputeDays(1);
  EXPECT_EQ(TipAt(table_, CellPoint({0, 5})),
            L"Kriat Shema (GR\"O)\r\n3 of the 12 hours from sunrise to sunset: the "
            L"latest time.");
  EXPECT_EQ(TipAt(heading_, NumberPoint(14)), L"Shkia\r\nSunset.");
  EXPECT_EQ(definitionQuestions, 0);
}

TEST_F(ZmanimTooltipTest, AnotherSelectionTakesTheTooltipAwayAndGivesItsOwn) {
  EXPECT_EQ(TipAt(table_, CellPoint({0, 1})), Defined(L"Beta"));
  Select({"Gamma", "Delta"});
  EXPECT_EQ(Tip(), L"Beta") << "what is on the screen until it is painted anew, whose definition may be another's now";
  PaintAll();
  EXPECT_EQ(Tip(), std::nullopt);
  EXPECT_EQ(TipAt(table_, CellPoint({0, 1})), Defined(L"Delta"));
  EXPECT_EQ(TipAt(table_, CellPoint({0, 0})), Defined(L"Gamma"));
}

TEST_F(ZmanimTooltipTest, TheTextIsMadeWhenItIsAskedForOnly) {
  MoveMouseTo(table_, CellPoint({0, 0}));
  MoveMouseTo(table_, CellPoint({0, 1}));
  MoveMouseTo(heading_, NumberPoint(1));
  EXPECT_EQ(definitionQuestions, 0);
  EXPECT_EQ(Tip(), Defined(L"Beta"));
  EXPECT_GT(definitionQuestions, 0);
}

// A tool that is replaced is hidden and waits anew: that would flicker.
TEST_F(ZmanimTooltipTest, WithinACellTheToolStays) {
  const POINT point = CellPoint({0, 1});
  MoveMouseTo(table_, point);
  const std::optional<TTTOOLINFOW> tool = Tool();
  ASSERT_TRUE(tool);
  EXPECT_EQ(tool->hwnd, table_);
  TTTOOLINFOW marked = *tool;
  marked.lParam = 4711;
  marked.lpszText = LPSTR_TEXTCALLBACKW;
  SendMessageW(Tooltip(), TTM_SETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&marked));
  MoveMouseTo(table_, {point.x + 1, point.y + 1});
  ASSERT_TRUE(Tool());
  EXPECT_EQ(Tool()->lParam, 4711);
  MoveMouseTo(table_, CellPoint({0, 2}));
  ASSERT_TRUE(Tool());
  EXPECT_NE(Tool()->lParam, 4711);
}

TEST_F(ZmanimTooltipTest, FollowsScrolling) {
  ShowRows(5);
  const POINT point = CellPoint({0, 1});
  PutUnderTheMouse(point);
  MoveMouseTo(table_, point);
  ASSERT_TRUE(Tool());
  const UINT_PTR first = Tool()->uId;
  SendMessageA(table_, WM_VSCROLL, SB_LINEDOWN, 0);
  ASSERT_TRUE(Tool()) << "the mouse is over the table";
  EXPECT_EQ(Tool()->uId, first + kMostZmanim);
  SendMessageA(table_, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
  ASSERT_TRUE(Tool());
  EXPECT_GT(Tool()->uId, first + kMostZmanim);
  PutUnderTheMouse({1, point.y});  // a date
  SendMessageA(table_, WM_VSCROLL, SB_LINEDOWN, 0);
  EXPECT_FALSE(Tool());
}

TEST_F(ZmanimTooltipTest, EachDocumentHasItsOwnAndTakesItAway) {
  MoveMouseTo(table_, CellPoint({0, 1}));
  const HWND tooltip = Tooltip();
  ASSERT_TRUE(IsWindow(tooltip));
  wchar_t className[32] = L"";
  GetClassNameW(tooltip, className, 32);
  EXPECT_STREQ(className, TOOLTIPS_CLASSW);
  EXPECT_TRUE(IsWindowUnicode(tooltip));
  EXPECT_GT(SendMessageW(tooltip, TTM_GETMAXTIPWIDTH, 0, 0), 0);
  SendMessageA(GetParent(document_), WM_MDIDESTROY, reinterpret_cast<WPARAM>(document_), 0);
  EXPECT_FALSE(IsWindow(tooltip));
}

TEST_F(ZmanimTooltipTest, GoesWhenAnotherViewOrDocumentComesUp) {
  SetFocus(table_);
  MoveMouseTo(table_, CellPoint({0, 1}));
  ASSERT_TRUE(Tool());
  SendMessageA(document_, WM_COMMAND, IDB_READINGS, 0);
  EXPECT_FALSE(Tool());
}

TEST_F(ZmanimTooltipTest, TheQuestionsAreUnicode) {
  for (const HWND pane : {table_, heading_}) {
    EXPECT_EQ(SendMessageW(pane, WM_NOTIFYFORMAT, 0, NF_QUERY), NFR_UNICODE);
  }
}
