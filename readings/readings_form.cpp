#include "readings/readings_form.h"

#include <cstring>

#include "engine/optional_entries.h"
#include "engine/properties.h"
#include "win/scoped.h"

ReadingsForm ReadingsFormNow(uint32_t choice) {
  ReadingsForm form{};
  form.language = LectionsGetLanguage();
  form.ownNumbers = OptionalEntries.LectionsHasOwnNumbers && OptionalEntries.LectionsHasOwnNumbers() != 0;
  LectionsGetFont2(&form.font);
  LectionsGetYizkor(form.yizkor);
  form.choice = choice;
  return form;
}

uint32_t ReadingsChoiceNow() {
  return OptionalEntries.LectionsGetChoice ? OptionalEntries.LectionsGetChoice() : 0;
}

ReadingsForm ReadingsFormOf(HWND document) {
  const ScopedGlobalLock<const ReadingsForm> form(GetBlockProperty(document, property::kReadingsForm));
  if (form) return *form.get();
  ReadingsForm none{};
  none.font.UseDefaultFont = 1;
  return none;
}

bool IsSameForm(const ReadingsForm& left, const ReadingsForm& right) {
  if (left.language != right.language || left.ownNumbers != right.ownNumbers) return false;
  if (left.font.UseDefaultFont != 0 && right.font.UseDefaultFont != 0) return true;
  return left.font.UseDefaultFont == right.font.UseDefaultFont && left.font.PointSize == right.font.PointSize &&
         left.font.CharSet == right.font.CharSet && std::strcmp(left.font.FaceName, right.font.FaceName) == 0;
}
