#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <string>

#include "libraries/twilight/decimal_number.h"

namespace {

using twilight::IsDecimalNumber;
using twilight::ReadDecimalPrefix;

constexpr double kLargest = std::numeric_limits<double>::max();

TEST(TwilightDecimalNumber, ReadsTheWaysToWriteANumber) {
  const struct {
    const char* text;
    double value;
  } expected[] = {{"8", 8},     {"8.5", 8.5},     {".5", 0.5},    {"5.", 5},     {"+8", 8},      {"-8", -8},
                  {"-.5", -.5}, {"+5.", 5},       {"007", 7},     {"8.50", 8.5}, {" 8.5 ", 8.5}, {"\t\r\n\v\f8", 8},
                  {"0", 0},     {"7.083", 7.083}, {"16.1", 16.1}, {"0.1", 0.1}};
  for (const auto& row : expected) {
    EXPECT_TRUE(IsDecimalNumber(row.text)) << row.text;
    EXPECT_TRUE(ReadDecimalPrefix(row.text).isNumber) << row.text;
    EXPECT_EQ(ReadDecimalPrefix(row.text).value, row.value) << row.text;
  }
}

TEST(TwilightDecimalNumber, RefusesWhatIsNoNumber) {
  for (const char* text : {"", " ", ".", "+", "-", "+.", "-.", "--8", "+-8", "- 8", "e5", "x", "inf", "nan", "NaN",
                           "infinity", "-inf", ",5"}) {
    EXPECT_FALSE(IsDecimalNumber(text)) << text;
    EXPECT_FALSE(ReadDecimalPrefix(text).isNumber) << text;
  }
}

TEST(TwilightDecimalNumber, ReadsTheNumberThatATextStartsWithButDoesNotCallTheTextOne) {
  const struct {
    const char* text;
    double value;
  } expected[] = {{"8,5", 8}, {"1e5", 1}, {"0x10", 0},          {"8.5.1", 8.5},
                  {"8 5", 8}, {"8-", 8},  {"8.5 degrees", 8.5}, {"5.e3", 5}};
  for (const auto& row : expected) {
    EXPECT_FALSE(IsDecimalNumber(row.text)) << row.text;
    EXPECT_TRUE(ReadDecimalPrefix(row.text).isNumber) << row.text;
    EXPECT_EQ(ReadDecimalPrefix(row.text).value, row.value) << row.text;
  }
}

TEST(TwilightDecimalNumber, ReadsAnyNumberOfDigits) {
  const std::string nines(5000, '9');
  EXPECT_TRUE(IsDecimalNumber(nines));
  EXPECT_EQ(ReadDecimalPrefix(nines).value, kLargest);
  EXPECT_EQ(ReadDecimalPrefix("-" + nines).value, -kLargest);
  EXPECT_EQ(ReadDecimalPrefix(nines + ".5").value, kLargest);
  const std::string zeros(5000, '0');
  EXPECT_TRUE(IsDecimalNumber(zeros + "8.5" + zeros));
  EXPECT_EQ(ReadDecimalPrefix(zeros + "8.5" + zeros).value, 8.5);
  EXPECT_EQ(ReadDecimalPrefix("0." + zeros + "1").value, 0);
  EXPECT_EQ(ReadDecimalPrefix("." + zeros + "1").value, 0);
  EXPECT_EQ(ReadDecimalPrefix("8." + std::string(5000, '3')).value, 8 + 1.0 / 3);
}

TEST(TwilightDecimalNumber, ANulCharacterIsNoSpace) {
  EXPECT_FALSE(IsDecimalNumber(std::string_view("8\0", 2)));
}

// The grammar once more, as a machine of five states, and the value by the C library.
struct Expected {
  bool isNumber = false;
  size_t length = 0;
};

Expected ExpectedOf(const std::string& text) {
  enum { kSpaces, kSign, kDigits, kPointAfterDigits, kBarePoint } state = kSpaces;
  Expected expected;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const bool isDigit = c >= '0' && c <= '9';
    if (state == kSpaces && c == ' ') {
      continue;
    } else if (state == kSpaces && (c == '+' || c == '-')) {
      state = kSign;
    } else if ((state == kSpaces || state == kSign) && c == '.') {
      state = kBarePoint;
    } else if ((state == kSpaces || state == kSign || state == kDigits) && isDigit) {
      state = kDigits;
    } else if ((state == kDigits && c == '.') || ((state == kPointAfterDigits || state == kBarePoint) && isDigit)) {
      state = kPointAfterDigits;
    } else {
      break;
    }
    if (state == kDigits || state == kPointAfterDigits) expected = {true, i + 1};
  }
  return expected;
}

TEST(TwilightDecimalNumber, EveryShapeOfUpToSixCharactersIsReadByTheGrammar) {
  const std::string alphabet = "+-.07 e";
  for (size_t length = 0; length <= 6; ++length) {
    size_t count = 1;
    for (size_t i = 0; i < length; ++i) count *= alphabet.size();
    for (size_t index = 0; index < count; ++index) {
      std::string text(length, ' ');
      for (size_t i = 0, rest = index; i < length; ++i, rest /= alphabet.size())
        text[i] = alphabet[rest % alphabet.size()];
      const Expected expected = ExpectedOf(text);
      const twilight::DecimalPrefix prefix = ReadDecimalPrefix(text);
      ASSERT_EQ(prefix.isNumber, expected.isNumber) << '"' << text << '"';
      ASSERT_EQ(prefix.length, expected.length) << '"' << text << '"';
      const bool isWhole = expected.isNumber && text.find_first_not_of(' ', expected.length) == std::string::npos;
      ASSERT_EQ(IsDecimalNumber(text), isWhole) << '"' << text << '"';
      if (expected.isNumber) {
        ASSERT_EQ(prefix.value, std::strtod(text.substr(0, expected.length).c_str(), nullptr)) << '"' << text << '"';
      }
    }
  }
}

}  // namespace
