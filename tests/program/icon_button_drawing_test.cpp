// How an icon button draws its icon: idle, pressed and grayed.
#include "app/active_document.h"
#include "app/program.h"
#include "document/icon_button.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/program/program_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr COLORREF kGray = RGB(128, 128, 128);

class IconButtonDrawingTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    OpenFrame();
    button_ = GetDlgItem(GetDlgItem(ActiveDocument(), IDC_TOOLBAR), IDB_ALMANAC);
    ASSERT_NE(button_, nullptr);
    icon_ = LoadIconA(Program.instance, "#4");  // the button's window text
  }

  void Mouse(UINT message) { SendMessageA(button_, message, 0, MAKELPARAM(10, 10)); }
  void SetGrayed(bool grayed) { SetIntegerProperty(button_, property::kGrayed, grayed ? 1 : 0); }

  const std::vector<DrawnIcon>& Drawn() {
    System().drawnIcons.clear();
    RedrawWindow(button_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    return System().drawnIcons;
  }
  HWND button_ = nullptr;
  HICON icon_ = nullptr;
};

}  // namespace

TEST_F(IconButtonDrawingTest, AnIdleButtonShowsItsIconTwoPixelsIn) {
  EXPECT_THAT(Drawn(), ElementsAre(DrawnIcon{2, 2, 32, 32, icon_, kNotGray}));
}

TEST_F(IconButtonDrawingTest, APressedButtonShowsItsIconFivePixelsInUntilItIsReleased) {
  Mouse(WM_LBUTTONDOWN);
  EXPECT_THAT(Drawn(), ElementsAre(DrawnIcon{5, 5, 32, 32, icon_, kNotGray}));
  System().foundWindow = frame_;
  Mouse(WM_LBUTTONUP);
  EXPECT_THAT(Drawn(), ElementsAre(DrawnIcon{2, 2, 32, 32, icon_, kNotGray}));
}

TEST_F(IconButtonDrawingTest, AGrayedButtonShowsItsIconGrayTwoPixelsIn) {
  SetGrayed(true);
  EXPECT_THAT(Drawn(), ElementsAre(DrawnIcon{2, 2, 32, 32, icon_, kGray}));
  EXPECT_THAT(System().pensAndBrushes, IsEmpty());
  SetGrayed(false);
  EXPECT_THAT(Drawn(), ElementsAre(DrawnIcon{2, 2, 32, 32, icon_, kNotGray}));
}

TEST_F(IconButtonDrawingTest, AGrayedButtonLooksTheSameWhateverTheMouseDoes) {
  SetGrayed(true);
  Drawn();
  CallLog().clear();
  for (const UINT message : {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP}) {
    Mouse(message);
    EXPECT_FALSE(GetUpdateRect(button_, nullptr, FALSE)) << message;
    EXPECT_NE(GetCapture(), button_) << message;
    EXPECT_THAT(Drawn(), ElementsAre(DrawnIcon{2, 2, 32, 32, icon_, kGray})) << message;
  }
  EXPECT_THAT(CallLog(), IsEmpty());
}
