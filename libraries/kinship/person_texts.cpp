#include "libraries/kinship/person_texts.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "libraries/calendar/gregorian.h"
#include "libraries/persons/date_fields.h"

namespace kinship {
namespace {

using persons::AdarCustom;
using persons::Kind;
using persons::Person;

constexpr std::array<const char*, persons::kKinds> kKindNames = {"Birthday", "Yahrzeit", "Wedding", "Other"};
constexpr std::array<const char*, 3> kAdarNames = {"Adar I", "Adar II", "Both"};
constexpr std::array<const char*, 7> kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                  "Thursday", "Friday", "Saturday"};

char Lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

template <size_t kCount>
std::optional<size_t> PlaceOf(const std::array<const char*, kCount>& names, std::string_view name) {
  const auto found = std::ranges::find_if(names, [name](const char* one) { return IsSameWord(one, name); });
  if (found == names.end()) return std::nullopt;
  return static_cast<size_t>(found - names.begin());
}

bool IsControl(char character) {
  return static_cast<unsigned char>(character) < 0x20 || character == 0x7F;
}

std::optional<TextFault> TooLong(TextField field, const char* what, std::string_view text, size_t longest) {
  if (text.size() <= longest) return std::nullopt;
  return TextFault{field, std::string(what) + " is too long to be kept. Shorten it by about " +
                              std::to_string((text.size() - longest) * 100 / text.size() + 1) + " per cent."};
}

}  // namespace

const char* KindName(Kind kind) {
  return kKindNames[static_cast<size_t>(kind)];
}

std::optional<Kind> KindOfName(std::string_view name) {
  const auto place = PlaceOf(kKindNames, name);
  return place ? std::optional(static_cast<Kind>(*place)) : std::nullopt;
}

const char* AdarName(AdarCustom adar) {
  return kAdarNames[static_cast<size_t>(adar)];
}

std::optional<AdarCustom> AdarOfName(std::string_view name) {
  const auto place = PlaceOf(kAdarNames, name);
  return place ? std::optional(static_cast<AdarCustom>(*place)) : std::nullopt;
}

bool IsSameWord(std::string_view left, std::string_view right) {
  return std::ranges::equal(left, right, {}, Lower, Lower);
}

std::string OccasionOf(const Person& person) {
  return person.kind == Kind::kOther && !person.title.empty() ? person.title : KindName(person.kind);
}

std::string NumericDate(const calendar::Date& date) {
  char text[48];
  std::snprintf(text, sizeof text, "%02d.%02d.%04d", date.day, date.month, date.year);
  return text;
}

std::string NumericDay(int32_t absoluteDay) {
  return NumericDate(calendar::GregorianFromAbsolute(absoluteDay));
}

const char* WeekdayName(int32_t absoluteDay) {
  return kWeekdays[static_cast<size_t>(calendar::WeekdayOf(absoluteDay))];
}

std::string DayInWords(int32_t absoluteDay) {
  return std::string(WeekdayName(absoluteDay)) + ", " +
         persons::GregorianDateText(calendar::GregorianFromAbsolute(absoluteDay));
}

std::string OneLine(std::string_view text) {
  std::string line;
  for (const char character : text) {
    const bool isBlank = character == ' ' || IsControl(character);
    if (!isBlank) {
      line += character;
    } else if (!line.empty() && line.back() != ' ') {
      line += ' ';
    }
  }
  if (line.ends_with(' ')) line.pop_back();
  return line;
}

std::string SeveralLines(std::string_view text) {
  std::string lines;
  for (size_t i = 0; i < text.size(); ++i) {
    const char character = text[i];
    if (character == '\r') {
      if (i + 1 == text.size() || text[i + 1] != '\n') lines += '\n';
    } else if (character == '\n' || character == '\t' || !IsControl(character)) {
      lines += character;
    }
  }
  lines.erase(lines.find_last_not_of(" \t\n") + 1);
  return lines;
}

std::optional<TextFault> FaultIn(const Person& person) {
  if (person.name.find_first_not_of(' ') == std::string::npos) return TextFault{TextField::kName, "Enter the name."};
  if (auto fault = TooLong(TextField::kName, "The name", person.name, persons::kLongestName)) return fault;
  if (auto fault = TooLong(TextField::kTitle, "The title", person.title, persons::kLongestTitle)) return fault;
  return TooLong(TextField::kNotes, "The text of the notes", person.notes, persons::kLongestNotes);
}

}  // namespace kinship
