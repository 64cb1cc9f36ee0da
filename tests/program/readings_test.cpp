// The list of readings of a document and the two panes that show it, the readings library and the calendars scripted.
#include <chrono>
#include <cstring>

#include "app/active_document.h"
#include "engine/properties.h"
#include "readings/core/readings_record.h"
#include "readings/readings_list.h"
#include "readings/readings_panes.h"
#include "resources/ids.h"
#include "tests/program/program_fixture.h"
#include "win/scoped.h"
#include "win/text_metrics.h"

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

constexpr char kFont[] = "Times New Roman 0";

class ReadingsTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    OpenFrame();
    document_ = ActiveDocument();
    ASSERT_NE(document_, nullptr);
    container_ = GetDlgItem(document_, IDC_READINGS_PANE);
    header_ = GetDlgItem(container_, IDC_READINGS_HEADER_PANE);
    list_ = GetDlgItem(container_, IDC_READINGS_LIST_PANE);
    SendMessageA(document_, WM_COMMAND, IDB_READINGS, 0);
    font_ = MeasureFontOnDisplay(GetFontProperty(document_, property::kParashaFont));
  }

  void Build(const CalendarDate& start, const CalendarDate& end) {
    BuildReadingsList(document_, start.uDay, start.uMonth, start.uYear, end.uDay, end.uMonth, end.uYear);
  }

  // Every day of January 2007 has a portion.
  void BuildJanuary() {
    for (int day = 1; day <= 31; ++day) Libraries().readings[std::to_string(day) + ".1.5767"] = {"Portion"};
    Build({1, 1, 2007}, {31, 1, 2007});
  }

  std::vector<ReadingsEntry> Entries() {
    const ScopedGlobalLock<const ReadingsList> list(GetBlockProperty(document_, property::kParashaReadings));
    if (!list) return {};
    return {list->entries, list->entries + list->count};
  }

  // Makes the list pane as high as a number of text lines of the program's font.
  void ShowLines(int lines) {
    RECT client;
    GetClientRect(container_, &client);
    MoveWindow(list_, 0, 0, client.right, lines * font_.lineHeight, TRUE);
  }

  int Position() { return GetScrollPos(list_, SB_VERT); }
  int Maximum() {
    int minimum, maximum;
    GetScrollRange(list_, SB_VERT, &minimum, &maximum);
    return maximum;
  }
  int Scroll(int code, int thumb = 0) {
    SendMessageA(list_, WM_VSCROLL, MAKEWPARAM(code, thumb), 0);
    return Position();
  }
  int Press(int key) {
    SendMessageA(list_, WM_KEYDOWN, static_cast<WPARAM>(key), 0);
    return Position();
  }
  int Wheel(int delta) {
    SendMessageA(list_, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(delta)), 0);
    return Position();
  }

  // The columns, from the doubled text library's measures: ten characters and five millimetres for the date.
  struct Columns {
    int date;
    int torah;
    int haftarah;
  };
  Columns ColumnsFor(int averageCharacterWidth) {
    const ScopedWindowDc display(nullptr);
    const int dateWidth = 10 * kDoubledCharacterWidth + 50 * GetDeviceCaps(display.dc(), LOGPIXELSX) / 254;
    RECT client;
    GetClientRect(list_, &client);
    const int torah = averageCharacterWidth + dateWidth;
    return {averageCharacterWidth, torah, torah + (client.right - torah) / 2};
  }

  HWND document_ = nullptr;
  HWND container_ = nullptr;
  HWND header_ = nullptr;
  HWND list_ = nullptr;
  FontMeasure font_{};
};

}  // namespace

TEST_F(ReadingsTest, ListHoldsTheDaysWithReadingsInOrder) {
  Libraries().readings = {{"6.1.5767", {"Vayechi", "T2", "T3", "I Kings 2:1-12", "H2", "H3", "X"}},
                          {"13.1.5767", {"Shemot", "", "", "Isaiah 27:6"}}};
  Libraries().yizkorDays = {"13.1.5767"};
  Build({1, 1, 2007}, {31, 1, 2007});
  const auto entries = Entries();
  ASSERT_THAT(entries, SizeIs(2));
  EXPECT_EQ(entries[0].date.uDay, 6u);
  EXPECT_EQ(entries[0].date.uMonth, 1u);
  EXPECT_EQ(entries[0].date.uYear, 2007u);
  EXPECT_STREQ(entries[0].torah1, "Vayechi");
  EXPECT_STREQ(entries[0].torah2, "T2");
  EXPECT_STREQ(entries[0].torah3, "T3");
  EXPECT_STREQ(entries[0].haftarah1, "I Kings 2:1-12");
  EXPECT_STREQ(entries[0].haftarah2, "H2");
  EXPECT_STREQ(entries[0].haftarah3, "H3");
  EXPECT_STREQ(entries[0].extraText, "X");
  EXPECT_EQ(entries[0].isYizkor, 0u);
  EXPECT_STREQ(entries[1].torah1, "Shemot");
  EXPECT_EQ(entries[1].isYizkor, 1u);
  EXPECT_EQ(GlobalSize(GetBlockProperty(document_, property::kParashaReadings)), 4u + 2 * 1808);
}

TEST_F(ReadingsTest, ADayWithoutAFirstTorahReadingHasNoReadings) {
  Libraries().readings = {{"6.1.5767", {"", "T2", "T3", "H1"}}, {"7.1.5767", {"T1"}}};
  Build({6, 1, 2007}, {7, 1, 2007});
  EXPECT_THAT(Entries(), SizeIs(1));
}

TEST_F(ReadingsTest, ARangeWithoutReadingsLeavesTheEarlierList) {
  Libraries().readings = {{"6.1.5767", {"Vayechi"}}};
  Build({1, 1, 2007}, {31, 1, 2007});
  const HGLOBAL block = GetBlockProperty(document_, property::kParashaReadings);
  Build({1, 2, 2007}, {28, 2, 2007});
  EXPECT_EQ(GetBlockProperty(document_, property::kParashaReadings), block);
  Build({31, 1, 2007}, {1, 1, 2007});
  EXPECT_EQ(GetBlockProperty(document_, property::kParashaReadings), block);
  EXPECT_THAT(Entries(), SizeIs(1));
}

TEST_F(ReadingsTest, ANewListReplacesTheOldOneAndFreesIt) {
  BuildJanuary();
  const std::size_t blocks = System().blocks.size();
  BuildJanuary();
  EXPECT_EQ(System().blocks.size(), blocks);
  EXPECT_EQ(System().locks, 0);
  EXPECT_THAT(Entries(), SizeIs(31));
}

TEST_F(ReadingsTest, JoinedTextsAreDividedOverTheSlots) {
  Libraries().readings = {{"6.1.5767", {"A; Morning: B", "", "", "A (Sephardi B)", "C"}}};
  Build({6, 1, 2007}, {6, 1, 2007});
  const auto entries = Entries();
  ASSERT_THAT(entries, SizeIs(1));
  EXPECT_STREQ(entries[0].torah1, "A");
  EXPECT_STREQ(entries[0].torah2, "Morning: B");
  EXPECT_STREQ(entries[0].haftarah1, "A");
  EXPECT_STREQ(entries[0].haftarah2, "(Sephardi B)");
  EXPECT_STREQ(entries[0].haftarah3, "C");
}

TEST_F(ReadingsTest, FinnishTextsAreNotDivided) {
  Libraries().readingsLanguage = 7;
  Libraries().readings = {{"6.1.5767", {"A; Morning: B"}}};
  Build({6, 1, 2007}, {6, 1, 2007});
  ASSERT_THAT(Entries(), SizeIs(1));
  EXPECT_STREQ(Entries()[0].torah1, "A; Morning: B");
}

TEST_F(ReadingsTest, AnOverlongTextIsCutToItsSlot) {
  Libraries().readings = {{"6.1.5767", {std::string(259, 'a')}}};
  Build({6, 1, 2007}, {6, 1, 2007});
  ASSERT_THAT(Entries(), SizeIs(1));
  EXPECT_EQ(std::string(Entries()[0].torah1), std::string(255, 'a'));
}

namespace {

// Every day from 1 January 1900 on has a portion.
void GiveEveryDayAPortion(int days) {
  using namespace std::chrono;
  for (int i = 0; i < days; ++i) {
    const year_month_day day(sys_days(year(1900) / 1 / 1) + std::chrono::days(i));
    const int jewishYear = int(day.year()) + static_cast<int>(kDoubledJewishEpoch);
    Libraries().readings[std::to_string(unsigned(day.day())) + "." + std::to_string(unsigned(day.month())) + "." +
                         std::to_string(jewishYear)] = {"P"};
  }
}

}  // namespace

// 1 January 1900 + 31,999 days is 12 August 1987.
TEST_F(ReadingsTest, ExactlyAsManyDaysAsAListMayHaveGiveNoMessage) {
  GiveEveryDayAPortion(32100);
  Build({1, 1, 1900}, {12, 8, 1987});
  EXPECT_EQ(Entries().size(), 32000u);
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
}

TEST_F(ReadingsTest, MoreDaysAreReportedOnceAndCutAfterTheDayThatExceeds) {
  GiveEveryDayAPortion(32100);
  Build({1, 1, 1900}, {20, 11, 1987});
  EXPECT_EQ(Entries().size(), 32001u);
  EXPECT_THAT(CallsWith("message box"),
              ElementsAre("message box 'Too many shabbat times' caption 'Times / Readings' type 0x10 owner none"));
}

TEST_F(ReadingsTest, HeaderDrawsWhiteTitlesOverTheColumnsOnABlueBand) {
  const Columns columns = ColumnsFor(font_.averageCharacterWidth);
  EXPECT_THAT(DrawsOf(header_), ElementsAre(Draw{columns.date, 0, "Date", "Times New Roman 700"},
                                            Draw{columns.torah, 0, "Parashioth", "Times New Roman 700"},
                                            Draw{columns.haftarah, 0, "Haphtaroth", "Times New Roman 700"}));
  const HDC dc = GetDC(header_);
  EXPECT_EQ(GetPixel(dc, 0, 0), static_cast<COLORREF>(RGB(0, 0, 255)));
  ReleaseDC(header_, dc);
}

TEST_F(ReadingsTest, ContainerLeavesAnEmptyBandUnderTheHeader) {
  const int bold = MeasureFontOnDisplay(GetFontProperty(document_, property::kBoldParashaFont)).lineHeight;
  RECT client, header, list;
  GetClientRect(container_, &client);
  GetWindowRect(header_, &header);
  GetWindowRect(list_, &list);
  EXPECT_EQ(header.bottom - header.top, bold);
  EXPECT_EQ(header.right - header.left, client.right);
  EXPECT_EQ(list.top - header.top, 2 * bold);
  EXPECT_EQ(list.bottom - list.top, client.bottom - 2 * bold);
}

TEST_F(ReadingsTest, FocusGoesToTheList) {
  EXPECT_EQ(GetFocus(), list_);
}

TEST_F(ReadingsTest, ListDrawsDateYizkorAndReadingsOnTheirLines) {
  Libraries().readings = {{"6.1.5767", {"T1", "T2", "", "H1", "H2", "H3", "Extra"}}, {"7.1.5767", {"P"}}};
  Libraries().yizkorDays = {"6.1.5767"};
  Libraries().yizkorText = "Memorial";
  Build({6, 1, 2007}, {7, 1, 2007});
  const Columns c = ColumnsFor(font_.averageCharacterWidth);
  const int h = font_.lineHeight;
  EXPECT_THAT(DrawsOf(list_), ElementsAreArray(std::vector<Draw>{{c.date, 0, "06.01.2007", kFont},
                                                                 {c.date, h, "Memorial", kFont},
                                                                 {c.torah, 0, "T1", kFont},
                                                                 {c.haftarah, 0, "H1", kFont},
                                                                 {c.torah, h, "T2", kFont},
                                                                 {c.haftarah, h, "H2", kFont},
                                                                 {c.torah, 2 * h, "Extra", kFont},
                                                                 {c.haftarah, 2 * h, "H3", kFont},
                                                                 {c.date, 5 * h, "07.01.2007", kFont},
                                                                 {c.torah, 5 * h, "P", kFont}}));
}

TEST_F(ReadingsTest, ExtraTextStandsOnTheFourthLineWhenAllTorahTextsAreSet) {
  Libraries().readings = {{"6.1.5767", {"T1", "T2", "T3", "", "", "", "Extra"}}};
  Build({6, 1, 2007}, {6, 1, 2007});
  const Columns c = ColumnsFor(font_.averageCharacterWidth);
  EXPECT_EQ(DrawsOf(list_).back(), (Draw{c.torah, 3 * font_.lineHeight, "Extra", kFont}));
}

TEST_F(ReadingsTest, TextsOfALanguageAreDrawnInTheLibrarysFontAndTheRestInTheProgramsOwn) {
  Libraries().readingsFont = {"Courier New", 20, 0};
  Libraries().readings = {{"6.1.5767", {"T1", "", "", "H1", "", "", "Extra"}}};
  Libraries().yizkorDays = {"6.1.5767"};
  Build({6, 1, 2007}, {6, 1, 2007});
  const ScopedWindowDc display(nullptr);
  LOGFONTA record{};
  record.lfHeight = -MulDiv(20, GetDeviceCaps(display.dc(), LOGPIXELSY), 72);
  std::strcpy(record.lfFaceName, "Courier New");
  const ScopedGdiObject<HFONT> expected(CreateFontIndirectA(&record));
  const FontMeasure measure = MeasureFontOnDisplay(expected.get());
  const Columns c = ColumnsFor(measure.averageCharacterWidth);
  const int h = measure.lineHeight;
  EXPECT_THAT(DrawsOf(list_), ElementsAreArray(std::vector<Draw>{{c.date, 0, "06.01.2007", kFont},
                                                                 {c.date, h, "Yizkor", kFont},
                                                                 {c.torah, 0, "T1", "Courier New 0"},
                                                                 {c.haftarah, 0, "H1", "Courier New 0"},
                                                                 {c.torah, h, "Extra", kFont}}));
}

TEST_F(ReadingsTest, TheLibrarysFontIsMadeForEachPaintAndDeletedAfterIt) {
  Libraries().readingsFont = {"Courier New", 20, 0};
  BuildJanuary();
  const std::size_t fonts = System().fonts.size();
  DrawsOf(list_);
  Scroll(SB_LINEDOWN);
  EXPECT_EQ(System().fonts.size(), fonts);
  EXPECT_EQ(System().deviceContexts, 0);
}

TEST_F(ReadingsTest, WithoutAListThePaneIsEmptyAndDoesNotScroll) {
  EXPECT_THAT(DrawsOf(list_), IsEmpty());
  EXPECT_EQ(Maximum(), 0);
}

TEST_F(ReadingsTest, TheRangeIsSetAsSoonAsTheListIsBuilt) {
  ShowLines(50);
  BuildJanuary();
  EXPECT_EQ(Maximum(), 31 - 10 + 2);
}

TEST_F(ReadingsTest, AListOfExactlyOnePageScrollsByTwo) {
  BuildJanuary();
  ShowLines(5 * 31);
  EXPECT_EQ(Maximum(), 2);
}

TEST_F(ReadingsTest, EveryScrollRequestMovesToItsPosition) {
  BuildJanuary();
  ShowLines(25);  // five entries fit; a page step is 25 / 4 - 1
  ASSERT_EQ(Maximum(), 28);
  EXPECT_EQ(Scroll(SB_LINEDOWN), 1);
  EXPECT_EQ(Scroll(SB_PAGEDOWN), 6);
  EXPECT_EQ(Scroll(SB_LINEUP), 5);
  EXPECT_EQ(Scroll(SB_PAGEUP), 0);
  EXPECT_EQ(Scroll(SB_THUMBTRACK, 12), 12);
  EXPECT_EQ(Scroll(SB_THUMBPOSITION, 20), 20);
  EXPECT_EQ(Scroll(SB_BOTTOM), 28);
  EXPECT_EQ(Scroll(SB_LINEDOWN), 28);
  EXPECT_EQ(Scroll(SB_TOP), 0);
  EXPECT_EQ(Scroll(SB_ENDSCROLL), 0);
}

TEST_F(ReadingsTest, KeysAndWheelScroll) {
  BuildJanuary();
  ShowLines(25);
  EXPECT_EQ(Press(VK_DOWN), 1);
  EXPECT_EQ(Press(VK_NEXT), 6);
  EXPECT_EQ(Press(VK_UP), 5);
  EXPECT_EQ(Press(VK_END), 28);
  EXPECT_EQ(Press(VK_PRIOR), 23);
  EXPECT_EQ(Press(VK_HOME), 0);
  EXPECT_EQ(Press(VK_RIGHT), 0);
  EXPECT_EQ(Wheel(-240), 2);
  EXPECT_EQ(Wheel(120), 1);
  EXPECT_EQ(Wheel(-32760), 28);
}

TEST_F(ReadingsTest, ScrollingMovesTheEntriesByFiveLinesAndPaintsAtOnce) {
  BuildJanuary();
  ShowLines(25);
  UpdateWindow(list_);
  Libraries().draws.clear();
  Scroll(SB_LINEDOWN);
  EXPECT_FALSE(GetUpdateRect(list_, nullptr, FALSE));
  EXPECT_EQ(Libraries().draws.front().text, "02.01.2007");
}

TEST_F(ReadingsTest, GrowingLowersThePositionToTheNewEnd) {
  BuildJanuary();
  ShowLines(25);
  Scroll(SB_BOTTOM);
  ShowLines(50);
  EXPECT_EQ(Maximum(), 23);
  EXPECT_EQ(Position(), 23);
}

TEST_F(ReadingsTest, AcceptedReadingsDialogsOpenADocumentCancelledOnesDoNot) {
  for (const unsigned id : {1011u, 1012u, 1015u}) {
    Libraries().readingsChanged = false;
    SendMessageA(frame_, WM_COMMAND, MAKEWPARAM(id, 0), 0);
  }
  EXPECT_EQ(CountDocuments(), 1);
  EXPECT_THAT(CallsWith("readings"), ElementsAre("readings, owner yes"));
  EXPECT_THAT(CallsWith("own readings"), ElementsAre("own readings, owner yes"));
  EXPECT_THAT(CallsWith("language"), ElementsAre("language of readings, owner yes"));
  Libraries().readingsChanged = true;
  SendMessageA(frame_, WM_COMMAND, MAKEWPARAM(1011, 0), 0);
  EXPECT_EQ(CountDocuments(), 2);
  SendMessageA(frame_, WM_COMMAND, MAKEWPARAM(1015, 0), 0);
  EXPECT_EQ(CountDocuments(), 3);
}
