#include "readings/core/dates_export.h"

#include <array>
#include <cinttypes>
#include <cstdio>

#include "output/date_text.h"

namespace {

// The first text after the separator of fields, the others after that of readings; empty ones leave nothing.
std::string Readings(const DatesExport& data, const std::array<const char*, 3>& texts) {
  std::string field;
  for (const char* text : texts) {
    if (text[0] == '\0') continue;
    field += (text == texts[0] ? data.separator : data.readingsSeparator) + text;
  }
  return field;
}

}  // namespace

std::string JewishDateText(const DatesExport::JewishDate& date, uint32_t language) {
  char year[16];
  std::snprintf(year, sizeof year, "%04" PRIu32, date.year);
  return std::to_string(date.day) + (language == kGerman ? ". " : " ") + date.month + " " + year;
}

void WriteDatesDelimited(TextSink& sink, const DatesExport& data) {
  const std::string& separator = data.separator;
  if (data.header) {
    WriteLine(sink, "Gregorian date" + separator + "Jewish date" + separator + "Torah readings" + separator +
                        "Haphtarah readings");
  }
  for (const ReadingsEntry& entry : data.entries) {
    WriteLine(sink, DateText(entry.date) + separator +
                        JewishDateText(data.jewishDate(entry.date, data.language), data.language) +
                        Readings(data, {entry.torah1, entry.torah2, entry.torah3}) +
                        Readings(data, {entry.haftarah1, entry.haftarah2, entry.haftarah3}));
  }
}
