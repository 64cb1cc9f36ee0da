// A document as a table that users take away. Rows are made when they are asked for.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "app/core/document_source.h"
#include "publishing/core/table.h"

enum class DocumentKind : uint8_t {
  kShabbatTimes,  // a row a week
  kWeeks,         // the same with chosen zmanim of the Shabbat
  kDays,
  kZmanim,
  kReadings,  // a row for each day that has any
  kDoorPage,  // the Shabbat times of a year in few words
};

struct DocumentChoice {
  DocumentKind kind = DocumentKind::kShabbatTimes;
  std::vector<uint32_t> zmanim = {};  // indexes of the source's, for the kinds that have them
  uint32_t language = 1;              // of names, by the codes of the readings library
  bool hebrewZmanim = false;          // whether zmanim are named in Hebrew
  bool occasions = true;              // whether days have a column of what is kept on them, where anyone knows it
  // For programs that reckon with it: no rows for the months, nothing in place of times that are missing.
  bool forSpreadsheet = false;
  bool isoDates = false;  // "2026-11-22" in place of "22.11.2026"
};

// Of which kinds the user chooses zmanim.
constexpr bool HasZmanim(DocumentKind kind) {
  return kind == DocumentKind::kWeeks || kind == DocumentKind::kDays || kind == DocumentKind::kZmanim;
}

// Whose rows can tell what is kept on their day.
constexpr bool CanHaveOccasions(DocumentKind kind) {
  return kind == DocumentKind::kDays;
}

inline bool HasOccasions(const DocumentSource& source, const DocumentChoice& choice) {
  return source.hasOccasions && choice.occasions && CanHaveOccasions(choice.kind);
}

// What a kind is called in a language, "Shabbat times".
std::string KindName(DocumentKind kind, uint32_t language);

// The name of a zman of the source; in English where it has no Hebrew one.
const std::string& ZmanName(const DocumentSource& source, uint32_t zman, bool hebrew);

// The first and last day that a kind's rows are of: those of the range, unless the document's block has been cut.
DateRange CoveredRange(const DocumentSource& source, DocumentKind kind);

// The source and what it refers to have to outlive the table.
publishing::Table DocumentTable(const DocumentSource& source, const DocumentChoice& choice);
