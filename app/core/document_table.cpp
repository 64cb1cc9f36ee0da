#include "app/core/document_table.h"

#include <algorithm>
#include <cstdlib>

#include "app/core/document_rows.h"
#include "app/core/document_words.h"
#include "shabbat/core/shabbat_rules.h"

namespace {

// Nearer to the equator than 66.56 - 26 degrees every dawn occurs on every day: 26 is the deepest that can be chosen
// for occasions. Packed.
constexpr int32_t kLatitudeOfAllDawns = 4000;

constexpr std::size_t kMostDaysLookedThrough = 400;  // more than a Jewish year

// "22.11.2026 - 23.12.2026 (12 Kislev 5787 - 13 Tevet 5787)".
std::string RangeText(const DocumentSource& source, const DateRange& range, uint32_t language) {
  const auto jewish = [&](const CalendarDate& date) {
    return JewishDateOf(source, source.services.AbsoluteDay(date), language);
  };
  return DocumentDate(range.start, false) + " - " + DocumentDate(range.end, false) + " (" + jewish(range.start) +
         " - " + jewish(range.end) + ")";
}

// Whether any time of the rows is such a one. found: of a day and a zman.
template <typename Found>
bool HasTime(const DocumentSource& source, const DocumentChoice& choice, Found found) {
  if (!HasZmanim(choice.kind)) return false;
  const auto isFound = [&](const ZmanimDay& day) {
    return std::ranges::any_of(choice.zmanim, [&](uint32_t zman) { return found(day, zman); });
  };
  if (choice.kind != DocumentKind::kWeeks) return std::ranges::any_of(source.zmanimDays, isFound);
  return std::ranges::any_of(source.shabbatTimes, [&](const ShabbatTimeEntry& entry) {
    const int32_t saturday = source.services.AbsoluteDay(FridayOf(entry)) + 1;
    const ZmanimDay* const day = ZmanimOf(source, source.services.Gregorian(saturday));
    return day && isFound(*day);
  });
}

bool HasMissingTimes(const DocumentSource& source, const DocumentChoice& choice) {
  return HasTime(source, choice,
                 [](const ZmanimDay& day, uint32_t zman) { return day.times[zman].hour == kNoTimeHour; });
}

// Whether a moment of the occasions may not occur. Only the days of a year are looked through: what is kept on those of
// a long range is made while its rows are written.
bool MayMissOccasions(const DocumentSource& source, const DocumentChoice& choice) {
  if (!HasOccasions(source, choice) || choice.forSpreadsheet) return false;
  if (std::abs(source.location.latitude) <= kLatitudeOfAllDawns) return false;
  if (source.zmanimDays.size() > kMostDaysLookedThrough) return true;
  return std::ranges::any_of(source.zmanimDays, [&](const ZmanimDay& day) {
    return std::ranges::any_of(source.services.Occasions(source.services.AbsoluteDay(day.date), choice.language),
                               [](const DocumentOccasion& occasion) { return occasion.time == kNoTime; });
  });
}

// Whether any time of the rows is one of the day after its row's, and any of the day before.
struct OtherDays {
  bool after = false;
  bool before = false;
};

OtherDays OtherDaysOf(const DocumentSource& source, const DocumentChoice& choice) {
  OtherDays found;
  const bool hasShabbatTimes = choice.kind != DocumentKind::kReadings && choice.kind != DocumentKind::kZmanim;
  found.after = hasShabbatTimes && std::ranges::any_of(source.shabbatTimes, [](const ShabbatTimeEntry& entry) {
                  return IsAfterMidnight(entry.candleHour) || IsAfterMidnight(entry.endHour);
                });
  HasTime(source, choice, [&](const ZmanimDay& day, uint32_t zman) {
    const int32_t offset = DayOffsetOf(source, day, zman);
    found.after = found.after || offset > 0;
    found.before = found.before || offset < 0;
    return found.after && found.before;
  });
  return found;
}

}  // namespace

std::string KindName(DocumentKind kind, uint32_t language) {
  switch (kind) {
    case DocumentKind::kShabbatTimes:
    case DocumentKind::kDoorPage: return std::string(WordOf(Word::kShabbatTimes, language));
    case DocumentKind::kZmanim: return std::string(WordOf(Word::kZmanim, language));
    case DocumentKind::kReadings: return std::string(WordOf(Word::kReadings, language));
    case DocumentKind::kWeeks:
    case DocumentKind::kDays: break;
  }
  return std::string(WordOf(Word::kCalendar, language));
}

const std::string& ZmanName(const DocumentSource& source, uint32_t zman, bool hebrew) {
  const DocumentZman& names = source.zmanim[zman];
  const bool hasHebrew = names.hebrew.find_first_not_of(' ') != std::string::npos;
  return hebrew && hasHebrew ? names.hebrew : names.english;
}

// Lists of weeks and of readings hold one more than the most that a range may have when they have been cut.
DateRange CoveredRange(const DocumentSource& source, DocumentKind kind) {
  DateRange range = source.range;
  switch (kind) {
    case DocumentKind::kShabbatTimes:
    case DocumentKind::kWeeks:
    case DocumentKind::kDoorPage:
      if (source.shabbatTimes.size() > kMostFridays) range.end = FridayOf(source.shabbatTimes.back());
      break;
    case DocumentKind::kReadings:
      if (source.readings.size() > kMaximumReadingDays) range.end = source.readings.back().date;
      break;
    case DocumentKind::kDays:
    case DocumentKind::kZmanim:
      if (!source.zmanimDays.empty()) range.end = source.zmanimDays.back().date;
      break;
  }
  return range;
}

publishing::Table DocumentTable(const DocumentSource& source, const DocumentChoice& choice) {
  const DateRange range = CoveredRange(source, choice.kind);
  const WordsLanguage& language = WordsLanguageOf(choice.language);
  publishing::Table table;
  table.title = KindName(choice.kind, choice.language) + ": " + source.place;
  table.remarks = {RangeText(source, range, choice.language)};
  table.columns = ColumnsOfDocument(source, choice);
  table.rows = RowsOfDocument(source, choice);
  table.rightToLeft = language.rightToLeft;
  table.language = language.tag;
  if (choice.kind != DocumentKind::kReadings) table.notes.emplace_back(WordOf(Word::kClockNote, choice.language));
  const bool isAnyMissing = HasMissingTimes(source, choice) || MayMissOccasions(source, choice);
  if (isAnyMissing) table.notes.emplace_back(WordOf(Word::kNoTimeNote, choice.language));
  const OtherDays others = OtherDaysOf(source, choice);
  if (others.after) table.notes.emplace_back(WordOf(Word::kNextDayNote, choice.language));
  if (others.before) table.notes.emplace_back(WordOf(Word::kDayBeforeNote, choice.language));
  table.pageText = WordOf(Word::kPageOf, choice.language);
  table.runningHead = table.title + ", " + DocumentDate(range.start, false) + " - " + DocumentDate(range.end, false);
  return table;
}
