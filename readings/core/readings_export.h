// The readings of a document as a text file and as RTF files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "output/rtf_form.h"
#include "output/text_sink.h"
#include "readings/core/readings_record.h"

// The font of the readings' texts. Without one of their own, everything is in the program's font.
struct ExportFont {
  bool ownFont = false;
  std::string face;
  uint32_t points = 0;
  uint32_t charset = 0;  // Windows charset number; 0: none given
};

// Everything an export says besides the layout.
struct ReadingsExport {
  std::string dateTitle;
  std::string torahTitle;
  std::string haftarahTitle;
  std::string yizkor;
  ExportFont font;
  RtfForm rtfForm = RtfForm::kUsual;
  std::span<const ReadingsEntry> entries;
};

// Fixed columns of torahWidth and haftarahWidth bytes: longer texts are cut.
void WriteReadingsText(TextSink& sink, const ReadingsExport& data, std::size_t torahWidth, std::size_t haftarahWidth);

// One table row a day. The wide layout escapes its texts and shows the additional ones; the narrow one, set in small
// print, does neither.
void WriteReadingsRtfWide(TextSink& sink, const ReadingsExport& data);
void WriteReadingsRtfNarrow(TextSink& sink, const ReadingsExport& data);
