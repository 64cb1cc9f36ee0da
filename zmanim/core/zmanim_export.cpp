#include "zmanim/core/zmanim_export.h"

#include <algorithm>

#include "output/date_text.h"
#include "output/text_layout.h"
#include "output/text_wrap.h"
#include "zmanim/core/zmanim_legend.h"

namespace {

constexpr LegendSpacing kLegendSpacing{
    .betweenZmanim = ",  ", .beforeVilnaGaon = "         ", .beforeMagenAvraham = "     "};

constexpr std::size_t kDateWidth = 10;
constexpr std::size_t kTimeWidth = 5;
constexpr std::size_t kAmPmTimeWidth = 10;

// Cells of RTF tables, in twips.
constexpr int kDateCell = 1440;
constexpr int kTimeCell = 720;
constexpr int kAmPmTimeCell = 1440;

// The zmanim of one table, from first up to but not with end.
struct ZmanimGroup {
  std::size_t first;
  std::size_t end;
};

std::vector<ZmanimGroup> GroupsOf(const ZmanimExport& data) {
  const std::size_t step = ZmanimPerTable(data.amPm);
  std::vector<ZmanimGroup> groups;
  for (std::size_t first = 0; first < data.names.size(); first += step) {
    groups.push_back({first, std::min(first + step, data.names.size())});
  }
  return groups;
}

std::string EnglishLegend(const ZmanimExport& data) {
  return ZmanimLegend(data.names, 1, kLegendSpacing, data.vilnaGaon, data.magenAvraham);
}

// The lines of the Hebrew legend, in the order from left to right that the display font is drawn in.
std::vector<std::string> HebrewLegend(const ZmanimExport& data) {
  std::vector<std::string> lines;
  for (std::size_t zman = 0; zman < data.hebrewNames.size(); ++zman) {
    const std::string& name = data.hebrewNames[zman];
    if (!IsBlank(name)) lines.push_back(std::to_string(zman + 1) + " = " + ReverseText(name));
  }
  return lines;
}

void WriteTextTable(TextSink& sink, const ZmanimExport& data, const ZmanimGroup& group, ZmanTexts& texts) {
  const std::size_t width = data.amPm ? kAmPmTimeWidth : kTimeWidth;
  std::string line;
  const auto append = [&](std::string_view text, char filling) {
    line += text;
    if (text.size() < width) line.append(width - text.size(), filling);
  };
  const auto writeColumns = [&](std::string_view date, char filling, auto textOf) {
    line = PadRight(date, kDateWidth);
    for (std::size_t zman = group.first; zman < group.end; ++zman) {
      line += ' ';
      append(textOf(zman), filling);
    }
    WriteLine(sink, line);
  };
  writeColumns(data.dateTitle, ' ', [](std::size_t zman) { return std::to_string(zman + 1); });
  writeColumns(std::string(kDateWidth, '-'), '-', [](std::size_t) { return std::string_view(); });
  for (const ZmanimDay& day : data.days) {
    writeColumns(DateText(day.date), ' ',
                 [&](std::size_t zman) { return std::string_view(texts.TextOf(day.times[zman])); });
  }
  WriteLine(sink, "");
}

bool IsForAll(const ZmanimExport& data) {
  return data.rtfForm == RtfForm::kForAllWordProcessors;
}

// A text of places and zmanim, which the usual form takes as it is.
std::string RtfText(const ZmanimExport& data, const std::string& text) {
  return IsForAll(data) ? RtfEscape(text) : text;
}

void WriteRtfLegend(TextSink& sink, const ZmanimExport& data) {
  if (!data.hebrew) {
    WriteLine(sink, RtfText(data, EnglishLegend(data)) + "\\par");
    WriteLine(sink, "\\par");
    return;
  }
  WriteLine(sink, "{\\fonttbl");
  WriteLine(sink, std::string(IsForAll(data) ? "" : " ") + "{\\f1 \\fnil " + data.hebrewFont + ";}");
  WriteLine(sink, "}");
  WriteLine(sink, "{\\f1");
  for (const std::string& line : HebrewLegend(data)) WriteLine(sink, RtfEscape(line) + " \\par");
  WriteLine(sink, "\\par");
  WriteLine(sink, "}");
}

void WriteRtfTableHead(TextSink& sink, const ZmanimExport& data, const ZmanimGroup& group) {
  int edge = kDateCell;
  std::string edges = std::string("{") + StartOfTable(data.rtfForm) + "\\cellx" + std::to_string(edge);
  for (std::size_t zman = group.first; zman < group.end; ++zman) {
    edge += data.amPm ? kAmPmTimeCell : kTimeCell;
    edges += "\\cellx" + std::to_string(edge);
  }
  WriteLine(sink, edges);
  WriteLine(sink, "\\intbl");
  WriteLine(sink, "\\b " + data.dateTitle + "\\plain\\cell");
  for (std::size_t zman = group.first; zman < group.end; ++zman) {
    WriteLine(sink, "\\b " + std::to_string(zman + 1) + "\\plain\\cell");
  }
  WriteLine(sink, "\\row");
  WriteLine(sink, "\\intbl");
}

void WriteRtfColumns(TextSink& sink, const ZmanimExport& data, const ZmanimGroup& group, ZmanTexts& texts) {
  for (const ZmanimDay& day : data.days) WriteLine(sink, DateText(day.date) + "\\par");
  WriteLine(sink, "\\cell");
  for (std::size_t zman = group.first; zman < group.end; ++zman) {
    for (const ZmanimDay& day : data.days) WriteLine(sink, texts.TextOf(day.times[zman]) + "\\par");
    WriteLine(sink, "\\cell");
  }
  WriteLine(sink, "\\row");
}

void WriteRtfRows(TextSink& sink, const ZmanimExport& data, const ZmanimGroup& group, ZmanTexts& texts) {
  for (const ZmanimDay& day : data.days) {
    if (&day != &data.days.front()) WriteLine(sink, "\\intbl");
    WriteLine(sink, DateText(day.date) + "\\cell");
    for (std::size_t zman = group.first; zman < group.end; ++zman) {
      WriteLine(sink, texts.TextOf(day.times[zman]) + "\\cell");
    }
    WriteLine(sink, "\\row");
  }
}

}  // namespace

void WriteZmanimText(TextSink& sink, const ZmanimExport& data, std::size_t width) {
  const std::size_t half = data.location.size() / 2;
  const std::string pad(width / 2 > half ? width / 2 - half : 0, ' ');
  const std::string title = "Zmanim of " + data.location;
  WriteLine(sink, pad + title);
  WriteLine(sink, pad + std::string(title.size(), '-'));
  WriteLine(sink, "");
  for (const std::string& line : data.hebrew ? HebrewLegend(data) : WrapText(EnglishLegend(data), width)) {
    WriteLine(sink, line);
  }
  WriteLine(sink, "");
  ZmanTexts texts(data.formatTime);
  for (const ZmanimGroup& group : GroupsOf(data)) WriteTextTable(sink, data, group, texts);
}

void WriteZmanimRtf(TextSink& sink, const ZmanimExport& data, ZmanimRtfLayout layout) {
  WriteLine(sink, "{\\rtf1\\ansi");
  WriteLine(sink, "\\b Zmanim of " + RtfText(data, data.location) + "\\plain\\par");
  WriteLine(sink, "\\par");
  WriteRtfLegend(sink, data);
  ZmanTexts texts(data.formatTime);
  for (const ZmanimGroup& group : GroupsOf(data)) {
    WriteRtfTableHead(sink, data, group);
    if (layout == ZmanimRtfLayout::kRowPerColumn) {
      WriteRtfColumns(sink, data, group, texts);
    } else {
      WriteRtfRows(sink, data, group, texts);
    }
    WriteLine(sink, "\\pard}");
    WriteLine(sink, "\\par");
  }
  WriteLine(sink, "}");
}

void WriteZmanimDelimited(TextSink& sink, const ZmanimExport& data, std::string_view separator, bool header) {
  std::string line;
  if (header) {
    line = "Gregorian date";
    for (const std::string& name : data.names) (line += separator) += name;
    WriteLine(sink, line);
  }
  ZmanTexts texts(data.formatTime);
  for (const ZmanimDay& day : data.days) {
    line = DateText(day.date);
    for (std::size_t zman = 0; zman < data.names.size(); ++zman) (line += separator) += texts.TextOf(day.times[zman]);
    WriteLine(sink, line);
  }
}
