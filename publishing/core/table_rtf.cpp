#include "publishing/core/table_rtf.h"

#include <algorithm>
#include <numeric>

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

constexpr int kTitleHalfPointsMore = 8;
constexpr std::size_t kPasses = 2;

int HalfPointsOf(const RtfStyle& style) {
  return std::clamp(style.halfPoints, kLeastHalfPoints, kMostHalfPoints);
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
    for (const Column& column : table_.columns) longest.push_back(WidthOfLines(column.heading));
    const bool isWhole = passes_.ForEach([&](const Row& row, std::size_t) {
      if (row.kind == RowKind::kGroup) return;
      for (std::size_t column = 0; column < longest.size(); ++column) {
        longest[column] = std::max(longest[column], WidthOfLines(CellOf(row, column)));
      }
    });
    std::vector<int> own;
    for (const std::size_t characterCount : longest) {
      // One more, because the average is no promise.
      const auto characters = static_cast<double>(std::min(characterCount, kMostCharacters) + 1);
      own.push_back(static_cast<int>(characters * kCharacterWidth * halfPoints_) + 2 * kCellGap);
    }
    isLandscape_ = style_.orientation == Orientation::kAutomatic
                       ? ColumnWidths(own, paper_.shortEdge - 2 * kMargin) != own
                       : style_.orientation == Orientation::kLandscape;
    const int room = (isLandscape_ ? paper_.longEdge : paper_.shortEdge) - 2 * kMargin;
    widths_ = table_.rightToLeft ? Filling(ColumnWidths(own, room), room) : ColumnWidths(own, room);
    return isWhole;
  }

  // Word processors do not agree about the margin at which a table that begins at the right stands; this one reaches
  // from margin to margin.
  static std::vector<int> Filling(std::vector<int> widths, int room) {
    const int total = std::accumulate(widths.begin(), widths.end(), 0);
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
                             "\\trkeep\\trgaph" + std::to_string(kCellGap);
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
    groupDefinition_ = RowDefinition("", "", {std::accumulate(widths_.begin(), widths_.end(), 0)});
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
  const int halfPoints_;
  const RtfLetters text_;
  const RtfLetters bold_;
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
