#include "libraries/occasions/saved_text.h"

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/occasions/occasion_events.h"
#include "libraries/occasions/occasion_table.h"
#include "publishing/core/csv.h"
#include "publishing/core/table_html.h"
#include "publishing/core/table_rtf.h"
#include "publishing/core/table_text.h"
#include "publishing/printer.h"
#include "publishing/progress_box.h"
#include "publishing/utc_now.h"

namespace occasions {
namespace {

bool WriteTable(const Taken& taken, Format format, TextSink& sink, const publishing::Progress& progress) {
  const publishing::Table table = TableOf(taken, format == Format::kCsv);
  switch (format) {
    case Format::kCsv: return publishing::WriteCsv(table, sink, progress);
    case Format::kHtml: return publishing::WriteHtml(table, sink, progress);
    case Format::kRtf: {
      publishing::RtfStyle style = {.face = dialogs::ToUtf8(kFace)};
      if (publishing::IsLetterUsual()) style.paper = publishing::PaperSize::kLetter;
      return publishing::WriteRtf(table, style, sink, progress);
    }
    default: return publishing::WriteText(table, sink, progress);
  }
}

bool Write(HWND owner, const Taken& taken, Format format, TextSink& sink) {
  publishing::LateProgress late(owner, L"Saving");
  const publishing::Progress progress = [&late](size_t done, size_t all) { return late.GoesOn(done, all); };
  if (format != Format::kCalendar) return WriteTable(taken, format, sink, progress);
  const CalendarResult result = WriteCalendar(taken, publishing::UtcNow(), sink, progress);
  if (result != CalendarResult::kNoEvents) return result == CalendarResult::kWritten;
  dialogs::ShowError(owner,
                     L"Nothing of what is listed has a day or a time that a calendar could show, so no file was "
                     L"written.\n\nList something else, or save it in another form.");
  return false;
}

}  // namespace

std::optional<std::string> SavedText(HWND owner, const Taken& taken, Format format) {
  StringSink sink;
  if (!Write(owner, taken, format, sink)) return std::nullopt;
  return sink.text();
}

}  // namespace occasions
