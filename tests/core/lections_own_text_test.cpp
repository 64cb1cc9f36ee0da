// The user's own texts: the lines of their file, what is refused, and what they do to a day's texts.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "libraries/lections/encoded_text.h"
#include "libraries/lections/own_readings.h"
#include "libraries/lections/own_text.h"
#include "tests/core/lections_days.h"

namespace {

using namespace lections;
using calendar::Land;
using lections_test::JewishDate;
using lections_test::Of;

constexpr char kNoachLine[] = "portion Noach | haftarah 1 | diaspora | Sephardi | all | instead | Isaiah 54:1-10";

Settings Sephardi(uint32_t language = 1) {
  Settings settings = Of(Land::kDiaspora, Customs::kSephardi);
  settings.language = language;
  return settings;
}

// The texts of 2 November 2024 (Noach, Rosh Chodesh) or another day, with the own ones of a file.
ReadingTexts With(const std::string& file, const Settings& settings, calendar::Date civil = {2, 11, 2024}) {
  const OwnReadings own(OwnFileIn(file).texts);
  return TextsOn(JewishDate(civil.day, civil.month, civil.year), settings, &own);
}

TEST(LectionsOwnText, ALineIsReadAndWrittenAlike) {
  const auto entry = OwnEntryIn(kNoachLine);
  ASSERT_TRUE(entry);
  EXPECT_EQ(KeyOf(entry->place.when), "portion Noach");
  EXPECT_EQ(entry->place.slot, Slot::kHaftarah1);
  EXPECT_EQ(entry->place.land, InLand::kDiaspora);
  EXPECT_EQ(entry->place.listing, Listing::kSephardi);
  EXPECT_EQ(entry->place.language, kAnyLanguage);
  EXPECT_EQ(entry->text, (OwnText{How::kInstead, "Isaiah 54:1-10"}));
  EXPECT_EQ(LineOf(*entry), kNoachLine);
  for (const char* line :
       {"date 15 Av 5787 | torah 1 | all | all | Hebrew | after | (ט״ו באב)",
        "occasion Sukkot, day 1, Shabbat | extra | Israel | several | English (Ashkenazi spelling) | instead | a|b",
        "date 7 Adar | torah 3 | all | Ashkenazi | all | after | %20100%25%20"}) {
    const auto read = OwnEntryIn(line);
    ASSERT_TRUE(read) << line;
    EXPECT_EQ(LineOf(*read), line);
  }
  EXPECT_EQ(OwnEntryIn("date 7 Adar|torah 3|all|Ashkenazi|all|after|%20100%25%20 ")->text.text, " 100% ");
  EXPECT_EQ(OwnEntryIn("date 7 Adar | haftarah 1 | all | all | all | instead |")->text.text, "");
}

TEST(LectionsOwnText, LinesThatAreNoneAreNobodys) {
  for (const char* line :
       {"", "# portion Noach | haftarah 1 | all | all | all | instead | A", "portion Noach | haftarah 1 | all",
        "portion Noah | haftarah 1 | all | all | all | instead | A",
        "portion Noach | haftarah 4 | all | all | all | instead | A",
        "portion Noach | torah 1 | here | all | all | instead | A",
        "portion Noach | torah 1 | all | mine | all | instead | A",
        "portion Noach | torah 1 | all | all | Latin | instead | A",
        "portion Noach | torah 1 | all | all | all | before | A",
        "portion Noach | torah 1 | all | all | all | instead | %2",
        "portion Noach | torah 1 | all | all | all | instead |",
        "portion Noach | torah 1 | all | all | all | instead | a{b",
        "portion Noach | torah 1 | all | all | all | after | \xFF"}) {
    EXPECT_FALSE(OwnEntryIn(line)) << line;
  }
}

TEST(LectionsOwnText, AFileTellsItsDamagedLinesAndChangesKeepAllElse) {
  const std::string file = std::string("\xEF\xBB\xBF# ours\n\nnonsense\n") + kNoachLine + "\n" +
                           "portion Noach | haftarah 1 | diaspora | Sephardi | all | instead | Later\nmore";
  const OwnFile read = OwnFileIn(file);
  EXPECT_EQ(read.damagedLines, (std::vector<int>{3, 6}));
  ASSERT_EQ(read.texts.size(), 1u);
  EXPECT_EQ(read.texts.begin()->second.text, "Later");  // the last line counts

  const OwnEntry added = *OwnEntryIn("date 7 Adar | torah 2 | all | all | all | instead | B");
  OwnChanges changes = {{read.texts.begin()->first, OwnText{How::kAfter, "C"}}, {added.place, added.text}};
  EXPECT_EQ(Applied(changes, file),
            "\xEF\xBB\xBF# ours\n\nnonsense\nportion Noach | haftarah 1 | diaspora | Sephardi | all | after | C\nmore\n"
            "date 7 Adar | torah 2 | all | all | all | instead | B\n");
  changes = {{read.texts.begin()->first, std::nullopt}};
  EXPECT_EQ(Applied(changes, file), "\xEF\xBB\xBF# ours\n\nnonsense\nmore");
  const std::string made = Applied({{added.place, added.text}}, "");
  EXPECT_TRUE(made.starts_with("# Own texts")) << made;
  EXPECT_TRUE(made.ends_with("date 7 Adar | torah 2 | all | all | all | instead | B\r\n")) << made;
  EXPECT_EQ(OwnFileIn(made).texts.size(), 1u);
  EXPECT_TRUE(OwnFileIn(made).damagedLines.empty());
}

// 255 is the longest text that a record of the program's has room for; letters count once, whatever their bytes here.
TEST(LectionsOwnText, TextsOf96And255BytesAreTakenAndOf300Refused) {
  const OwnPlace place = {.when = *WhenIn("portion Noach")};
  const auto faultOf = [&](const std::string& text, Slot slot = Slot::kTorah1, uint32_t language = kAnyLanguage) {
    OwnPlace at = place;
    at.slot = slot;
    at.language = language;
    return FaultOf(at, {How::kInstead, text});
  };
  std::string hebrew;
  for (int i = 0; i < 255; ++i) hebrew += "א";
  for (const size_t length : {96u, 255u}) {
    EXPECT_EQ(faultOf(std::string(length, 'a')), Fault::kNone);
    EXPECT_EQ(
        With("portion Noach | torah 1 | all | all | all | instead | " + std::string(length, 'a'), Sephardi()).torah[0],
        std::string(length, 'a'));
  }
  EXPECT_EQ(faultOf(hebrew), Fault::kNone);
  EXPECT_EQ(faultOf(std::string(256, 'a')), Fault::kTooLong);
  EXPECT_EQ(faultOf(hebrew + "א"), Fault::kTooLong);
  EXPECT_EQ(faultOf(std::string(300, 'a')), Fault::kTooLong);
  // What is added to a text of the program's ends where the record does.
  EXPECT_EQ(
      With("portion Noach | torah 1 | all | all | all | after | " + std::string(255, 'a'), Sephardi()).torah[0].size(),
      255u);
}

TEST(LectionsOwnText, MarksAndLettersThatALanguageLacksAreRefused) {
  OwnPlace place = {.when = *WhenIn("portion Noach"), .slot = Slot::kHaftarah1};
  for (const char* text : {"a{", "}", "\\", "a\tb", "a\nb", "\x7F"}) {
    EXPECT_EQ(FaultOf(place, {How::kInstead, text}), Fault::kMark) << text;
  }
  EXPECT_EQ(FaultOf(place, {How::kInstead, "漢"}), Fault::kLetters);
  EXPECT_EQ(FaultOf(place, {How::kInstead, "נח"}), Fault::kNone);  // Hebrew has it
  place.language = 1;
  EXPECT_EQ(FaultOf(place, {How::kInstead, "נח"}), Fault::kLetters);
  EXPECT_EQ(FaultOf(place, {How::kInstead, ""}), Fault::kNone);
  place.language = 4;
  EXPECT_EQ(FaultOf(place, {How::kInstead, "נח; +"}), Fault::kNone);
  place.slot = Slot::kExtra;  // in windows-1252 whatever the language
  EXPECT_EQ(FaultOf(place, {How::kInstead, "נח"}), Fault::kLetters);
  place.slot = Slot::kTorah1;
  EXPECT_EQ(FaultOf(place, {How::kInstead, "  "}), Fault::kNoTitle);
  EXPECT_EQ(FaultOf(place, {How::kAfter, ""}), Fault::kNone);
  EXPECT_EQ(FirstMissing("Jesaja נח", CodePage::kWestern), "נ");
  EXPECT_EQ(FirstMissing("Jesaja", CodePage::kWestern), "");
}

TEST(LectionsOwnReadings, StandInTheirSlotAndNowhereElse) {
  const Settings settings = Sephardi();
  const ReadingTexts plain = With("", settings);
  ReadingTexts texts = With(kNoachLine, settings);
  EXPECT_EQ(texts.haftarot[0], "Isaiah 54:1-10");
  EXPECT_EQ(texts.torah, plain.torah);
  EXPECT_EQ(With(kNoachLine, settings, {9, 11, 2024}).haftarot, With("", settings, {9, 11, 2024}).haftarot);
  EXPECT_EQ(With(kNoachLine, Of(Land::kDiaspora, Customs::kAshkenazi)).haftarot[0], plain.haftarot[0]);
  EXPECT_EQ(With(kNoachLine, Of(Land::kDiaspora, Customs::kBoth)).haftarot[0], plain.haftarot[0]);
  EXPECT_EQ(With(kNoachLine, Of(Land::kDiaspora, Customs::kSephardi, true)).haftarot[0], plain.haftarot[0]);
  EXPECT_EQ(With(kNoachLine, Of(Land::kIsrael, Customs::kSephardi)).haftarot[0], plain.haftarot[0]);
  EXPECT_EQ(With(kNoachLine, Sephardi(4)).haftarot[0], "Isaiah 54:1-10");
  texts = With(
      "portion Noach | haftarah 3 | all | all | all | instead | C\nportion Noach | extra | all | all | all | after | D",
      settings);
  EXPECT_EQ(texts.haftarot[2], "C");
  EXPECT_EQ(texts.additional, plain.additional.empty() ? "D" : plain.additional + " D");
}

TEST(LectionsOwnReadings, TheMoreParticularHasTheLastWord) {
  const std::string all = "portion Noach | haftarah 1 | all | all | all | instead | All\n";
  EXPECT_EQ(With(all, Sephardi()).haftarot[0], "All");
  EXPECT_EQ(With(all + kNoachLine, Sephardi()).haftarot[0], "Isaiah 54:1-10");
  EXPECT_EQ(With(std::string(kNoachLine) + "\n" + all, Sephardi()).haftarot[0], "Isaiah 54:1-10");
  const std::string occasion =
      "occasion Rosh Chodesh Cheshvan, Shabbat | haftarah 1 | all | all | all | instead | New\n";
  EXPECT_EQ(With(occasion + kNoachLine, Sephardi()).haftarot[0], "New");
  const std::string date = "date 1 Cheshvan | haftarah 1 | all | all | all | after | (first)\n";
  EXPECT_EQ(With(date + occasion, Sephardi()).haftarot[0], "New (first)");
  const std::string once = "date 1 Cheshvan 5785 | haftarah 1 | all | all | all | instead | Once\n";
  EXPECT_EQ(With(once + date + occasion, Sephardi()).haftarot[0], "Once");
  const std::string english = "portion Noach | haftarah 1 | all | all | English | instead | E\n";
  EXPECT_EQ(With(english + kNoachLine, Sephardi()).haftarot[0], "E");
  EXPECT_EQ(With(english + kNoachLine, Sephardi(2)).haftarot[0], "Isaiah 54:1-10");
}

TEST(LectionsOwnReadings, ATextAfterTheProgramsFollowsItWithABlankUnlessItBeginsWithAMark) {
  const std::string own = "portion Noach | torah 1 | all | all | all | after | ";
  const std::string plain = With("", Sephardi()).torah[0];
  EXPECT_EQ(With(own + "(ours)", Sephardi()).torah[0], plain + " (ours)");
  EXPECT_EQ(With(own + "; Morning: A", Sephardi()).torah[0], plain + "; Morning: A");
  EXPECT_EQ(With("portion Noach | torah 3 | all | all | all | after | A", Sephardi()).torah[2], "A");
}

TEST(LectionsOwnReadings, WhereALanguageLacksALetterTheProgramsTextStands) {
  const std::string own = "portion Noach | haftarah 1 | all | all | all | instead | ישעיהו נד";
  EXPECT_EQ(With(own, Sephardi()).haftarot, With("", Sephardi()).haftarot);
  EXPECT_EQ(With(own, Sephardi(4)).haftarot[0], Encoded("ישעיהו נד", CodePage::kHebrew));
  const auto without = LanguagesWithout({.when = *WhenIn("portion Noach")}, "ישעיהו");
  EXPECT_EQ(without.size(), Languages().size() - 1);
}

// 9 November 2024 is 8 Cheshvan, a Shabbat; 10 November has no readings.
TEST(LectionsOwnReadings, ADateWithoutReadingsIsListedWithItsOwnText) {
  EXPECT_TRUE(With("", Sephardi(), {10, 11, 2024}).torah[0].empty());
  EXPECT_EQ(With("date 9 Cheshvan | torah 1 | all | all | all | instead | Siyum", Sephardi(), {10, 11, 2024}).torah[0],
            "Siyum");
  const ReadingTexts texts =
      With("date 9 Cheshvan | haftarah 1 | all | all | all | instead | Joel", Sephardi(), {10, 11, 2024});
  EXPECT_EQ(texts.torah[0], "9 Cheshvan");
  EXPECT_EQ(texts.haftarot[0], "Joel");
  const OwnReadings own(OwnFileIn("date 9 Cheshvan | torah 1 | all | all | all | instead | A").texts);
  EXPECT_TRUE(TextsOn({31, 8, 5785}, Sephardi(), &own).torah[0].empty());
}

}  // namespace
