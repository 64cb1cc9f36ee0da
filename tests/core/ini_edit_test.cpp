#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "libraries/profile/ini_document.h"

namespace profile {
namespace {

using std::string_literals::operator""s;

std::string Set(const std::string& text, const char* section, const char* key, const char* value) {
  return IniDocument(text).WithValue(section, key, value).value_or("(refused)");
}

std::string DropKey(const std::string& text, const char* section, const char* key) {
  return IniDocument(text).WithoutKey(section, key);
}

std::string DropSection(const std::string& text, const char* section) {
  return IniDocument(text).WithoutSection(section);
}

TEST(IniEdit, ReplacesAValueWhereItStands) {
  EXPECT_EQ(Set("; top\r\n[A]\r\n; c\r\n x = 1 \r\nodd\r\n\r\n[B]\r\ny=2", "a", "X", "5"),
            "; top\r\n[A]\r\n; c\r\n x = 5\r\nodd\r\n\r\n[B]\r\ny=2");
  EXPECT_EQ(Set("[A]\r\nx=\r\n", "A", "x", "5"), "[A]\r\nx=5\r\n");
  EXPECT_EQ(Set("[A]\r\nx=1", "A", "x", ""), "[A]\r\nx=");
}

TEST(IniEdit, ReplacesTheFirstOfSeveral) {
  EXPECT_EQ(Set("[A]\r\nx=1\r\nx=2\r\n[A]\r\nx=3\r\n", "A", "x", "9"), "[A]\r\nx=9\r\nx=2\r\n[A]\r\nx=3\r\n");
}

TEST(IniEdit, OfSeveralSpellingsTouchesTheOneAskedFor) {
  const std::string text = "[A]\r\nhome=1\r\nHome=2\r\n[a]\r\nx=3\r\n";
  EXPECT_EQ(Set(text, "A", "Home", "5"), "[A]\r\nhome=1\r\nHome=5\r\n[a]\r\nx=3\r\n");
  EXPECT_EQ(Set(text, "a", "x", "5"), "[A]\r\nhome=1\r\nHome=2\r\n[a]\r\nx=5\r\n");
  EXPECT_EQ(DropKey(text, "A", "Home"), "[A]\r\nhome=1\r\n[a]\r\nx=3\r\n");
  EXPECT_EQ(DropSection(text, "a"), "[A]\r\nhome=1\r\nHome=2\r\n");
}

TEST(IniEdit, AddsAKeyAfterTheLastOfItsSection) {
  EXPECT_EQ(Set("[A]\r\nx=1\r\n\r\n; about B\r\n[B]\r\ny=2\r\n", "A", "n", "v"),
            "[A]\r\nx=1\r\nn=v\r\n\r\n; about B\r\n[B]\r\ny=2\r\n");
  EXPECT_EQ(Set("[A]\r\n\r\n[B]\r\n", "A", "n", "v"), "[A]\r\nn=v\r\n\r\n[B]\r\n");
}

TEST(IniEdit, AddsToALastLineWithoutEnd) {
  EXPECT_EQ(Set("[A]\r\nx=1", "A", "n", "v"), "[A]\r\nx=1\r\nn=v\r\n");
  EXPECT_EQ(Set("[A]", "A", "n", "v"), "[A]\r\nn=v\r\n");
  EXPECT_EQ(Set("[A]\r\nx=1", "B", "n", "v"), "[A]\r\nx=1\r\n\r\n[B]\r\nn=v\r\n");
}

TEST(IniEdit, AddsASectionAtTheEndAfterAnEmptyLine) {
  EXPECT_EQ(Set("[A]\r\nx=1\r\n", "B", "n", "v"), "[A]\r\nx=1\r\n\r\n[B]\r\nn=v\r\n");
  EXPECT_EQ(Set("[A]\r\nx=1\r\n\r\n", "B", "n", "v"), "[A]\r\nx=1\r\n\r\n[B]\r\nn=v\r\n");
  EXPECT_EQ(Set("", "B", "n", "v"), "[B]\r\nn=v\r\n");
}

TEST(IniEdit, KeepsTheFilesLineEnds) {
  EXPECT_EQ(Set("[A]\nx=1\n", "A", "n", "v"), "[A]\nx=1\nn=v\n");
  EXPECT_EQ(Set("[A]\nx=1\n", "B", "n", "v"), "[A]\nx=1\n\n[B]\nn=v\n");
  EXPECT_EQ(Set("[A]\rx=1\r", "A", "x", "2"), "[A]\rx=2\r");
  EXPECT_EQ(Set("[A]\nx=1\r\n", "A", "x", "2"), "[A]\nx=2\r\n");
}

TEST(IniEdit, KeepsTheByteOrderMark) {
  EXPECT_EQ(Set("\xEF\xBB\xBF", "A", "x", "1"), "\xEF\xBB\xBF[A]\r\nx=1\r\n");
  EXPECT_EQ(DropSection("\xEF\xBB\xBF[A]\r\nx=1\r\n", "A"), "\xEF\xBB\xBF");
}

TEST(IniEdit, CutsTheBlanksThatNoReadingGivesBack) {
  EXPECT_EQ(Set("", " A ", " x\t", "  lead trail  "), "[A]\r\nx=lead trail\r\n");
  EXPECT_EQ(Set("", "A", "x", "\" kept \""), "[A]\r\nx=\" kept \"\r\n");
}

TEST(IniEdit, SameValueLeavesTheTextAsItIs) {
  const std::string text = "[A]\r\n x =  1  \r\n";
  EXPECT_EQ(Set(text, "A", "x", "1"), text);
}

TEST(IniEdit, RefusesWhatNoTextGivesBack) {
  EXPECT_EQ(Set("", "", "x", "1"), "(refused)");
  EXPECT_EQ(Set("", "A", "", "1"), "(refused)");
  EXPECT_EQ(Set("", "A\n", "x", "1"), "[A]\r\nx=1\r\n");
  EXPECT_EQ(Set("", "A\nB", "x", "1"), "(refused)");
  EXPECT_EQ(Set("", "A", "x\ry", "1"), "(refused)");
  EXPECT_EQ(Set("", "A", "x", "1\n[B]"), "(refused)");
  EXPECT_EQ(Set("", "A", "a=b", "1"), "(refused)");
  EXPECT_EQ(Set("", "A", ";a", "1"), "(refused)");
  EXPECT_EQ(Set("", "A", "[a", "1]"), "(refused)");
}

TEST(IniEdit, NamesOfSectionsMayHoldBracketsAndSigns) {
  for (const char* name : {"a]b", "[a]", "a;b", ";a", "a=b", "\"a\""}) {
    const std::string text = Set("[z]\r\n", name, "x", "1");
    EXPECT_EQ(IniDocument(text).Value(name, "x"), "1") << name;
  }
}

TEST(IniEdit, DropsAKeysLine) {
  EXPECT_EQ(DropKey("[A]\r\n; c\r\nx=1\r\ny=2\r\n", "a", " X "), "[A]\r\n; c\r\ny=2\r\n");
  EXPECT_EQ(DropKey("[A]\r\nx=1", "A", "x"), "[A]\r\n");
  EXPECT_EQ(DropKey("[A]\r\nx=1\r\nx=2\r\n", "A", "x"), "[A]\r\nx=2\r\n");
}

TEST(IniEdit, DropsASectionsLines) {
  EXPECT_EQ(DropSection("; top\r\n[A]\r\n; c\r\nx=1\r\nodd\r\n\r\n[B]\r\ny=2\r\n", "a"), "; top\r\n[B]\r\ny=2\r\n");
  EXPECT_EQ(DropSection("[A]\r\nx=1\r\n[B]\r\ny=2", "B"), "[A]\r\nx=1\r\n");
  EXPECT_EQ(DropSection("[A]\r\nx=1\r\n[A]\r\nx=2\r\n", "A"), "[A]\r\nx=2\r\n");
}

TEST(IniEdit, CommentsAboveTheNextSectionStayWithIt) {
  EXPECT_EQ(DropSection("[A]\r\n; of A\r\nx=1\r\n; about B\r\n ; more\r\n[B]\r\n", "A"),
            "; about B\r\n ; more\r\n[B]\r\n");
  EXPECT_EQ(DropSection("[A]\r\n; of A\r\n\r\n; about B\r\n[B]\r\n", "A"), "; about B\r\n[B]\r\n");
  EXPECT_EQ(DropSection("[A]\r\n; about B\r\n[B]\r\n", "A"), "; about B\r\n[B]\r\n");
}

TEST(IniEdit, DroppingWhatIsNotThereLeavesTheTextAsItIs) {
  const std::string text = "x=0\r\n[A]\r\nx=1\r\n=3";
  EXPECT_EQ(DropKey(text, "A", "y"), text);
  EXPECT_EQ(DropKey(text, "B", "x"), text);
  EXPECT_EQ(DropKey(text, "", ""), text);
  EXPECT_EQ(DropKey(text, "A", ""), text);
  EXPECT_EQ(DropSection(text, "B"), text);
  EXPECT_EQ(DropSection(text, ""), text);
}

// Random edits of a text full of oddities, against a plain map: every value written reads back, no other changes, and
// the lines that are no keys survive as long as their section.
TEST(IniEdit, RandomEditsReadBackAndDisturbNothingElse) {
  const std::string odd = "; top\r\nstray=1\r\n[Keep]\r\n; note\n  a = 1 \rodd line\r\n[open\r\n\0\r\n"s;
  std::mt19937 random(5784);
  std::string text = odd;
  std::map<std::pair<std::string, std::string>, std::string> expected = {{{"Keep", "a"}, "1"}};
  for (int step = 0; step < 3000; ++step) {
    const std::string section = "S"s + std::to_string(random() % 5);
    const std::string key = "k]\xE4"s + std::to_string(random() % 6);
    const auto action = random() % 10;
    if (action == 0) {
      text = DropSection(text, section.c_str());
      std::erase_if(expected, [&](const auto& entry) { return entry.first.first == section; });
    } else if (action < 4) {
      text = DropKey(text, section.c_str(), key.c_str());
      expected.erase({section, key});
    } else {
      std::string value;
      for (auto length = random() % 8; length > 0; --length) value += "a=;[]\" \xFF"[random() % 8];
      text = Set(text, section.c_str(), key.c_str(), value.c_str());
      value.erase(0, std::min(value.find_first_not_of(' '), value.size()));
      value.erase(value.find_last_not_of(' ') + 1);
      expected[{section, key}] = value;
    }
    const IniDocument document(text);
    size_t keys = 0;
    for (const char* name : {"Keep", "S0", "S1", "S2", "S3", "S4"}) {
      const std::string names = document.KeyNames(name).value_or("");
      keys += static_cast<size_t>(std::count(names.begin(), names.end(), '\0'));
    }
    ASSERT_EQ(keys, expected.size()) << text;
    for (const auto& [id, value] : expected) ASSERT_EQ(document.Value(id.first, id.second), value) << text;
    ASSERT_TRUE(text.starts_with(odd)) << text;
  }
}

}  // namespace
}  // namespace profile

TEST(IniEdit, NewKeyBeforeAnEmptyLineLeavesThatLineWhereLineEndsDiffer) {
  const std::string text = "; Mac\r[A]\r\nx=1\r\n\nodd\r\n";
  const auto written = profile::IniDocument(text).WithValue("A", "y", "2");
  ASSERT_TRUE(written.has_value());
  EXPECT_EQ(*written, "; Mac\r[A]\r\nx=1\r\ny=2\r\n\nodd\r\n");
  EXPECT_EQ(profile::IniDocument(*written).WithoutKey("A", "y"), text);
}
