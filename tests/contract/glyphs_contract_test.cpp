// The real glyphs library against the system's own wide text calls, on a bitmap in memory.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <string>
#include <vector>

#include "companion/glyphs.h"

namespace {

constexpr int kWidth = 320;
constexpr int kHeight = 40;

// A device context over a white bitmap, with one font selected.
class Canvas {
 public:
  Canvas(BYTE charset, const char* face) : dc_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&pixels_), nullptr, 0);
    SelectObject(dc_, bitmap_);
    PatBlt(dc_, 0, 0, kWidth, kHeight, WHITENESS);
    LOGFONTA font{};
    font.lfHeight = -20;
    font.lfCharSet = charset;
    std::strcpy(font.lfFaceName, face);
    font_ = CreateFontIndirectA(&font);
    SelectObject(dc_, font_);
  }
  ~Canvas() {
    DeleteDC(dc_);
    DeleteObject(bitmap_);
    DeleteObject(font_);
  }
  HDC dc() const { return dc_; }
  std::vector<DWORD> Pixels() const {
    GdiFlush();
    return {pixels_, pixels_ + kWidth * kHeight};
  }
  bool IsBlank() const { return Pixels() == Canvas(ANSI_CHARSET, "Arial").Pixels(); }

 private:
  HDC dc_;
  HBITMAP bitmap_;
  HFONT font_;
  DWORD* pixels_ = nullptr;
};

struct Sample {
  BYTE charset;
  const char* bytes;
  const wchar_t* text;
};

// Letters of each language of the program's readings, in its Windows code page, as published by the Unicode Consortium.
const Sample kSamples[] = {
    {ANSI_CHARSET, "\xC4rger", L"\u00C4rger"},
    {EASTEUROPE_CHARSET, "\xE8ten\xED", L"\u010Dten\u00ED"},
    {GREEK_CHARSET, "\xD4\xEF\xF1\xDC", L"\u03A4\u03BF\u03C1\u03AC"},
    {RUSSIAN_CHARSET, "\xD2\xEE\xF0\xE0", L"\u0422\u043E\u0440\u0430"},
    {HEBREW_CHARSET, "\xFA\xE5\xF8\xE4", L"\u05EA\u05D5\u05E8\u05D4"},
};

}  // namespace

TEST(GlyphsContract, DrawsAndMeasuresByTheCharsetOfTheSelectedFont) {
  for (const Sample& sample : kSamples) {
    const Canvas ours(sample.charset, "Arial");
    const Canvas wide(sample.charset, "Arial");
    ASSERT_EQ(GetTextCharset(ours.dc()), sample.charset) << "no font of charset " << int{sample.charset};
    const int length = static_cast<int>(std::strlen(sample.bytes));
    EXPECT_TRUE(GlyphsTextOut(ours.dc(), 3, 4, sample.bytes, length));
    EXPECT_TRUE(TextOutW(wide.dc(), 3, 4, sample.text, lstrlenW(sample.text)));
    EXPECT_EQ(ours.Pixels(), wide.Pixels()) << "charset " << int{sample.charset};
    EXPECT_FALSE(ours.IsBlank());

    SIZE oursSize{};
    SIZE wideSize{};
    EXPECT_TRUE(GlyphsGetTextExtentPoint(ours.dc(), sample.bytes, length, &oursSize));
    EXPECT_TRUE(GetTextExtentPoint32W(wide.dc(), sample.text, lstrlenW(sample.text), &wideSize));
    EXPECT_EQ(oursSize.cx, wideSize.cx);
    EXPECT_EQ(oursSize.cy, wideSize.cy);
  }
}

TEST(GlyphsContract, HebrewCharsetIsLaidOutFromRightToLeft) {
  // Alef then bet in logical order shows as bet then alef from the left.
  const Canvas logical(HEBREW_CHARSET, "Arial");
  const Canvas visual(HEBREW_CHARSET, "Arial");
  ASSERT_TRUE(GlyphsTextOut(logical.dc(), 0, 0, "\xE0\xE1", 2));
  SIZE bet{};
  ASSERT_TRUE(GlyphsGetTextExtentPoint(visual.dc(), "\xE1", 1, &bet));
  ASSERT_TRUE(GlyphsTextOut(visual.dc(), 0, 0, "\xE1", 1));
  ASSERT_TRUE(GlyphsTextOut(visual.dc(), bet.cx, 0, "\xE0", 1));
  EXPECT_EQ(logical.Pixels(), visual.Pixels());
}

TEST(GlyphsContract, PunctuationAtTheEndOfAHebrewTextStandsAtItsLeft) {
  // Alef and a full stop show as the full stop, then alef from the left, in each of the drawing calls.
  const Canvas visual(HEBREW_CHARSET, "Arial");
  SIZE stop{};
  ASSERT_TRUE(GlyphsGetTextExtentPoint(visual.dc(), ".", 1, &stop));
  ASSERT_TRUE(GlyphsTextOut(visual.dc(), 0, 0, ".", 1));
  ASSERT_TRUE(GlyphsTextOut(visual.dc(), stop.cx, 0, "\xE0", 1));

  const Canvas plain(HEBREW_CHARSET, "Arial");
  ASSERT_TRUE(GlyphsTextOut(plain.dc(), 0, 0, "\xE0.", 2));
  EXPECT_EQ(plain.Pixels(), visual.Pixels());
  const Canvas extended(HEBREW_CHARSET, "Arial");
  ASSERT_TRUE(GlyphsExtTextOut(extended.dc(), 0, 0, 0, nullptr, "\xE0.", 2, nullptr));
  EXPECT_EQ(extended.Pixels(), visual.Pixels());
  const Canvas inRectangle(HEBREW_CHARSET, "Arial");
  RECT all{0, 0, kWidth, kHeight};
  ASSERT_TRUE(GlyphsDrawText(inRectangle.dc(), "\xE0.", 2, &all, DT_SINGLELINE | DT_LEFT));
  EXPECT_EQ(inRectangle.Pixels(), visual.Pixels());
}

TEST(GlyphsContract, LatinCharsetIsDrawnLeftToRightAsTheBytesStand) {
  // The codes of alef and bet in a font of a Latin charset, as the Hebrew display font has them.
  const Canvas whole(ANSI_CHARSET, "Arial");
  const Canvas parts(ANSI_CHARSET, "Arial");
  ASSERT_TRUE(GlyphsTextOut(whole.dc(), 0, 0, "\xE0\xE1", 2));
  SIZE first{};
  ASSERT_TRUE(GlyphsGetTextExtentPoint(parts.dc(), "\xE0", 1, &first));
  ASSERT_TRUE(GlyphsTextOut(parts.dc(), 0, 0, "\xE0", 1));
  ASSERT_TRUE(GlyphsTextOut(parts.dc(), first.cx, 0, "\xE1", 1));
  EXPECT_EQ(whole.Pixels(), parts.Pixels());
}

TEST(GlyphsContract, ExtTextOutClipsAndSpaces) {
  const RECT clip{10, 5, 60, 25};
  const int spacing[] = {20, 30, 15};
  const Canvas ours(GREEK_CHARSET, "Arial");
  const Canvas wide(GREEK_CHARSET, "Arial");
  EXPECT_TRUE(GlyphsExtTextOut(ours.dc(), 5, 5, ETO_CLIPPED, &clip, "\xD4\xEF\xF1", 3, spacing));
  EXPECT_TRUE(ExtTextOutW(wide.dc(), 5, 5, ETO_CLIPPED, &clip, L"\u03A4\u03BF\u03C1", 3, spacing));
  EXPECT_EQ(ours.Pixels(), wide.Pixels());
  EXPECT_FALSE(ours.IsBlank());
}

TEST(GlyphsContract, ExtTextOutTakesOneNumberAByteForSpacingWhateverTheOptions) {
  const int spacing[] = {20, 30, 15};
  const Canvas plain(GREEK_CHARSET, "Arial");
  const Canvas odd(GREEK_CHARSET, "Arial");
  EXPECT_TRUE(GlyphsExtTextOut(plain.dc(), 5, 5, 0, nullptr, "\xD4\xEF\xF1", 3, spacing));
  EXPECT_TRUE(GlyphsExtTextOut(odd.dc(), 5, 5, ETO_PDY | ETO_GLYPH_INDEX, nullptr, "\xD4\xEF\xF1", 3, spacing));
  EXPECT_EQ(odd.Pixels(), plain.Pixels());
  EXPECT_FALSE(odd.IsBlank());
}

TEST(GlyphsContract, ExtTextOutFillsARectangleWithoutText) {
  const RECT all{0, 0, kWidth, kHeight};
  const Canvas canvas(ANSI_CHARSET, "Arial");
  SetBkColor(canvas.dc(), RGB(0, 0, 255));
  EXPECT_TRUE(GlyphsExtTextOut(canvas.dc(), 0, 0, ETO_OPAQUE, &all, nullptr, 0, nullptr));
  EXPECT_EQ(GetPixel(canvas.dc(), kWidth - 1, kHeight - 1), static_cast<COLORREF>(RGB(0, 0, 255)));
}

TEST(GlyphsContract, DrawTextBreaksWordsAndMeasures) {
  const Canvas ours(RUSSIAN_CHARSET, "Arial");
  const Canvas wide(RUSSIAN_CHARSET, "Arial");
  RECT oursRect{0, 0, 50, 0};
  RECT wideRect{0, 0, 50, 0};
  const UINT format = DT_WORDBREAK | DT_CALCRECT;
  const int oursHeight = GlyphsDrawText(ours.dc(), "\xD2\xEE\xF0\xE0 \xD2\xEE\xF0\xE0", -1, &oursRect, format);
  const int wideHeight =
      DrawTextW(wide.dc(), L"\u0422\u043E\u0440\u0430 \u0422\u043E\u0440\u0430", -1, &wideRect, format);
  EXPECT_GT(oursHeight, 0);
  EXPECT_EQ(oursHeight, wideHeight);
  EXPECT_TRUE(EqualRect(&oursRect, &wideRect));
}

TEST(GlyphsContract, DrawTextLeavesTheCallersTextAlone) {
  const Canvas canvas(ANSI_CHARSET, "Arial");
  char text[] = "a text far too long for its rectangle";
  const std::string before = text;
  RECT rect{0, 0, 40, 20};
  GlyphsDrawText(canvas.dc(), text, -1, &rect, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING);
  EXPECT_EQ(text, before);
}

TEST(GlyphsContract, NullAndEmptyTextsAreHarmless) {
  const Canvas canvas(ANSI_CHARSET, "Arial");
  SIZE size{};
  RECT rect{};
  EXPECT_FALSE(GlyphsTextOut(canvas.dc(), 0, 0, nullptr, 3));
  EXPECT_FALSE(GlyphsExtTextOut(canvas.dc(), 0, 0, 0, nullptr, nullptr, 3, nullptr));
  EXPECT_FALSE(GlyphsGetTextExtentPoint(canvas.dc(), nullptr, 3, &size));
  EXPECT_EQ(GlyphsDrawText(canvas.dc(), nullptr, 3, &rect, 0), 0);
  EXPECT_TRUE(GlyphsGetTextExtentPoint(canvas.dc(), "", 0, &size));
  EXPECT_EQ(size.cx, 0);
  EXPECT_TRUE(canvas.IsBlank());
}

TEST(GlyphsContract, NamesTheHebrewDisplayFontAndMakesItKnown) {
  char name[LF_FACESIZE];
  GlyphsGetHebrewFontName(name);
  EXPECT_STREQ(name, "DisplayHebrew1");
  const Canvas canvas(ANSI_CHARSET, name);
  char face[LF_FACESIZE];
  GetTextFaceA(canvas.dc(), sizeof face, face);
  EXPECT_STREQ(face, name);
  EXPECT_EQ(GetTextCharset(canvas.dc()), ANSI_CHARSET);
}

TEST(GlyphsContract, TheDisplayFontHasHebrewLettersAtTheirWindows1255Codes) {
  char name[LF_FACESIZE];
  GlyphsGetHebrewFontName(name);
  // The font is made of Liberation Serif, whose letters stand at their Unicode codes.
  for (unsigned letter = 0; letter <= 0x05EA - 0x05D0; ++letter) {
    const Canvas display(ANSI_CHARSET, name);
    const Canvas source(HEBREW_CHARSET, "Liberation Serif");
    const char byte = static_cast<char>(0xE0 + letter);
    const wchar_t code = static_cast<wchar_t>(0x05D0 + letter);
    ASSERT_TRUE(GlyphsTextOut(display.dc(), 10, 4, &byte, 1));
    ASSERT_TRUE(TextOutW(source.dc(), 10, 4, &code, 1));
    EXPECT_EQ(display.Pixels(), source.Pixels()) << "letter " << letter;
    EXPECT_FALSE(display.IsBlank());
  }
}

TEST(GlyphsContract, TheDisplayFontHasLatinLettersDigitsAndPunctuation) {
  char name[LF_FACESIZE];
  GlyphsGetHebrewFontName(name);
  for (char character = '!'; character <= '~'; ++character) {
    const Canvas display(ANSI_CHARSET, name);
    const Canvas source(ANSI_CHARSET, "Liberation Serif");
    ASSERT_TRUE(GlyphsTextOut(display.dc(), 10, 4, &character, 1));
    ASSERT_TRUE(GlyphsTextOut(source.dc(), 10, 4, &character, 1));
    EXPECT_EQ(display.Pixels(), source.Pixels()) << character;
  }
}

TEST(GlyphsContract, TheDisplayFontIsDrawnLeftToRightAsTheBytesStand) {
  char name[LF_FACESIZE];
  GlyphsGetHebrewFontName(name);
  const Canvas whole(ANSI_CHARSET, name);
  const Canvas parts(ANSI_CHARSET, name);
  ASSERT_TRUE(GlyphsTextOut(whole.dc(), 0, 0, "(12) \xE0\xE1", 7));
  SIZE first{};
  ASSERT_TRUE(GlyphsGetTextExtentPoint(parts.dc(), "(12) \xE0", 6, &first));
  ASSERT_TRUE(GlyphsTextOut(parts.dc(), 0, 0, "(12) \xE0", 6));
  ASSERT_TRUE(GlyphsTextOut(parts.dc(), first.cx, 0, "\xE1", 1));
  EXPECT_EQ(whole.Pixels(), parts.Pixels());
}
