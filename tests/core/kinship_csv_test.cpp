#include "libraries/kinship/persons_csv.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "libraries/kinship/date_words.h"
#include "libraries/kinship/person_table.h"
#include "libraries/kinship/person_texts.h"
#include "tests/core/kinship_people.h"
#include "tests/core/written_files.h"

namespace kinship {
namespace {

using calendar::Date;
using persons::Calendar;
using persons::Kind;
using persons::Person;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<Person> People() {
  std::vector<Person> people = {
      Jewish(Kind::kYahrzeit, "Moshe, \"Moe\"", {14, calendar::kAdar, 5710}),
      Gregorian(Kind::kBirthday, "\xD7\xA9\xD7\xA8\xD7\x94", {14, 5, 1948}),
      Jewish(Kind::kOther, "Ivan", {30, calendar::kKislev, persons::kUnknownYear}),
      Jewish(Kind::kWedding, "Ruth", {3, calendar::kAdarII, 5784}),
  };
  people[0].adar = persons::AdarCustom::kBoth;
  people[0].notes = "Row 12\nHar HaMenuchot";
  people[1].event.afterSunset = true;
  people[2].title = "Aliyah";
  return people;
}

TEST(PersonsCsv, WhatIsWrittenIsReadAgain) {
  const Import import = ImportedFrom(written::CsvOf(CsvTableOf(People(), In2026())), {});
  EXPECT_EQ(import.problem, "");
  EXPECT_THAT(import.faults, IsEmpty());
  EXPECT_EQ(import.added, People());
}

// A spreadsheet would run such names; see formula_guard.h.
TEST(PersonsCsv, NamesLikeFormulasAreWrittenHarmlessAndReadAgain) {
  std::vector<Person> people(4, People().back());
  people[0].name = "=cmd|' /C calc'!A0";
  people[1].name = "'=1+1";
  people[2].name = "@Ruth";
  people[3].name = "'Aharon'";
  const std::string csv = written::CsvOf(CsvTableOf(people, In2026()));
  EXPECT_THAT(csv, HasSubstr("\n'=cmd|' /C calc'!A0,"));
  EXPECT_THAT(csv, HasSubstr("\n'Aharon',"));
  EXPECT_EQ(ImportedFrom(csv, {}).added, people);
}

// Other programs write an apostrophe where they mean one.
TEST(PersonsCsv, AnApostropheBeforeALetterStays) {
  const Import import = ImportedFrom("Name,Occasion,Date\n'Tal,Birthday,16.02.1950\n", {});
  EXPECT_THAT(import.added, ElementsAre(Gregorian(Kind::kBirthday, "'Tal", {16, 2, 1950})));
}

TEST(PersonsCsv, WhatIsThereAlreadyIsPassedOver) {
  std::vector<Person> present = People();
  present.pop_back();
  present[0].notes += "\n ";  // blanks that the table does not keep
  const Import import = ImportedFrom(written::CsvOf(CsvTableOf(People(), In2026())), present);
  EXPECT_THAT(import.added, ElementsAre(People().back()));
  EXPECT_EQ(import.alreadyThere, 3u);
}

TEST(PersonsCsv, ColumnsMayStandInAnyOrderAndOthersAreIgnored) {
  const Import import = ImportedFrom("date;colour;NAME; occasion \n16.02.1950;red;Ann;birthday\n\n", {});
  EXPECT_THAT(import.added, ElementsAre(Gregorian(Kind::kBirthday, "Ann", {16, 2, 1950})));
}

TEST(PersonsCsv, MissingColumnsAreNamed) {
  EXPECT_THAT(ImportedFrom("Name,Title\nAnn,x\n", {}).problem, HasSubstr("\"Occasion\", \"Date\""));
  EXPECT_THAT(ImportedFrom("", {}).problem, HasSubstr("\"Name\""));
  EXPECT_NE(ImportedFrom("Name,\"Title\nAnn", {}).problem, "");
}

TEST(PersonsCsv, WhatCannotBeReadIsToldByRowAndTheOthersAreTaken) {
  const Import import = ImportedFrom(
      "Name,Occasion,Date,Calendar,After sunset,Adar\n"
      "Ann,Birthday,30.02.1950,,,\n"
      "Ben,Party,16.02.1950,,,\n"
      ",Birthday,16.02.1950,,,\n"
      "Dan,Birthday,16.02.1950,Chinese,,\n"
      "Eve,Birthday,16.02.1950,,maybe,\n"
      "Fay,Yahrzeit,16 Adar 5710,,,Adar III\n"
      "Gad,Birthday,16.02.1950,,,\n"
      "H\xE4ns,Birthday,16.02.1950,,,\n",
      {});
  EXPECT_THAT(import.added, SizeIs(1));
  ASSERT_THAT(import.faults, SizeIs(7));
  EXPECT_EQ(import.faults[0], "Row 2 (Ann): 30 February does not exist in 1950.");
  EXPECT_THAT(import.faults[1], HasSubstr("Row 3 (Ben): the occasion \"Party\""));
  EXPECT_THAT(import.faults[2], HasSubstr("Row 4: Enter the name."));
  EXPECT_THAT(import.faults[3], HasSubstr("the calendar \"Chinese\""));
  EXPECT_THAT(import.faults[4], HasSubstr("after sunset \"maybe\""));
  EXPECT_THAT(import.faults[5], HasSubstr("the Adar \"Adar III\""));
  EXPECT_THAT(import.faults[6], HasSubstr("UTF-8"));
}

TEST(DateWords, DatesAreReadInTheFormsOfTables) {
  for (const char* const words : {"16.02.1950", "16.2.1950", "1950-02-16", "16 February 1950", "16  feb 1950"}) {
    EXPECT_EQ(ReadDateWords(words, {}).date, (Date{16, 2, 1950})) << words;
    EXPECT_EQ(ReadDateWords(words, {}).calendar, Calendar::kGregorian) << words;
  }
  EXPECT_EQ(ReadDateWords("16 Adar 5710", {}).date, (Date{16, calendar::kAdar, 5710}));
  EXPECT_EQ(ReadDateWords("16 Adar 5710", {}).calendar, Calendar::kJewish);
  EXPECT_EQ(ReadDateWords("3 adar ii 5784", {}).date, (Date{3, calendar::kAdarII, 5784}));
  EXPECT_EQ(ReadDateWords("1 Tishrei", {}).date, (Date{1, calendar::kTishri, persons::kUnknownYear}));
  EXPECT_EQ(ReadDateWords("3 Adar 2", {}).date, (Date{3, calendar::kAdarII, persons::kUnknownYear}));
}

TEST(DateWords, EarlyYearsAreWrittenSoThatTheyAreReadAgain) {
  const persons::EventDate event = {Calendar::kJewish, {3, calendar::kAdarII, 27}, false};
  EXPECT_EQ(DateWords(event), "3 Adar II 0027");
  EXPECT_EQ(ReadDateWords("3 Adar II 0027", {}).date, event.date);
}

TEST(DateWords, WhatCanBeReadInTwoWaysIsRefused) {
  EXPECT_EQ(ReadDateWords("3 Adar 5784", {}).message, "5784 has Adar I and Adar II; write which of them it is.");
  EXPECT_FALSE(ReadDateWords("02/03/1950", {}).date);
  EXPECT_THAT(ReadDateWords("16.02.1950", Calendar::kJewish).message, HasSubstr("month's name"));
  EXPECT_FALSE(ReadDateWords("16 Adar 5710", Calendar::kGregorian).date);
  EXPECT_EQ(ReadDateWords(" ", {}).message, "There is no date.");
}

TEST(PersonTexts, PastedTextsAreCleaned) {
  EXPECT_EQ(OneLine("  Anna\r\n\tMaria \x01"), "Anna Maria");
  EXPECT_EQ(SeveralLines("a\r\nb\rc\n\x02 d \n\n"), "a\nb\nc\n d");
}

TEST(PersonTexts, TextsThatCannotBeKeptAreToldWithTheirField) {
  Person person = Gregorian(Kind::kBirthday, " ", {16, 2, 1950});
  EXPECT_EQ(FaultIn(person)->field, TextField::kName);
  person.name = std::string(persons::kLongestName + 1, 'x');
  EXPECT_THAT(FaultIn(person)->message, HasSubstr("too long"));
  person.name.pop_back();
  EXPECT_FALSE(FaultIn(person));
  person.notes = std::string(persons::kLongestNotes + 1, 'x');
  EXPECT_EQ(FaultIn(person)->field, TextField::kNotes);
}

}  // namespace
}  // namespace kinship
