// Chapters and verses as the Bibles of a language number them, where they differ from the numbers of passage.h.
#pragma once

#include <cstdint>
#include <span>

#include "libraries/lections/passage.h"

namespace lections {

// Bibles that number alike; a bit each, for the rows of the table. Each is named after the one that it was taken from.
enum Versification : uint8_t {
  kLuther = 1,     // as the Hebrew Bible's scholarly editions: the Ten Commandments have a verse each
  kKingJames = 2,  // the numbers that most translations of the last four centuries share
  kFolkbibel = 4,
  kSegond = 8,
  kNorwegianBible = 16,
  kSynodal = 32,
};

// The Bible whose numbers are customary in a language.
struct OwnBible {
  uint32_t language;  // a code of language.h
  const char* name;   // in English, in UTF-8, as it follows "As in "
  Versification versification;
};

std::span<const OwnBible> OwnBibles();

// Null where the language's Bibles number as the tables do.
const OwnBible* OwnBibleOf(uint32_t language);

// The verses in a Bible's numbers, each end by itself: a Hebrew verse that is several there begins with the first of
// them and ends with the last. Whole books stay as they are.
Verses InNumbersOf(Versification versification, const Verses& verses);

}  // namespace lections
