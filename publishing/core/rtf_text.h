// Texts and paragraphs in RTF.
#pragma once

#include <string>
#include <string_view>

#include "publishing/core/table.h"

namespace publishing {

// How letters look.
class RtfLetters {
 public:
  explicit RtfLetters(int halfPoints, bool bold = false);

  // What stands before letters of a direction; a brace closes it.
  const std::string& Beginning(bool rightToLeft) const { return rightToLeft ? rightToLeft_ : leftToRight_; }

 private:
  std::string leftToRight_;
  std::string rightToLeft_;
};

// How texts stand in their paragraphs.
struct RtfPlace {
  Direction direction = Direction::kNeutral;  // kNeutral: as its first letter
  Align align = Align::kStart;
  bool rightToLeft = false;  // for texts without letters
};

// The characters of a text as they stand, without control characters.
void AppendRtfCharacters(std::string& rtf, std::u32string_view characters);

// Direction, alignment and letters of a paragraph, for after its \pard; the text in one line.
void AppendRtfParagraph(std::string& rtf, std::string_view text, const RtfPlace& place, const RtfLetters& letters);

}  // namespace publishing
