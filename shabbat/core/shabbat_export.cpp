#include "shabbat/core/shabbat_export.h"

#include <algorithm>

#include "output/date_text.h"
#include "output/text_layout.h"

namespace {

constexpr std::size_t kDateWidth = 10;
constexpr std::size_t kTimeWidth = 5;
constexpr std::size_t kAmPmTimeWidth = 10;
constexpr char kColumnGap[] = "   ";
constexpr char kBetweenTimes[] = " - ";

std::string FridayText(const ShabbatTimeEntry& entry) {
  return DateText({entry.day, entry.month, entry.year});
}

std::string TimeText(const ShabbatExport& data, uint32_t hour, uint32_t minute) {
  char text[32];
  data.formatTime(static_cast<int32_t>(hour), static_cast<int32_t>(minute), text);
  return text;
}

std::string CandleText(const ShabbatExport& data, const ShabbatTimeEntry& entry) {
  return TimeText(data, entry.candleHour, entry.candleMinute);
}

std::string EndText(const ShabbatExport& data, const ShabbatTimeEntry& entry) {
  return TimeText(data, entry.endHour, entry.endMinute);
}

void WriteRtfHead(TextSink& sink, const ShabbatExport& data, RtfLayout layout) {
  WriteLine(sink, "{\\rtf1\\ansi");
  WriteLine(sink, "\\b " + RtfEscape(data.title) + "\\plain\\par");
  WriteLine(sink, "\\par");
  const char* const cells =
      layout == RtfLayout::kTwoColumns ? "\\cellx2880\\cellx5760" : "\\cellx2880\\cellx5760\\cellx8640";
  WriteLine(sink, StartOfTable(data.rtfForm) + std::string(cells));
  WriteLine(sink, "\\intbl");
}

void WriteRtfTitleCell(TextSink& sink, const std::string& title) {
  WriteLine(sink, "\\b " + title + "\\plain");
  WriteLine(sink, "\\cell");
}

void WriteRtfTitles(TextSink& sink, const ShabbatExport& data, RtfLayout layout) {
  WriteRtfTitleCell(sink, data.dateTitle);
  if (layout == RtfLayout::kTwoColumns) {
    WriteRtfTitleCell(sink, data.candleTitle + kBetweenTimes + data.endTitle);
  } else {
    WriteRtfTitleCell(sink, data.candleTitle);
    WriteRtfTitleCell(sink, data.endTitle);
  }
  WriteLine(sink, "\\row");
  WriteLine(sink, "\\intbl");
}

void WriteRtfSameRow(TextSink& sink, const ShabbatExport& data) {
  for (const ShabbatTimeEntry& entry : data.entries) WriteLine(sink, FridayText(entry) + "\\par");
  WriteLine(sink, "\\cell");
  for (const ShabbatTimeEntry& entry : data.entries) WriteLine(sink, CandleText(data, entry) + "\\par");
  WriteLine(sink, "\\cell");
  for (const ShabbatTimeEntry& entry : data.entries) WriteLine(sink, EndText(data, entry) + "\\par");
  WriteLine(sink, "\\cell");
  WriteLine(sink, "\\row");
}

void WriteRtfRows(TextSink& sink, const ShabbatExport& data, RtfLayout layout) {
  for (const ShabbatTimeEntry& entry : data.entries) {
    WriteLine(sink, FridayText(entry) + "\\cell");
    if (layout == RtfLayout::kTwoColumns) {
      WriteLine(sink, CandleText(data, entry) + kBetweenTimes + EndText(data, entry) + "\\cell");
    } else {
      WriteLine(sink, CandleText(data, entry) + "\\cell");
      WriteLine(sink, EndText(data, entry) + "\\cell");
    }
    WriteLine(sink, "\\row");
    if (&entry != &data.entries.back()) WriteLine(sink, "\\intbl");
  }
}

}  // namespace

void WriteShabbatText(TextSink& sink, const ShabbatExport& data) {
  const std::size_t timeWidth = data.amPm ? kAmPmTimeWidth : kTimeWidth;
  const std::size_t dateColumn = std::max(data.dateTitle.size(), kDateWidth);
  const std::size_t candleColumn = std::max(data.candleTitle.size(), timeWidth);
  const std::size_t endColumn = std::max(data.endTitle.size(), timeWidth);
  const auto writeColumns = [&](const std::string& date, const std::string& candles, const std::string& end) {
    WriteLine(sink, PadRight(date, dateColumn) + kColumnGap + PadRight(candles, candleColumn) + kColumnGap + end);
  };
  WriteLine(sink, data.title);
  WriteLine(sink, "");
  writeColumns(data.dateTitle, data.candleTitle, data.endTitle);
  writeColumns(std::string(dateColumn, '-'), std::string(candleColumn, '-'), std::string(endColumn, '-'));
  for (const ShabbatTimeEntry& entry : data.entries) {
    writeColumns(FridayText(entry), CandleText(data, entry), EndText(data, entry));
  }
}

void WriteShabbatRtf(TextSink& sink, const ShabbatExport& data, RtfLayout layout) {
  WriteRtfHead(sink, data, layout);
  WriteRtfTitles(sink, data, layout);
  if (layout == RtfLayout::kSameRow) {
    WriteRtfSameRow(sink, data);
  } else {
    WriteRtfRows(sink, data, layout);
  }
  WriteLine(sink, "\\pard");
  WriteLine(sink, "}");
}
