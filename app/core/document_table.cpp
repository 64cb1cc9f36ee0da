#include "app/core/document_table.h"

#include "app/core/document_rows.h"
#include "app/core/document_words.h"
#include "app/core/jewish_date_text.h"

namespace {

const WordsLanguage& LanguageOf(uint32_t code) {
  for (const WordsLanguage& language : WordsLanguages()) {
    if (language.code == code) return language;
  }
  return WordsLanguages().front();
}

// "22.11.2026 - 23.12.2026 (12 Kislev 5787 - 13 Tevet 5787)".
std::string RangeText(const DocumentSource& source, uint32_t language) {
  const DateRange range = CoveredRange(source);
  const auto jewish = [&](const CalendarDate& date) {
    return JewishDateInWords(source.services.Jewish(source.services.AbsoluteDay(date)), language);
  };
  return DocumentDate(range.start, false) + " - " + DocumentDate(range.end, false) + " (" + jewish(range.start) +
         " - " + jewish(range.end) + ")";
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

// A range that is too long is cut in the document's block of zmanim.
DateRange CoveredRange(const DocumentSource& source) {
  if (source.zmanimDays.empty()) return source.range;
  return {source.range.start, source.zmanimDays.back().date};
}

publishing::Table DocumentTable(const DocumentSource& source, const DocumentChoice& choice) {
  const WordsLanguage& language = LanguageOf(choice.language);
  publishing::Table table;
  table.title = KindName(choice.kind, choice.language) + ": " + source.place;
  table.remarks = {RangeText(source, choice.language)};
  table.columns = ColumnsOfDocument(source, choice);
  table.rows = RowsOfDocument(source, choice);
  table.rightToLeft = language.rightToLeft;
  table.language = language.tag;
  return table;
}
