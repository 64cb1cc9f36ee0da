#include "app/export_commands.h"

#include <cstdio>
#include <vector>

#include "app/active_document.h"
#include "app/core/shabbat_export.h"
#include "app/rtf_options_dialog.h"
#include "app/string_table.h"
#include "companion/stamp.h"
#include "document/properties.h"
#include "readings/delimited_export_dialog.h"
#include "readings/export_readings.h"
#include "resources/ids.h"
#include "win/file_sink.h"
#include "win/save_dialog.h"
#include "win/scoped.h"
#include "zmanim/export_zmanim.h"

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
void ExportShabbatTimes(HWND frame, ExportFormat format, Writer write) {
  const HWND document = ActiveDocument();
  const std::vector<ShabbatTimeEntry> entries = EntriesOf(document);
  const ShabbatExport data{.title = TitleOf(document),
                           .dateTitle = TableString(IDS_DATE),
                           .candleTitle = TableString(IDS_CANDLE_LIGHTING),
                           .endTitle = TableString(IDS_END_OF_SHABBAT),
                           .entries = entries,
                           .formatTime = StampConvert,
                           .amPm = StampIsAmPm() != 0};
  const auto file = AskForExportFile(frame, format);
  if (!file) return;
  bool written = false;
  {
    const ScopedWaitCursor wait;
    FileSink sink(file->c_str());
    write(sink, data);
    written = sink.Close();
  }
  if (!written) ShowUnwritableFile(frame, *file);
}

void ExportShabbatRtf(HWND frame, RtfLayout layout) {
  ExportShabbatTimes(frame, ExportFormat::kRtf,
                     [layout](TextSink& sink, const ShabbatExport& data) { WriteShabbatRtf(sink, data, layout); });
}

void ChooseShabbatRtf(HWND frame) {
  const auto layout = RunRtfOptionsDialog(frame);
  if (!layout) return;
  switch (*layout) {
    case RtfLayout::kSameRow: ExportShabbatRtf(frame, RtfLayout::kSameRow); break;
    case RtfLayout::kThreeColumns: PostMessageA(frame, WM_COMMAND, IDM_EXPORT_RTF_THREE_COLUMNS, 0); break;
    case RtfLayout::kTwoColumns: PostMessageA(frame, WM_COMMAND, IDM_EXPORT_RTF_TWO_COLUMNS, 0); break;
  }
}

// The second layout of every view; only that of the Shabbat times has two forms.
void ExportSecondRtf(HWND frame, RtfLayout shabbatLayout) {
  const HWND document = ActiveDocument();
  if (!document) return;
  if (IsPaneVisible(document, IDC_LIST_PANE)) {
    ExportShabbatRtf(frame, shabbatLayout);
  } else if (IsPaneVisible(document, IDC_ZMANIM_PANE)) {
    ExportZmanimByDay(frame, document);
  } else {
    ExportReadingsNarrow(frame, document);
  }
}

}  // namespace

void ExportText(HWND frame) {
  const HWND document = ActiveDocument();
  if (!document) return;
  if (IsPaneVisible(document, IDC_LIST_PANE)) {
    ExportShabbatTimes(frame, ExportFormat::kText, WriteShabbatText);
  } else if (IsPaneVisible(document, IDC_ZMANIM_PANE)) {
    ExportZmanim(frame, document, ExportFormat::kText);
  } else {
    ExportReadings(frame, document, ExportFormat::kText);
  }
}

void ExportRtf(HWND frame) {
  const HWND document = ActiveDocument();
  if (!document) return;
  if (IsPaneVisible(document, IDC_LIST_PANE)) {
    ChooseShabbatRtf(frame);
  } else if (IsPaneVisible(document, IDC_ZMANIM_PANE)) {
    ExportZmanim(frame, document, ExportFormat::kRtf);
  } else {
    ExportReadings(frame, document, ExportFormat::kRtf);
  }
}

void ExportRtfInThreeColumns(HWND frame) {
  ExportSecondRtf(frame, RtfLayout::kThreeColumns);
}
void ExportRtfInTwoColumns(HWND frame) {
  ExportSecondRtf(frame, RtfLayout::kTwoColumns);
}

void ExportZmanimByDayLater(HWND frame) {
  PostMessageA(frame, WM_COMMAND, IDM_EXPORT_RTF_THREE_COLUMNS, 0);
}
void ExportReadingsNarrowLater(HWND frame) {
  PostMessageA(frame, WM_COMMAND, IDM_EXPORT_RTF_TWO_COLUMNS, 0);
}

void ExportZmanimDelimited(HWND frame) {
  if (const HWND document = ActiveDocument()) RunZmanimExportDialog(frame, document);
}
void ExportDatesDelimited(HWND frame) {
  if (const HWND document = ActiveDocument()) RunDatesExportDialog(frame, document);
}
