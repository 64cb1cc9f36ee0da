#include "readings/core/readings_export.h"

#include <iterator>

#include "output/date_text.h"
#include "output/text_layout.h"

namespace {

constexpr char kSmallPrint[] = "\\fs12";
constexpr char kEndOfTexts[] = "\\f0\\fs12}";  // ends what StartOfTexts began

std::string StartOfTexts(const ExportFont& font) {
  return "{\\f1\\fs" + std::to_string(2 * font.points);  // RTF counts half points
}

void WriteStartOfTexts(TextSink& sink, const ExportFont& font) {
  if (font.ownFont) WriteLine(sink, StartOfTexts(font));
}

void WriteEndOfTexts(TextSink& sink, const ExportFont& font) {
  if (font.ownFont) WriteLine(sink, kEndOfTexts);
}

// Apostrophes too, which begin RTF's notation of a byte.
std::string Escape(std::string_view text) {
  return RtfEscape(text, "{}'\\");
}

void WriteParagraph(TextSink& sink, const std::string& text) {
  WriteLine(sink, text + "\\par");
}

// The readings' own font in the font table, if they have one.
std::string OwnFont(const ExportFont& font, bool withCharset) {
  if (!font.ownFont) return "";
  const std::string charset = withCharset && font.charset != 0 ? "\\fcharset" + std::to_string(font.charset) : "";
  return "{\\f1\\fnil" + charset + " " + font.face + ";}";
}

void WriteHead(TextSink& sink, const ReadingsExport& data, const std::string& ownFont, const char* cells) {
  WriteLine(sink, "{\\rtf1\\ansi");
  WriteLine(sink, "{\\fonttbl {\\f0\\froman Times New Roman;}" + ownFont + "}");
  for (const char* line : {"\\fs24", "\\par"}) WriteLine(sink, line);
  WriteLine(sink, StartOfTable(data.rtfForm) + std::string(cells));
  WriteLine(sink, "\\intbl");
  for (const std::string& title : {data.dateTitle, data.torahTitle, data.haftarahTitle}) {
    WriteLine(sink, "\\b " + title + "\\plain");
    WriteLine(sink, "\\cell");
  }
  WriteLine(sink, "\\row");
  WriteLine(sink, "\\intbl");
}

// The additional text takes the place of the first blank Torah text, the fourth at the latest; it stands in the
// program's font.
void WriteWideTorah(TextSink& sink, const ReadingsExport& data, const ReadingsEntry& entry) {
  const ExportFont& font = data.font;
  static constexpr char kNoText[] = "";
  bool extraWritten = false;
  for (const char* torah : {entry.torah1, entry.torah2, entry.torah3, kNoText}) {
    std::string text = Escape(torah);
    if (!extraWritten && IsBlank(text)) {
      text = font.ownFont ? kEndOfTexts + std::string(entry.extraText) + StartOfTexts(font) : entry.extraText;
      extraWritten = true;
    }
    if (!text.empty()) WriteParagraph(sink, text);
  }
}

void WriteWideEntry(TextSink& sink, const ReadingsExport& data, const ReadingsEntry& entry) {
  WriteParagraph(sink, DateText(entry.date));
  if (entry.isYizkor == 1 && !data.yizkor.empty()) WriteLine(sink, data.yizkor);
  WriteLine(sink, "\\plain");
  WriteLine(sink, "\\cell");

  WriteStartOfTexts(sink, data.font);
  WriteWideTorah(sink, data, entry);
  WriteEndOfTexts(sink, data.font);
  WriteLine(sink, "\\plain");
  WriteLine(sink, "\\cell");

  WriteStartOfTexts(sink, data.font);
  WriteParagraph(sink, Escape(entry.haftarah1));
  for (const char* haftarah : {entry.haftarah2, entry.haftarah3}) {
    if (haftarah[0] != '\0') WriteParagraph(sink, Escape(haftarah));
  }
  WriteEndOfTexts(sink, data.font);
  WriteLine(sink, "\\plain");
  WriteLine(sink, "\\cell");
  WriteLine(sink, "\\row");
  // Deliberate: after the last row too; the end of the document ends the table.
  WriteLine(sink, "\\intbl");
}

void WriteNarrowEntry(TextSink& sink, const ReadingsExport& data, const ReadingsEntry& entry) {
  WriteParagraph(sink, DateText(entry.date));
  WriteLine(sink, entry.isYizkor == 1 ? data.yizkor : "");
  WriteLine(sink, "\\cell");

  WriteStartOfTexts(sink, data.font);
  for (const char* torah : {entry.torah1, entry.torah2, entry.torah3}) WriteParagraph(sink, torah);
  WriteEndOfTexts(sink, data.font);
  // Deliberate: an empty paragraph where the wide layout shows the additional text.
  WriteLine(sink, "\\par");
  WriteLine(sink, "\\cell");

  WriteStartOfTexts(sink, data.font);
  for (const char* haftarah : {entry.haftarah1, entry.haftarah2, entry.haftarah3}) WriteParagraph(sink, haftarah);
  WriteLine(sink, "\\par");
  WriteEndOfTexts(sink, data.font);
  WriteLine(sink, "\\cell");
  WriteLine(sink, "\\row");
}

constexpr std::size_t kDateWidth = 10;
constexpr char kColumnGap[] = "  ";

std::string Column(std::string_view text, std::size_t width) {
  return PadRight(text.substr(0, width), width);
}

}  // namespace

void WriteReadingsText(TextSink& sink, const ReadingsExport& data, std::size_t torahWidth, std::size_t haftarahWidth) {
  const auto writeColumns = [&](const std::string& date, std::string_view torah, std::string_view haftarah) {
    WriteLine(sink, PadRight(date, kDateWidth) + kColumnGap + Column(torah, torahWidth) + kColumnGap +
                        Column(haftarah, haftarahWidth));
  };
  writeColumns(data.dateTitle, data.torahTitle, data.haftarahTitle);
  writeColumns(std::string(kDateWidth, '-'), std::string(torahWidth, '-'), std::string(haftarahWidth, '-'));
  for (const ReadingsEntry& entry : data.entries) {
    static constexpr char kNoText[] = "";
    const std::string dates[] = {DateText(entry.date), entry.isYizkor == 1 ? data.yizkor : "", "", ""};
    const char* const torah[] = {entry.torah1, entry.torah2, entry.torah3, kNoText};
    // Deliberate: the third Haftarah text stands on the fourth line again.
    const char* const haftarah[] = {entry.haftarah1, entry.haftarah2, entry.haftarah3, entry.haftarah3};
    bool extraWritten = false;
    for (std::size_t line = 0; line < std::size(dates); ++line) {
      const bool takesExtra = !extraWritten && IsBlank(torah[line]);
      writeColumns(dates[line], takesExtra ? entry.extraText : torah[line], haftarah[line]);
      extraWritten = extraWritten || takesExtra;
    }
    WriteLine(sink, "");
  }
}

void WriteReadingsRtfWide(TextSink& sink, const ReadingsExport& data) {
  WriteHead(sink, data, OwnFont(data.font, true), "\\cellx1300\\cellx4970\\cellx8640");
  for (const ReadingsEntry& entry : data.entries) WriteWideEntry(sink, data, entry);
  WriteLine(sink, "}");
}

void WriteReadingsRtfNarrow(TextSink& sink, const ReadingsExport& data) {
  const bool withCharset = data.rtfForm == RtfForm::kForAllWordProcessors;
  WriteHead(sink, data, OwnFont(data.font, withCharset), "\\cellx700\\cellx4800\\cellx9300");
  WriteLine(sink, kSmallPrint);
  for (const ReadingsEntry& entry : data.entries) {
    WriteNarrowEntry(sink, data, entry);
    if (&entry != &data.entries.back()) WriteLine(sink, "\\intbl");
  }
  WriteLine(sink, "\\pard");
  WriteLine(sink, "}");
}
