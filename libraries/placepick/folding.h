// Texts as they are searched: letters' case and accents aside.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace placepick {

// A text as it is searched: small letters without accents ("\u00DF" as "ss", "\u0152" as "oe") and digits, words apart
// by one space. Apostrophes are left out, but a new word begins behind one too: "Ra'anana" is found as "raan" and as
// "anana". Letters outside windows-1252 stay as they are.
struct FoldedText {
  std::u16string text;
  std::vector<std::size_t> wordStarts;  // ascending positions in text
};
FoldedText Fold(std::u16string_view text);

}  // namespace placepick
