// The column of occasions in documents with a row for each day.
#include "app/active_document.h"
#include "app/compute_document.h"
#include "engine/optional_entries.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/doubles/occasions_double.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/exports_fixture.h"

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

constexpr int kDays = IDC_DOCUMENT_FIRST_KIND + 2;

class OccasionsColumnTest : public ExportsFixture {
 protected:
  void SetUp() override {
    ExportsFixture::SetUp();
    Libraries().unknownSettingsAreMissing = true;
    BindDoubledOccasions();
    Occasions().ofDay = [](const CalendarDate& date) -> std::vector<DoubledOccasion> {
      if (date.uDay == 5) return {{"Fast", "צום"}, {"Fast: begins", "צום: תחילה", 5, 11}, {"Lit", "הדלקה", 16, 27}};
      return {{"Molad", "מולד", OCCASIONS_NONE, OCCASIONS_NONE}};
    };
  }

  std::string Saved(const wchar_t* name, int kind, const char* language) {
    System().savedDocument = folder_.wstring() + L"\\" + name;
    WithDialog([&] { Command(IDM_SAVE_DOCUMENT); },
               [&](HWND dialog) {
                 Click(dialog, kind);
                 if (unmarkOccasions_) Click(dialog, IDC_DOCUMENT_OCCASIONS);
                 SendDlgItemMessageA(dialog, IDC_DOCUMENT_LANGUAGE, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                                     reinterpret_cast<LPARAM>(language));
                 Click(dialog, IDOK);
               });
    return Bytes(PathOf(std::filesystem::path(name).string()));
  }

  bool unmarkOccasions_ = false;  // in the dialog
};

}  // namespace

TEST_F(OccasionsColumnTest, DaysHaveTheirOccasionsWithTimesInTheUsersForm) {
  EXPECT_THAT(Saved(L"days.csv", kDays, "English"),
              AllOf(HasSubstr(",End of Shabbat,Occasions\r\n"),
                    HasSubstr(",\"Fast; Fast: begins <5:11>; Lit <16:27>\"\r\n"), HasSubstr(",Molad\r\n")));
}

// What the document's own columns tell, as it was calculated: the lighting on Friday's evening and the end on
// Shabbat's, which in the far north may be after midnight. 5 January 2007 is a Friday.
TEST_F(OccasionsColumnTest, LightingOnFridayAndTheEndOfShabbatAreLeftToTheirOwnColumns) {
  CalculateShabbatTimes(ActiveDocument(), 4, 1, 2007, 7, 1, 2007);
  Occasions().ofDay = [](const CalendarDate& date) -> std::vector<DoubledOccasion> {
    const auto at = [&](const char* what, int32_t hour, const char* moment) -> DoubledOccasion {
      return {what + std::to_string(date.uDay), "", hour, hour < 0 ? hour : 15, moment};
    };
    return {at("NightLit", 0, "candles"),      at("NightEnd", 0, "end"), at("Fast", 5, "fast-begins"),
            at("Lit", 16, "candles"),          at("End", 17, "end"),     at("NoLit", OCCASIONS_NONE, "candles"),
            at("NoEnd", OCCASIONS_NONE, "end")};
  };
  EXPECT_THAT(
      Saved(L"days.csv", kDays, "English"),
      AllOf(HasSubstr(
                ",\"NightLit4 <0:15>; NightEnd4 <0:15>; Fast4 <5:15>; Lit4 <16:15>; End4 <17:15>; NoLit4; NoEnd4\""),
            HasSubstr(",\"NightLit5 <0:15>; NightEnd5 <0:15>; Fast5 <5:15>; End5 <17:15>; NoEnd5\""),
            HasSubstr(",\"NightEnd6 <0:15>; Fast6 <5:15>; Lit6 <16:15>; NoLit6\""),
            HasSubstr(",\"NightLit7 <0:15>; Fast7 <5:15>; Lit7 <16:15>; End7 <17:15>; NoLit7; NoEnd7\"")));
}

TEST_F(OccasionsColumnTest, TitlesAreHebrewInAHebrewDocument) {
  EXPECT_THAT(Saved(L"days.csv", kDays, "Hebrew"),
              AllOf(HasSubstr(",מועדים\r\n"), HasSubstr(",\"צום; צום: תחילה <5:11>; הדלקה <16:27>\"\r\n")));
}

TEST_F(OccasionsColumnTest, TitlesAreEnglishInOtherLanguages) {
  EXPECT_THAT(Saved(L"days.csv", kDays, "German"),
              AllOf(HasSubstr(",Anlässe\r\n"), HasSubstr(",\"Fast; Fast: begins ")));
}

TEST_F(OccasionsColumnTest, TheyStandInTheDescriptionOfACalendarsDay) {
  EXPECT_THAT(Saved(L"days.ics", kDays, "English"), HasSubstr("Occasions: Fast\\; Fast: begins <5:11>"));
}

TEST_F(OccasionsColumnTest, OtherKindsHaveNone) {
  for (const int kind : {0, 1, 3, 4}) {
    EXPECT_THAT(Saved(L"other.txt", IDC_DOCUMENT_FIRST_KIND + kind, "English"),
                AllOf(Not(HasSubstr("Occasions")), Not(HasSubstr("Molad"))))
        << kind;
  }
  EXPECT_THAT(CallsWith("enumerate"), IsEmpty());
}

TEST_F(OccasionsColumnTest, TheyAreLeftOutWhereTheUserDoesNotWantThemWhichIsRemembered) {
  unmarkOccasions_ = true;
  EXPECT_THAT(Saved(L"days.csv", kDays, "English"), Not(HasSubstr("Occasions")));
  unmarkOccasions_ = false;
  EXPECT_THAT(Saved(L"days.csv", kDays, "English"), Not(HasSubstr("Occasions")));
  EXPECT_EQ(Libraries().settings["shab30.ini|Document|Occasions"], "0");
  EXPECT_THAT(CallsWith("enumerate"), IsEmpty());
}

TEST_F(OccasionsColumnTest, OnlyDaysCanHaveThem) {
  for (const unsigned command : {IDM_SAVE_DOCUMENT, IDM_PRINT_CALENDAR}) {
    WithDialog([&] { Command(command); },
               [&](HWND dialog) {
                 const HWND box = GetDlgItem(dialog, IDC_DOCUMENT_OCCASIONS);
                 EXPECT_EQ(IsDlgButtonChecked(dialog, IDC_DOCUMENT_OCCASIONS), BST_CHECKED);
                 for (int kind = 0; kind < 5; ++kind) {
                   Click(dialog, IDC_DOCUMENT_FIRST_KIND + kind);
                   EXPECT_EQ(IsWindowEnabled(box), kind == 2) << kind;
                 }
                 Click(dialog, IDCANCEL);
               },
               command == IDM_PRINT_CALENDAR ? "Print calendar" : "Save as document");
  }
}

TEST_F(OccasionsColumnTest, WithoutTheLibraryTheirBoxIsGreyAndWhatWasChosenStays) {
  OptionalEntries.OccasionsEnumerate = nullptr;
  WithDialog([&] { Command(IDM_SAVE_DOCUMENT); },
             [&](HWND dialog) {
               Click(dialog, kDays);
               EXPECT_FALSE(IsWindowEnabled(GetDlgItem(dialog, IDC_DOCUMENT_OCCASIONS)));
               Click(dialog, IDCANCEL);
             });
  Saved(L"days.csv", kDays, "English");
  EXPECT_EQ(Libraries().settings["shab30.ini|Document|Occasions"], "1");
}

TEST_F(OccasionsColumnTest, WithoutTheLibraryThereIsNone) {
  OptionalEntries.OccasionsEnumerate = nullptr;
  EXPECT_THAT(Saved(L"days.csv", kDays, "English"),
              AllOf(HasSubstr(",End of Shabbat\r\n"), Not(HasSubstr("Occasions"))));
}

TEST_F(OccasionsColumnTest, TheyAreAskedForAtTheDocumentsPlaceAndInItsRangeOnce) {
  SetPlace(ActiveDocument(), {"St. John's", 4734, -5243, -3, 30});
  Saved(L"days.html", kDays, "English");
  EXPECT_THAT(CallsWith("enumerate"), ElementsAre("enumerate 'St. John's' 4734 -5243 -3:30 5.1.2007-6.1.2007"));
}

// Five years: five stretches or six.
TEST_F(OccasionsColumnTest, ALongRangeIsAskedForInStretchesThatMeet) {
  CalculateShabbatTimes(ActiveDocument(), 1, 1, 2007, 31, 12, 2011);
  CallLog().clear();
  Saved(L"days.csv", kDays, "English");
  const std::vector<std::string> questions = CallsWith("enumerate");
  ASSERT_THAT(questions, SizeIs(testing::Ge(5u)));
  EXPECT_LE(questions.size(), 6u);
  EXPECT_THAT(questions.front(), HasSubstr(" 1.1.2007-"));
  const std::string text = Bytes(PathOf("days.csv"));
  std::size_t days = 0;
  for (std::size_t at = text.find("Molad"); at != text.npos; at = text.find("Molad", at + 1)) ++days;
  EXPECT_EQ(days, 1826u - 60u);  // all but the fifth of each month
}
