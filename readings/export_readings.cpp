#include "readings/export_readings.h"

#include <span>
#include <string>

#include "engine/export_file.h"
#include "engine/properties.h"
#include "engine/string_table.h"
#include "readings/core/readings_export.h"
#include "readings/readings_form.h"
#include "readings/readings_list.h"
#include "resources/ids.h"
#include "win/file_sink.h"
#include "win/scoped.h"

namespace {

constexpr std::size_t kTorahWidth = 95;
constexpr std::size_t kHaftarahWidth = 95;

void WriteText(TextSink& sink, const ReadingsExport& data) {
  WriteReadingsText(sink, data, kTorahWidth, kHaftarahWidth);
}

using Writer = void (*)(TextSink&, const ReadingsExport&);

// Has the file written from the list, brought up to date, while nothing else can replace the list. Whether it could be.
bool WriteFile(HWND document, const ChosenFile& file, Writer write) {
  const ScopedWaitCursor wait;
  RenewReadings(document);
  const ReadingsForm form = ReadingsFormOf(document);
  const LectionsFont& font = form.font;
  const ScopedGlobalLock<const ReadingsList> list(GetBlockProperty(document, property::kParashaReadings));
  const ReadingsExport data{.dateTitle = TableString(IDS_DATE),
                            .torahTitle = TableString(IDS_PARASHIOTH),
                            .haftarahTitle = TableString(IDS_HAPHTAROTH),
                            .yizkor = form.yizkor,
                            .font = {font.UseDefaultFont == 0, font.FaceName, font.PointSize, font.CharSet},
                            .rtfForm = file.rtfForm,
                            .entries = list ? std::span(list->entries, list->count) : std::span<const ReadingsEntry>()};
  FileSink sink(file.path.c_str());
  write(sink, data);
  return sink.Commit();
}

void Export(HWND frame, HWND document, ExportFormat format, Writer write) {
  const auto file = AskForFileOfView(frame, ExportedView::kReadings, format);
  if (!file) return;
  if (!WriteFile(document, *file, write)) ShowUnwritableFile(frame, file->path);
}

}  // namespace

void ExportReadings(HWND frame, HWND document, ExportFormat format) {
  Export(frame, document, format, format == ExportFormat::kText ? WriteText : WriteReadingsRtfWide);
}

void ExportReadingsNarrow(HWND frame, HWND document) {
  Export(frame, document, ExportFormat::kRtf, WriteReadingsRtfNarrow);
}
