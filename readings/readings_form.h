// In which form a document has its readings: the block behind the window property ReadingsForm, made and replaced with
// the readings. Texts are bytes of the charset of the form's font, so no other font may draw them.
#pragma once

#include <windows.h>

#include <cstdint>

#include "companion/lections.h"
#include "engine/core/records.h"

struct ReadingsForm {
  uint32_t language;  // the library's code
  bool ownNumbers;    // chapters and verses as in the language's own Bibles
  LectionsFont font;
  char yizkor[kTextSize];  // the word for it in the language
  // Land, customs and what is listed, as the library numbers them; 0 where it does not tell. They stay with the
  // document when only the language changes.
  uint32_t choice;
};

// The form as it is set now, by the given choice.
ReadingsForm ReadingsFormNow(uint32_t choice);

// The choice as it is set now.
uint32_t ReadingsChoiceNow();

// Of a document without readings, an empty one in the program's own font.
ReadingsForm ReadingsFormOf(HWND document);

// Whether texts of one form can stand for those of the other: the same language and numbers in the same font.
bool IsSameForm(const ReadingsForm& left, const ReadingsForm& right);
