// The dates and readings of a document as delimited text for databases and spreadsheets.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "output/text_sink.h"
#include "readings/core/readings_record.h"

struct DatesExport {
  std::string separator;
  std::string readingsSeparator;  // between several readings in one field
  bool header;
  std::span<const ReadingsEntry> entries;
  // A Gregorian date as a Jewish one in a language; parts only, put together by JewishDateText.
  struct JewishDate {
    uint32_t day;
    std::string month;
    uint32_t year;
  };
  JewishDate (*jewishDate)(const CalendarDate& gregorian, uint32_t language);
  uint32_t language;  // code of the calendar languages
};

inline constexpr uint32_t kGerman = 3;

// "5 Adar II 5784", with a point after the day in German.
std::string JewishDateText(const DatesExport::JewishDate& date, uint32_t language);

// One line a day. Deliberate: a day without Torah or Haftarah readings has no field for them, separator included.
void WriteDatesDelimited(TextSink& sink, const DatesExport& data);
