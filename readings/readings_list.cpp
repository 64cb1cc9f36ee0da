#include "readings/readings_list.h"

#include <cstring>
#include <memory>
#include <optional>
#include <string_view>

#include "companion/lections.h"
#include "engine/bound_entries.h"
#include "engine/optional_entries.h"
#include "engine/properties.h"
#include "engine/string_table.h"
#include "readings/core/readings_record.h"
#include "readings/core/split_rules.h"
#include "readings/readings_form.h"
#include "readings/readings_panes.h"
#include "resources/ids.h"
#include "win/message_box.h"
#include "win/scoped.h"

namespace {

// What is asked of the library for every day of a calculation.
class ReadingsSource {
 public:
  explicit ReadingsSource(uint32_t choice) : choice_(choice) {}

  // Whether the day has readings, which are then in readings().
  bool Ask(const CalendarDate& jewish) {
    if (choice_ != 0) {
      OptionalEntries.LectionsGetReadingsBy(choice_, jewish.uDay, jewish.uMonth, jewish.uYear, &readings_);
    } else {
      LectionsGetReadings(jewish.uDay, jewish.uMonth, jewish.uYear, &readings_);
    }
    return readings_.torah1[0] != '\0';
  }
  bool IsYizkor(const CalendarDate& jewish) const {
    if (choice_ != 0) {
      return OptionalEntries.LectionsIsYizkorBy(choice_, jewish.uDay, jewish.uMonth, jewish.uYear) != 0;
    }
    return LectionsIsYizkor(jewish.uDay, jewish.uMonth, jewish.uYear) != 0;
  }
  const LectionsReadings& readings() const { return readings_; }

 private:
  uint32_t choice_;  // 0: what is set now
  LectionsReadings readings_{};
};

template <std::size_t size>
void Copy(const char (&from)[size], char (&to)[kTextSize]) {
  const std::string_view text(from, strnlen(from, size));
  to[text.copy(to, kTextSize - 1)] = '\0';
}

void FillEntry(const ReadingsSource& source, int32_t day, const CalendarDate& jewish, uint32_t language,
               ReadingsEntry& entry) {
  const LectionsReadings& readings = source.readings();
  entry.date = DateFromAbsolute(day);
  Copy(readings.torah1, entry.torah1);
  Copy(readings.torah2, entry.torah2);
  Copy(readings.torah3, entry.torah3);
  Copy(readings.haftarah1, entry.haftarah1);
  Copy(readings.haftarah2, entry.haftarah2);
  Copy(readings.haftarah3, entry.haftarah3);
  Copy(readings.extraText, entry.extraText);
  SplitReadings(entry, language);
  entry.isYizkor = source.IsYizkor(jewish) ? 1 : 0;
}

uint32_t CountReadingDays(ReadingsSource& source, int32_t first, int32_t last, LongRange longRange) {
  uint32_t count = 0;
  for (int32_t day = first; day <= last; ++day) {
    if (!source.Ask(JewishFromAbsolute(day))) continue;
    if (++count <= kMaximumReadingDays) continue;
    if (longRange == LongRange::kReport) {
      ShowStop(nullptr, TableString(IDS_TOO_MANY_SHABBAT_TIMES), TableString(IDS_TITLE));
    }
    break;
  }
  return count;
}

// Null when there is no memory for it.
HGLOBAL BuildList(ReadingsSource& source, int32_t first, int32_t last, uint32_t count, uint32_t language) {
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, ReadingsBlockSize(count));
  const ScopedGlobalLock<ReadingsList> list(block);
  if (!list) return nullptr;
  uint32_t filled = 0;
  for (int32_t day = first; day <= last && filled < count; ++day) {
    const CalendarDate jewish = JewishFromAbsolute(day);
    if (source.Ask(jewish)) FillEntry(source, day, jewish, language, list->entries[filled++]);
  }
  // A settings change between the two passes can leave fewer days than were counted.
  list->count = filled;
  return block;
}

HGLOBAL BlockOf(const ReadingsForm& form) {
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, sizeof form);
  if (const ScopedGlobalLock<ReadingsForm> stored(block); stored) *stored.get() = form;
  return block;
}

// Readings and the form that they are in; both or none.
struct FormedReadings {
  HGLOBAL readings;
  HGLOBAL form;
};

void Attach(HWND document, const FormedReadings& built) {
  ReplaceBlockProperty(document, property::kParashaReadings, built.readings);
  ReplaceBlockProperty(document, property::kReadingsForm, built.form);
  RefreshReadingsView(document);
}

// The form comes first: should the language change while the readings are asked for, the form is not that which is set,
// and the next look tells. Nothing for a range without readings.
std::optional<FormedReadings> Build(const DateRange& range, LongRange longRange, uint32_t choice) {
  const ReadingsForm form = ReadingsFormNow(choice);
  const auto source = std::make_unique<ReadingsSource>(choice);
  const int32_t first = AbsoluteFromDate(range.start);
  const int32_t last = AbsoluteFromDate(range.end);
  const uint32_t count = CountReadingDays(*source, first, last, longRange);
  if (count == 0) return std::nullopt;
  FormedReadings built{BuildList(*source, first, last, count, form.language), nullptr};
  if (built.readings) built.form = BlockOf(form);
  if (built.form) return built;
  if (built.readings) GlobalFree(built.readings);
  return FormedReadings{};
}

bool IsOutdated(HWND document) {
  const ScopedGlobalLock<const ReadingsForm> form(GetBlockProperty(document, property::kReadingsForm));
  return form && !IsSameForm(*form.get(), ReadingsFormNow(form->choice));
}

}  // namespace

void ComputeReadings(HWND document, const DateRange& range, LongRange longRange) {
  if (const auto built = Build(range, longRange, ReadingsChoiceNow())) Attach(document, *built);
}

void BuildReadingsList(HWND document, uint32_t startDay, uint32_t startMonth, uint32_t startYear, uint32_t endDay,
                       uint32_t endMonth, uint32_t endYear) {
  ComputeReadings(document, {{startDay, startMonth, startYear}, {endDay, endMonth, endYear}}, LongRange::kReport);
}

bool RenewReadings(HWND document) {
  if (!IsOutdated(document)) return false;
  const ScopedWaitCursor wait;
  // A language that goes on changing meanwhile is left to the next look.
  constexpr int kMostTries = 3;
  for (int tries = 0; tries < kMostTries && IsOutdated(document); ++tries) {
    const auto built = Build(GetRangeProperties(document), LongRange::kCutSilently, ReadingsFormOf(document).choice);
    if (built && !built->readings) return tries > 0;
    Attach(document, built.value_or(FormedReadings{}));
  }
  return true;
}

HGLOBAL MakeReadings(const DateRange& range, uint32_t choice) {
  const auto built = Build(range, LongRange::kCutSilently, choice);
  if (!built) return nullptr;
  if (built->form) GlobalFree(built->form);
  return built->readings;
}
