// The command "Save as document": its dialog, the file, what is remembered, and what goes wrong.
#include <windows.h>

#include <commctrl.h>

#include <fstream>

#include "app/active_document.h"
#include "app/compute_document.h"
#include "engine/optional_entries.h"
#include "resources/ids.h"
#include "tests/doubles/bound_doubles.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/exports_fixture.h"

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
namespace fs = std::filesystem;

namespace {

constexpr int kWeeks = IDC_DOCUMENT_FIRST_KIND + 1;
constexpr int kZmanim = IDC_DOCUMENT_FIRST_KIND + 3;
constexpr int kReadings = IDC_DOCUMENT_FIRST_KIND + 4;

class SaveDocumentTest : public ExportsFixture {
 protected:
  void SetUp() override {
    ExportsFixture::SetUp();
    Libraries().unknownSettingsAreMissing = true;
  }

  void WithSaving(const std::function<void(HWND dialog)>& drive) {
    WithDialog([&] { Command(IDM_SAVE_DOCUMENT); }, drive);
  }

  static void Choose(HWND dialog, int kind) { SendDlgItemMessageA(dialog, kind, BM_CLICK, 0, 0); }

  // What is saved under a name, after prepare has seen to the dialog, which then closes.
  std::string Saved(const wchar_t* name, const std::function<void(HWND)>& prepare) {
    System().savedDocument = folder_.wstring() + L"\\" + name;
    WithSaving([&](HWND dialog) {
      prepare(dialog);
      Click(dialog, IDOK);
      EXPECT_FALSE(IsWindowVisible(dialog));
    });
    std::ostringstream text;
    text << std::ifstream(fs::path(System().savedDocument), std::ios::binary).rdbuf();
    return text.str();
  }

  std::size_t CountOfFiles() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_), {}));
  }
};

}  // namespace

TEST_F(SaveDocumentTest, ShabbatTimesAreSavedAsTheExtensionSays) {
  EXPECT_THAT(Saved(L"times.txt", [](HWND) {}), AllOf(HasSubstr("Shabbat times: Aachen"), HasSubstr("Vayechi")));
  EXPECT_THAT(Saved(L"times.HTM", [](HWND) {}), StartsWith("<!DOCTYPE html>"));
  EXPECT_THAT(Saved(L"times.rtf", [](HWND) {}), StartsWith("{\\rtf1"));
  EXPECT_THAT(Saved(L"times.csv", [](HWND) {}), StartsWith("\xEF\xBB\xBF"
                                                           "Friday,"));
  EXPECT_THAT(Saved(L"times.ics", [](HWND) {}), StartsWith("BEGIN:VCALENDAR"));
  EXPECT_EQ(System().locks, 0);
}

TEST_F(SaveDocumentTest, ANameInHebrewIsTaken) {
  EXPECT_THAT(Saved(L"זמנים.txt", [](HWND) {}), HasSubstr("Aachen"));
}

TEST_F(SaveDocumentTest, ANameWithoutExtensionGetsThatOfTheType) {
  System().chosenType = 3;
  Saved(L"Plan 1.5", [](HWND) {});
  EXPECT_TRUE(fs::exists(folder_ / "Plan 1.5.csv"));
  EXPECT_EQ(Libraries().settings["shab30.ini|Document|Type"], "2");
}

TEST_F(SaveDocumentTest, TheOfferedNameHasContentsPlaceAndDays) {
  WithSaving([](HWND dialog) {
    Choose(dialog, kReadings);
    Click(dialog, IDOK);
    Click(dialog, IDCANCEL);
  });
  EXPECT_EQ(System().offeredDocument, L"Readings Aachen 2007-01-05 - 2007-01-06");
  EXPECT_THAT(CallsWith("write"), IsEmpty()) << "nothing was chosen";
}

TEST_F(SaveDocumentTest, ZmanimThatAreNotMarkedAreLeftOutAndRemembered) {
  const std::string csv = Saved(L"zmanim.csv", [](HWND dialog) {
    Choose(dialog, kZmanim);
    const HWND list = GetDlgItem(dialog, IDC_DOCUMENT_ZMANIM);
    EXPECT_TRUE(ListView_GetCheckState(list, 0));
    ListView_SetCheckState(list, 0, FALSE);
  });
  EXPECT_THAT(csv, AllOf(HasSubstr("Jewish date,Zman 1\r\n"), Not(HasSubstr("Zman 0"))));
  WithSaving([](HWND dialog) {
    EXPECT_EQ(IsDlgButtonChecked(dialog, kZmanim), BST_CHECKED);
    EXPECT_FALSE(ListView_GetCheckState(GetDlgItem(dialog, IDC_DOCUMENT_ZMANIM), 0));
    EXPECT_TRUE(ListView_GetCheckState(GetDlgItem(dialog, IDC_DOCUMENT_ZMANIM), 1));
    Click(dialog, IDCANCEL);
  });
}

TEST_F(SaveDocumentTest, WithoutAZmanTheUserIsAskedForOne) {
  WithSaving([](HWND dialog) {
    Choose(dialog, kZmanim);
    Click(dialog, IDC_DOCUMENT_NONE);
    Click(dialog, IDOK);
    EXPECT_THAT(CallsWith("message box"), ElementsAre(HasSubstr("No zman is chosen.")));
    EXPECT_TRUE(IsWindowVisible(dialog));
    Click(dialog, IDC_DOCUMENT_ALL);
    EXPECT_TRUE(ListView_GetCheckState(GetDlgItem(dialog, IDC_DOCUMENT_ZMANIM), 1));
    Click(dialog, IDCANCEL);
  });
  EXPECT_THAT(CallsWith("save dialog"), IsEmpty());
}

TEST_F(SaveDocumentTest, AReminderThatIsNoneIsToldOf) {
  WithSaving([](HWND dialog) {
    SetField(dialog, IDC_DOCUMENT_REMINDER, "20161");
    Click(dialog, IDOK);
    EXPECT_THAT(CallsWith("message box"), ElementsAre(HasSubstr("The reminder must be")));
    EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDC_DOCUMENT_REMINDER));
    Click(dialog, IDCANCEL);
  });
}

TEST_F(SaveDocumentTest, ADiskThatFailsIsToldAndTheOlderFileStaysWhole) {
  const fs::path file = folder_ / "older.html";
  std::ofstream(file) << "an older file";
  System().savedDocument = file.wstring();
  WithSaving([](HWND dialog) {
    System().diskIsFull = true;
    Click(dialog, IDOK);
    System().diskIsFull = false;
    EXPECT_THAT(CallsWith("message box"),
                ElementsAre(AllOf(HasSubstr("older.html could not be written."), HasSubstr("owner yes"))));
    EXPECT_TRUE(IsWindowVisible(dialog));
    EXPECT_TRUE(IsWindowEnabled(dialog));
    Click(dialog, IDCANCEL);
  });
  EXPECT_EQ(Bytes(file.string()), "an older file");
  EXPECT_EQ(CountOfFiles(), 1u);
}

TEST_F(SaveDocumentTest, ACalendarOfNothingIsNotWrittenAndTheUserIsTold) {
  Libraries().zmanMinutes = [](uint32_t, const CalendarDate&) { return -1; };
  CalculateShabbatTimes(ActiveDocument(), 5, 1, 2007, 6, 1, 2007);
  System().savedDocument = (folder_ / "none.ics").wstring();
  WithSaving([](HWND dialog) {
    Choose(dialog, kZmanim);
    Click(dialog, IDOK);
    EXPECT_THAT(CallsWith("message box"), ElementsAre(HasSubstr("so no file was written")));
    Click(dialog, IDCANCEL);
  });
  EXPECT_EQ(CountOfFiles(), 0u);
}

TEST_F(SaveDocumentTest, ChoicesThatCannotBeStoredKeepNoFileFromBeingWritten) {
  Libraries().writesFail = true;
  EXPECT_THAT(Saved(L"times.txt", [](HWND dialog) { Choose(dialog, kWeeks); }), HasSubstr("Aachen"));
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
}

TEST_F(SaveDocumentTest, ChoicesAreNotWrittenOverSettingsThatCannotBeRead) {
  OptionalEntries.ProfileCanRead = ProfileCanRead;
  Libraries().unreadFiles = {"shab30.ini"};
  EXPECT_THAT(Saved(L"times.txt", [](HWND dialog) { Choose(dialog, kWeeks); }), HasSubstr("Aachen"));
  EXPECT_THAT(CallsWith("write"), IsEmpty());
}

// The sun sets at three minutes after midnight, as in the far north in June; Rabbeinu Tam's nightfall is 72 minutes
// later.
TEST_F(SaveDocumentTest, BuiltInZmanimAfterMidnightAreOfTheNextDay) {
  Libraries().settings["shab30.ini|Settings|EnableZmanim"] = "0";
  Bound().sunset = [](const CalendarDate&) { return DoubledTime{0, 3}; };
  CalculateShabbatTimes(ActiveDocument(), 5, 1, 2007, 6, 1, 2007);
  const auto zmanim = [](HWND dialog) { Choose(dialog, kZmanim); };
  EXPECT_THAT(Saved(L"zmanim.csv", zmanim), AllOf(HasSubstr("<0:3> (+1)"), HasSubstr("<1:15> (+1)")));
  const std::string calendar = Saved(L"zmanim.ics", zmanim);
  EXPECT_THAT(calendar, HasSubstr("DTSTART:20070106T001500Z"));  // an hour ahead of UTC: 01:15 on Saturday
  EXPECT_THAT(calendar, Not(HasSubstr("DTSTART:20070105T001500Z")));
}

TEST_F(SaveDocumentTest, OnlyShabbatTimesHaveAReminder) {
  WithSaving([](HWND dialog) {
    const HWND reminder = GetDlgItem(dialog, IDC_DOCUMENT_REMINDER);
    EXPECT_TRUE(IsWindowEnabled(reminder));
    Choose(dialog, kWeeks);
    EXPECT_FALSE(IsWindowEnabled(reminder));
    Choose(dialog, IDC_DOCUMENT_FIRST_KIND);
    EXPECT_TRUE(IsWindowEnabled(reminder));
    Click(dialog, IDCANCEL);
  });
}

TEST_F(SaveDocumentTest, ATableThatWordProcessorsDoNotKnowIsNotWritten) {
  Libraries().zmanimCount = 61;  // and weekday, date and Jewish date: 64
  CalculateShabbatTimes(ActiveDocument(), 5, 1, 2007, 6, 1, 2007);
  System().savedDocument = (folder_ / "wide.rtf").wstring();
  WithSaving([](HWND dialog) {
    Choose(dialog, kZmanim);
    Click(dialog, IDOK);
    EXPECT_THAT(CallsWith("message box"), ElementsAre(HasSubstr("more than 63 columns")));
    EXPECT_TRUE(IsWindowVisible(dialog));
    Click(dialog, IDCANCEL);
  });
  EXPECT_EQ(CountOfFiles(), 0u);
  Libraries().zmanimCount = 60;
  CalculateShabbatTimes(ActiveDocument(), 5, 1, 2007, 6, 1, 2007);
  EXPECT_THAT(Saved(L"wide.rtf", [](HWND dialog) { Choose(dialog, kZmanim); }), HasSubstr("\\trowd"));
}

TEST_F(SaveDocumentTest, MarksOfAnotherSelectionStayRemembered) {
  Libraries().settings["shab30.ini|Document|ZmanimOfWeeks"] = "|Plag|Zman 1|";
  Saved(L"weeks.txt", [](HWND dialog) {
    Choose(dialog, kWeeks);
    ListView_SetCheckState(GetDlgItem(dialog, IDC_DOCUMENT_ZMANIM), 0, TRUE);
  });
  EXPECT_EQ(Libraries().settings["shab30.ini|Document|ZmanimOfWeeks"], "|Plag|Zman 0|Zman 1|");
}

TEST_F(SaveDocumentTest, WithoutADocumentNothingHappens) {
  SendMessageA(frame_, WM_COMMAND, IDM_WINDOW_CLOSE_ALL, 0);
  CallLog().clear();
  Command(IDM_SAVE_DOCUMENT);
  Command(IDM_PRINT_CALENDAR);
  EXPECT_THAT(CallLog(), IsEmpty());
}
