// What the built-in zmanim are called in Hebrew, and their rules in words.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "zmanim/core/builtin_zmanim.h"

struct BuiltInZmanText {
  const char* hebrew;  // UTF-8 in logical order: letters and ASCII, no digit first
  const char* rule;    // ASCII, a sentence; what the table reckons, with its seconds dropped
};

// In the order of kBuiltInZmanim. Names as Hebrew calendars print them, the same as the library's for the same zman;
// the abbreviations are those of Shulchan Aruch editions for the Magen Avraham, the Vilna Gaon and Rabbeinu Tam.
extern const std::array<BuiltInZmanText, kBuiltInZmanimCount> kBuiltInZmanimTexts;

// A Hebrew name as the labels hold it (zmanim_labels.h): bytes of the Hebrew display font in reading order, numbers
// turned round and brackets swapped, as HoursGetDescriptionHebrew answers.
std::string DisplayHebrewName(std::string_view utf8);
