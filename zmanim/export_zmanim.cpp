#include "zmanim/export_zmanim.h"

#include "engine/export_file.h"
#include "engine/properties.h"
#include "win/file_sink.h"
#include "win/scoped.h"
#include "zmanim/calculate_zmanim.h"
#include "zmanim/core/zmanim_export.h"
#include "zmanim/zmanim_export_data.h"

namespace {

constexpr std::size_t kTextWidth = 70;

// Has a file written from the document's block, brought up to date first, which nothing replaces meanwhile. write is
// called with a sink and the data. Whether the file could be written.
template <typename Writer>
bool WriteFile(HWND document, const std::string& file, Writer write) {
  const ScopedWaitCursor wait;
  RenewZmanim(document);
  ZmanimExport data = DescribeZmanim(document);
  const ScopedGlobalLock<const ZmanimBlock> block(GetBlockProperty(document, property::kZmanimTimes));
  if (block) data.days = std::span(block->days, block->count);
  FileSink sink(file.c_str());
  write(sink, data);
  return sink.Commit();
}

void ExportRtf(HWND frame, HWND document, ZmanimRtfLayout layout) {
  const auto file = AskForFileOfView(frame, ExportedView::kZmanim, ExportFormat::kRtf);
  if (!file) return;
  const auto write = [&](TextSink& sink, ZmanimExport& data) {
    data.rtfForm = file->rtfForm;
    WriteZmanimRtf(sink, data, layout);
  };
  if (!WriteFile(document, file->path, write)) ShowUnwritableFile(frame, file->path);
}

void ExportText(HWND frame, HWND document) {
  const auto file = AskForFileOfView(frame, ExportedView::kZmanim, ExportFormat::kText);
  if (!file) return;
  const auto write = [](TextSink& sink, const ZmanimExport& data) { WriteZmanimText(sink, data, kTextWidth); };
  if (!WriteFile(document, file->path, write)) ShowUnwritableFile(frame, file->path);
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

bool WriteZmanimExport(HWND document, const std::string& file, const std::string& separator, bool header) {
  return WriteFile(document, file, [&](TextSink& sink, const ZmanimExport& data) {
    WriteZmanimDelimited(sink, data, separator, header);
  });
}
