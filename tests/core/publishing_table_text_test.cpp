#include "publishing/core/table_text.h"

#include <gtest/gtest.h>

#include "tests/core/written_files.h"

namespace publishing {
namespace {

using written::TextOf;

const std::string kMark = "\xEF\xBB\xBF";

TEST(TableText, ColumnsArePaddedByCharacters) {
  const Table table = {.title = "Persons",
                       .remarks = {"of 2026"},
                       .columns = {{"Name"}, {"Age", Align::kEnd}, {"Place"}},
                       .rows = ListedTexts({{"שָׂרָה", "7", "Aachen"}, {"Соломон", "120", ""}, {"Li"}})};
  EXPECT_EQ(TextOf(table), kMark +
                               "Persons\r\n"
                               "of 2026\r\n"
                               "\r\n"
                               "Name     Age  Place\r\n"
                               "-------  ---  ------\r\n"
                               "שָׂרָה        7  Aachen\r\n"
                               "Соломон  120\r\n"
                               "Li\r\n");
}

TEST(TableText, BreaksWithinATextAreBlanks) {
  const Table table = {
      .title = "a\nb", .remarks = {"c\td"}, .columns = {{"e\r\nf"}}, .rows = ListedTexts({{"g\nh\ti"}})};
  EXPECT_EQ(TextOf(table), kMark + "a b\r\nc d\r\n\r\ne f\r\n-----\r\ng h i\r\n");
}

TEST(TableText, WithoutTitleItBeginsWithTheHeadings) {
  const Table table = {
      .columns = {{"a"}, {"b"}},
  };
  EXPECT_EQ(TextOf(table), kMark + "a  b\r\n-  -\r\n");
}

}  // namespace
}  // namespace publishing
