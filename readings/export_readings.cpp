#include "readings/export_readings.h"

#include <span>
#include <string>

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

// Offered again in the next export of the same format, until the program ends.
std::string lastTextFile;
std::string lastRtfFile;

void WriteText(TextSink& sink, const ReadingsExport& data) {
  WriteReadingsText(sink, data, kTorahWidth, kHaftarahWidth);
}

// Asks for the file, and has it written from the list, brought up to date, while nothing else can replace the list.
void Export(HWND frame, HWND document, ExportFormat format, void (*write)(TextSink&, const ReadingsExport&)) {
  const auto file = AskForExportFile(frame, format, format == ExportFormat::kText ? &lastTextFile : &lastRtfFile);
  if (!file) return;
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
                            .entries = list ? std::span(list->entries, list->count) : std::span<const ReadingsEntry>()};
  FileSink sink(file->c_str());
  write(sink, data);
}

}  // namespace

void ExportReadings(HWND frame, HWND document, ExportFormat format) {
  Export(frame, document, format, format == ExportFormat::kText ? WriteText : WriteReadingsRtfWide);
}

void ExportReadingsNarrow(HWND frame, HWND document) {
  Export(frame, document, ExportFormat::kRtf, WriteReadingsRtfNarrow);
}
