// The zmanim of a document as a text file, as RTF files and as delimited text for databases.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "output/rtf_form.h"
#include "output/text_sink.h"
#include "zmanim/core/zman_texts.h"
#include "zmanim/core/zmanim_block.h"

// How many zmanim one table, or one printed page, has beside each other.
constexpr std::size_t ZmanimPerTable(bool amPm) {
  return amPm ? 5 : 10;
}

// Everything an export says besides the layout.
struct ZmanimExport {
  std::string location;
  std::string dateTitle;
  std::vector<std::string> names;        // of the zmanim in use, in English; one each, empty where there is none
  bool hebrew;                           // whether the legend is in Hebrew
  std::vector<std::string> hebrewNames;  // in the display font, in reading order; blank where there is none
  std::string hebrewFont;                // the display font's face
  std::string vilnaGaon;                 // what the abbreviations of the two opinions stand for
  std::string magenAvraham;
  std::span<const ZmanimDay> days;
  FormatTime formatTime;
  bool amPm;  // times are ten characters wide, else five
  RtfForm rtfForm = RtfForm::kUsual;
};

enum class ZmanimRtfLayout {
  kRowPerColumn,  // the whole table in one row, each cell the list of all days
  kRowPerDay,
};

// Lines of the legend are shorter than width bytes, but for a word that is longer.
void WriteZmanimText(TextSink& sink, const ZmanimExport& data, std::size_t width);
void WriteZmanimRtf(TextSink& sink, const ZmanimExport& data, ZmanimRtfLayout layout);

// One line a day: the date and every zman, separator between them; before them, if header, a line with their names.
void WriteZmanimDelimited(TextSink& sink, const ZmanimExport& data, std::string_view separator, bool header);
