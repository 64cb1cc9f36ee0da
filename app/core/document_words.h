// What documents say besides numbers and readings, in the languages that readings are told in.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

enum class Word : uint8_t {
  kDate,
  kDay,  // of the week
  kJewishDate,
  kPortion,
  kTorah,
  kHaftarah,
  kYizkor,
  kCandleLighting,
  kEndOfShabbat,
  kFriday,  // on which candles are lit
  kShabbat,
  kShabbatTimes,  // titles of documents, before a colon and the place
  kZmanim,
  kReadings,
  kCalendar,
  kPageOf,         // with %1 and %2 for the numbers
  kClockNote,      // below times
  kNoTimeNote,     // below times of which some are missing
  kNextDayNote,    // below times of which some are after midnight
  kDayBeforeNote,  // below times of which some are before midnight
  kOccasions,      // of the year: festivals, fasts, candle lightings ...
  kCount,
};

struct WordsLanguage {
  uint32_t code;      // as the readings library numbers it
  uint16_t codePage;  // of the calendar libraries' names of months
  const char* tag;    // BCP 47
  const char* englishName;
  const char* ownName;
  bool rightToLeft;
  std::array<const char*, static_cast<std::size_t>(Word::kCount)> words;
};

// English first, the others by their English names. Texts are UTF-8.
std::span<const WordsLanguage> WordsLanguages();

// That of a code; English for any other, among them English in another spelling.
const WordsLanguage& WordsLanguageOf(uint32_t code);

std::string_view WordOf(Word word, uint32_t language);

// A Jewish date as the language writes it, with the name of its month: "18 Kislev 5787", in German with a point after
// the day, in Hebrew with letters for numbers, the thousands left out.
std::string JewishDateInWords(uint32_t day, std::string_view month, uint32_t year, uint32_t language);
