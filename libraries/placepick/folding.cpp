#include "libraries/placepick/folding.h"

#include <algorithm>
#include <iterator>

namespace placepick {
namespace {

// What a character is searched as. Not letters are:
constexpr std::u16string_view kSeparator = u" ";
constexpr std::u16string_view kApostrophe = u"'";
constexpr std::u16string_view kNothing = u"";

// U+00C0 to U+00DF; the small letters of U+00E0 to U+00FF stand in the same order.
constexpr std::u16string_view kAccented[] = {
    u"a", u"a", u"a", u"a", u"a", u"a", u"ae", u"c", u"e", u"e", u"e", u"e", u"i", u"i", u"i",  u"i",
    u"d", u"n", u"o", u"o", u"o", u"o", u"o",  u" ", u"o", u"u", u"u", u"u", u"u", u"y", u"th", u"ss",
};
constexpr char16_t kMaqaf = 0x5BE;          // the Hebrew hyphen
constexpr char16_t kYWithDiaeresis = 0xFF;  // stands where U+00DF has its capital

// The letters of Latin Extended-A, U+0100 to U+017F, without their accents.
constexpr std::u16string_view kExtended =
    u"aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiiijjkkkllllllllllnnnnnnnnnoooooooorrrrrrssssssssttttttuuuuuuuuu"
    u"uuuwwyyyzzzzzzs";
static_assert(kExtended.size() == 0x80);

struct Folding {
  char16_t character;
  std::u16string_view as;
};
constexpr Folding kOthers[] = {
    {u'\u00AA', u"a"},        {u'\u00B2', u"2"},        {u'\u00B3', u"3"},       {u'\u00B4', kApostrophe},
    {u'\u00B9', u"1"},        {u'\u00BA', u"o"},        {u'\u0152', u"oe"},      {u'\u0153', u"oe"},
    {u'\u0160', u"s"},        {u'\u0161', u"s"},        {u'\u0178', u"y"},       {u'\u017D', u"z"},
    {u'\u017E', u"z"},        {u'\u0192', u"f"},        {u'\u02C6', kSeparator}, {u'\u02DC', kSeparator},
    {u'\u2018', kApostrophe}, {u'\u2019', kApostrophe}, {u'\u20AC', kSeparator}, {u'\u2122', kSeparator},
    {u'\u0218', u"s"},        {u'\u0219', u"s"},        {u'\u021A', u"t"},       {u'\u021B', u"t"},
    {u'\u05F3', kApostrophe}, {u'\u05F4', kApostrophe},
};

constexpr bool IsWithin(char16_t c, char16_t first, char16_t last) {
  return c >= first && c <= last;
}

std::u16string_view FoldedAscii(const char16_t& c) {
  static constexpr std::u16string_view kSmallLetters = u"abcdefghijklmnopqrstuvwxyz";
  if (IsWithin(c, u'A', u'Z')) return kSmallLetters.substr(static_cast<std::size_t>(c - u'A'), 1);
  if (IsWithin(c, u'a', u'z') || IsWithin(c, u'0', u'9')) return {&c, 1};
  return c == u'\'' || c == u'`' ? kApostrophe : kSeparator;
}

std::u16string_view FoldedCharacter(const char16_t& c) {
  if (c < 0x80) return FoldedAscii(c);
  const auto other = std::ranges::find(kOthers, c, &Folding::character);
  if (other != std::end(kOthers)) return other->as;
  if (c == kYWithDiaeresis) return u"y";
  if (IsWithin(c, 0xC0, 0xFF)) return kAccented[(c - 0xC0) % std::size(kAccented)];
  if (IsWithin(c, 0x100, 0x17F)) return kExtended.substr(static_cast<std::size_t>(c - 0x100), 1);
  if (IsWithin(c, 0x300, 0x36F)) return kNothing;                             // accents on their own
  if (IsWithin(c, 0x591, 0x5C7)) return c == kMaqaf ? kSeparator : kNothing;  // Hebrew points
  if (c < 0xC0 || IsWithin(c, 0x2000, 0x206F)) return kSeparator;             // signs, punctuation
  return {&c, 1};
}

}  // namespace

FoldedText Fold(std::u16string_view text) {
  FoldedText folded;
  bool startsWord = true;
  bool separated = false;
  for (const char16_t& c : text) {
    const std::u16string_view letters = FoldedCharacter(c);
    if (letters == kSeparator || letters == kApostrophe) {
      startsWord = true;
      separated = separated || letters == kSeparator;
      continue;
    }
    if (letters.empty()) continue;
    if (separated && !folded.text.empty()) folded.text += u' ';
    if (startsWord) folded.wordStarts.push_back(folded.text.size());
    folded.text += letters;
    startsWord = false;
    separated = false;
  }
  return folded;
}

}  // namespace placepick
