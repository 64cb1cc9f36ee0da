#include "shabbat/export_shabbat.h"

#include <cstdio>
#include <string>
#include <vector>

#include "companion/stamp.h"
#include "engine/export_file.h"
#include "engine/properties.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "shabbat/rtf_options_dialog.h"
#include "win/file_sink.h"
#include "win/scoped.h"

namespace {

std::string TitleOf(HWND document) {
  char title[2 * kTextSize];
  std::snprintf(title, sizeof title, TableString(IDS_TITLE_OF_LOCATION), TableString(IDS_TITLE),
                DocumentPlace(document).c_str());
  return title;
}

std::vector<ShabbatTimeEntry> EntriesOf(HWND document) {
  const ScopedGlobalLock<const ShabbatTimesList> list(GetBlockProperty(document, property::kShabbatTimes));
  if (!list) return {};
  return {list->entries, list->entries + list->count};
}

// Asks for a file and has it written from a copy of the document's times.
template <typename Writer>
void Export(HWND frame, HWND document, ExportFormat format, Writer write) {
  const auto file = AskForFileOfView(frame, ExportedView::kShabbatTimes, format);
  if (!file) return;
  const std::vector<ShabbatTimeEntry> entries = EntriesOf(document);
  const ShabbatExport data{.title = TitleOf(document),
                           .dateTitle = TableString(IDS_DATE),
                           .candleTitle = TableString(IDS_CANDLE_LIGHTING),
                           .endTitle = TableString(IDS_END_OF_SHABBAT),
                           .entries = entries,
                           .formatTime = StampConvert,
                           .amPm = StampIsAmPm() != 0,
                           .rtfForm = file->rtfForm};
  bool written = false;
  {
    const ScopedWaitCursor wait;
    FileSink sink(file->path.c_str());
    write(sink, data);
    written = sink.Commit();
  }
  if (!written) ShowUnwritableFile(frame, file->path);
}

}  // namespace

void ExportShabbatText(HWND frame, HWND document) {
  Export(frame, document, ExportFormat::kText, WriteShabbatText);
}

void ExportShabbatRtf(HWND frame, HWND document, RtfLayout layout) {
  Export(frame, document, ExportFormat::kRtf,
         [layout](TextSink& sink, const ShabbatExport& data) { WriteShabbatRtf(sink, data, layout); });
}

void ChooseShabbatRtf(HWND frame, HWND document) {
  const auto layout = RunRtfOptionsDialog(frame);
  if (!layout) return;
  switch (*layout) {
    case RtfLayout::kSameRow: ExportShabbatRtf(frame, document, RtfLayout::kSameRow); break;
    case RtfLayout::kThreeColumns: PostMessageA(frame, WM_COMMAND, IDM_EXPORT_RTF_THREE_COLUMNS, 0); break;
    case RtfLayout::kTwoColumns: PostMessageA(frame, WM_COMMAND, IDM_EXPORT_RTF_TWO_COLUMNS, 0); break;
  }
}
