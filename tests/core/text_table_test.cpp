#include "libraries/settings_folder/text_table.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>

namespace settings_folder {
namespace {

constexpr std::string_view kPattern = "00:00 000 ";

// A line "ab=7": a key of two letters and its value, a digit.
struct Entry {
  std::string key;
  int value;
};

std::optional<Entry> EntryIn(std::string_view line) {
  if (line.size() != 4 || line[2] != '=') return std::nullopt;
  return Entry{std::string(line.substr(0, 2)), line[3] - '0'};
}

std::string LineOf(const Entry& entry) {
  return entry.key + "=" + std::to_string(entry.value);
}

TEST(TextTable, ColumnsAreTheNumbersOfThePattern) {
  std::array<uint32_t, 3> numbers = {9, 9, 9};
  EXPECT_EQ(TakeColumns("01:59 007 and more", kPattern, numbers), "and more");
  EXPECT_EQ(numbers, (std::array<uint32_t, 3>{1, 59, 7}));
}

TEST(TextTable, LineThatStartsOtherwiseOrEndsWithItsColumnsHasNone) {
  std::array<uint32_t, 3> numbers;
  for (const char* line : {"", "01:59 007 ", "01:59 007", "1:59 007 x", "01-59 007 x", "01:59  07 x", " 01:59 007 x",
                           "0a:59 007 x", "01:59 0:7 x", "01:59 007x"}) {
    EXPECT_EQ(TakeColumns(line, kPattern, numbers), std::nullopt) << line;
  }
}

TEST(TextTable, TextEndsBeforeItsBlanks) {
  EXPECT_EQ(TextIn(" a b%20 \t "), " a b ");
  EXPECT_EQ(TextIn("  "), "");
  EXPECT_EQ(TextIn("50%"), std::nullopt);
}

TEST(TextTable, EveryEntryIsTakenInItsOrder) {
  std::string taken;
  ForEachEntry(
      "\xEF\xBB\xBF"
      "aa=1\r\nrubbish\rbb=2\n\naa=3",
      EntryIn, [&taken](const Entry& entry) { taken += LineOf(entry) + ";"; });
  EXPECT_EQ(taken, "aa=1;bb=2;aa=3;");
}

TEST(TextTable, ChangedEntryKeepsItsLastLineAndTheTextAroundIt) {
  const std::map<std::string, std::optional<int>> changes = {{"aa", 7}, {"bb", std::nullopt}, {"cc", std::nullopt}};
  EXPECT_EQ(ChangedTable(changes, EntryIn, LineOf).Applied("# a\naa=1\r\nbb=2\raa=3\ndd=4"), "# a\naa=7\ndd=4");
}

TEST(TextTable, NewEntriesComeAtTheEndInTheOrderOfTheirKeys) {
  const std::map<std::string, int> changes = {{"bb", 2}, {"aa", 1}};
  EXPECT_EQ(ChangedTable(changes, EntryIn, LineOf).Applied("# a\nend"), "# a\nend\naa=1\nbb=2\n");
  EXPECT_EQ(ChangedTable(changes, EntryIn, LineOf).Applied("\xEF\xBB\xBF"),
            "\xEF\xBB\xBF"
            "aa=1\r\nbb=2\r\n");
}

TEST(TextTable, LineThatAlreadySaysSoKeepsItsBytes) {
  const std::map<std::string, int> changes = {{"aa", 1}};
  EXPECT_EQ(ChangedTable(changes, EntryIn, LineOf).Applied("aa=1\rx"), "aa=1\rx");
}

}  // namespace
}  // namespace settings_folder
