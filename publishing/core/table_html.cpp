#include "publishing/core/table_html.h"

#include "publishing/core/html_style.h"
#include "publishing/core/html_text.h"
#include "publishing/core/plain_text.h"
#include "publishing/core/row_passes.h"
#include "publishing/core/sink_buffer.h"
#include "publishing/core/unicode.h"

namespace publishing {
namespace {

constexpr char kNameOfNameless[] = "Times / Readings";  // a page has a name

// More columns than these are printed across the sheet, in small letters, and in smaller ones.
constexpr std::size_t kManyColumns = 8;
constexpr std::size_t kMostColumns = 16;

std::string_view NameOf(Direction direction) {
  return direction == Direction::kRightToLeft ? "rtl" : "ltr";
}

class Writer {
 public:
  Writer(const Table& table, TextSink& sink, const Progress& progress)
      : table_(table),
        tableDirection_(table.rightToLeft ? Direction::kRightToLeft : Direction::kLeftToRight),
        passes_(table, 1, progress),
        file_(sink) {}

  bool Write() {
    WriteHead();
    WriteElement("h1", table_.title);
    for (const std::string& remark : table_.remarks) WriteElement("p", remark);
    if (!table_.columns.empty() && !WriteTable()) return false;
    for (const std::string& note : table_.notes) WriteElement("p", note);
    file_.text() += "</main>\n</body>\n</html>\n";
    file_.WriteAll();
    return true;
  }

 private:
  void WriteHead() {
    std::string& html = file_.text();
    html += "<!DOCTYPE html>\n<html";
    if (IsLanguageTag(table_.language)) html += " lang=\"" + table_.language + '"';
    html += " dir=\"";
    html += NameOf(tableDirection_);
    html +=
        "\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>";
    AppendName();
    html += "</title>\n<style>\n";
    html += kHtmlStyle;
    html += "</style>\n</head>\n<body>\n";
    html += table_.columns.size() > kMostColumns   ? "<main class=\"most\">\n"
            : table_.columns.size() > kManyColumns ? "<main class=\"many\">\n"
                                                   : "<main>\n";
  }

  // What the page and the table are called where there is room for nothing but letters.
  void AppendName() {
    std::string room;
    const std::string_view title = PlainLine(table_.title, room);
    AppendHtml(file_.text(), title.find_first_not_of(' ') == std::string_view::npos ? kNameOfNameless : title);
  }

  void WriteElement(std::string_view name, const std::string& text) {
    std::string& html = file_.text();
    const std::size_t begin = html.size();
    html += '<';
    html += name;
    html += '>';
    const bool isThere = AppendIsolated(text, Direction::kNeutral);
    html += "</";
    html += name;
    html += ">\n";
    if (!isThere) html.resize(begin);
  }

  // Whether anything is there to be shown; where not, nothing is appended.
  bool AppendIsolated(const std::string& text, Direction direction) {
    std::string& html = file_.text();
    const std::size_t begin = html.size();
    html += "<bdi";
    if (direction != Direction::kNeutral) {
      html += " dir=\"";
      html += NameOf(direction);
      html += '"';
    }
    html += '>';
    const std::size_t beginOfText = html.size();
    AppendHtml(html, text);
    const bool isThere = html.size() > beginOfText;
    if (!isThere) html.resize(begin);
    if (isThere) html += "</bdi>";
    return isThere;
  }

  bool WriteTable() {
    MakeLabels();
    std::string& html = file_.text();
    html += "<div class=\"wide\">\n<table>\n<caption>";
    AppendName();
    html += "</caption>\n<thead>\n<tr>\n";
    for (const Column& column : table_.columns) WriteCell("th", " scope=\"col\"", column, column.heading);
    html += "</tr>\n</thead>\n";
    const bool isWhole = passes_.ForEach([this](const Row& row, std::size_t index) { WriteRow(row, index); });
    if (isInBody_) html += "</tbody>\n";
    html += "</table>\n</div>\n";
    return isWhole;
  }

  void MakeLabels() {
    std::string room;
    for (const Column& column : table_.columns) {
      std::string& label = labels_.emplace_back();
      if (column.heading.empty()) continue;
      label = " data-label=\"";
      AppendHtml(label, PlainLine(column.heading, room));
      label += '"';
    }
  }

  // A group begins a body of the table.
  void WriteRow(const Row& row, std::size_t index) {
    std::string& html = file_.text();
    const bool isGroup = row.kind == RowKind::kGroup;
    if (isInBody_ && isGroup) html += "</tbody>\n";
    if (!isInBody_ || isGroup) html += "<tbody>\n";
    isInBody_ = true;
    const bool beginsPage = row.beginsPage && index > 0;
    if (isGroup) {
      html += beginsPage ? "<tr class=\"group page\">\n" : "<tr class=\"group\">\n";
      html += "<th colspan=\"" + std::to_string(table_.columns.size()) + "\" scope=\"rowgroup\">";
      AppendIsolated(CellOf(row, 0), Direction::kNeutral);
      html += "</th>\n";
    } else {
      constexpr const char* kBeginnings[] = {"<tr>\n", "<tr class=\"bold\">\n", "<tr class=\"page\">\n",
                                             "<tr class=\"bold page\">\n"};
      html += kBeginnings[(row.isBold ? 1 : 0) + (beginsPage ? 2 : 0)];
      for (std::size_t column = 0; column < labels_.size(); ++column) {
        WriteCell("td", labels_[column], table_.columns[column], CellOf(row, column));
      }
    }
    html += "</tr>\n";
    file_.EndPart();
  }

  // A cell says when its text does not begin at the side where the table does, and when it is not to be broken.
  void WriteCell(std::string_view name, std::string_view attributes, const Column& column, const std::string& text) {
    const Direction direction = column.direction == Direction::kNeutral ? FirstDirection(text) : column.direction;
    const bool isTurned = direction != Direction::kNeutral && direction != tableDirection_;
    std::string& html = file_.text();
    html += '<';
    html += name;
    html += attributes;
    constexpr std::string_view kClasses[] = {"", " class=\"end\"", " class=\"whole\"", " class=\"end whole\""};
    const bool isAtEnd = isTurned == (column.align == Align::kStart);
    html += kClasses[(isAtEnd ? 1 : 0) +
                     (name == "td" && text.find_first_of(" -") != std::string_view::npos && IsKeptWhole(text) ? 2 : 0)];
    html += '>';
    AppendIsolated(text, column.direction);
    html += "</";
    html += name;
    html += ">\n";
  }

  const Table& table_;
  const Direction tableDirection_;
  RowPasses passes_;
  SinkBuffer file_;
  std::vector<std::string> labels_;  // the attribute of each column's texts
  bool isInBody_ = false;
};

}  // namespace

bool WriteHtml(const Table& table, TextSink& sink, const Progress& progress) {
  return Writer(table, sink, progress).Write();
}

}  // namespace publishing
