#include "publishing/core/table_rtf.h"

#include <algorithm>

#include "publishing/core/column_widths.h"
#include "publishing/core/unicode.h"

namespace publishing {
namespace {

// Twips, 1/20 point. A4 with margins of 2 cm.
constexpr int kShortEdge = 11906;
constexpr int kLongEdge = 16838;
constexpr int kMargin = 1134;
constexpr int kCellGap = 108;  // at each side of a cell

// The room that a character takes on average in a proportional font, in twips for each half point of its size: 0.55 em.
constexpr double kCharacterWidth = 5.5;

// Beyond these the room cannot be a number of the file's any more; what is longer is narrowed in any case.
constexpr std::size_t kMostCharacters = 10000;
constexpr int kLeastHalfPoints = 2;
constexpr int kMostHalfPoints = 400;

constexpr int kTitleHalfPointsMore = 8;

// A character as RTF has it: signed 16-bit units, each with a mark for readers that do not know them.
void AppendCharacter(std::string& rtf, char32_t character) {
  if (character == '\\' || character == '{' || character == '}') rtf += '\\';
  if (character >= ' ' && character < 0x7F) {
    rtf += static_cast<char>(character);
    return;
  }
  if (character < 0x80) return;  // control characters
  std::u16string units;
  AppendUtf16(units, character);
  for (const char16_t unit : units) rtf += "\\u" + std::to_string(static_cast<int16_t>(unit)) + "?";
}

struct Form {
  int halfPoints;
  bool bold = false;
};

// The last of \ltrch and \rtlch is in force; what stands between is for the letters of the other kind.
std::string FormOf(const Form& form, bool rightToLeft) {
  const std::string size = std::to_string(form.halfPoints);
  const std::string other = std::string("\\af0\\afs") + size + (form.bold ? "\\ab" : "");
  const std::string own = "\\f0\\fs" + size + (form.bold ? "\\b" : "");
  return rightToLeft ? "{\\ltrch\\fcs0" + own + "\\rtlch\\fcs1" + other + " "
                     : "{\\rtlch\\fcs1" + other + "\\ltrch\\fcs0" + own + " ";
}

void AppendRuns(std::string& rtf, const std::string& text, const Form& form) {
  for (const DirectedRun& run : RunsOf(InOneLine(text))) {
    rtf += FormOf(form, run.rightToLeft);
    for (const char32_t character : run.characters) AppendCharacter(rtf, character);
    rtf += "}";
  }
}

// How a paragraph stands. A text from right to left begins at the right.
std::string ParagraphOf(const std::string& text, Align align) {
  if (IsRightToLeft(text)) return "\\rtlpar\\qr ";
  return align == Align::kEnd ? "\\ltrpar\\qr " : "\\ltrpar\\ql ";
}

void AppendParagraph(std::string& rtf, const std::string& text, const Form& form, int spaceAfter) {
  rtf += "\\pard\\sa" + std::to_string(spaceAfter) + ParagraphOf(text, Align::kStart);
  AppendRuns(rtf, text, form);
  rtf += "\\par\r\n";
}

class Writer {
 public:
  Writer(const Table& table, const RtfFont& font)
      : table_(table),
        font_(font),
        text_{.halfPoints = std::clamp(font.halfPoints, kLeastHalfPoints, kMostHalfPoints)},
        bold_{.halfPoints = text_.halfPoints, .bold = true} {
    MeasureColumns();
  }

  std::string Rtf() const {
    std::string rtf;
    AppendBeginning(rtf);
    const Form title{.halfPoints = text_.halfPoints + kTitleHalfPointsMore, .bold = true};
    if (!table_.title.empty()) AppendParagraph(rtf, table_.title, title, 120);
    for (std::size_t remark = 0; remark < table_.remarks.size(); ++remark) {
      AppendParagraph(rtf, table_.remarks[remark], text_, remark + 1 == table_.remarks.size() ? 120 : 0);
    }
    if (!table_.columns.empty()) AppendTable(rtf);
    rtf += "\\pard\\par}\r\n";
    return rtf;
  }

 private:
  void MeasureColumns() {
    std::vector<std::size_t> longest;
    for (const Column& column : table_.columns) longest.push_back(WidthInCharacters(column.heading));
    ForEachRow(table_, [&](const Row& row) {
      for (std::size_t column = 0; column < longest.size(); ++column) {
        longest[column] = std::max(longest[column], WidthInCharacters(CellOf(row, column)));
      }
    });
    std::vector<int> own;
    for (const std::size_t characterCount : longest) {
      // One more, because the average is no promise.
      const auto characters = static_cast<double>(std::min(characterCount, kMostCharacters) + 1);
      own.push_back(static_cast<int>(characters * kCharacterWidth * text_.halfPoints) + 2 * kCellGap);
    }
    isLandscape_ = ColumnWidths(own, kShortEdge - 2 * kMargin) != own;
    widths_ = ColumnWidths(own, (isLandscape_ ? kLongEdge : kShortEdge) - 2 * kMargin);
  }

  void AppendBeginning(std::string& rtf) const {
    rtf += "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\r\n{\\fonttbl{\\f0\\fnil\\fcharset0 ";
    std::string_view face = font_.face;
    while (!face.empty()) {
      const char32_t character = TakeCharacter(face);
      if (character != ';') AppendCharacter(rtf, character);  // which ends the name
    }
    rtf += ";}}\r\n";
    rtf += "\\paperw" + std::to_string(isLandscape_ ? kLongEdge : kShortEdge);
    rtf += "\\paperh" + std::to_string(isLandscape_ ? kShortEdge : kLongEdge);
    for (const char* margin : {"\\margl", "\\margr", "\\margt", "\\margb"}) rtf += margin + std::to_string(kMargin);
    rtf += isLandscape_ ? "\\landscape\\sectd\\lndscpsxn\r\n" : "\\sectd\r\n";
  }

  std::string CellsDefinition(const char* border) const {
    std::string definition;
    int right = 0;
    for (const int width : widths_) {
      right += width;
      definition += border + std::string("\\cellx") + std::to_string(right);
    }
    return definition;
  }

  template <typename TextOfColumn>
  void AppendRow(std::string& rtf, const Form& form, TextOfColumn textOf) const {
    for (std::size_t column = 0; column < widths_.size(); ++column) {
      const std::string& text = textOf(column);
      rtf += "\\pard\\intbl" + ParagraphOf(text, table_.columns[column].align);
      AppendRuns(rtf, text, form);
      rtf += "\\cell\r\n";
    }
    rtf += "\\row\r\n";
  }

  void AppendTable(std::string& rtf) const {
    const std::string gap = "\\trgaph" + std::to_string(kCellGap);
    rtf += "\\trowd\\trhdr\\trkeep" + gap + CellsDefinition("\\clbrdrb\\brdrs\\brdrw10") + "\r\n";
    AppendRow(rtf, bold_, [&](std::size_t column) -> const std::string& { return table_.columns[column].heading; });
    const std::string rowBeginning = "\\trowd\\trkeep" + gap + CellsDefinition("") + "\r\n";
    ForEachRow(table_, [&](const Row& row) {
      rtf += rowBeginning;
      AppendRow(rtf, text_, [&](std::size_t column) -> const std::string& { return CellOf(row, column); });
    });
  }

  const Table& table_;
  const RtfFont& font_;
  Form text_;
  Form bold_;
  std::vector<int> widths_;
  bool isLandscape_ = false;
};

}  // namespace

std::string RtfOf(const Table& table, const RtfFont& font) {
  return Writer(table, font).Rtf();
}

}  // namespace publishing
