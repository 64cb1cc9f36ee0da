#include "readings/export_dates.h"

#include <span>

#include "companion/datecore.h"
#include "engine/properties.h"
#include "readings/core/dates_export.h"
#include "readings/readings_list.h"
#include "win/file_sink.h"
#include "win/scoped.h"

namespace {

DatesExport::JewishDate JewishDateOf(const CalendarDate& gregorian, uint32_t language) {
  CalendarDate jewish{};
  LunarDateFromAbsolute(CivilAbsoluteFromDate(&gregorian), &jewish);
  char month[kTextSize] = "";
  LunarGetMonthNameEx(jewish.uMonth, 0, month, sizeof month, jewish.uYear, language);
  return {jewish.uDay, month, jewish.uYear};
}

}  // namespace

bool WriteDatesExport(HWND document, const std::string& file, const std::string& separator, bool header,
                      const std::string& readingsSeparator, uint32_t language) {
  const ScopedWaitCursor wait;
  RenewReadings(document);
  const ScopedGlobalLock<const ReadingsList> list(GetBlockProperty(document, property::kParashaReadings));
  FileSink sink(file.c_str());
  WriteDatesDelimited(sink, {.separator = separator,
                             .readingsSeparator = readingsSeparator,
                             .header = header,
                             .entries = list ? std::span(list->entries, list->count) : std::span<const ReadingsEntry>(),
                             .jewishDate = JewishDateOf,
                             .language = language});
  return sink.Commit();
}
