// What becomes of a time that is typed while its document changes under the open dialog.
#include "tests/program/custom_zman_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class CustomZmanMeanwhileTest : public CustomZmanTest {
 protected:
  void TearDown() override {
    EXPECT_EQ(System().locks, 0);
    EXPECT_EQ(Libraries().openOwnTimes, 0);
    EXPECT_THAT(CallsWith("freed"), IsEmpty());
    CustomZmanTest::TearDown();  // frees the document's block, whose end is checked then
  }

  // Clicks a cell, and while the dialog is open has something happen; then types 4:44.
  void EditWhile(const ZmanimCell& cell, const std::function<void()>& happens) {
    WithDialog([&] { ClickCell(cell); },
               [&](HWND dialog) {
                 happens();
                 SetField(dialog, 103, "4");
                 SetField(dialog, 104, "44");
                 Click(dialog, IDOK);
               });
  }
  // Every time of the document's block is the one that the library computes.
  void ExpectComputedTimesOnly() {
    for (uint32_t day = 0; day < DaysIn(document_); ++day) {
      for (int32_t zman = 0; zman < 40; ++zman) {
        const int32_t minutes = 360 + 10 * zman;
        EXPECT_EQ(TimeInBlock({day, static_cast<uint32_t>(zman)}), (ClockTime{minutes / 60, minutes % 60}))
            << "day " << day << ", zman " << zman;
      }
    }
  }
};

}  // namespace

TEST_F(CustomZmanMeanwhileTest, OfADayThatIsNoLongerComputedItIsStoredAndNotShown) {
  EditWhile({3, 3}, [this] { CalculateZmanim(document_, 5, 1, 2007, 6, 1, 2007); });
  EXPECT_THAT(CallsWith("own time"), ElementsAre("own time set Aachen|Zman 3|8.1.2007 = 4:44", "own times stored"));
  ASSERT_EQ(DaysIn(document_), 2u);
  ExpectComputedTimesOnly();
}

TEST_F(CustomZmanMeanwhileTest, OfADayThatIsStillComputedItIsStoredAndShown) {
  EditWhile({3, 3}, [this] { CalculateZmanim(document_, 5, 1, 2007, 8, 1, 2007); });
  EXPECT_THAT(CallsWith("own time"), ElementsAre("own time set Aachen|Zman 3|8.1.2007 = 4:44", "own times stored"));
  EXPECT_EQ(TimeInBlock({3, 3}), (ClockTime{4, 44}));
}

TEST_F(CustomZmanMeanwhileTest, OfADayThatHasMovedItIsShownAtItsDateAndNowhereElse) {
  EditWhile({3, 3}, [this] { CalculateZmanim(document_, 7, 1, 2007, 12, 1, 2007); });
  EXPECT_EQ(TimeInBlock({1, 3}), (ClockTime{4, 44}));  // 8 January
  EXPECT_EQ(TimeInBlock({3, 3}), (ClockTime{6, 30}));
}

TEST_F(CustomZmanMeanwhileTest, OfAZmanThatHasMovedItIsStoredAndShownByItsDescription) {
  EditWhile({3, 3}, [this] {
    Libraries().zmanNames = {{3, "Zman 5"}, {5, "Zman 3"}};
    CalculateZmanim(document_, 5, 1, 2007, 12, 1, 2007);
  });
  EXPECT_THAT(CallsWith("own time set"), ElementsAre("own time set Aachen|Zman 3|8.1.2007 = 4:44"));
  EXPECT_EQ(TimeInBlock({3, 5}), (ClockTime{4, 44}));
  EXPECT_EQ(TimeInBlock({3, 3}), (ClockTime{6, 30}));
}

TEST_F(CustomZmanMeanwhileTest, OfAZmanThatIsNoLongerSelectedItIsNotStoredAndTheUserIsTold) {
  EditWhile({3, 3}, [] { Libraries().zmanimCount = 2; });
  EXPECT_THAT(CallsWith("own time"), IsEmpty());
  EXPECT_THAT(CallsWith("message box"), ElementsAre(testing::HasSubstr("is not in use any more")));
  EXPECT_EQ(TimeInBlock({3, 3}), (ClockTime{6, 30}));
}

TEST_F(CustomZmanMeanwhileTest, OfADocumentWithoutDaysItChangesNothing) {
  EditWhile({0, 0}, [this] { CalculateZmanim(document_, 6, 1, 2007, 5, 1, 2007); });
  EXPECT_EQ(DaysIn(document_), 0u);
}

TEST_F(CustomZmanMeanwhileTest, OfADocumentThatWasClosedItIsStoredForTheDocumentsPlace) {
  EditWhile({3, 3}, [this] { SendMessageA(frame_, WM_COMMAND, IDM_WINDOW_CLOSE_ALL, 0); });
  EXPECT_FALSE(IsWindow(document_));
  EXPECT_THAT(CallsWith("own time"), ElementsAre("own time set Aachen|Zman 3|8.1.2007 = 4:44", "own times stored"));
  EXPECT_THAT(System().blocks, IsEmpty());
}
