#include "readings/export_readings.h"

#include <span>
#include <string>

#include "app/string_table.h"
#include "companion/lections.h"
#include "document/properties.h"
#include "readings/core/readings_export.h"
#include "resources/ids.h"
#include "win/file_sink.h"
#include "win/scoped.h"

namespace {

constexpr std::size_t kTorahWidth = 95;
constexpr std::size_t kHaftarahWidth = 95;

// Offered again in the next export of the same format, until the program ends.
std::string lastTextFile;
std::string lastRtfFile;

ExportFont FontOfTexts() {
  LectionsFont font{};
  LectionsGetFont2(&font);
  return {font.UseDefaultFont == 0, font.FaceName, font.PointSize, font.CharSet};
}

std::string YizkorText() {
  char text[kTextSize] = "";
  LectionsGetYizkor(text);
  return text;
}

void WriteText(TextSink& sink, const ReadingsExport& data) {
  WriteReadingsText(sink, data, kTorahWidth, kHaftarahWidth);
}

// Asks for the file, and has it written from the list while nothing else can replace the list.
void Export(HWND frame, HWND document, ExportFormat format, void (*write)(TextSink&, const ReadingsExport&)) {
  const auto file = AskForExportFile(frame, format, format == ExportFormat::kText ? &lastTextFile : &lastRtfFile);
  if (!file) return;
  const ScopedWaitCursor wait;
  const ScopedGlobalLock<const ReadingsList> list(GetBlockProperty(document, property::kParashaReadings));
  const ReadingsExport data{.dateTitle = TableString(IDS_DATE),
                            .torahTitle = TableString(IDS_PARASHIOTH),
                            .haftarahTitle = TableString(IDS_HAPHTAROTH),
                            .yizkor = YizkorText(),
                            .font = FontOfTexts(),
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
