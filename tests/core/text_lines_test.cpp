#include "libraries/settings_folder/text_lines.h"

#include <gtest/gtest.h>

namespace settings_folder {
namespace {

using std::string_literals::operator""s;

TEST(TextLines, EndInAnyWay) {
  const auto lines = LinesOf("a\rb\nc\r\n\n\rd");
  const char* const expected[][2] = {{"a", "\r"}, {"b", "\n"}, {"c", "\r\n"}, {"", "\n"}, {"", "\r"}, {"d", ""}};
  ASSERT_EQ(lines.size(), std::size(expected));
  for (size_t i = 0; i < lines.size(); ++i) {
    EXPECT_EQ(lines[i].content, expected[i][0]) << i;
    EXPECT_EQ(lines[i].end, expected[i][1]) << i;
  }
  EXPECT_TRUE(LinesOf("").empty());
}

TEST(TextLines, FirstLineTellsHowLinesEnd) {
  EXPECT_EQ(FirstLineEnd("a\nb\r\n"), "\n");
  EXPECT_EQ(FirstLineEnd("a"), "\r\n");
  EXPECT_EQ(FirstLineEnd(""), "\r\n");
}

TEST(TextLines, MarkIsThatOfUtf8) {
  EXPECT_EQ(MarkLength("\xEF\xBB\xBFx"), 3u);
  EXPECT_EQ(MarkLength("\xEF\xBBx"), 0u);
  EXPECT_EQ(MarkLength(""), 0u);
}

TEST(TextLines, TextsOfAnyBytesComeBack) {
  for (int byte = 0; byte <= 255; ++byte) {
    const std::string text = "|"s + static_cast<char>(byte) + "x" + static_cast<char>(byte);
    const std::string written = PercentCoded(text, "|");
    EXPECT_EQ(PercentDecoded(written), text) << byte;
    EXPECT_EQ(written.find_first_of("|\r\n\t"), std::string::npos) << byte;
  }
  EXPECT_EQ(PercentCoded(" a b% "), "%20a b%25%20");
  EXPECT_EQ(PercentDecoded("%4a%4A"), "JJ");
  for (const char* damaged : {"%", "%4", "a%g0", "%4g"}) EXPECT_EQ(PercentDecoded(damaged), std::nullopt) << damaged;
}

}  // namespace
}  // namespace settings_folder
