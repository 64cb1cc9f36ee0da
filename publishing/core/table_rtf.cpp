#include "publishing/core/table_rtf.h"

#include <algorithm>
#include <numeric>
#include <string_view>
#include <utility>
#include <vector>

#include "publishing/core/column_widths.h"
#include "publishing/core/plain_text.h"
#include "publishing/core/row_passes.h"
#include "publishing/core/rtf_text.h"
#include "publishing/core/sink_buffer.h"
#include "publishing/core/unicode.h"

namespace publishing {
namespace {

// Twips, 1/20 point.
struct Paper {
  int shortEdge;
  int longEdge;
};
constexpr Paper kA4 = {11906, 16838};      // 210 x 297 mm
constexpr Paper kLetter = {12240, 15840};  // 8.5 x 11 in
constexpr int kMargin = 1134;              // 2 cm
constexpr int kToRunningLines = 567;       // from the sheet's edges, 1 cm
constexpr int kCellGap = 108;              // at each side of a cell
constexpr int kAboveGroup = 120;
constexpr int kAfterTitle = 120;

// The room that a character takes on average in a proportional font, in twips for each half point of its size: 0.55 em.
constexpr double kCharacterWidth = 5.5;

// Beyond these the room cannot be a number of the file's any more; what is longer is narrowed in any case.
constexpr std::size_t kMostCharacters = 10000;
constexpr int kLeastHalfPoints = 2;
constexpr int kMostHalfPoints = 400;

// Where columns have no room side by side, letters become smaller, but not below 7 points, nor for the sake of texts
// that are longer than this: those are broken.
constexpr int kLeastSmallHalfPoints = 14;
// Words, dates and times stay whole even where that takes smaller letters and gaps.
constexpr int kLeastTinyHalfPoints = 10;
constexpr int kLeastCellGap = 30;
constexpr std::size_t kMostUnbroken = 24;

constexpr std::size_t kLettersToOneMore = 6;  // bold letters are wider

constexpr int kTitleHalfPointsMore = 8;
constexpr std::size_t kPasses = 2;

int HalfPointsOf(const RtfStyle& style) {
  return std::clamp(style.halfPoints, kLeastHalfPoints, kMostHalfPoints);
}

// A text may be broken between its words.
std::size_t WidestWord(std::string_view text) {
  std::size_t widest = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(" \t\r\n"), text.size());
    widest = std::max(widest, WidthInCharacters(text.substr(0, end)));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return widest;
}

std::size_t WithBold(std::size_t characters) {
  return characters + characters / kLettersToOneMore;
}

class Writer {
 public:
  Writer(const Table& table, const RtfStyle& style, TextSink& sink, const Progress& progress)
      : table_(table),
        style_(style),
        halfPoints_(HalfPointsOf(style)),
        text_(halfPoints_),
        bold_(halfPoints_, true),
        paper_(style.paper == PaperSize::kLetter ? kLetter : kA4),
        passes_(table, kPasses, progress),
        file_(sink) {}

  bool Write() {
    if (!MeasureColumns()) return false;
    WriteBeginning();
    WriteRunningLines();
    WriteTitle();
    if (!table_.columns.empty()) BeginTable();
    const bool isWhole = passes_.ForEach([&](const Row& row, std::size_t index) {
      if (!table_.columns.empty()) WriteRow(row, index);
    });
    if (!isWhole) return false;
    for (std::size_t note = 0; note < table_.notes.size(); ++note) {
      WriteParagraph(table_.notes[note], text_, note == 0 ? "\\sb120" : "");
    }
    file_.text() += "\\pard\\par}\r\n";
    file_.WriteAll();
    return true;
  }

 private:
  bool MeasureColumns() {
    std::vector<std::size_t> longest;
    for (const Column& column : table_.columns) longest.push_back(WithBold(WidestWord(column.heading)));
    std::vector<std::size_t> words = longest;
    const bool isWhole = passes_.ForEach([&](const Row& row, std::size_t) {
      if (row.kind == RowKind::kGroup) return;
      for (std::size_t column = 0; column < longest.size(); ++column) {
        const std::string_view text = CellOf(row, column);
        longest[column] = std::max(longest[column], WidthOfLines(text));
        words[column] = std::max(words[column], IsKeptWhole(text) ? WidthInCharacters(text) : WidestWord(text));
      }
    });
    const int upright = paper_.shortEdge - 2 * kMargin;
    isLandscape_ = style_.orientation == Orientation::kAutomatic ? Total(OwnWidths(longest, kMostCharacters)) > upright
                                                                 : style_.orientation == Orientation::kLandscape;
    const int room = isLandscape_ ? paper_.longEdge - 2 * kMargin : upright;
    const auto shrinkTo = [&](int least, const std::vector<std::size_t>& characters, std::size_t most) {
      while (halfPoints_ > least && Total(OwnWidths(characters, most)) > room) SetSize(halfPoints_ - 1);
    };
    shrinkTo(kLeastSmallHalfPoints, longest, kMostUnbroken);
    if (Total(OwnWidths(words, kMostUnbroken)) > room) {
      gap_ = kLeastCellGap;
      shrinkTo(kLeastTinyHalfPoints, words, kMostUnbroken);
    }
    widths_ = ColumnWidths(OwnWidths(longest, kMostCharacters), OwnWidths(words, kMostUnbroken), room);
    if (table_.rightToLeft) widths_ = Filling(std::move(widths_), room);
    return isWhole;
  }

  // The widths that columns of so many characters need, of each at most the given number.
  std::vector<int> OwnWidths(const std::vector<std::size_t>& characters, std::size_t most) const {
    std::vector<int> widths;
    for (const std::size_t count : characters) {
      // One more, because the average is no promise.
      const auto room = static_cast<double>(std::min(count, most) + 1);
      widths.push_back(static_cast<int>(room * kCharacterWidth * halfPoints_) + 2 * gap_);
    }
    return widths;
  }

  static int64_t Total(const std::vector<int>& widths) {
    return std::accumulate(widths.begin(), widths.end(), int64_t{0});
  }

  void SetSize(int halfPoints) {
    halfPoints_ = halfPoints;
    text_ = RtfLetters(halfPoints, false);
    bold_ = RtfLetters(halfPoints, true);
  }

  // Word processors do not agree about the margin at which a table that begins at the right stands; this one reaches
  // from margin to margin.
  static std::vector<int> Filling(std::vector<int> widths, int room) {
    const int total = static_cast<int>(Total(widths));
    for (int& width : widths) width += (room - total) / static_cast<int>(widths.size());
    return widths;
  }

  void WriteBeginning() {
    std::string& rtf = file_.text();
    rtf += "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\r\n{\\fonttbl{\\f0\\fnil\\fcharset0 ";
    std::u32string face;
    for (std::string_view rest = style_.face; !rest.empty();) {
      const char32_t character = TakeCharacter(rest);
      if (character != ';') face += character;  // which ends the name
    }
    AppendRtfCharacters(rtf, face);
    rtf += ";}}\r\n";
    rtf += "\\paperw" + std::to_string(isLandscape_ ? paper_.longEdge : paper_.shortEdge);
    rtf += "\\paperh" + std::to_string(isLandscape_ ? paper_.shortEdge : paper_.longEdge);
    for (const char* margin : {"\\margl", "\\margr", "\\margt", "\\margb"}) rtf += margin + std::to_string(kMargin);
    rtf += isLandscape_ ? "\\landscape\\sectd\\lndscpsxn" : "\\sectd";
    for (const char* edge : {"\\headery", "\\footery"}) rtf += edge + std::to_string(kToRunningLines);
    rtf += "\\titlepg\r\n";  // the first page has a head and a foot of its own
  }

  void WriteRunningLines() {
    std::string& rtf = file_.text();
    std::string line = table_.title;
    if (!table_.remarks.empty()) line += (line.empty() ? "" : " \u2013 ") + table_.remarks.front();
    if (!line.empty()) {
      rtf += "{\\header\\pard\\sa120";
      AppendRtfParagraph(rtf, line, {.rightToLeft = table_.rightToLeft}, text_);
      rtf += "\\par}\r\n";
    }
    for (const char* foot : {"{\\footerf", "{\\footer"}) {
      rtf += foot + std::string("\\pard\\ltrpar\\qc ") + text_.Beginning(false);
      rtf += "{\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}}\\par}\r\n";
    }
  }

  void WriteTitle() {
    const RtfLetters title(halfPoints_ + kTitleHalfPointsMore, true);
    const std::string after = "\\sa" + std::to_string(kAfterTitle);
    if (!table_.title.empty()) WriteParagraph(table_.title, title, after);
    for (std::size_t remark = 0; remark < table_.remarks.size(); ++remark) {
      WriteParagraph(table_.remarks[remark], text_, remark + 1 == table_.remarks.size() ? after : "");
    }
  }

  void WriteParagraph(const std::string& text, const RtfLetters& letters, const std::string& form) {
    std::string& rtf = file_.text();
    rtf += "\\pard" + form;
    AppendRtfParagraph(rtf, text, {.rightToLeft = table_.rightToLeft}, letters);
    rtf += "\\par\r\n";
  }

  // form: what the row has beside this, border: what each cell has.
  std::string RowDefinition(const char* form, const char* border, const std::vector<int>& widths) const {
    std::string definition = std::string("\\trowd") + form + (table_.rightToLeft ? "\\rtlrow\\taprtl" : "") +
                             "\\trkeep\\trgaph" + std::to_string(gap_);
    int right = 0;
    for (const int width : widths) {
      right += width;
      definition += border + std::string("\\cellx") + std::to_string(right);
    }
    return definition + "\r\n";
  }

  template <typename TextOfColumn>
  void WriteCells(const RtfLetters& letters, const char* form, TextOfColumn textOf) {
    std::string& rtf = file_.text();
    for (std::size_t column = 0; column < widths_.size(); ++column) {
      const Column& of = table_.columns[column];
      rtf += "\\pard\\intbl";
      rtf += form;
      AppendRtfParagraph(rtf, textOf(column), {of.direction, of.align, table_.rightToLeft}, letters);
      rtf += "\\cell\r\n";
    }
    rtf += "\\row\r\n";
  }

  void BeginTable() {
    rowDefinition_ = RowDefinition("", "", widths_);
    groupDefinition_ = RowDefinition("", "", {static_cast<int>(Total(widths_))});
    WriteHeadings();
  }

  void WriteHeadings() {
    file_.text() += RowDefinition("\\trhdr", "\\clbrdrb\\brdrs\\brdrw10", widths_);
    WriteCells(bold_, "\\keepn",
               [&](std::size_t column) -> std::string_view { return table_.columns[column].heading; });
  }

  // Not every word processor heeds a new page within a table, so a new table begins there. The first row's page begins
  // in any case.
  void WriteRow(const Row& row, std::size_t index) {
    std::string& rtf = file_.text();
    if (row.beginsPage && index > 0) {
      rtf += "\\pard\\pagebb\\sl-20\\slmult0{\\fs2\\par}\r\n";
      WriteHeadings();
    }
    if (row.kind == RowKind::kGroup) {
      rtf += groupDefinition_ + "\\pard\\intbl\\keepn\\sb" + std::to_string(kAboveGroup);
      AppendRtfParagraph(rtf, CellOf(row, 0), {.rightToLeft = table_.rightToLeft}, bold_);
      rtf += "\\cell\r\n\\row\r\n";
    } else {
      rtf += rowDefinition_;
      WriteCells(row.isBold ? bold_ : text_, "",
                 [&](std::size_t column) -> std::string_view { return CellOf(row, column); });
    }
    file_.EndPart();
  }

  const Table& table_;
  const RtfStyle& style_;
  int halfPoints_;
  int gap_ = kCellGap;
  RtfLetters text_;
  RtfLetters bold_;
  const Paper paper_;
  RowPasses passes_;
  SinkBuffer file_;
  std::vector<int> widths_;
  bool isLandscape_ = false;
  std::string rowDefinition_;
  std::string groupDefinition_;
};

}  // namespace

bool WriteRtf(const Table& table, const RtfStyle& style, TextSink& sink, const Progress& progress) {
  return Writer(table, style, sink, progress).Write();
}

}  // namespace publishing
