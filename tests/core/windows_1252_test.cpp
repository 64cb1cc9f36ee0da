#include <gtest/gtest.h>

#include <set>

#include "libraries/dialogs/windows_1252.h"

namespace dialogs {
namespace {

TEST(Windows1252, EveryByteComesBackFromACharacterOfItsOwn) {
  std::set<wchar_t> characters;
  for (int byte = 0; byte <= 255; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    const std::wstring wide = Wide(text);
    ASSERT_EQ(wide.size(), 1u);
    EXPECT_EQ(Narrow(wide), text) << byte;
    characters.insert(wide[0]);
  }
  EXPECT_EQ(characters.size(), 256u);
}

// The Unicode Consortium's table CP1252.TXT; the five bytes that it leaves free stand for themselves, as in Windows.
TEST(Windows1252, LettersAreThoseOfTheTable) {
  EXPECT_EQ(Utf16("Z\xFCrich 5\xB0 \x80\x8A\x9F\x92"), u"Zürich 5° €ŠŸ’");
  EXPECT_EQ(Utf16("\x81\x8D\x8F\x90\x9D"), u"\x81\x8D\x8F\x90\x9D");
  EXPECT_EQ(Wide("Z\xFCrich"), L"Z\u00FCrich");
  EXPECT_EQ(Wide("\x80\x8A\x92\x9F\xA0\xFF"), (std::wstring{0x20AC, 0x0160, 0x2019, 0x0178, 0x00A0, 0x00FF}));
}

TEST(Windows1252, TextWithOtherLettersHasNoBytes) {
  EXPECT_EQ(Narrow(std::wstring{L'a', 0x05D0}), std::nullopt);
  EXPECT_EQ(Narrow(std::wstring{0x0080}), std::nullopt);
  EXPECT_EQ(Narrow(L""), "");
}

}  // namespace
}  // namespace dialogs
