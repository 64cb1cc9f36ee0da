// Names around documents: Hebrew names of zmanim, names of files, remembered zmanim, and years of the door page.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/core/chosen_names.h"
#include "app/core/display_hebrew.h"
#include "app/core/document_name.h"
#include "app/core/door_year.h"
#include "libraries/hours/catalogue.h"
#include "libraries/hours/description_text.h"
#include "tests/core/app_document_fixture.h"
#include "zmanim/core/builtin_zmanim_texts.h"

using testing::ElementsAre;
using testing::IsEmpty;

TEST(DisplayHebrew, EveryNameOfTheProgramAndTheLibraryComesBackAsItWas) {
  for (const BuiltInZmanText& zman : kBuiltInZmanimTexts) {
    EXPECT_EQ(LogicalHebrew(DisplayHebrewName(zman.hebrew)), zman.hebrew);
  }
  for (const hours::CatalogueZman& zman : hours::Catalogue()) {
    EXPECT_EQ(LogicalHebrew(hours::DisplayHebrew(hours::EightBitFromUtf8(zman.hebrew))), zman.hebrew);
  }
}

TEST(DisplayHebrew, NamesOfTheUsersOwnComeBackToo) {
  for (const char* const name :
       {"שקיעה 12:45", "זמן Rabbi X מעלות 16.1 [א]", "Sunrise 72", "א", "12", "", "90-72 דקות"}) {
    EXPECT_EQ(LogicalHebrew(hours::DisplayHebrew(hours::EightBitFromUtf8(name))), name);
  }
}

TEST(DocumentName, OfferedNamesHaveNoCharactersThatFilesCannotHave) {
  EXPECT_EQ(FileNameOf("Zmanim", "St. Louis", "2026-11-22"), "Zmanim St. Louis 2026-11-22");
  EXPECT_EQ(FileNameOf("Zmanim",
                       "a<b>:\"/\\|?*\t\xE2\x80\xAE"
                       "c",
                       "x"),
            "Zmanim abc x");
  EXPECT_EQ(FileNameOf("זמני היום", "ירושלים", "2026"), "זמני היום ירושלים 2026");
  EXPECT_EQ(FileNameOf("a", "b", " . "), "a b");
  EXPECT_EQ(FileNameOf(std::string(300, 'k'), "b", "c"), std::string(40, 'k') + " b c");
  EXPECT_EQ(FileNameOf("a", std::string(300, 'b'), "2026"), "a " + std::string(95, 'b') + " 2026");
}

TEST(DocumentName, TheExtensionSaysTheType) {
  EXPECT_EQ(TypeOfName("a.HTM"), DocumentType::kHtml);
  EXPECT_EQ(TypeOfName("C:\\x.txt\\a.Html"), DocumentType::kHtml);
  EXPECT_EQ(TypeOfName("a.rtf"), DocumentType::kRtf);
  EXPECT_EQ(TypeOfName("a.csv"), DocumentType::kCsv);
  EXPECT_EQ(TypeOfName("a.b.ics"), DocumentType::kCalendar);
  EXPECT_EQ(TypeOfName("a.txt"), DocumentType::kText);
  for (const char* const none : {"a", "a.doc", "C:\\x.txt\\a", "a.", ""}) EXPECT_EQ(TypeOfName(none), std::nullopt);
}

TEST(DocumentName, PointsWithinANameBeginNoExtension) {
  for (const char* const name : {"a.html", "a.doc", "a.b.7z"}) EXPECT_TRUE(HasExtension(name)) << name;
  for (const char* const name : {"Zmanim St. Louis", "Plan 1.5", "a", "a.", "x.txt\\a", "a.longer"}) {
    EXPECT_FALSE(HasExtension(name)) << name;
  }
}

TEST(ChosenNames, AreKeptBetweenBars) {
  EXPECT_EQ(JoinedNames({"Shkia", "Kriat Shema (GR\"O)"}), "|Shkia|Kriat Shema (GR\"O)|");
  EXPECT_EQ(JoinedNames({}), "|");
  EXPECT_THAT(SplitNames("|Shkia|Kriat Shema (GR\"O)|"), ElementsAre("Shkia", "Kriat Shema (GR\"O)"));
  EXPECT_THAT(SplitNames("|"), IsEmpty());
  EXPECT_THAT(SplitNames(""), IsEmpty());
  EXPECT_THAT(SplitNames("a||b"), ElementsAre("a", "b"));
}

TEST(ChosenNames, ZmanimThatAreNoLongerSelectedAreLeftOut) {
  const std::vector<DocumentZman> zmanim = {{"A", ""}, {"B", ""}, {"C", ""}};
  EXPECT_THAT(ZmanimNamed(zmanim, {"C", "X", "A"}), ElementsAre(0u, 2u));
}

TEST(ChosenNames, TheUsualOnesAreOneOfEachSort) {
  const std::vector<DocumentZman> zmanim = {{"Tzait HaChochavim (R. Tam, 72 min)", ""},
                                            {"HaNetz HaChama", ""},
                                            {"Kriat Shema (M\"A)", ""},
                                            {"Kriat Shema (GR\"O)", ""},
                                            {"Chatzot", ""},
                                            {"Chatzot (half of sunrise to sunset)", ""},
                                            {"3 Small Stars (8.5°)", ""}};
  EXPECT_THAT(UsualZmanim(zmanim), ElementsAre(1u, 3u, 4u, 6u));
  EXPECT_THAT(UsualZmanim({}), IsEmpty());
}

// Rosh Hashana 5787 is 12 September 2026, 5788 2 October 2027 (Hebcal).
TEST(DoorYears, AJewishYearIsFromTishriToElul) {
  const DocumentFakes services;
  const auto days = DaysOfYear(services, DoorYear::kJewish, 5787);
  ASSERT_TRUE(days);
  EXPECT_EQ(services.AbsoluteDay(days->start), services.AbsoluteDay({12, 9, 2026}));
  EXPECT_EQ(services.AbsoluteDay(days->end), services.AbsoluteDay({1, 10, 2027}));
  EXPECT_EQ(YearOf(services, DoorYear::kJewish, {11, 9, 2026}), 5786u);
  EXPECT_EQ(YearOf(services, DoorYear::kCivil, {11, 9, 2026}), 2026u);
}

TEST(DoorYears, AreWithinTheYearsOfRanges) {
  const DocumentFakes services;
  for (const DoorYear kind : {DoorYear::kJewish, DoorYear::kCivil}) {
    const YearLimits limits = LimitsOf(services, kind);
    EXPECT_FALSE(DaysOfYear(services, kind, limits.first - 1));
    EXPECT_FALSE(DaysOfYear(services, kind, limits.last + 1));
    for (const uint32_t year : {limits.first, limits.last}) {
      const auto days = DaysOfYear(services, kind, year);
      ASSERT_TRUE(days) << year;
      EXPECT_GE(days->start.uYear, 1583u);
      EXPECT_LE(days->end.uYear, 3000u);
    }
  }
  EXPECT_FALSE(DaysOfYear(services, DoorYear::kJewish, 0));
}

TEST(ChosenNames, ThoseOfAnotherSelectionStayRemembered) {
  const std::vector<DocumentZman> zmanim = {{"Shkia", ""}, {"Chatzot", ""}};
  EXPECT_THAT(NamesOfOthers(zmanim, {"Shkia", "Plag", "Chatzot", "Mincha"}), testing::ElementsAre("Plag", "Mincha"));
  EXPECT_EQ(NamesOfOthers(zmanim, std::vector<std::string>(150, "Plag")).size(), 100u);
}
