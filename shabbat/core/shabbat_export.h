// The Shabbat times of a document as a text file and as RTF files.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "output/rtf_form.h"
#include "output/text_sink.h"
#include "shabbat/core/shabbat_record.h"

// Everything an export says besides the layout.
struct ShabbatExport {
  std::string title;
  std::string dateTitle;
  std::string candleTitle;
  std::string endTitle;
  std::span<const ShabbatTimeEntry> entries;
  // A time as text into a buffer of 32 bytes.
  void (*formatTime)(int32_t hour, int32_t minute, char* text);
  bool amPm;  // times are ten characters wide, else five
  RtfForm rtfForm = RtfForm::kUsual;
};

enum class RtfLayout {
  kSameRow,       // all Shabbatot in one row of three cells
  kThreeColumns,  // a row each: date, candle lighting, end of Shabbat
  kTwoColumns,    // a row each: date, both times
};

void WriteShabbatText(TextSink& sink, const ShabbatExport& data);
void WriteShabbatRtf(TextSink& sink, const ShabbatExport& data, RtfLayout layout);
