#include "libraries/profile/profile_answers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace profile {
namespace {

using std::string_literals::operator""s;

constexpr size_t kRoom = 40;

// What an answer left in a buffer of which it was told size bytes, up to the first byte that it did not write.
template <typename Ask>
std::string Written(uint32_t size, uint32_t* count, Ask ask) {
  std::string buffer(kRoom, '#');
  *count = ask(buffer.data(), size);
  EXPECT_EQ(buffer.find_first_not_of('#', size), std::string::npos) << "written past the end";
  return buffer.substr(0, buffer.find('#'));
}

TEST(ProfileText, TakesOnePairOfQuotesOff) {
  EXPECT_EQ(Unquoted("\"v\""), "v");
  EXPECT_EQ(Unquoted("'v'"), "v");
  EXPECT_EQ(Unquoted("\" v \""), " v ");
  EXPECT_EQ(Unquoted("\"\""), "");
  EXPECT_EQ(Unquoted("\"\"v\"\""), "\"v\"");
  EXPECT_EQ(Unquoted("'\"v\"'"), "\"v\"");
}

TEST(ProfileText, LeavesOtherQuotesAlone) {
  for (const char* text : {"", "\"", "'", "\"v'", "\"v", "v\"", "\"v\" x", "x\"y\""}) EXPECT_EQ(Unquoted(text), text);
}

TEST(ProfileText, IsCutToTheBuffer) {
  const IniDocument document("[A]\r\nx=\"12345\"\r\n");
  uint32_t count = 0;
  const auto ask = [&](char* buffer, uint32_t size) { return TextAnswer(document, "A", "x", "d", buffer, size); };
  EXPECT_EQ(Written(10, &count, ask), "12345\0"s);
  EXPECT_EQ(count, 5u);
  EXPECT_EQ(Written(6, &count, ask), "12345\0"s);
  EXPECT_EQ(count, 5u);
  EXPECT_EQ(Written(5, &count, ask), "1234\0"s);
  EXPECT_EQ(count, 4u);
  EXPECT_EQ(Written(1, &count, ask), "\0"s);
  EXPECT_EQ(count, 0u);
}

TEST(ProfileText, MissingKeyAnswersTheDefaultWithoutTrailingBlanks) {
  const IniDocument document("[A]\r\nx=\r\n");
  uint32_t count = 0;
  const auto ask = [&](const char* key, const char* text) {
    return Written(20, &count, [&](char* b, uint32_t size) { return TextAnswer(document, "A", key, text, b, size); });
  };
  EXPECT_EQ(ask("y", "  d e   "), "  d e\0"s);
  EXPECT_EQ(ask("y", "tab\t "), "tab\t\0"s);
  EXPECT_EQ(ask("y", "   "), "\0"s);
  EXPECT_EQ(ask("y", ""), "\0"s);
  EXPECT_EQ(ask("x", "d"), "\0"s);  // there, though empty
}

TEST(ProfileNumber, IsReadUpToTheFirstOtherCharacter) {
  EXPECT_EQ(NumberIn("12"), 12);
  EXPECT_EQ(NumberIn("12abc"), 12);
  EXPECT_EQ(NumberIn("1.9"), 1);
  EXPECT_EQ(NumberIn("017"), 17);
  EXPECT_EQ(NumberIn("abc"), 0);
  EXPECT_EQ(NumberIn(""), 0);
  EXPECT_EQ(NumberIn("\t\v 7"), 7);
  EXPECT_EQ(NumberIn("\xA0"
                     "7"),
            0);
}

TEST(ProfileNumber, MayHaveOneSign) {
  EXPECT_EQ(NumberIn("-12"), -12);
  EXPECT_EQ(NumberIn("+5"), 5);
  EXPECT_EQ(NumberIn("- 5"), 0);
  EXPECT_EQ(NumberIn("--5"), 0);
  EXPECT_EQ(NumberIn("-"), 0);
}

TEST(ProfileNumber, MayBeHexadecimalOctalOrBinary) {
  EXPECT_EQ(NumberIn("0x1fG"), 31);
  EXPECT_EQ(NumberIn("-0x1F"), -31);
  EXPECT_EQ(NumberIn("0o178"), 15);
  EXPECT_EQ(NumberIn("0b1012"), 5);
  EXPECT_EQ(NumberIn("0X1F"), 0);
  EXPECT_EQ(NumberIn("0x"), 0);
}

TEST(ProfileNumber, PastThirtyTwoBitsKeepsItsLowBits) {
  EXPECT_EQ(NumberIn("2147483648"), std::numeric_limits<int32_t>::min());
  EXPECT_EQ(NumberIn("4294967297"), 1);
  EXPECT_EQ(NumberIn("0xfffffffff"), -1);
  EXPECT_EQ(NumberIn("-2147483648"), std::numeric_limits<int32_t>::min());
}

TEST(ProfileNumber, EmptyOrMissingValueAnswersTheDefault) {
  const IniDocument document("[A]\r\nx=\r\nq=\"\"\r\nn='-3'\r\n");
  EXPECT_EQ(IntAnswer(document, "A", "x", 18), 18);
  EXPECT_EQ(IntAnswer(document, "A", "q", 18), 18);
  EXPECT_EQ(IntAnswer(document, "A", "y", -1), -1);
  EXPECT_EQ(IntAnswer(document, "B", "x", 18), 18);
  EXPECT_EQ(IntAnswer(document, "A", "n", 18), -3);
}

TEST(ProfileList, EndsInOneMoreZero) {
  uint32_t count = 0;
  const auto ask = [](char* buffer, uint32_t size) { return ListAnswer("abc\0defg\0"s, buffer, size); };
  EXPECT_EQ(Written(20, &count, ask), "abc\0defg\0\0"s);
  EXPECT_EQ(count, 9u);
  EXPECT_EQ(Written(10, &count, ask), "abc\0defg\0\0"s);  // fits exactly
  EXPECT_EQ(count, 9u);
}

TEST(ProfileList, ThatDoesNotFitIsCutAndEndsInTwoZeros) {
  uint32_t count = 0;
  const auto ask = [](char* buffer, uint32_t size) { return ListAnswer("abc\0defg\0"s, buffer, size); };
  EXPECT_EQ(Written(9, &count, ask), "abc\0def\0\0"s);
  EXPECT_EQ(count, 7u);
  EXPECT_EQ(Written(6, &count, ask), "abc\0\0\0"s);
  EXPECT_EQ(count, 4u);
  EXPECT_EQ(Written(3, &count, ask), "a\0\0"s);
  EXPECT_EQ(count, 1u);
  EXPECT_EQ(Written(2, &count, ask), "\0\0"s);
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(Written(1, &count, ask), "\0"s);
  EXPECT_EQ(count, 0u);
}

TEST(ProfileList, OfNothingIsTwoZeros) {
  uint32_t count = 1;
  EXPECT_EQ(Written(20, &count, [](char* buffer, uint32_t size) { return ListAnswer("", buffer, size); }), "\0\0"s);
  EXPECT_EQ(count, 0u);
}

TEST(ProfileList, OfAMissingSectionIsTheDefault) {
  const IniDocument document("[A]\r\nx=1\r\n");
  uint32_t count = 0;
  const auto ask = [&](const char* section, const char* text, uint32_t room) {
    return Written(room, &count,
                   [&](char* b, uint32_t size) { return KeyListAnswer(document, section, text, b, size); });
  };
  EXPECT_EQ(ask("A", "d", 20), "x\0\0"s);
  EXPECT_EQ(count, 2u);
  EXPECT_EQ(ask("B", "dd ", 20), "dd\0\0"s);
  EXPECT_EQ(count, 2u);
  EXPECT_EQ(ask("B", "", 20), "\0\0"s);
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(ask("B", "dd", 3), "dd\0"s);
  EXPECT_EQ(count, 2u);
}

}  // namespace
}  // namespace profile
