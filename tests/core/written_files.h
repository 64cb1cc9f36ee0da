// Tables and calendars as the whole text of their files.
#pragma once

#include <string>
#include <vector>

#include "output/text_sink.h"
#include "publishing/core/csv.h"
#include "publishing/core/icalendar.h"
#include "publishing/core/table_html.h"
#include "publishing/core/table_rtf.h"
#include "publishing/core/table_text.h"

namespace written {

template <typename Write>
std::string TextBy(Write write) {
  StringSink sink;
  write(sink);
  return sink.text();
}

inline std::string TextOf(const publishing::Table& table) {
  return TextBy([&](TextSink& sink) { publishing::WriteText(table, sink); });
}

inline std::string CsvOf(const publishing::Table& table) {
  return TextBy([&](TextSink& sink) { publishing::WriteCsv(table, sink); });
}

inline std::string RtfOf(const publishing::Table& table, const publishing::RtfStyle& style) {
  return TextBy([&](TextSink& sink) { publishing::WriteRtf(table, style, sink); });
}

inline std::string HtmlOf(const publishing::Table& table) {
  return TextBy([&](TextSink& sink) { publishing::WriteHtml(table, sink); });
}

inline std::string CalendarOf(const std::string& name, const std::vector<publishing::Event>& events,
                              const publishing::UtcMoment& now) {
  return TextBy([&](TextSink& sink) {
    publishing::CalendarWriter calendar(sink, name, now);
    for (const publishing::Event& event : events) calendar.Add(event);
    calendar.Finish();
  });
}

}  // namespace written
