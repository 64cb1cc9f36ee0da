// The words of one language, in the order of the tables of readings; the rules know none.
//
// Texts stand here in UTF-8 and leave in the language's code page. None may hold a semicolon, a plus sign, a backslash
// or a brace: lists of readings are joined, split and marked up with them.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "libraries/calendar/portion_schedule.h"
#include "libraries/lections/encoded_text.h"
#include "libraries/lections/passage.h"
#include "libraries/lections/reading_tables.h"

namespace lections {

enum class Numerals : uint8_t { kDecimal, kHebrew };

// How the language's printed Bibles write a passage.
struct Notation {
  Numerals numerals = Numerals::kDecimal;
  const char* verse = ":";  // between a chapter and its verse
  const char* next = ", ";  // between two stretches of verses
};

// In patterns "@" stands for a name and "#" for its number or month.
struct Words {
  const char* numbered;  // a day of a festival
  const char* monthly;   // Rosh Chodesh of a month
  const char* maftir;
  const char* morning;
  const char* afternoon;
  const char* scroll;
  const char* walledCities;  // that keep Purim on 15 Adar
  const char* maftirOfWalledCities;
  std::array<const char*, kCustomCount> customs;  // in the order of Custom
};

// ASCII: drawn in the program's own font, whatever the language's is.
struct PlainWords {
  const char* yizkor;          // at most 10 bytes
  const char* monthAnnounced;  // before the month's name
  std::array<const char*, 14> months;
};

struct Language {
  uint32_t code;
  const char* name;     // in English
  const char* ownName;  // in the language itself
  CodePage codePage;
  Notation notation;
  // A null name falls back to the English one: ask for names below.
  std::array<const char*, calendar::kPortionCount> portions;
  std::array<const char*, kBookCount> books;
  std::array<const char*, kOccasionCount> occasions;  // in the order of Occasion
  std::array<const char*, 14> months;                 // by calendar::JewishMonth; 0 is Adar I
  Words words;
  PlainWords plain;
};

extern const Language kEnglish;
extern const Language kAshkenaziEnglish;
extern const Language kHebrew;
extern const Language kCzech;
extern const Language kDanish;
extern const Language kDutch;
extern const Language kFinnish;
extern const Language kFrench;
extern const Language kGerman;
extern const Language kGreek;
extern const Language kHungarian;
extern const Language kItalian;
extern const Language kNorwegian;
extern const Language kPolish;
extern const Language kPortuguese;
extern const Language kRussian;
extern const Language kSpanish;
extern const Language kSwedish;

// In the order in which the dialog lists them; the first is the default.
std::span<const Language* const> Languages();

// The language of a code; the default one for a code that is none.
const Language& LanguageOf(uint32_t code);

const char* PortionName(const Language& language, calendar::Portion portion);
const char* BookName(const Language& language, Book book);
const char* OccasionName(const Language& language, Occasion occasion);

// The name of a month in a year: Adar I in a leap year.
const char* MonthName(const std::array<const char*, 14>& months, int32_t month, bool isLeapYear);

}  // namespace lections
