#include "zmanim/export_zmanim.h"

#include "engine/properties.h"
#include "win/file_sink.h"
#include "win/scoped.h"
#include "zmanim/calculate_zmanim.h"
#include "zmanim/core/zmanim_export.h"
#include "zmanim/zmanim_export_data.h"

namespace {

constexpr std::size_t kTextWidth = 70;

// Offered again in the next export of the same format, until the program ends.
std::string lastTextFile;
std::string lastRtfFile;

// Has a file written from the document's block, brought up to date first, which nothing replaces meanwhile. write is
// called with a sink and the data.
template <typename Writer>
void WriteFile(HWND document, const std::string& file, Writer write) {
  const ScopedWaitCursor wait;
  RenewZmanim(document);
  ZmanimExport data = DescribeZmanim(document);
  const ScopedGlobalLock<const ZmanimBlock> block(GetBlockProperty(document, property::kZmanimTimes));
  if (block) data.days = std::span(block->days, block->count);
  FileSink sink(file.c_str());
  write(sink, data);
}

void ExportRtf(HWND frame, HWND document, ZmanimRtfLayout layout) {
  const auto file = AskForExportFile(frame, ExportFormat::kRtf, &lastRtfFile);
  if (!file) return;
  WriteFile(document, *file,
            [layout](TextSink& sink, const ZmanimExport& data) { WriteZmanimRtf(sink, data, layout); });
}

void ExportText(HWND frame, HWND document) {
  const auto file = AskForExportFile(frame, ExportFormat::kText, &lastTextFile);
  if (!file) return;
  WriteFile(document, *file, [](TextSink& sink, const ZmanimExport& data) { WriteZmanimText(sink, data, kTextWidth); });
}

}  // namespace

void ExportZmanim(HWND frame, HWND document, ExportFormat format) {
  if (format == ExportFormat::kText) {
    ExportText(frame, document);
  } else {
    ExportRtf(frame, document, ZmanimRtfLayout::kRowPerColumn);
  }
}

void ExportZmanimByDay(HWND frame, HWND document) {
  ExportRtf(frame, document, ZmanimRtfLayout::kRowPerDay);
}

void WriteZmanimExport(HWND document, const std::string& file, const std::string& separator, bool header) {
  WriteFile(document, file,
            [&](TextSink& sink, const ZmanimExport& data) { WriteZmanimDelimited(sink, data, separator, header); });
}
