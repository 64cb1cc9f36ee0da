// The dialog for the sunset of a day.
#include "app/active_document.h"
#include "app/open_document.h"
#include "app/program.h"
#include "engine/bound_entries.h"
#include "engine/current.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/last_day_of_month.h"
#include "tests/program/program_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int kDay = 101;
constexpr int kDaySpin = 102;
constexpr int kMonth = 103;
constexpr int kMonthSpin = 104;
constexpr int kYear = 105;
constexpr int kYearSpin = 106;
constexpr int kTime = 107;

class SunsetDialogTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    CivilCalendar.DatefilterGetLastDayOfMonth = LastDayOfMonth;
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    OpenFrame();
    CallLog().clear();
  }

  // What is left open is closed by its button.
  void Open(const std::function<void(HWND)>& drive) {
    WithDialog([&] { SendMessageA(frame_, WM_COMMAND, IDM_SUNSET_OF_A_DAY, 0); },
               [&](HWND dialog) {
                 drive(dialog);
                 Click(dialog, IDOK);
               });
  }
  static void Type(HWND dialog, const char* day, const char* month, const char* year) {
    SetField(dialog, kDay, day);
    SetField(dialog, kMonth, month);
    SetField(dialog, kYear, year);
    CallLog().clear();
  }
  static std::string Date(HWND dialog) {
    return FieldText(dialog, kDay) + "." + FieldText(dialog, kMonth) + "." + FieldText(dialog, kYear);
  }
  static std::string Spin(HWND dialog, int bar, int code) {
    SendMessageA(dialog, WM_VSCROLL, MAKEWPARAM(code, 0), reinterpret_cast<LPARAM>(GetDlgItem(dialog, bar)));
    return Date(dialog);
  }
  static HWND Arrow(HWND dialog, int bar, int code) { return GetDlgItem(GetDlgItem(dialog, bar), code); }
  static void PressKey(HWND window, WPARAM key) {
    SendMessageA(window, WM_KEYDOWN, key, 0);
    SendMessageA(window, WM_KEYUP, key, 0);
  }
};

}  // namespace

TEST_F(SunsetDialogTest, OpensOnTodayAtTheDocumentsPlace) {
  Open([](HWND dialog) {
    EXPECT_EQ(Date(dialog), "20.11.2026");
    EXPECT_EQ(FieldText(dialog, kTime), "<19:5>");
  });
  EXPECT_THAT(CallsWith("sunset"), ElementsAre("sunset 20.11.2026 5046 606 1:0"));
}

TEST_F(SunsetDialogTest, TheSunsetIsTheActiveDocumentsThoughAnotherPlaceIsCurrent) {
  const HWND first = ActiveDocument();
  CurrentLocation = {"St. John's", 4734, -5243, -3, -30};
  OpenAndCompute(frame_);
  const auto sunsetAsked = [this] {
    CallLog().clear();
    Open([](HWND) {});
    return CallsWith("sunset");
  };
  CurrentLocation = {"Haifa", 3249, 3459, 2, 0};
  EXPECT_THAT(sunsetAsked(), ElementsAre("sunset 20.11.2026 4734 -5243 -3:-30"));
  SendMessageA(Program.mdiClient, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(first), 0);
  EXPECT_THAT(sunsetAsked(), ElementsAre("sunset 20.11.2026 5046 606 1:0"));
  EXPECT_STREQ(CurrentLocation.name, "Haifa");
}

TEST_F(SunsetDialogTest, StepsByItsSpinBars) {
  Open([](HWND dialog) {
    EXPECT_EQ(Spin(dialog, kDaySpin, SB_LINEUP), "21.11.2026");
    EXPECT_EQ(Spin(dialog, kMonthSpin, SB_LINEDOWN), "21.10.2026");
    EXPECT_EQ(Spin(dialog, kYearSpin, SB_LINEUP), "21.10.2027");
    EXPECT_EQ(Spin(dialog, kYearSpin, SB_PAGEUP), "21.10.2027");
    Type(dialog, "31", "12", "2000");
    EXPECT_EQ(Spin(dialog, kDaySpin, SB_LINEUP), "1.1.2001");
    EXPECT_THAT(CallsWith("sunset"), ElementsAre("sunset 1.1.2001 5046 606 1:0"));
    Type(dialog, "1", "1", "1583");
    EXPECT_EQ(Spin(dialog, kDaySpin, SB_LINEDOWN), "1.1.1583");
  });
}

TEST_F(SunsetDialogTest, ATypedDateShowsItsSunsetAtOnce) {
  Open([](HWND dialog) {
    Type(dialog, "22", "6", "2026");
    Bound().sunset = [](const CalendarDate& date) { return DoubledTime{21, static_cast<int32_t>(date.uDay)}; };
    SetField(dialog, kYear, "2027");
    EXPECT_THAT(CallsWith("sunset"), ElementsAre("sunset 22.6.2027 5046 606 1:0"));
    EXPECT_EQ(FieldText(dialog, kTime), "<21:22>");
  });
}

TEST_F(SunsetDialogTest, WhileTheFieldsMakeNoDateThereIsNoTime) {
  Open([](HWND dialog) {
    struct Case {
      int field;
      const char* text;
    };
    for (const Case& wrong : {Case{kDay, ""},
                              {kDay, "31"},
                              {kDay, "0"},
                              {kDay, "x"},
                              {kMonth, "14"},
                              {kMonth, "0"},
                              {kMonth, ""},
                              {kYear, "202"},
                              {kYear, "1582"},
                              {kYear, "3001"},
                              {kYear, "-2027"}}) {
      Type(dialog, "22", "6", "2027");
      EXPECT_EQ(FieldText(dialog, kTime), "<19:5>");
      SetField(dialog, wrong.field, wrong.text);
      EXPECT_EQ(FieldText(dialog, kTime), "") << wrong.field << " '" << wrong.text << "'";
      EXPECT_THAT(CallsWith("sunset"), IsEmpty()) << wrong.field << " '" << wrong.text << "'";
    }
    Type(dialog, "29", "2", "2027");
    EXPECT_EQ(FieldText(dialog, kTime), "");
    SetField(dialog, kYear, "2028");
    EXPECT_EQ(FieldText(dialog, kTime), "<19:5>");
  });
  EXPECT_THAT(CallsWith("fatal"), IsEmpty());
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
}

TEST_F(SunsetDialogTest, AStepFromFieldsThatMakeNoDateSetsOutFromTheLastOneThatDid) {
  Open([](HWND dialog) {
    Type(dialog, "31", "1", "2027");
    SetField(dialog, kMonth, "2");  // the 31st of February
    EXPECT_EQ(Spin(dialog, kMonthSpin, SB_LINEUP), "28.2.2027");
    SetField(dialog, kMonth, "14");
    EXPECT_EQ(Spin(dialog, kYearSpin, SB_LINEUP), "28.2.2028");
    SetField(dialog, kDay, "");
    EXPECT_EQ(Spin(dialog, kDaySpin, SB_LINEUP), "29.2.2028");
    EXPECT_EQ(FieldText(dialog, kTime), "<19:5>");
  });
  EXPECT_THAT(CallsWith("fatal"), IsEmpty());
}

TEST_F(SunsetDialogTest, UpAndDownStepTheFieldTheyArePressedIn) {
  Open([](HWND dialog) {
    Type(dialog, "31", "12", "2026");
    PressKey(GetDlgItem(dialog, kDay), VK_UP);
    EXPECT_EQ(Date(dialog), "1.1.2027");
    PressKey(GetDlgItem(dialog, kMonth), VK_DOWN);
    EXPECT_EQ(Date(dialog), "1.12.2026");
    PressKey(GetDlgItem(dialog, kYear), VK_UP);
    EXPECT_EQ(Date(dialog), "1.12.2027");
    EXPECT_EQ(CallsWith("sunset").back(), "sunset 1.12.2027 5046 606 1:0");
    const LRESULT selection = SendDlgItemMessageA(dialog, kYear, EM_GETSEL, 0, 0);
    EXPECT_EQ(LOWORD(selection), 0) << "what is typed next takes the number's place";
    EXPECT_EQ(HIWORD(selection), 4) << "what is typed next takes the number's place";
  });
}

TEST_F(SunsetDialogTest, TabGoesThroughTheArrowsAndSpacePressesThem) {
  Open([](HWND dialog) {
    Type(dialog, "31", "12", "2026");
    struct Stop {
      HWND window;
      const char* name;
      const char* dateAfterSpace;
    };
    const Stop stops[] = {
        {GetDlgItem(dialog, kDay), nullptr, nullptr},
        {Arrow(dialog, kDaySpin, SB_LINEUP), "Next day", "1.1.2027"},
        {Arrow(dialog, kDaySpin, SB_LINEDOWN), "Previous day", "31.12.2026"},
        {GetDlgItem(dialog, kMonth), nullptr, nullptr},
        {Arrow(dialog, kMonthSpin, SB_LINEUP), "Next month", "31.1.2027"},
        {Arrow(dialog, kMonthSpin, SB_LINEDOWN), "Previous month", "31.12.2026"},
        {GetDlgItem(dialog, kYear), nullptr, nullptr},
        {Arrow(dialog, kYearSpin, SB_LINEUP), "Next year", "31.12.2027"},
        {Arrow(dialog, kYearSpin, SB_LINEDOWN), "Previous year", "31.12.2026"},
        {GetDlgItem(dialog, IDOK), nullptr, nullptr},
    };
    for (const Stop& stop : stops) {
      ASSERT_EQ(GetFocus(), stop.window) << Date(dialog);
      if (stop.name) {
        EXPECT_EQ(TextOf(stop.window), stop.name);
        PressKey(stop.window, VK_SPACE);
        EXPECT_EQ(Date(dialog), stop.dateAfterSpace);
        EXPECT_EQ(GetFocus(), stop.window) << "the focus stays on the arrow";
      }
      SendMessageA(dialog, WM_NEXTDLGCTL, 0, FALSE);
    }
  });
}

// By the colours of the system, so that it is seen in every scheme.
TEST_F(SunsetDialogTest, AnArrowWithTheFocusLooksDifferent) {
  Open([](HWND dialog) {
    const HWND arrow = Arrow(dialog, kDaySpin, SB_LINEUP);
    const auto pixels = [arrow] {
      RECT area;
      GetClientRect(arrow, &area);
      RedrawWindow(arrow, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
      const HDC dc = GetDC(arrow);
      std::vector<COLORREF> colors;
      for (int y = 0; y < area.bottom; ++y) {
        for (int x = 0; x < area.right; ++x) colors.push_back(GetPixel(dc, x, y));
      }
      ReleaseDC(arrow, dc);
      return colors;
    };
    SetFocus(GetDlgItem(dialog, kDay));
    const std::vector<COLORREF> without = pixels();
    SetFocus(arrow);
    EXPECT_NE(pixels(), without);
    SetFocus(GetDlgItem(dialog, kDay));
    EXPECT_EQ(pixels(), without);
  });
}

TEST_F(SunsetDialogTest, AMouseClickStepsOnceAndAHeldArrowRepeats) {
  Open([](HWND dialog) {
    Type(dialog, "10", "6", "2027");
    const HWND arrow = Arrow(dialog, kDaySpin, SB_LINEUP);
    const LPARAM inside = MAKELPARAM(3, 3);
    SendMessageA(GetParent(arrow), WM_PARENTNOTIFY, WM_LBUTTONDOWN, inside);
    SendMessageA(arrow, WM_LBUTTONDOWN, MK_LBUTTON, inside);
    SendMessageA(arrow, WM_LBUTTONUP, 0, inside);
    EXPECT_EQ(Date(dialog), "11.6.2027");
    SendMessageA(GetParent(arrow), WM_PARENTNOTIFY, WM_LBUTTONDOWN, inside);
    SendMessageA(arrow, WM_LBUTTONDOWN, MK_LBUTTON, inside);
    const ULONGLONG end = GetTickCount64() + 10000;
    while (Date(dialog) != "13.6.2027" && GetTickCount64() < end) DispatchPendingMessages();
    EXPECT_EQ(Date(dialog), "13.6.2027");
    SendMessageA(arrow, WM_LBUTTONUP, 0, inside);
    EXPECT_EQ(Date(dialog), "13.6.2027") << "letting go of an arrow that repeated is no step more";
  });
}

TEST_F(SunsetDialogTest, WithoutADocumentThereIsNoSunset) {
  SendMessageA(frame_, WM_COMMAND, IDM_WINDOW_CLOSE_ALL, 0);
  Open([](HWND dialog) {
    EXPECT_EQ(FieldText(dialog, kTime), "");
    SetField(dialog, kYear, "2027");
    EXPECT_EQ(FieldText(dialog, kTime), "");
  });
}
