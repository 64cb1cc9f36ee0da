#include "companion/glyphs.h"

#include <cstring>
#include <new>
#include <string>
#include <vector>

#include "libraries/glyphs/display_font.h"
#include "libraries/glyphs/wide_text.h"

namespace {

// These would have the system take the spacing for pairs of numbers, or the text for glyph numbers.
constexpr UINT kNotOfBytes = ETO_PDY | ETO_GLYPH_INDEX;

// Runs a text call; a text too large for memory is a failure of the call.
template <typename Call>
auto Guarded(Call call) -> decltype(call()) {
  try {
    EnsureDisplayFont();
    return call();
  } catch (const std::bad_alloc&) {
    return 0;
  }
}

// A sentence of such a font reads from right to left, numbers and brackets in it included.
bool IsHebrew(int charset) {
  return charset == HEBREW_CHARSET;
}

int LengthOf(const char* text, int count) {
  return count == -1 ? static_cast<int>(std::strlen(text)) : count;
}

}  // namespace

BOOL GlyphsTextOut(HDC dc, int x, int y, const char* text, int count) {
  if (!text) return FALSE;
  return Guarded([&] {
    const int charset = GetTextCharset(dc);
    const std::wstring wide = WideText(charset, text, LengthOf(text, count));
    return ExtTextOutW(dc, x, y, IsHebrew(charset) ? ETO_RTLREADING : 0, nullptr, wide.c_str(),
                       static_cast<UINT>(wide.size()), nullptr);
  });
}

BOOL GlyphsExtTextOut(HDC dc, int x, int y, UINT options, const RECT* rectangle, const char* text, UINT count,
                      const INT* spacing) {
  if (!text && count > 0) return FALSE;
  return Guarded([&] {
    const int charset = GetTextCharset(dc);
    const std::wstring wide = WideText(charset, text, static_cast<int>(count));
    std::vector<int> wideSpacing;
    if (spacing) wideSpacing = WideSpacing(charset, text, static_cast<int>(count), spacing);
    const UINT direction = IsHebrew(charset) ? ETO_RTLREADING : 0;
    return ExtTextOutW(dc, x, y, (options & ~kNotOfBytes) | direction, rectangle, wide.c_str(),
                       static_cast<UINT>(wide.size()), spacing ? wideSpacing.data() : nullptr);
  });
}

BOOL GlyphsGetTextExtentPoint(HDC dc, const char* text, int count, SIZE* size) {
  if (!text || !size) return FALSE;
  return Guarded([&] {
    const std::wstring wide = WideText(GetTextCharset(dc), text, LengthOf(text, count));
    return GetTextExtentPoint32W(dc, wide.c_str(), static_cast<int>(wide.size()), size);
  });
}

int GlyphsDrawText(HDC dc, const char* text, int count, RECT* rectangle, UINT format) {
  if (!text || !rectangle) return 0;
  return Guarded([&] {
    const int charset = GetTextCharset(dc);
    const std::wstring wide = WideText(charset, text, LengthOf(text, count));
    const UINT direction = IsHebrew(charset) ? DT_RTLREADING : 0;
    // The caller's text is not ours to change, so the system may not shorten it in place.
    const UINT unmodified = format & ~static_cast<UINT>(DT_MODIFYSTRING);
    return DrawTextW(dc, wide.c_str(), static_cast<int>(wide.size()), rectangle, unmodified | direction);
  });
}

void GlyphsGetHebrewFontName(char* name) {
  if (!name) return;
  Guarded([&] { return std::memcpy(name, kDisplayFontName, sizeof kDisplayFontName) != nullptr; });
}
