#include <cstdint>
#include <string>

#include "libraries/calendar/gregorian.h"
#include "libraries/kinship/date_words.h"
#include "libraries/kinship/person_events.h"
#include "libraries/kinship/person_table.h"
#include "libraries/kinship/persons_csv.h"
#include "tests/core/written_files.h"
#include "tests/fuzz/check.h"

using namespace kinship;

// Whatever is read can be kept, and what is written of it is read as the same; a second import adds nothing.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  ReadDateWords(text, {});
  ReadDateWords(text, persons::Calendar::kJewish);
  const Import import = ImportedFrom(text, {});
  FUZZ_CHECK(import.problem.empty() || (import.added.empty() && import.faults.empty()));
  for (const persons::Person& person : import.added) FUZZ_CHECK(persons::CanBeKept(person));

  const Shown shown = {2026, calendar::AbsoluteFromGregorian({1, 3, 2026}), persons::AdarCustom::kBoth};
  const Import again = ImportedFrom(written::CsvOf(CsvTableOf(import.added, shown)), {});
  FUZZ_CHECK(again.problem.empty() && again.faults.empty() && again.added == import.added);
  FUZZ_CHECK(ImportedFrom(text, import.added).added.empty());
  FUZZ_CHECK(TableOf(import.added, shown).rows->Count() == import.added.size());
  EventsOf(import.added, persons::AdarCustom::kBoth, 2999, 3);
  return 0;
}
