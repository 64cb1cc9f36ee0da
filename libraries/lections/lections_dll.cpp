#include "companion/lections.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>

#include "libraries/lections/configure_dialog.h"
#include "libraries/lections/day_readings.h"
#include "libraries/lections/language.h"
#include "libraries/lections/language_dialog.h"
#include "libraries/lections/own_readings_dialog.h"
#include "libraries/lections/own_readings_file.h"
#include "libraries/lections/reading_texts.h"
#include "libraries/lections/readings_font.h"
#include "libraries/lections/settings_store.h"

namespace {

constexpr size_t kTextBuffer = 256;
constexpr uint32_t kStoredChoice = 0;  // no choice is 0

// A number that no calendar has becomes 0, which none has either.
int32_t Signed(uint32_t number) {
  return number <= static_cast<uint32_t>(std::numeric_limits<int32_t>::max()) ? static_cast<int32_t>(number) : 0;
}

calendar::Date DateOf(uint32_t day, uint32_t month, uint32_t year) {
  return {Signed(day), Signed(month), Signed(year)};
}

void Copy(const std::string& text, char* buffer, size_t bufferSize) {
  buffer[text.copy(buffer, bufferSize - 1)] = '\0';
}

}  // namespace

static_assert(sizeof(LectionsReadings) == 1804);
static_assert(sizeof(LectionsFont) == 268);

uint32_t LectionsGetChoice(void) try { return lections::ChoiceOf(lections::StoredSettings()); } catch (...) {
  return lections::ChoiceOf({});
}

void LectionsGetReadings(uint32_t day, uint32_t month, uint32_t year, LectionsReadings* readings) {
  LectionsGetReadingsBy(kStoredChoice, day, month, year, readings);
}

void LectionsGetReadingsBy(uint32_t choice, uint32_t day, uint32_t month, uint32_t year,
                           LectionsReadings* readings) try {
  if (!readings) return;
  *readings = {};
  const lections::Settings settings = lections::SettingsBy(choice, lections::StoredSettings());
  const lections::ReadingTexts texts =
      lections::TextsOn(DateOf(day, month, year), settings, lections::StoredOwnReadings().get());
  Copy(texts.torah[0], readings->torah1, sizeof readings->torah1);
  Copy(texts.torah[1], readings->torah2, sizeof readings->torah2);
  Copy(texts.torah[2], readings->torah3, sizeof readings->torah3);
  Copy(texts.haftarot[0], readings->haftarah1, sizeof readings->haftarah1);
  Copy(texts.haftarot[1], readings->haftarah2, sizeof readings->haftarah2);
  Copy(texts.haftarot[2], readings->haftarah3, sizeof readings->haftarah3);
  Copy(texts.additional, readings->extraText, sizeof readings->extraText);
} catch (...) {
  *readings = {};
}

uint32_t LectionsGetLanguage(void) try { return lections::StoredSettings().language; } catch (...) {
  return lections::Languages()[0]->code;
}

int32_t LectionsHasOwnNumbers(void) try { return lections::StoredSettings().ownNumbers; } catch (...) {
  return 0;
}

int32_t LectionsIsYizkor(uint32_t day, uint32_t month, uint32_t year) {
  return LectionsIsYizkorBy(kStoredChoice, day, month, year);
}

int32_t LectionsIsYizkorBy(uint32_t choice, uint32_t day, uint32_t month, uint32_t year) try {
  const calendar::Date date = DateOf(day, month, year);
  const lections::Settings settings = lections::SettingsBy(choice, lections::StoredSettings());
  return lections::IsJewishDate(date) && lections::IsYizkor(date, settings.land);
} catch (...) {
  return 0;
}

void LectionsGetYizkor(char* text) try {
  if (!text) return;
  Copy(lections::LanguageOf(lections::StoredSettings().language).plain.yizkor, text, kTextBuffer);
} catch (...) {
  text[0] = '\0';
}

int32_t LectionsGetCustomName(uint32_t custom, char* text) try {
  const lections::Language& language = lections::LanguageOf(lections::StoredSettings().language);
  if (!text || custom >= language.words.customs.size()) return 0;
  Copy(lections::Encoded(language.words.customs[custom], language.codePage), text, kTextBuffer);
  return 1;
} catch (...) {
  return 0;
}

void LectionsGetFont2(LectionsFont* font) try {
  if (!font) return;
  *font = {};
  font->UseDefaultFont = 1;
  std::memcpy(font->FaceName, lections::kReadingsFace, sizeof lections::kReadingsFace);
  font->PointSize = lections::kReadingsPoints;
  const lections::Language& language = lections::LanguageOf(lections::StoredSettings().language);
  font->CharSet = lections::CharSetOf(language.codePage);
  font->UseDefaultFont = font->CharSet == 0 ? 1 : 0;
} catch (...) {  // the program's own font
}

int32_t LectionsDoConfigureDialog(HWND owner) try { return lections::DoConfigureDialog(owner); } catch (...) {
  return 0;
}

int32_t LectionsDoLanguageDialog(HWND owner) try { return lections::DoLanguageDialog(owner); } catch (...) {
  return 0;
}

int32_t LectionsDoCustomReadingsDialog(HWND owner) try { return lections::DoOwnReadingsDialog(owner); } catch (...) {
  return 0;
}
