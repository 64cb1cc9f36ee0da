// The dialogs for preferences and range.
#include <cstring>

#include "app/active_document.h"
#include "app/open_document.h"
#include "app/program.h"
#include "engine/bound_entries.h"
#include "engine/current.h"
#include "engine/optional_entries.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/last_day_of_month.h"
#include "tests/program/program_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SettingsDialogsTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    CivilCalendar.DatefilterGetLastDayOfMonth = LastDayOfMonth;
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    OpenFrame();
    CallLog().clear();
  }

  void Open(unsigned command, const std::function<void(HWND)>& drive) {
    WithDialog([&] { SendMessageA(frame_, WM_COMMAND, command, 0); }, drive);
  }
  // Accepts the dialog, which must show one error and put the focus on a field.
  static void ExpectError(HWND dialog, const std::string& message, int field) {
    CallLog().clear();
    Click(dialog, IDOK);
    EXPECT_THAT(CallsWith("message box"),
                ElementsAre("message box '" + message + "' caption 'Error' type 0x10 owner yes"));
    EXPECT_EQ(GetFocus(), GetDlgItem(dialog, field)) << message;
    const LRESULT selection = SendDlgItemMessageA(dialog, field, EM_GETSEL, 0, 0);
    EXPECT_EQ(LOWORD(selection), 0) << message;
    EXPECT_EQ(HIWORD(selection), FieldText(dialog, field).size()) << message;
  }
  static void Set(const char* key, const char* value) {
    Libraries().settings[std::string("shabbat2.ini|Shabbat|") + key] = value;
  }
};

}  // namespace

TEST_F(SettingsDialogsTest, PreferencesOpenWithTheDefaults) {
  Open(IDM_PREFERENCES, [](HWND dialog) {
    char caption[64];
    GetWindowTextA(dialog, caption, sizeof caption);
    EXPECT_STREQ(caption, "Shabbat Time Preferences");
    EXPECT_EQ(FieldText(dialog, 101), "18");
    EXPECT_EQ(FieldText(dialog, 102), "45");
    EXPECT_EQ(FieldText(dialog, 203), "8");
    EXPECT_EQ(FieldText(dialog, 204), "0");
    EXPECT_TRUE(IsDlgButtonChecked(dialog, 201));
    EXPECT_FALSE(IsDlgButtonChecked(dialog, 202));
    Click(dialog, IDCANCEL);
  });
  EXPECT_THAT(CallsWith("write"), IsEmpty());
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(SettingsDialogsTest, PreferencesOpenWithWhatIsStored) {
  Set("CandleLighting", "40");
  Set("DoMinutes", "0");
  Set("DegreesBelowHorizon", "8.5");
  Set("AddMinutesAfterDegrees", "3");
  Open(IDM_PREFERENCES, [](HWND dialog) {
    EXPECT_EQ(FieldText(dialog, 101), "40");
    EXPECT_EQ(FieldText(dialog, 203), "8.5");
    EXPECT_EQ(FieldText(dialog, 204), "3");
    EXPECT_TRUE(IsDlgButtonChecked(dialog, 202));
    Click(dialog, IDCANCEL);
  });
}

TEST_F(SettingsDialogsTest, PreferencesEnableTheFieldsOfTheChosenMethod) {
  const auto expectByDegrees = [](HWND dialog, bool byDegrees) {
    for (const int id : {203, 302, 303, 204, 304}) {
      EXPECT_EQ(IsWindowEnabled(GetDlgItem(dialog, id)) != FALSE, byDegrees) << id;
    }
    for (const int id : {102, 301}) EXPECT_EQ(IsWindowEnabled(GetDlgItem(dialog, id)) != FALSE, !byDegrees) << id;
  };
  Open(IDM_PREFERENCES, [&](HWND dialog) {
    expectByDegrees(dialog, false);
    Click(dialog, 202);
    expectByDegrees(dialog, true);
    Click(dialog, 201);
    expectByDegrees(dialog, false);
    Click(dialog, IDCANCEL);
  });
}

TEST_F(SettingsDialogsTest, PreferencesByMinutesAreWrittenIntoBothFilesButTheMethodIntoOne) {
  Open(IDM_PREFERENCES, [](HWND dialog) {
    SetField(dialog, 101, "20");
    SetField(dialog, 102, "50");
    Click(dialog, IDOK);
  });
  EXPECT_THAT(CallsWith("write"),
              ElementsAre("write shabbat2.ini|Shabbat|CandleLighting=20",
                          "write almanachlp2.ini|Shabbat|CandleLighting=20", "write shabbat2.ini|Shabbat|End=50",
                          "write almanachlp2.ini|Shabbat|End=50", "write shabbat2.ini|Shabbat|DoMinutes=1"));
  EXPECT_EQ(CountDocuments(), 2);
  EXPECT_EQ(ShabbatTimesOf(ActiveDocument()).front().candleMinute, 45u);  // 19:05 less 20 minutes
}

TEST_F(SettingsDialogsTest, PreferencesByDegreesAreWrittenAsTyped) {
  Open(IDM_PREFERENCES, [](HWND dialog) {
    Click(dialog, 202);
    SetField(dialog, 203, "8.50");
    SetField(dialog, 204, "5");
    Click(dialog, IDOK);
  });
  const std::string file = "write shabbat2.ini|Shabbat|";
  const std::string copy = "write almanachlp2.ini|Shabbat|";
  EXPECT_THAT(CallsWith("write"),
              ElementsAre(file + "CandleLighting=18", copy + "CandleLighting=18", file + "DegreesBelowHorizon=8.50",
                          copy + "DegreesBelowHorizon=8.50", file + "AddMinutesAfterDegrees=5",
                          copy + "AddMinutesAfterDegrees=5", file + "DoMinutes=0"));
}

TEST_F(SettingsDialogsTest, PreferencesRefuseWhatIsNoNumberBeforeAnythingIsSaved) {
  Open(IDM_PREFERENCES, [](HWND dialog) {
    SetField(dialog, 101, "x");
    SetField(dialog, 102, "x");
    ExpectError(dialog, "Candle lighting time must be a number", 101);
    EXPECT_THAT(CallsWith("write"), IsEmpty());
    SetField(dialog, 101, "-5");
    ExpectError(dialog, "Candle lighting time must be a number", 101);
    SetField(dialog, 101, "18");
    ExpectError(dialog, "Shabbat end minutes must be a number", 102);
    EXPECT_THAT(CallsWith("write"), IsEmpty());
    Click(dialog, 202);
    SetField(dialog, 203, "8,5");
    ExpectError(dialog, "Shabbat end degrees below horizon must be a floating-point number", 203);
    EXPECT_THAT(CallsWith("write"), IsEmpty());
    Click(dialog, IDCANCEL);
  });
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(SettingsDialogsTest, PreferencesSaveCandlesAndDegreesBeforeTheyRefuseTheMinutesToAdd) {
  Open(IDM_PREFERENCES, [](HWND dialog) {
    Click(dialog, 202);
    SetField(dialog, 204, "x");
    ExpectError(dialog, "Minutes to add must be a number", 204);
    const std::string file = "write shabbat2.ini|Shabbat|";
    const std::string copy = "write almanachlp2.ini|Shabbat|";
    EXPECT_THAT(CallsWith("write"), ElementsAre(file + "CandleLighting=18", copy + "CandleLighting=18",
                                                file + "DegreesBelowHorizon=8", copy + "DegreesBelowHorizon=8"));
    Click(dialog, IDCANCEL);
  });
}

TEST_F(SettingsDialogsTest, PreferencesThatCannotBeStoredAreReportedAndStayOpen) {
  Open(IDM_PREFERENCES, [](HWND dialog) {
    Libraries().writesFail = true;
    Click(dialog, IDOK);
    ASSERT_EQ(CallsWith("message box").size(), 1u);
    EXPECT_THAT(CallsWith("message box").front(), testing::HasSubstr("shabbat2.ini"));
    Click(dialog, IDCANCEL);
  });
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(SettingsDialogsTest, RangeOpensWithTheCurrentOne) {
  Open(IDM_SELECT_RANGE, [](HWND dialog) {
    EXPECT_EQ(FieldText(dialog, 101), "20.11.2026");
    EXPECT_EQ(FieldText(dialog, 102), "21.12.2026");
    SetField(dialog, 101, "1.1.2000");
    Click(dialog, IDCANCEL);
  });
  EXPECT_EQ(CurrentRange.start.uYear, 2026u);
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(SettingsDialogsTest, RangeShowsEveryFaultInOrderWithItsField) {
  Open(IDM_SELECT_RANGE, [](HWND dialog) {
    const struct {
      const char* start;
      const char* end;
      const char* message;
      int field;
    } faults[] = {{"1/1/2000", "x", "Start date is not a valid date", 101},
                  {"40.13.1582", "x", "End date is not a valid date", 102},
                  {"40.13.1582", "40.13.1582", "Start month must be in the range 1-12", 101},
                  {"40.12.1582", "40.13.1582", "End month must be in the range 1-12", 102},
                  {"40.12.1582", "40.12.1582", "Start year must be in the range 1583-3000", 101},
                  {"40.12.2000", "40.12.1582", "End year must be in the range 1583-3000", 102},
                  {"31.2.2001", "40.12.2001", "Start day must be in the range 1-28", 101},
                  {"28.2.2001", "40.12.2001", "End day must be in the range 1-31", 102},
                  {"28.2.2001", "27.2.2001", "The end date must be later than the start date", 101}};
    for (const auto& fault : faults) {
      SetField(dialog, 101, fault.start);
      SetField(dialog, 102, fault.end);
      const int beeps = System().beeps;
      ExpectError(dialog, fault.message, fault.field);
      EXPECT_EQ(System().beeps, beeps + 1);
    }
    Click(dialog, IDCANCEL);
  });
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(SettingsDialogsTest, ChangingTheRangeTwiceLeavesThreeDocuments) {
  for (const char* end : {"1.4.2007", "1.5.2007"}) {
    Open(IDM_SELECT_RANGE, [end](HWND dialog) {
      SetField(dialog, 101, "1.3.2007");
      SetField(dialog, 102, end);
      Click(dialog, IDOK);
    });
  }
  EXPECT_EQ(CountDocuments(), 3);
  char title[128];
  GetWindowTextA(ActiveDocument(), title, sizeof title);
  EXPECT_STREQ(title, "Aachen (1.3.2007 - 1.5.2007)");
  GetWindowTextA(GetWindow(GetWindow(Program.mdiClient, GW_CHILD), GW_HWNDLAST), title, sizeof title);
  EXPECT_STREQ(title, "Aachen (20.11.2026 - 21.12.2026)");
}

TEST_F(SettingsDialogsTest, ARangeOfOneDayIsAccepted) {
  Open(IDM_SELECT_RANGE, [](HWND dialog) {
    SetField(dialog, 101, "5.1.2007");
    SetField(dialog, 102, "05.01.2007");
    Click(dialog, IDOK);
  });
  EXPECT_EQ(ShabbatTimesOf(ActiveDocument()).size(), 1u);
}

TEST_F(SettingsDialogsTest, BuiltInZmanimAreCheckedByTheirFlagAndOpenADocument) {
  Libraries().settings["shab30.ini|Settings|EnableZmanim"] = "";
  SendMessageA(frame_, WM_COMMAND, IDM_BUILT_IN_ZMANIM, 0);
  EXPECT_THAT(CallsWith("write"), ElementsAre("write shab30.ini|Settings|EnableZmanim=0"));
  EXPECT_EQ(CountDocuments(), 2);
  SendMessageA(frame_, WM_INITMENU, reinterpret_cast<WPARAM>(GetMenu(frame_)), 0);
  EXPECT_TRUE(GetMenuState(GetMenu(frame_), IDM_BUILT_IN_ZMANIM, MF_BYCOMMAND) & MF_CHECKED);
}

TEST_F(SettingsDialogsTest, TheUsersOwnCandleTimesOpenADocumentWhateverBecameOfThem) {
  SendMessageA(frame_, WM_COMMAND, IDM_CUSTOM_CANDLES, 0);
  EXPECT_THAT(CallsWith("custom times"), ElementsAre("custom times, owner yes"));
  EXPECT_EQ(CountDocuments(), 2);
  EXPECT_FALSE(ShabbatTimesOf(ActiveDocument()).empty());
}

TEST_F(SettingsDialogsTest, TheUsersOwnCandleTimesArePresetWithThePlaceOfTheDocumentInFront) {
  OptionalEntries.CandlesDoDialogAt = [](HWND owner, const char* place) {
    LogCall("custom times at '%s', owner %s", place, owner ? "yes" : "none");
  };
  std::strcpy(CurrentLocation.name, "Haifa");
  SetPlace(ActiveDocument(), {"Jerusalem", 3147, 3514, 2, 0});
  SendMessageA(frame_, WM_COMMAND, IDM_CUSTOM_CANDLES, 0);
  EXPECT_THAT(CallsWith("custom times"), ElementsAre("custom times at 'Jerusalem', owner yes"));
  EXPECT_EQ(CountDocuments(), 2);
  SendMessageA(frame_, WM_COMMAND, IDM_WINDOW_CLOSE_ALL, 0);
  CallLog().clear();
  SendMessageA(frame_, WM_COMMAND, IDM_CUSTOM_CANDLES, 0);
  EXPECT_THAT(CallsWith("custom times"), ElementsAre("custom times at 'Haifa', owner yes"));
}
