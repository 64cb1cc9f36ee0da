#include "libraries/profile/ini_document.h"

#include <gtest/gtest.h>

namespace profile {
namespace {

using std::string_literals::operator""s;

std::string ValueOf(const std::string& text, const char* section, const char* key) {
  return std::string(IniDocument(text).Value(section, key).value_or("(none)"));
}

TEST(IniDocument, FindsAKeyOfASection) {
  const std::string text = "[A]\r\nx=1\r\n[B]\r\nx=2\r\n";
  EXPECT_EQ(ValueOf(text, "A", "x"), "1");
  EXPECT_EQ(ValueOf(text, "B", "x"), "2");
  EXPECT_EQ(ValueOf(text, "A", "y"), "(none)");
  EXPECT_EQ(ValueOf(text, "C", "x"), "(none)");
}

TEST(IniDocument, NamesIgnoreAsciiLetterCaseOnly) {
  const std::string text = "[Shabbat]\r\nEnd=45\r\n\xE4=1\r\n";
  EXPECT_EQ(ValueOf(text, "sHABBAT", "eND"), "45");
  EXPECT_EQ(ValueOf(text, "Shabbat", "\xE4"), "1");
  EXPECT_EQ(ValueOf(text, "Shabbat", "\xC4"), "(none)");
  EXPECT_EQ(ValueOf("[[]\r\n@=1\r\n", "{", "`"), "(none)");  // 32 away from "[" and "@", but no letters
}

TEST(IniDocument, BlanksAroundNamesAndValuesMeanNothing) {
  const std::string text = "  [ A ]\r\n\t x\t= \v1 2 \f\r\n";
  EXPECT_EQ(ValueOf(text, "A", "x"), "1 2");
  EXPECT_EQ(ValueOf(text, " A ", " x "), "1 2");
}

TEST(IniDocument, EmptyValueIsAValue) {
  EXPECT_EQ(ValueOf("[A]\r\nx=\r\ny= \r\nz=", "A", "x"), "");
  EXPECT_EQ(ValueOf("[A]\r\nx=\r\ny= \r\nz=", "A", "y"), "");
  EXPECT_EQ(ValueOf("[A]\r\nx=\r\ny= \r\nz=", "A", "z"), "");
}

TEST(IniDocument, ValueGoesOnAfterFurtherSigns) {
  EXPECT_EQ(ValueOf("[A]\r\nx=a=b;c[d]\r\n", "A", "x"), "a=b;c[d]");
}

TEST(IniDocument, CommentsAreNoKeys) {
  const std::string text = "[A]\r\n;x=1\r\n  ; y=2\r\nz=3\r\n";
  EXPECT_EQ(ValueOf(text, "A", ";x"), "(none)");
  EXPECT_EQ(ValueOf(text, "A", "; y"), "(none)");
  EXPECT_EQ(IniDocument(text).KeyNames("A"), "z\0"s);
}

TEST(IniDocument, LinesWithoutEqualsSignAreNoKeys) {
  const std::string text = "[A]\r\nx\r\n[unclosed\r\ny=1\r\n";
  EXPECT_EQ(ValueOf(text, "A", "x"), "(none)");
  EXPECT_EQ(ValueOf(text, "A", "y"), "1");
  EXPECT_EQ(IniDocument(text).KeyNames("A"), "y\0"s);
}

TEST(IniDocument, LinesBeforeTheFirstSectionMeanNothing) {
  const std::string text = "x=1\r\n[A]\r\nx=2\r\n";
  EXPECT_EQ(ValueOf(text, "", "x"), "(none)");
  EXPECT_EQ(ValueOf(text, "A", "x"), "2");
}

TEST(IniDocument, NamelessSectionsAndKeysAreNotThere) {
  const std::string text = "[]\r\nx=1\r\n[A]\r\n=2\r\ny=3\r\n";
  EXPECT_EQ(ValueOf(text, "", "x"), "(none)");
  EXPECT_EQ(ValueOf(text, "A", ""), "(none)");
  EXPECT_EQ(IniDocument(text).SectionNames(), "A\0"s);
  EXPECT_EQ(IniDocument(text).KeyNames("A"), "y\0"s);
}

TEST(IniDocument, FirstOfSeveralKeysOrSectionsCounts) {
  const std::string text = "[A]\r\nx=1\r\nX=2\r\n[B]\r\n[a]\r\nx=3\r\ny=4\r\n";
  EXPECT_EQ(ValueOf(text, "A", "x"), "1");
  EXPECT_EQ(ValueOf(text, "A", "y"), "(none)");
}

TEST(IniDocument, OfSeveralSpellingsTheOneAskedForCounts) {
  const std::string text = "[Home]\r\nx=1\r\nX=2\r\nx=3\r\nX=4\r\n[HOME]\r\nx=5\r\n[home]\r\nx=6\r\n[HOME]\r\nx=7\r\n";
  EXPECT_EQ(ValueOf(text, "Home", "x"), "1");
  EXPECT_EQ(ValueOf(text, "Home", "X"), "2");
  EXPECT_EQ(ValueOf(text, "HOME", "x"), "5");
  EXPECT_EQ(ValueOf(text, "HOME", "X"), "5");
  EXPECT_EQ(ValueOf(text, "home", "x"), "6");
  EXPECT_EQ(ValueOf(text, "hOME", "x"), "1");
}

TEST(IniDocument, ListsNamesInOrderWithRepeats) {
  const IniDocument document("[A]\r\nx=1\r\nX=2\r\ny=\r\n[B]\r\n[a]\r\nz=3\r\n");
  EXPECT_EQ(document.SectionNames(), "A\0B\0a\0"s);
  EXPECT_EQ(document.KeyNames("A"), "x\0X\0y\0"s);
  EXPECT_EQ(document.KeyNames("a"), "z\0"s);
  EXPECT_EQ(document.KeyNames("B"), "");
  EXPECT_EQ(document.KeyNames("C"), std::nullopt);
}

TEST(IniDocument, SectionNameEndsAtTheLastBracketOfItsLine) {
  const std::string text = "[A] ; comment\r\nx=1\r\n[B]y=2\r\nx=3\r\n[c]d]\r\nx=4\r\n[i=j;k]\r\nx=5\r\n";
  EXPECT_EQ(ValueOf(text, "A", "x"), "1");
  EXPECT_EQ(ValueOf(text, "B", "x"), "3");
  EXPECT_EQ(ValueOf(text, "B", "y"), "(none)");
  EXPECT_EQ(ValueOf(text, "c]d", "x"), "4");
  EXPECT_EQ(ValueOf(text, "i=j;k", "x"), "5");
}

TEST(IniDocument, AnyLineEndWillDo) {
  for (const char* text : {"[A]\r\nx=1\r\ny=2", "[A]\nx=1\ny=2\n", "[A]\rx=1\ry=2\r", "[A]\n\rx=1\r\r\n\ny=2\r\n"}) {
    EXPECT_EQ(ValueOf(text, "A", "x"), "1") << text;
    EXPECT_EQ(ValueOf(text, "A", "y"), "2") << text;
  }
}

TEST(IniDocument, ByteOrderMarkIsSkipped) {
  EXPECT_EQ(ValueOf("\xEF\xBB\xBF[A]\r\nx=1\r\n", "A", "x"), "1");
  EXPECT_EQ(IniDocument("\xEF\xBB\xBF").SectionNames(), "");
}

TEST(IniDocument, EndOfFileMarkOfOldEditorsIsABlank) {
  EXPECT_EQ(ValueOf("[A]\r\nx=1\x1A", "A", "x"), "1");
  EXPECT_EQ(ValueOf("[A]\r\nx=1\r\n\x1A", "A", "x"), "1");
}

TEST(IniDocument, EightBitBytesPassThrough) {
  std::string bytes;
  for (int byte = 0x80; byte <= 0xFF; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(ValueOf("[A]\r\nx=" + bytes + "\r\n", "A", "x"), bytes);
  EXPECT_EQ(ValueOf("[" + bytes + "]\r\n" + bytes + "=1\r\n", bytes.c_str(), bytes.c_str()), "1");
}

TEST(IniDocument, NamesAndValuesEndAtAZeroByte) {
  const std::string text = "[A]\0b]\r\nx=1\0z\r\ny\0k=2\r\n\0w=3\r\nz=4\r\n"s;
  EXPECT_EQ(ValueOf(text, "A", "x"), "1");
  EXPECT_EQ(ValueOf(text, "A", "y"), "2");
  EXPECT_EQ(IniDocument(text).KeyNames("A"), "x\0y\0z\0"s);
  EXPECT_EQ(IniDocument(std::string(4096, '\0')).SectionNames(), "");
}

TEST(IniDocument, EmptyTextHoldsNothing) {
  EXPECT_EQ(IniDocument("").SectionNames(), "");
  EXPECT_EQ(IniDocument("").KeyNames("A"), std::nullopt);
  EXPECT_EQ(IniDocument("\r\n\r\n").SectionNames(), "");
}

TEST(IniDocument, FindsTheLastOfManyKeys) {
  std::string text;
  for (int section = 0; section < 500; ++section) {
    text += "[S"s + std::to_string(section) + "]\r\n";
    for (int key = 0; key < 20; ++key)
      text += "k"s + std::to_string(key) + "=" + std::to_string(section * key) + "\r\n";
  }
  const IniDocument document(text);
  EXPECT_EQ(document.Value("s499", "K19"), "9481");  // 499 * 19
  EXPECT_EQ(document.Value("s0", "K19"), "0");
}

}  // namespace
}  // namespace profile
