// How persons and their dates are put into words, and what is made of texts that the user typed or pasted. All texts
// are UTF-8.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "libraries/persons/person.h"

namespace kinship {

// "Birthday", "Yahrzeit", "Wedding", "Other"; read back whatever the letters' case.
const char* KindName(persons::Kind kind);
std::optional<persons::Kind> KindOfName(std::string_view name);

// "Adar I", "Adar II", "Both"; read back likewise.
const char* AdarName(persons::AdarCustom adar);
std::optional<persons::AdarCustom> AdarOfName(std::string_view name);

// Whether two texts are the same but for the case of ASCII letters.
bool IsSameWord(std::string_view left, std::string_view right);

// The kind's name, or what an "other" date is called, where it is.
std::string OccasionOf(const persons::Person& person);

// "16.02.1950"; of a day as calendar/date.h counts them.
std::string NumericDate(const calendar::Date& date);
std::string NumericDay(int32_t absoluteDay);

const char* WeekdayName(int32_t absoluteDay);

// "Sunday, 1 March 2026"
std::string DayInWords(int32_t absoluteDay);

// A text for one line: line ends, tabs and other control characters are blanks, of which none stand at the ends.
std::string OneLine(std::string_view text);

// A text of several lines, ended by "\n" whatever ended them; without other control characters, and without blanks and
// empty lines at its end.
std::string SeveralLines(std::string_view text);

// Which of a person's texts keeps it from being kept, and what to do about it.
enum class TextField : uint8_t { kName, kTitle, kNotes };
struct TextFault {
  TextField field;
  std::string message;
};
std::optional<TextFault> FaultIn(const persons::Person& person);

}  // namespace kinship
