// The frame's menu: its texts, and what is enabled and checked.
#include <cctype>
#include <cstring>
#include <set>
#include "app/active_document.h"

#include "app/open_document.h"
#include "app/program.h"
#include "engine/current.h"
#include "resources/ids.h"
#include "tests/program/program_fixture.h"
#include "zmanim/zmanim_in_use.h"

using testing::Contains;
using testing::ElementsAre;

namespace {

using MenuTest = ProgramTest;

void ListNoUserPlace(const std::string& name) {
  Libraries().settings["shabbat2.ini|Locations|" + name] = "";
}

UINT StateOf(HWND frame, unsigned id) {
  SendMessageA(frame, WM_INITMENU, reinterpret_cast<WPARAM>(GetMenu(frame)), 0);
  return GetMenuState(GetMenu(frame), id, MF_BYCOMMAND);
}

bool IsEnabled(HWND frame, unsigned id) {
  return (StateOf(frame, id) & (MF_GRAYED | MF_DISABLED)) == 0;
}

bool IsChecked(HWND frame, unsigned id) {
  return (StateOf(frame, id) & MF_CHECKED) != 0;
}

void Command(HWND frame, unsigned id) {
  SendMessageA(frame, WM_COMMAND, MAKEWPARAM(id, 0), 0);
}

}  // namespace

TEST_F(MenuTest, MenuHasItsFiveSubmenusInOrder) {
  ListNoUserPlace("Aachen");
  const HMENU menu = GetMenu(OpenFrame());
  const char* const expected[] = {"&Times", "&Window", "&View", "&Settings", "&Help"};
  ASSERT_EQ(GetMenuItemCount(menu), 5);
  for (UINT i = 0; i < 5; ++i) {
    char text[64] = "";
    GetMenuStringA(menu, i, text, sizeof text, MF_BYPOSITION);
    EXPECT_STREQ(text, expected[i]);
  }
}

TEST_F(MenuTest, WindowSubmenuListsTheDocuments) {
  ListNoUserPlace("Aachen");
  const HMENU menu = GetMenu(OpenFrame());
  char text[256] = "";
  GetMenuStringA(menu, IDM_FIRST_DOCUMENT, text, sizeof text, MF_BYCOMMAND);
  EXPECT_STREQ(text, "&1 Aachen (20.11.2026 - 21.12.2026)");
}

TEST_F(MenuTest, MenuTextsOfTheCommandsStand) {
  ListNoUserPlace("Aachen");
  const HMENU menu = GetMenu(OpenFrame());
  const struct {
    unsigned id;
    const char* text;
  } expected[] = {
      {1001, "Select Temporary &Location..."},
      {1002, "Select &Range..."},
      {1004, "Get sunset &time of a day..."},
      {1005, "Export as &Text file..."},
      {1007, "Export as RT&F file..."},
      {1008, "&Print..."},
      {1009, "Printer &Setup..."},
      {1010, "&Exit"},
      {1013, "Birthdays/&Yahrzeit font..."},
      {1020, "Export Zmanim..."},
      {1021, "Export Gregorian/Jewish date, Torah/Haphtarah readings and Holidays..."},
      {1102, "Su&mmer time..."},
      {1107, "&Occasions of the year..."},
      {1108, "Occasions: &what is shown..."},
      {1109, "Save as doc&ument..."},
      {1110, "Print &calendar..."},
      {1135, "&Daf Yomi..."},
      {1136, "&Birthdays and yahrzeit..."},
      {1137, "Bar and bat &mitzvah..."},
      {1138, "&Almanac"},
      {2001, "&Cascade"},
      {2002, "Tile &Vertically"},
      {2003, "&Tile"},
      {2004, "&Icon Arrange"},
      {2005, "Close &All"},
      {3001, "&Help"},
      {3002, "&Zmanim"},
      {3003, "&About..."},
  };
  for (const auto& row : expected) {
    char text[128] = "";
    GetMenuStringA(menu, row.id, text, sizeof text, MF_BYCOMMAND);
    EXPECT_STREQ(text, row.text);
  }
  for (const unsigned id : {1006u, 1022u, 1023u}) EXPECT_EQ(GetMenuState(menu, id, MF_BYCOMMAND), ~0u) << id;
}

TEST_F(MenuTest, SummerTimeStandsBelowTheLocations) {
  ListNoUserPlace("Aachen");
  const HMENU settings = GetSubMenu(GetMenu(OpenFrame()), 3);
  EXPECT_EQ(GetMenuItemID(settings, 0), 1101u);
  EXPECT_EQ(GetMenuItemID(settings, 1), 1102u);
}

TEST_F(MenuTest, CommandsWithoutActionAreGreyedAndIgnored) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  for (const unsigned id : {1008u}) {
    EXPECT_FALSE(IsEnabled(frame, id)) << id;
    CallLog().clear();
    Command(frame, id);
    EXPECT_THAT(CallLog(), testing::IsEmpty()) << id;
  }
  for (const unsigned id : {0u, 999u, 1200u, 65535u}) Command(frame, id);
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(MenuTest, WindowCommandsAreEnabledWhileADocumentIsActive) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  for (const unsigned id : {1109u, 1110u, 2001u, 2002u, 2003u, 2005u, 1111u, 1135u, 1136u, 1137u, 1138u, 1010u})
    EXPECT_TRUE(IsEnabled(frame, id)) << id;
  Command(frame, IDM_WINDOW_CLOSE_ALL);
  EXPECT_EQ(ActiveDocument(), nullptr);
  for (const unsigned id :
       {1004u, 1005u, 1109u, 1110u, 2001u, 2002u, 2003u, 2004u, 2005u, 1111u, 1135u, 1136u, 1137u, 1138u}) {
    EXPECT_FALSE(IsEnabled(frame, id)) << id;
  }
  EXPECT_TRUE(IsEnabled(frame, 1010));
}

TEST_F(MenuTest, IconArrangeIsEnabledOnlyWhileADocumentIsMinimised) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  OpenAndCompute(frame);
  EXPECT_FALSE(IsEnabled(frame, 2004));
  ShowWindow(ActiveDocument(), SW_MINIMIZE);
  EXPECT_TRUE(IsEnabled(frame, 2004));
}

TEST_F(MenuTest, ZmanimLanguageIsCheckedByItsFlag) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  EXPECT_FALSE(IsChecked(frame, 1018));
  EXPECT_TRUE(IsChecked(frame, 1019));
  Command(frame, 1018);
  EXPECT_THAT(CallsWith("write"), ElementsAre("write shab30.ini|Zmanim|Hebrew=1"));
  EXPECT_TRUE(IsChecked(frame, 1018));
  EXPECT_FALSE(IsChecked(frame, 1019));
  Command(frame, 1019);
  EXPECT_THAT(CallsWith("write"), Contains("write shab30.ini|Zmanim|Hebrew=0"));
  EXPECT_FALSE(IsChecked(frame, 1018));
  EXPECT_TRUE(IsChecked(frame, 1019));
}

TEST_F(MenuTest, ZmanimLanguageRedrawsTheWholeFrameAtOnce) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  Libraries().draws.clear();
  Command(frame, 1018);
  EXPECT_GE(Libraries().draws.size(), 3u + 5u * 3u);  // titles and five lines
}

TEST_F(MenuTest, MenuUpdateHoldsWithAMaximisedDocument) {
  // A maximised document puts its system menu before the first submenu of the menu bar.
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  SendMessageA(Program.mdiClient, WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(ActiveDocument()), 0);
  ASSERT_GT(GetMenuItemCount(GetMenu(frame)), 5);
  Command(frame, 1018);
  EXPECT_TRUE(IsChecked(frame, 1018));
  EXPECT_TRUE(IsEnabled(frame, 2001));
  EXPECT_FALSE(IsEnabled(frame, 2004));
  EXPECT_FALSE(IsEnabled(frame, 1008));
  EXPECT_TRUE(IsChecked(frame, 1111));
}

TEST_F(MenuTest, HelpOpensItsTopics) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  Command(frame, 3001);
  Command(frame, 3002);
  SendMessageA(ActiveDocument(), WM_COMMAND, IDB_HELP, 0);
  EXPECT_THAT(CallsWith("help"),
              ElementsAre("help 'Start' owner yes", "help 'Zmanim' owner yes", "help 'Start' owner yes"));
}

TEST_F(MenuTest, CustomTimesOpenADocumentWhateverTheOutcome) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  Command(frame, 1016);
  EXPECT_THAT(CallsWith("custom"), ElementsAre("custom times, owner yes"));
  EXPECT_EQ(CountDocuments(), 2);
}

// Whether the selection has changed or not.
TEST_F(MenuTest, ZmanimSelectionIsAtTheCurrentPlaceAndOpensADocument) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  const HWND before = ActiveDocument();
  EXPECT_TRUE(IsEnabled(frame, 1014));
  CallLog().clear();
  Command(frame, 1014);
  EXPECT_THAT(CallsWith("choose"), ElementsAre("choose zmanim at 5046 606, zone 1:0, owner yes"));
  EXPECT_EQ(CountDocuments(), 2);
  EXPECT_NE(ActiveDocument(), before);

  Libraries().zmanimCountAfterDialog = 7;
  Command(frame, 1014);
  EXPECT_EQ(GetZmanimCount(), 7u);
  EXPECT_EQ(CountDocuments(), 3);
}

TEST_F(MenuTest, ZmanimSelectionAppliesTheCandleRuleOfThePlace) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  CandleOverride = {true, 0};
  std::strcpy(CurrentLocation.name, "Jerusalem");
  ListNoUserPlace("Jerusalem");
  Command(frame, 1014);
  EXPECT_FALSE(CandleOverride.readSetting);
  EXPECT_EQ(CandleOverride.fixedMinutes, 40);
}

TEST_F(MenuTest, AnotherFormOfTimesRedrawsEverythingAndOpensNothing) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  DispatchPendingMessages();
  Libraries().draws.clear();
  Command(frame, 1017);
  EXPECT_THAT(Libraries().draws, testing::IsEmpty());  // cancelled
  Libraries().formChanged = true;
  Command(frame, 1017);
  EXPECT_GE(Libraries().draws.size(), 3u + 5u * 3u);  // titles and five lines
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(MenuTest, MnemonicsOfViewAndSettingsAreUnique) {
  ListNoUserPlace("Aachen");
  const HMENU menu = GetMenu(OpenFrame());
  for (const int position : {2, 3}) {
    const HMENU submenu = GetSubMenu(menu, position);
    std::set<char> letters;
    for (int item = 0; item < GetMenuItemCount(submenu); ++item) {
      char text[128] = "";
      GetMenuStringA(submenu, static_cast<UINT>(item), text, sizeof text, MF_BYPOSITION);
      if (text[0] == '\0') continue;  // a separator
      const char* mark = std::strchr(text, '&');
      ASSERT_NE(mark, nullptr) << text;
      EXPECT_TRUE(letters.insert(static_cast<char>(std::tolower(mark[1]))).second) << text;
    }
  }
}
