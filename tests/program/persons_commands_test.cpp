// The commands for persons: from the toolbar, from the menu, and what the libraries are given.
#include "app/active_document.h"
#include "app/program.h"
#include "resources/ids.h"
#include "tests/program/program_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class PersonsCommandsTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().unknownSettingsAreMissing = true;
    OpenFrame();
    document_ = ActiveDocument();
    CallLog().clear();
  }

  // What a command of a window calls.
  static std::vector<std::string> CallsOf(HWND window, unsigned id) {
    CallLog().clear();
    SendMessageA(window, WM_COMMAND, id, 0);
    return CallLog();
  }

  HWND document_ = nullptr;
};

}  // namespace

// The doubled clock says 20 November 2026.
TEST_F(PersonsCommandsTest, BirthdaysOpenWithTheCurrentYearForTheDocument) {
  for (const auto& [window, id] : {std::pair{document_, unsigned{IDB_BIRTHDAYS}}, {frame_, IDM_BIRTHDAYS}}) {
    Libraries().dialogOwner = nullptr;
    EXPECT_THAT(CallsOf(window, id), ElementsAre("persons, calendar 1 year 2026"));
    EXPECT_EQ(Libraries().dialogOwner, document_);
  }
}

TEST_F(PersonsCommandsTest, BarMitzvahOpensForTheDocumentWithTheRecordThatTheLibraryFills) {
  for (const auto& [window, id] : {std::pair{document_, unsigned{IDB_BAR_MITZVAH}}, {frame_, IDM_BAR_MITZVAH}}) {
    Libraries().dialogOwner = nullptr;
    EXPECT_THAT(CallsOf(window, id), ElementsAre("coming of age of 1.2.2014 1 1"));
    EXPECT_EQ(Libraries().dialogOwner, document_);
  }
}

TEST_F(PersonsCommandsTest, TheFontOfPersonsOpensForTheFrameAndNoDocument) {
  EXPECT_THAT(CallsOf(frame_, IDM_KINSHIP_FONT), ElementsAre("font of persons"));
  EXPECT_EQ(Libraries().dialogOwner, frame_);
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(PersonsCommandsTest, TheMenuGoesToTheAlmanacAsTheButtonDoes) {
  const auto byButton = CallsOf(document_, IDB_ALMANAC);
  ASSERT_FALSE(byButton.empty());
  EXPECT_EQ(CallsOf(frame_, IDM_ALMANAC), byButton);
}

TEST_F(PersonsCommandsTest, WithoutADocumentNothingOpens) {
  SendMessageA(frame_, WM_COMMAND, IDM_WINDOW_CLOSE_ALL, 0);
  for (const unsigned id : {IDM_DAF_YOMI, IDM_BIRTHDAYS, IDM_BAR_MITZVAH, IDM_ALMANAC}) {
    EXPECT_THAT(CallsOf(frame_, id), IsEmpty()) << id;
  }
}

TEST_F(PersonsCommandsTest, TheMenuNamesThemAfterASeparatorBelowTheViews) {
  const HMENU menu = GetSubMenu(GetMenu(frame_), 2);
  std::vector<unsigned> ids;
  for (int position = 0; position < GetMenuItemCount(menu); ++position) {
    ids.push_back(GetMenuItemID(menu, position));
  }
  EXPECT_THAT(ids, ElementsAre(IDM_VIEW_SHABBAT_TIMES, IDM_VIEW_ZMANIM, IDM_VIEW_READINGS, 0, IDM_ALMANAC,
                               IDM_BIRTHDAYS, IDM_BAR_MITZVAH, IDM_DAF_YOMI));
}
