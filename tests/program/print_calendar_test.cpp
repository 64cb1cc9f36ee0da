// The command "Print calendar": its dialog, what is remembered, and the pages that the preview shows.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>

#include "app/active_document.h"
#include "app/compute_document.h"
#include "app/core/document_table.h"
#include "engine/bound_entries.h"
#include "publishing/preview_ids.h"
#include "resources/ids.h"
#include "tests/doubles/printing_calls.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/exports_fixture.h"

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

constexpr DocumentKind kKinds[] = {DocumentKind::kShabbatTimes, DocumentKind::kWeeks,    DocumentKind::kDays,
                                   DocumentKind::kZmanim,       DocumentKind::kReadings, DocumentKind::kDoorPage};

void NameMonth(uint32_t month, uint32_t, char* name, uint32_t size, uint32_t year, uint32_t) {
  std::snprintf(name, size, "Month %u of %u", static_cast<unsigned>(month), static_cast<unsigned>(year));
}

// What the preview showed, and how it was laid out.
struct Shown {
  std::string caption;
  std::string number;
  std::vector<std::string> texts;
};

class PrintCalendarTest : public ExportsFixture {
 protected:
  void SetUp() override {
    ExportsFixture::SetUp();
    Libraries().unknownSettingsAreMissing = true;
    CivilCalendar.DatefilterGetMonthNameEx = NameMonth;
    ResetPrinter();
  }

  void WithPrinting(const std::function<void(HWND dialog)>& drive) {
    WithDialog([&] { Command(IDM_PRINT_CALENDAR); },
               [&](HWND dialog) {
                 drive(dialog);
                 Click(dialog, IDCANCEL);
               },
               "Print calendar");
  }

  static void Choose(HWND dialog, DocumentKind kind) {
    Click(dialog, IDC_DOCUMENT_FIRST_KIND + static_cast<int>(kind));
  }
  static void ChooseYear(HWND dialog, int yearKind, const char* year) {
    Choose(dialog, DocumentKind::kDoorPage);
    Click(dialog, yearKind);
    SetField(dialog, IDC_DOCUMENT_YEAR, year);
  }
  static bool IsEnabled(HWND dialog, int id) { return IsWindowEnabled(GetDlgItem(dialog, id)) != FALSE; }
  static bool IsMarked(HWND dialog, int zman) {
    return ListView_GetCheckState(GetDlgItem(dialog, IDC_DOCUMENT_ZMANIM), zman) != 0;
  }

  // Presses the button, looks at the preview and closes it after a look at its page setup.
  static Shown Previewed(HWND dialog) {
    Shown shown;
    CallLog().clear();
    const auto look = [&](HWND preview) {
      shown.caption = TextOf(preview);
      shown.number = FieldText(preview, IDC_PREVIEW_NUMBER);
      Printer().shownTexts.clear();
      RedrawWindow(preview, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
      shown.texts = Printer().shownTexts;
      Click(preview, IDC_PREVIEW_SETUP);
      Click(preview, IDCANCEL);
    };
    WithDialog([&] { Click(dialog, IDOK); }, look, "Print Preview");
    return shown;
  }

  static std::string Setting(const std::string& key) { return Libraries().settings["shab30.ini|Document|" + key]; }
};

// As the doubled form of times writes it.
std::string CandlesOf(const ShabbatTimeEntry& entry) {
  return "<" + std::to_string(entry.candleHour) + ":" + std::to_string(entry.candleMinute) + ">";
}

int CountOf(const std::vector<std::string>& texts, const std::string& text) {
  return static_cast<int>(std::ranges::count(texts, text));
}

}  // namespace

TEST_F(PrintCalendarTest, ZmanimAndTheYearCanBeChosenWhereTheyCount) {
  WithPrinting([](HWND dialog) {
    for (const DocumentKind kind : kKinds) {
      Choose(dialog, kind);
      const int number = static_cast<int>(kind);
      for (const int id : {IDC_DOCUMENT_ZMANIM, IDC_DOCUMENT_ALL, IDC_DOCUMENT_NONE}) {
        EXPECT_EQ(IsEnabled(dialog, id), HasZmanim(kind)) << number;
      }
      for (const int id : {IDC_DOCUMENT_JEWISH_YEAR, IDC_DOCUMENT_CIVIL_YEAR, IDC_DOCUMENT_YEAR}) {
        EXPECT_EQ(IsEnabled(dialog, id), kind == DocumentKind::kDoorPage) << number;
      }
      EXPECT_EQ(IsMarked(dialog, 0), kind == DocumentKind::kZmanim) << "of the others none is usual " << number;
    }
  });
}

TEST_F(PrintCalendarTest, TheYearIsThatOfTheDocumentUntilAnotherIsTyped) {
  WithPrinting([](HWND dialog) {
    EXPECT_EQ(IsDlgButtonChecked(dialog, IDC_DOCUMENT_JEWISH_YEAR), UINT{BST_CHECKED});
    EXPECT_EQ(FieldText(dialog, IDC_DOCUMENT_YEAR), "5767");
    Choose(dialog, DocumentKind::kDoorPage);
    Click(dialog, IDC_DOCUMENT_CIVIL_YEAR);
    EXPECT_EQ(FieldText(dialog, IDC_DOCUMENT_YEAR), "2007");
    SetField(dialog, IDC_DOCUMENT_YEAR, "2010");
    Click(dialog, IDC_DOCUMENT_CIVIL_YEAR);
    EXPECT_EQ(FieldText(dialog, IDC_DOCUMENT_YEAR), "2010");
    Click(dialog, IDC_DOCUMENT_JEWISH_YEAR);
    EXPECT_EQ(FieldText(dialog, IDC_DOCUMENT_YEAR), "5767");
  });
}

// Civil years are those of ranges, Jewish ones those of the doubled calendar that lie in them as a whole.
TEST_F(PrintCalendarTest, AYearThatIsNoneIsToldOfAndHasTheFocus) {
  const struct {
    int kind;
    const char* year;
    const char* text;
  } wrong[] = {{IDC_DOCUMENT_CIVIL_YEAR, "1582", "The civil year must be a number from 1583 to 3000."},
               {IDC_DOCUMENT_CIVIL_YEAR, "3001", "The civil year must be a number from 1583 to 3000."},
               {IDC_DOCUMENT_CIVIL_YEAR, "", "The civil year must be a number from 1583 to 3000."},
               {IDC_DOCUMENT_CIVIL_YEAR, "two", "The civil year must be a number from 1583 to 3000."},
               {IDC_DOCUMENT_JEWISH_YEAR, "5343", "The Jewish year must be a number from 5344 to 6759."},
               {IDC_DOCUMENT_JEWISH_YEAR, "6760", "The Jewish year must be a number from 5344 to 6759."},
               {IDC_DOCUMENT_JEWISH_YEAR, "99999999999", "The Jewish year must be a number from 5344 to 6759."}};
  WithPrinting([&](HWND dialog) {
    for (const auto& [kind, year, text] : wrong) {
      ChooseYear(dialog, kind, year);
      SetFocus(GetDlgItem(dialog, IDOK));
      CallLog().clear();
      Click(dialog, IDOK);
      EXPECT_THAT(CallsWith("message box"), ElementsAre(AllOf(HasSubstr(text), HasSubstr("owner yes")))) << year;
      EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDC_DOCUMENT_YEAR)) << year;
      EXPECT_THAT(CallsWith("write"), IsEmpty()) << year;
    }
  });
}

TEST_F(PrintCalendarTest, AYearThatIsNotUsedMayBeAny) {
  WithPrinting([](HWND dialog) {
    ChooseYear(dialog, IDC_DOCUMENT_CIVIL_YEAR, "");
    Choose(dialog, DocumentKind::kReadings);
    EXPECT_EQ(Previewed(dialog).caption, "Readings: Aachen - Print Preview");
    EXPECT_THAT(CallsWith("message box"), IsEmpty());
  });
}

TEST_F(PrintCalendarTest, WithoutAZmanThereIsNoPreview) {
  WithPrinting([](HWND dialog) {
    Choose(dialog, DocumentKind::kZmanim);
    Click(dialog, IDC_DOCUMENT_NONE);
    Click(dialog, IDOK);
    EXPECT_THAT(CallsWith("message box"), ElementsAre(HasSubstr("No zman is chosen.")));
    EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDC_DOCUMENT_ZMANIM));
  });
}

TEST_F(PrintCalendarTest, TheDocumentIsShownAsATableWithTheUsualMargins) {
  const ShabbatTimeEntry entry = ShabbatTimesOf(ActiveDocument()).front();
  WithPrinting([&](HWND dialog) {
    const Shown shown = Previewed(dialog);
    EXPECT_EQ(shown.caption, "Shabbat times: Aachen - Print Preview");
    EXPECT_EQ(shown.number, "Page 1 of 1");
    EXPECT_THAT(shown.texts, AllOf(Contains("05.01.2007"), Contains(CandlesOf(entry)), Contains("Vayechi")));
    EXPECT_THAT(CallsWith("page setup"), ElementsAre("page setup with margins of 1905"));
    EXPECT_THAT(CallsWith("sunset"), IsEmpty()) << "the times are the document's own";
    EXPECT_TRUE(IsWindowEnabled(dialog));
  });
  EXPECT_EQ(System().locks, 0);
}

TEST_F(PrintCalendarTest, ZmanimThatAreNotMarkedAreNotPrinted) {
  WithPrinting([](HWND dialog) {
    Choose(dialog, DocumentKind::kZmanim);
    ListView_SetCheckState(GetDlgItem(dialog, IDC_DOCUMENT_ZMANIM), 0, FALSE);
    EXPECT_THAT(Previewed(dialog).texts, AllOf(Contains("Zman 1"), Not(Contains("Zman 0"))));
  });
}

TEST_F(PrintCalendarTest, ChoicesAreRememberedWhenThePagesHaveBeenLookedAt) {
  Printer().chosenMargin = 2540;
  LRESULT hebrew = CB_ERR;
  WithPrinting([&](HWND dialog) {
    ChooseYear(dialog, IDC_DOCUMENT_CIVIL_YEAR, "2007");
    Previewed(dialog);
    Choose(dialog, DocumentKind::kWeeks);
    Click(dialog, IDC_DOCUMENT_ALL);
    ListView_SetCheckState(GetDlgItem(dialog, IDC_DOCUMENT_ZMANIM), 0, FALSE);
    hebrew = SendDlgItemMessageA(dialog, IDC_DOCUMENT_LANGUAGE, CB_SELECTSTRING, WPARAM(-1), LPARAM("Hebrew"));
    EXPECT_THAT(Previewed(dialog).texts, Contains("1Zman")) << "in Hebrew, in the order in which it is read";
  });
  EXPECT_EQ(Setting("PrintedKind"), "1");
  EXPECT_EQ(Setting("Kind"), "") << "what is saved is chosen apart";
  EXPECT_EQ(Setting("Year"), "1");
  EXPECT_EQ(Setting("ZmanimOfWeeks"), "|Zman 1|");
  EXPECT_EQ(Setting("PageSetup"), "0 0 2540 2540 2540 2540");
  WithPrinting([&](HWND dialog) {
    EXPECT_EQ(IsDlgButtonChecked(dialog, IDC_DOCUMENT_FIRST_KIND + 1), UINT{BST_CHECKED});
    EXPECT_EQ(IsDlgButtonChecked(dialog, IDC_DOCUMENT_CIVIL_YEAR), UINT{BST_CHECKED});
    EXPECT_EQ(FieldText(dialog, IDC_DOCUMENT_YEAR), "2007");
    EXPECT_EQ(SendDlgItemMessageA(dialog, IDC_DOCUMENT_LANGUAGE, CB_GETCURSEL, 0, 0), hebrew);
    EXPECT_FALSE(IsMarked(dialog, 0));
    EXPECT_TRUE(IsMarked(dialog, 1));
    Previewed(dialog);
    EXPECT_THAT(CallsWith("page setup"), ElementsAre("page setup with margins of 2540"));
  });
}

TEST_F(PrintCalendarTest, AYearThatTheDocumentDoesNotHaveIsCalculatedForOnePage) {
  WithPrinting([](HWND dialog) {
    ChooseYear(dialog, IDC_DOCUMENT_CIVIL_YEAR, "2010");
    Bound().sunset = [](const CalendarDate& date) {
      return date.uYear == 2010 ? DoubledTime{18, 30} : DoubledTime{12, 0};
    };
    const Shown shown = Previewed(dialog);
    EXPECT_EQ(shown.caption, "Shabbat times: Aachen - Print Preview");
    EXPECT_EQ(shown.number, "Page 1 of 1");
    EXPECT_THAT(shown.texts, AllOf(Contains("01.01."), Contains("31.12."), Not(Contains("05.01."))));
    EXPECT_THAT(CallsWith("page setup"), ElementsAre("page setup with margins of 1270"));
    EXPECT_THAT(CallsWith("sunset"), Not(IsEmpty()));
  });
  EXPECT_THAT(ShabbatTimesOf(ActiveDocument()), SizeIs(1)) << "the document stays as it is";
}

// 2007 has 52 Fridays, from 5 January to 28 December.
TEST_F(PrintCalendarTest, AYearThatTheDocumentHasIsItsOwn) {
  CalculateShabbatTimes(ActiveDocument(), 1, 12, 2006, 31, 1, 2008);
  const std::string candles = CandlesOf(ShabbatTimesOf(ActiveDocument()).front());
  Bound().sunset = [](const CalendarDate&) { return DoubledTime{18, 0}; };
  WithPrinting([&](HWND dialog) {
    ChooseYear(dialog, IDC_DOCUMENT_CIVIL_YEAR, "2007");
    const Shown shown = Previewed(dialog);
    EXPECT_EQ(shown.number, "Page 1 of 1");
    EXPECT_EQ(CountOf(shown.texts, candles), 52);
    EXPECT_THAT(shown.texts, AllOf(Contains("05.01."), Contains("28.12."), Not(Contains("29.12."))));
    EXPECT_THAT(shown.texts, Contains("Vayechi"));
    EXPECT_THAT(CallsWith("sunset"), IsEmpty());
    EXPECT_THAT(CallsWith("page setup"), ElementsAre("page setup with margins of 1270"));
    ChooseYear(dialog, IDC_DOCUMENT_CIVIL_YEAR, "2008");
    EXPECT_EQ(CountOf(Previewed(dialog).texts, candles), 0) << "a part of it is not enough";
  });
}

// 1 January 2011 is a Shabbat.
TEST_F(PrintCalendarTest, AYearThatBeginsWithShabbatHasTheFridayBeforeIt) {
  CalculateShabbatTimes(ActiveDocument(), 1, 1, 2011, 31, 12, 2011);
  WithPrinting([](HWND dialog) {
    ChooseYear(dialog, IDC_DOCUMENT_CIVIL_YEAR, "2011");
    EXPECT_THAT(Previewed(dialog).texts, AllOf(Contains("31.12."), Contains("07.01."), Contains("30.12.")));
  });
}

TEST_F(PrintCalendarTest, AJewishYearHasItsOwnDays) {
  WithPrinting([](HWND dialog) {
    ChooseYear(dialog, IDC_DOCUMENT_JEWISH_YEAR, "5767");
    EXPECT_THAT(Previewed(dialog).texts, AllOf(Contains("05.01."), Contains(HasSubstr("5767"))));
  });
  EXPECT_EQ(Setting("Year"), "0");
}
