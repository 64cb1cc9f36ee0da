#include "libraries/persons/person.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace persons {
namespace {

using std::string_literals::operator""s;

const Person kMoshe = {Kind::kYahrzeit, {Calendar::kJewish, {16, 12, 5710}, false}, AdarCustom::kBoth, "Moshe", "",
                       "Har HaMenuchot"};
const Person kSarah = {Kind::kBirthday, {Calendar::kGregorian, {29, 2, 2020}, true}, std::nullopt, "שרה כהן", "", ""};
constexpr char kMosheLine[] = "yahrzeit|5710-12-16 jewish|both|Moshe||Har HaMenuchot";
constexpr char kSarahLine[] = "birthday|2020-02-29 evening||שרה כהן||";

using Changes = std::vector<Change>;

std::string ApplyQuietly(const Changes& changes, const std::string& text) {
  Changes missed;
  std::string after = Applied(changes, text, &missed);
  EXPECT_EQ(missed, Changes{});
  return after;
}

TEST(Person, IsALine) {
  EXPECT_EQ(LineOf(kMoshe), kMosheLine);
  EXPECT_EQ(LineOf(kSarah), kSarahLine);
  EXPECT_EQ(PersonIn(kMosheLine), kMoshe);
  EXPECT_EQ(PersonIn(kSarahLine), kSarah);
}

TEST(Person, EveryKindDateAndCustomComesBack) {
  for (int kind = 0; kind < kKinds; ++kind) {
    for (const EventDate& event :
         {EventDate{Calendar::kGregorian, {1, 1, 1583}, false}, EventDate{Calendar::kJewish, {30, 12, 0}, false},
          EventDate{Calendar::kJewish, {1, 7, 1}, true}, EventDate{Calendar::kGregorian, {31, 12, 3000}, true}}) {
      for (const std::optional<AdarCustom> adar :
           {std::optional<AdarCustom>(), std::optional(AdarCustom::kAdarI), std::optional(AdarCustom::kAdarII),
            std::optional(AdarCustom::kBoth)}) {
        const Person person = {static_cast<Kind>(kind), event, adar, "A|b%c", " blank ", "two\nlines\tand a tab"};
        ASSERT_TRUE(CanBeKept(person));
        EXPECT_EQ(PersonIn(LineOf(person)), person) << LineOf(person);
        EXPECT_EQ(LineOf(person).find('\n'), std::string::npos);
      }
    }
  }
}

TEST(Person, DamagedLinesAreNone) {
  for (const char* line : {
           "yahrzeit|5710-12-16 jewish|both|Moshe|",             // a field is missing
           "yahrzeit|5710-12-16 jewish|both|Moshe||notes|more",  // one too many
           "Yahrzeit|5710-12-16 jewish|both|Moshe||",            // no such kind
           "yahrzeit|5710-13-16 jewish|both|Moshe||",            // 5710 has no Adar II
           "yahrzeit|5710-12-16 hebrew|both|Moshe||",            // no such calendar
           "yahrzeit|5710-12-16  jewish|both|Moshe||",           // two blanks
           "yahrzeit|710-12-16 jewish|both|Moshe||",             // three digits
           "yahrzeit|-710-12-16 jewish|both|Moshe||",            // a sign
           "yahrzeit|5710-12-16 jewish|adar-3|Moshe||",          // no such custom
           "yahrzeit|5710-12-16 jewish|both| ||",                // no name
           "yahrzeit|5710-12-16 jewish|both|Mo%0Dshe||",         // a line end in a name
           "yahrzeit|5710-12-16 jewish|both|Mo%zzshe||",         // no hexadecimal digits
           "yahrzeit|5710-12-16 jewish|both|Mo\xFFshe||",        // not UTF-8
           "birthday|2019-02-29||Sarah||",                       // no such day
           "birthday|0000-02-28||Sarah||",                       // a Gregorian year is always known
           "birthday|2020-02-29 evening jewish||Sarah||",        // the wrong way round
           "birthday|2020-02-29 jewish|adar-1|Sarah||"
           "\xED\xA0\x80",  // a lone surrogate
       }) {
    EXPECT_EQ(PersonIn(line), std::nullopt) << line;
  }
}

TEST(Person, TextsHaveALength) {
  Person person = kMoshe;
  person.name.assign(kLongestName, 'a');
  person.title.assign(kLongestTitle, 'b');
  person.notes.assign(kLongestNotes, 'c');
  EXPECT_TRUE(CanBeKept(person));
  EXPECT_EQ(PersonIn(LineOf(person)), person);
  for (std::string Person::*text : {&Person::name, &Person::title, &Person::notes}) {
    Person longer = person;
    longer.*text += 'x';
    EXPECT_FALSE(CanBeKept(longer));
    EXPECT_EQ(PersonIn(LineOf(longer)), std::nullopt);
  }
}

// The shortest and longest characters of each length (RFC 3629), and what lies just beside them.
TEST(Person, TextsAreUtf8) {
  const auto isText = [](const std::string& text) {
    Person person = kMoshe;
    person.name = "a" + text;
    return CanBeKept(person);
  };
  for (const std::string& text : {"\x7E"s, "\xC2\x80"s, "\xDF\xBF"s, "\xE0\xA0\x80"s, "\xED\x9F\xBF"s, "\xEE\x80\x80"s,
                                  "\xEF\xBF\xBF"s, "\xF0\x90\x80\x80"s, "\xF4\x8F\xBF\xBF"s}) {
    EXPECT_TRUE(isText(text)) << text;
  }
  for (const std::string& text : {"\x7F"s, "\x1F"s, "\x00"s, "\x80"s, "\xC1\xBF"s, "\xC2"s, "\xC2\xC0"s,
                                  "\xE0\x9F\xBF"s, "\xED\xA0\x80"s, "\xEF\xBF"s, "\xF0\x8F\xBF\xBF"s,
                                  "\xF4\x90\x80\x80"s, "\xF5\x80\x80\x80"s, "\xF0\x90\x80"s, "\xF0\x90\x80\x40"s}) {
    EXPECT_FALSE(isText(text)) << text;
  }
}

TEST(PersonsFile, HasPersonsAndDamagedLines) {
  const std::string text = "\xEF\xBB\xBF# a remark\r\n"s + kMosheLine + "\r\n\r\nnonsense\n  \r" + kSarahLine +
                           "\r\nyahrzeit|5710-13-16 jewish||No such day||";
  const Persons found = PersonsIn(text);
  EXPECT_EQ(found.persons, (std::vector<Person>{kMoshe, kSarah}));
  EXPECT_EQ(found.damagedLines, (std::vector<int32_t>{4, 7}));
  EXPECT_TRUE(PersonsIn("").persons.empty());
}

TEST(PersonsFile, ChangesKeepEveryOtherByte) {
  const std::string text = "\xEF\xBB\xBF# a remark\n"s + kMosheLine + "\nnonsense \n" + kSarahLine;
  Person moshe = kMoshe;
  moshe.notes = "row 12";
  EXPECT_EQ(ApplyQuietly({{kMoshe, moshe}}, text),
            "\xEF\xBB\xBF# a remark\nyahrzeit|5710-12-16 jewish|both|Moshe||row 12\nnonsense \n"s + kSarahLine);
  EXPECT_EQ(ApplyQuietly({{kMoshe, std::nullopt}}, text), "\xEF\xBB\xBF# a remark\nnonsense \n"s + kSarahLine);
  EXPECT_EQ(ApplyQuietly({{std::nullopt, moshe}}, text), text + "\n" + LineOf(moshe) + "\n");
  EXPECT_EQ(ApplyQuietly({{kSarah, std::nullopt}, {std::nullopt, moshe}}, text),
            "\xEF\xBB\xBF# a remark\n"s + kMosheLine + "\nnonsense \n" + LineOf(moshe) + "\n");
  EXPECT_EQ(ApplyQuietly({}, text), text);
  EXPECT_EQ(ApplyQuietly({{kMoshe, kMoshe}}, text), text);
}

TEST(PersonsFile, BeginsWithALineThatSaysWhatItIs) {
  const std::string text = ApplyQuietly({{std::nullopt, kMoshe}, {std::nullopt, kSarah}}, "");
  EXPECT_EQ(text,
            "# Birthdays, yahrzeit and other dates: kind|date|Adar in leap years|name|what another date is|notes "
            "(UTF-8)\r\n"s +
                kMosheLine + "\r\n" + kSarahLine + "\r\n");
  EXPECT_EQ(ApplyQuietly({}, ""), "");
  EXPECT_EQ(PersonsIn(text).persons, (std::vector<Person>{kMoshe, kSarah}));
  EXPECT_TRUE(PersonsIn(text).damagedLines.empty());
}

// A line that says the same in other words is the same entry, and is changed all the same.
TEST(PersonsFile, EntriesAreFoundHoweverTheyAreWritten) {
  const std::string text = "yahrzeit|5710-12-16 jewish|both|%4Doshe||Har HaMenuchot\r\n";
  EXPECT_EQ(ApplyQuietly({{kMoshe, kSarah}}, text), kSarahLine + "\r\n"s);
}

TEST(PersonsFile, OneOfEqualEntriesIsChanged) {
  const std::string twice = kMosheLine + "\n"s + kMosheLine + "\n";
  EXPECT_EQ(ApplyQuietly({{kMoshe, std::nullopt}}, twice), kMosheLine + "\n"s);
  EXPECT_EQ(ApplyQuietly({{kMoshe, kSarah}}, twice), kSarahLine + "\n"s + kMosheLine + "\n");
  EXPECT_EQ(ApplyQuietly({{kMoshe, kSarah}, {kMoshe, std::nullopt}}, twice), kSarahLine + "\n"s);
}

TEST(PersonsFile, WhatAnotherCopyHasChangedMeanwhileIsKeptBesideOurs) {
  Person theirs = kMoshe;
  theirs.notes = "theirs";
  Person ours = kMoshe;
  ours.notes = "ours";
  const std::string text = LineOf(theirs) + "\r\n";
  Changes missed;
  const Changes change = {{kMoshe, ours}};
  EXPECT_EQ(Applied(change, text, &missed), LineOf(theirs) + "\r\n" + LineOf(ours) + "\r\n");
  EXPECT_EQ(missed, change);
  const Changes removal = {{kMoshe, std::nullopt}};
  EXPECT_EQ(Applied(removal, text, &missed), text);
  EXPECT_EQ(missed, removal);
  EXPECT_EQ(ApplyQuietly({{kMoshe, theirs}}, text), text) << "both have made the same change";
}

// An import of thousands into a file of thousands.
TEST(PersonsFile, ManyChangesAreMadeAtOnce) {
  Changes additions;
  Changes removals;
  for (int i = 0; i < 10000; ++i) {
    Person person = kMoshe;
    person.name += std::to_string(i);
    additions.push_back({std::nullopt, person});
    if (i % 2 == 0) removals.push_back({person, std::nullopt});
  }
  const std::string text = ApplyQuietly(additions, "");
  EXPECT_EQ(PersonsIn(text).persons.size(), 10000u);
  EXPECT_EQ(PersonsIn(ApplyQuietly(removals, text)).persons.size(), 5000u);
}

}  // namespace
}  // namespace persons
