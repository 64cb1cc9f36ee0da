// The contract of the profile library as its callers can see it, without a look at the disk. Expected values follow the
// header and the system's own private-profile calls.
#include "tests/contract/profile_behaviour.h"

#include <cstdint>
#include <limits>
#include <string>

#include "companion/profile.h"

namespace {

using std::string_literals::operator""s;

constexpr char kFile[] = "behaviour.ini";
constexpr int32_t kDefault = -77;

int32_t Write(const char* section, const char* key, const char* value) {
  return ProfileWriteString(section, key, value, kFile);
}

std::string Text(const char* section, const char* key, const char* defaultValue = "(default)",
                 const char* file = kFile) {
  char buffer[256];
  const uint32_t count = ProfileGetString(section, key, defaultValue, buffer, sizeof buffer, file);
  return std::string(buffer, count);
}

int32_t NumberOf(const char* text) {
  EXPECT_NE(Write("Numbers", "n", text), 0);
  return ProfileGetInt("Numbers", "n", kDefault, kFile);
}

// The count, and what was written of a buffer of which the library knows size bytes, which it must not overstep.
struct Answer {
  uint32_t count;
  std::string written;
  bool operator==(const Answer&) const = default;
};

Answer Ask(const char* section, const char* key, uint32_t size, const char* defaultValue = "") {
  std::string buffer(64, '#');
  const uint32_t count = ProfileGetString(section, key, defaultValue, buffer.data(), size, kFile);
  EXPECT_EQ(buffer.find_first_not_of('#', size), std::string::npos) << "written past the end";
  return {count, buffer.substr(0, buffer.find('#'))};
}

void PrintTo(const Answer& answer, std::ostream* stream) {
  *stream << answer.count << " " << testing::PrintToString(answer.written);
}

}  // namespace

TEST_P(ProfileBehaviour, WhatIsWrittenIsRead) {
  EXPECT_NE(Write("A", "x", "12"), 0);
  EXPECT_EQ(Text("A", "x"), "12");
  EXPECT_EQ(ProfileGetInt("A", "x", kDefault, kFile), 12);
  EXPECT_NE(Write("A", "x", "5"), 0);
  EXPECT_EQ(Text("A", "x"), "5");
}

TEST_P(ProfileBehaviour, AMissingKeySectionOrFileAnswersTheDefaultWithoutItsTrailingBlanks) {
  EXPECT_NE(Write("A", "x", "1"), 0);
  EXPECT_EQ(Text("A", "y", " d e  "), " d e");
  EXPECT_EQ(Text("B", "x"), "(default)");
  EXPECT_EQ(Text("A", "x", "(default)", "another.ini"), "(default)");
  EXPECT_EQ(Text("A", "y", nullptr), "");
  EXPECT_EQ(ProfileGetInt("A", "y", kDefault, kFile), kDefault);
  EXPECT_EQ(ProfileGetInt("A", "x", kDefault, "another.ini"), kDefault);
}

TEST_P(ProfileBehaviour, LetterCaseOfFilesSectionsAndKeysMeansNothing) {
  EXPECT_NE(ProfileWriteString("Places", "Home", "1", "Case.ini"), 0);
  EXPECT_EQ(Text("PLACES", "hOME", "", "CASE.INI"), "1");
  EXPECT_EQ(ProfileGetInt("places", "HOME", kDefault, "case.ini"), 1);
  EXPECT_NE(ProfileWriteString("pLACES", "HOME", "2", "CASE.ini"), 0);
  EXPECT_EQ(Text("Places", nullptr, "", "case.INI"), "Home\0"s);  // the names stay as they were
  EXPECT_EQ(Text("Places", "Home", "", "Case.ini"), "2");
  EXPECT_NE(ProfileWriteString("places", "home", nullptr, "cASE.ini"), 0);
  EXPECT_EQ(Text("Places", "Home", "gone", "Case.ini"), "gone");
}

TEST_P(ProfileBehaviour, LettersBeyondAsciiAreToldApart) {
  EXPECT_NE(Write("A", "Z\xFCrich", "1"), 0);
  EXPECT_EQ(Text("A", "z\xFCRICH"), "1");
  EXPECT_EQ(Text("A", "Z\xDCrich"), "(default)");
}

TEST_P(ProfileBehaviour, BlanksAroundNamesAndValuesMeanNothing) {
  EXPECT_NE(Write(" A ", "\tx ", "  a b \t"), 0);
  EXPECT_EQ(Text("A", "x"), "a b");
  EXPECT_EQ(Text("  A", " x\t"), "a b");
  EXPECT_EQ(Text("A", nullptr), "x\0"s);
}

TEST_P(ProfileBehaviour, OnePairOfQuotesIsTakenOff) {
  const struct {
    const char* written;
    const char* read;
  } cases[] = {{"\" v \"", " v "}, {"'v'", "v"}, {"\"\"v\"\"", "\"v\""}, {"\"v'", "\"v'"}, {"\"", "\""}};
  for (const auto& row : cases) {
    EXPECT_NE(Write("A", "x", row.written), 0);
    EXPECT_EQ(Text("A", "x"), row.read) << row.written;
  }
  EXPECT_EQ(NumberOf("\" 12\""), 12);
}

TEST_P(ProfileBehaviour, AnEmptyValueIsThereYetGivesTheDefaultNumber) {
  EXPECT_NE(Write("A", "x", ""), 0);
  EXPECT_EQ(Text("A", "x"), "");
  EXPECT_EQ(Text("A", nullptr), "x\0"s);
  EXPECT_EQ(ProfileGetInt("A", "x", kDefault, kFile), kDefault);
  EXPECT_EQ(NumberOf("\"\""), kDefault);
}

TEST_P(ProfileBehaviour, ANumberEndsAtTheFirstOtherCharacter) {
  EXPECT_EQ(NumberOf("12abc"), 12);
  EXPECT_EQ(NumberOf("1.9"), 1);
  EXPECT_EQ(NumberOf("017"), 17);
  EXPECT_EQ(NumberOf("1 2"), 1);
  EXPECT_EQ(NumberOf("abc"), 0);
  EXPECT_EQ(NumberOf("-"), 0);
}

TEST_P(ProfileBehaviour, ANumberMayHaveOneSign) {
  EXPECT_EQ(NumberOf("-12"), -12);
  EXPECT_EQ(NumberOf("+5"), 5);
  EXPECT_EQ(NumberOf("- 5"), 0);
  EXPECT_EQ(NumberOf("--5"), 0);
}

TEST_P(ProfileBehaviour, ANumberMayBeHexadecimalOctalOrBinary) {
  EXPECT_EQ(NumberOf("0x1fG"), 31);
  EXPECT_EQ(NumberOf("-0x1F"), -31);
  EXPECT_EQ(NumberOf("0o178"), 15);
  EXPECT_EQ(NumberOf("0b1012"), 5);
  EXPECT_EQ(NumberOf("0X1F"), 0);
  EXPECT_EQ(NumberOf("0x"), 0);
}

TEST_P(ProfileBehaviour, ANumberPastThirtyTwoBitsKeepsItsLowBits) {
  EXPECT_EQ(NumberOf("2147483648"), std::numeric_limits<int32_t>::min());
  EXPECT_EQ(NumberOf("4294967297"), 1);
  EXPECT_EQ(NumberOf("-2147483649"), std::numeric_limits<int32_t>::max());
}

TEST_P(ProfileBehaviour, NamesAreListedAsTheyCame) {
  for (const char* key : {"b", "A", "c"}) EXPECT_NE(Write("Second", key, "1"), 0);
  EXPECT_NE(Write("First", "x", "1"), 0);
  EXPECT_NE(Write("second", "d", "1"), 0);
  EXPECT_NE(Write("Second", "a", "2"), 0);
  EXPECT_EQ(Text("Second", nullptr), "b\0A\0c\0d\0"s);
  EXPECT_EQ(Text(nullptr, nullptr), "Second\0First\0"s);
  EXPECT_EQ(Text(nullptr, "x"), "Second\0First\0"s);
}

TEST_P(ProfileBehaviour, AMissingSectionListsTheDefaultAndAnEmptyOneNothing) {
  EXPECT_EQ(Ask("A", nullptr, 20, "dd "), (Answer{2, "dd\0\0"s}));
  EXPECT_EQ(Ask("A", nullptr, 20, ""), (Answer{0, "\0\0"s}));
  EXPECT_EQ(Ask("A", nullptr, 3, "dd"), (Answer{2, "dd\0"s}));
  EXPECT_NE(Write("A", "x", "1"), 0);
  EXPECT_NE(Write("A", "x", nullptr), 0);
  EXPECT_EQ(Ask("A", nullptr, 20, "dd").count, 0u);
  EXPECT_EQ(Text(nullptr, nullptr), "A\0"s);
}

TEST_P(ProfileBehaviour, ANullValueDeletesTheKeyAndANullKeyTheSection) {
  for (const char* key : {"x", "y"}) EXPECT_NE(Write("A", key, "1"), 0);
  EXPECT_NE(Write("B", "z", "3"), 0);
  EXPECT_NE(Write("A", "x", nullptr), 0);
  EXPECT_EQ(Text("A", "x"), "(default)");
  EXPECT_EQ(Text("A", "y"), "1");
  EXPECT_NE(Write("a", nullptr, "ignored"), 0);
  EXPECT_EQ(Text("A", "y"), "(default)");
  EXPECT_EQ(Text("B", "z"), "3");
  EXPECT_EQ(Text(nullptr, nullptr), "B\0"s);
}

TEST_P(ProfileBehaviour, WhatIsNotThereCountsAsDeleted) {
  EXPECT_NE(Write("A", "x", nullptr), 0);
  EXPECT_NE(Write("A", nullptr, nullptr), 0);
  EXPECT_NE(Write("", nullptr, nullptr), 0);
  EXPECT_NE(Write("A", "", nullptr), 0);
}

TEST_P(ProfileBehaviour, ATextIsCutToTheBuffer) {
  EXPECT_NE(Write("A", "x", "12345"), 0);
  EXPECT_EQ(Ask("A", "x", 10), (Answer{5, "12345\0"s}));
  EXPECT_EQ(Ask("A", "x", 6), (Answer{5, "12345\0"s}));
  EXPECT_EQ(Ask("A", "x", 5), (Answer{4, "1234\0"s}));
  EXPECT_EQ(Ask("A", "x", 1), (Answer{0, "\0"s}));
  EXPECT_EQ(Ask("A", "x", 0), (Answer{0, ""}));
  EXPECT_EQ(Ask("A", "y", 4, "default"), (Answer{3, "def\0"s}));
  EXPECT_EQ(ProfileGetString("A", "x", "", nullptr, 9, kFile), 0u);
}

TEST_P(ProfileBehaviour, AListThatDoesNotFitIsCutAndEndsInTwoZeros) {
  EXPECT_NE(Write("abc", "abc", "1"), 0);
  EXPECT_NE(Write("abc", "defg", "1"), 0);
  EXPECT_NE(Write("defg", "x", "1"), 0);
  for (const char* section : {"abc", static_cast<const char*>(nullptr)}) {
    const Answer roomy = Ask(section, nullptr, 20);
    EXPECT_EQ(roomy.count, 9u);
    EXPECT_EQ(roomy.written.substr(0, 10), "abc\0defg\0\0"s);
    EXPECT_EQ(Ask(section, nullptr, 10), (Answer{9, "abc\0defg\0\0"s}));
    EXPECT_EQ(Ask(section, nullptr, 9), (Answer{7, "abc\0def\0\0"s}));
    EXPECT_EQ(Ask(section, nullptr, 6), (Answer{4, "abc\0\0\0"s}));
    EXPECT_EQ(Ask(section, nullptr, 2), (Answer{0, "\0\0"s}));
    EXPECT_EQ(Ask(section, nullptr, 1), (Answer{0, "\0"s}));
  }
}

TEST_P(ProfileBehaviour, WhatCouldNotBeReadBackIsRefused) {
  EXPECT_NE(Write("A", "a", "1"), 0);
  for (const char* key : {"", " ", "a=b", ";a", "[a", "a\nb"}) EXPECT_EQ(Write("A", key, "2"), 0) << key;
  EXPECT_EQ(Write("A", "a", "2\n[B]"), 0);
  EXPECT_EQ(Write("", "a", "2"), 0);
  EXPECT_EQ(Write("A\r", "a", "1"), 1) << "an end of line around a name is a blank";
  EXPECT_EQ(Write("A\rB", "a", "2"), 0);
  EXPECT_EQ(Text("A", nullptr), "a\0"s);
  EXPECT_EQ(Text("A", "a"), "1");
}

TEST_P(ProfileBehaviour, NullAndEmptyArgumentsAreAnswered) {
  EXPECT_NE(Write("A", "x", "1"), 0);
  EXPECT_EQ(Text("A", "x", "(default)", nullptr), "(default)");
  EXPECT_EQ(Text("A", "x", "(default)", ""), "(default)");
  EXPECT_EQ(ProfileGetInt(nullptr, "x", kDefault, kFile), kDefault);
  EXPECT_EQ(ProfileGetInt("A", nullptr, kDefault, kFile), kDefault);
  EXPECT_EQ(ProfileGetInt("A", "x", kDefault, nullptr), kDefault);
  EXPECT_EQ(ProfileWriteString("A", "x", "2", nullptr), 0);
  EXPECT_EQ(ProfileWriteString("A", "x", "2", ""), 0);
  EXPECT_EQ(Write(nullptr, "x", "2"), 0);
  EXPECT_EQ(Write(nullptr, nullptr, nullptr), 0);
  EXPECT_EQ(Text("A", "x"), "1");
}
