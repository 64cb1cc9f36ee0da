#include "readings/readings_list.h"

#include <cstring>
#include <memory>
#include <string_view>

#include "app/bound_entries.h"
#include "app/string_table.h"
#include "companion/lections.h"
#include "document/properties.h"
#include "readings/core/readings_record.h"
#include "readings/core/split_rules.h"
#include "readings/readings_panes.h"
#include "resources/ids.h"
#include "win/message_box.h"
#include "win/scoped.h"

namespace {

bool GetReadings(const CalendarDate& jewish, LectionsReadings& readings) {
  LectionsGetReadings(jewish.uDay, jewish.uMonth, jewish.uYear, &readings);
  return readings.torah1[0] != '\0';
}

template <std::size_t size>
void Copy(const char (&from)[size], char (&to)[kTextSize]) {
  const std::string_view text(from, strnlen(from, size));
  to[text.copy(to, kTextSize - 1)] = '\0';
}

void FillEntry(const LectionsReadings& readings, int32_t day, const CalendarDate& jewish, uint32_t language,
               ReadingsEntry& entry) {
  entry.date = DateFromAbsolute(day);
  Copy(readings.torah1, entry.torah1);
  Copy(readings.torah2, entry.torah2);
  Copy(readings.torah3, entry.torah3);
  Copy(readings.haftarah1, entry.haftarah1);
  Copy(readings.haftarah2, entry.haftarah2);
  Copy(readings.haftarah3, entry.haftarah3);
  Copy(readings.extraText, entry.extraText);
  SplitReadings(entry, language);
  entry.isYizkor = LectionsIsYizkor(jewish.uDay, jewish.uMonth, jewish.uYear) ? 1 : 0;
}

uint32_t CountReadingDays(int32_t first, int32_t last, LectionsReadings& readings) {
  uint32_t count = 0;
  for (int32_t day = first; day <= last; ++day) {
    if (!GetReadings(JewishFromAbsolute(day), readings)) continue;
    if (++count <= kMaximumReadingDays) continue;
    ShowStop(nullptr, TableString(IDS_TOO_MANY_SHABBAT_TIMES), TableString(IDS_TITLE));
    break;
  }
  return count;
}

}  // namespace

void BuildReadingsList(HWND document, uint32_t startDay, uint32_t startMonth, uint32_t startYear, uint32_t endDay,
                       uint32_t endMonth, uint32_t endYear) {
  const auto readings = std::make_unique<LectionsReadings>();
  const int32_t first = AbsoluteFromDate({startDay, startMonth, startYear});
  const int32_t last = AbsoluteFromDate({endDay, endMonth, endYear});
  const uint32_t count = CountReadingDays(first, last, *readings);
  if (count == 0) return;

  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, ReadingsBlockSize(count));
  {
    const ScopedGlobalLock<ReadingsList> list(block);
    if (!list) return;
    const uint32_t language = LectionsGetLanguage();
    list->count = count;
    uint32_t filled = 0;
    for (int32_t day = first; day <= last && filled < count; ++day) {
      const CalendarDate jewish = JewishFromAbsolute(day);
      if (GetReadings(jewish, *readings)) FillEntry(*readings, day, jewish, language, list->entries[filled++]);
    }
    // A settings change between the two passes can leave fewer days than were counted.
    list->count = filled;
  }
  ReplaceBlockProperty(document, property::kParashaReadings, block);
  SetReadingsScrollRange(GetDlgItem(GetDlgItem(document, IDC_READINGS_PANE), IDC_READINGS_LIST_PANE));
}
