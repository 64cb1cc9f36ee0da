#include "libraries/kinship/date_words.h"

#include <vector>

#include "libraries/calendar/jewish.h"
#include "libraries/kinship/person_texts.h"
#include "libraries/persons/date_fields.h"

namespace kinship {
namespace {

using persons::Calendar;
using persons::DateFields;

constexpr char kDigits[] = "0123456789";
constexpr size_t kDigitsOfYear = 4;
constexpr size_t kShortName = 3;  // letters of a month's short name

// Names beside those that the program writes.
constexpr struct {
  const char* name;
  int32_t month;
} kOtherNames[] = {{"Iyyar", calendar::kIyar},           {"Tamuz", calendar::kTammuz},
                   {"Tishrei", calendar::kTishri},       {"Heshvan", calendar::kCheshvan},
                   {"Marcheshvan", calendar::kCheshvan}, {"Teves", calendar::kTevet},
                   {"Shvat", calendar::kShevat},         {"Adar", calendar::kAdar},
                   {"Adar I", calendar::kAdar},          {"Adar 1", calendar::kAdar},
                   {"Adar 2", calendar::kAdarII}};

bool IsNumber(std::string_view text) {
  return !text.empty() && text.find_first_not_of(kDigits) == text.npos;
}

std::vector<std::string_view> PartsOf(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (;;) {
    const size_t end = text.find(separator);
    parts.push_back(text.substr(0, end));
    if (end == text.npos) return parts;
    text.remove_prefix(end + 1);
  }
}

int32_t NumberOf(std::string_view digits) {
  return digits.size() > 2 ? 0 : static_cast<int32_t>(std::stol("0" + std::string(digits)));
}

std::optional<DateFields> Numeric(std::string_view text) {
  const std::vector<std::string_view> dotted = PartsOf(text, '.');
  const std::vector<std::string_view> dashed = PartsOf(text, '-');
  const auto& parts = dotted.size() == 3 ? dotted : dashed;
  if (parts.size() != 3 || !IsNumber(parts[0]) || !IsNumber(parts[1]) || !IsNumber(parts[2])) return std::nullopt;
  const size_t day = dotted.size() == 3 ? 0 : 2;
  const int32_t month = NumberOf(parts[1]);
  if (month < 1 || month > 12) return std::nullopt;
  return DateFields{std::string(parts[day]), month, std::string(parts[2 - day])};
}

int32_t GregorianMonth(std::string_view name) {
  for (const persons::MonthChoice& month : persons::GregorianMonths()) {
    if (IsSameWord(month.name, name) || IsSameWord(month.name.substr(0, kShortName), name)) return month.month;
  }
  return 0;
}

int32_t JewishMonth(std::string_view name) {
  for (const persons::MonthChoice& month : persons::JewishMonths({}, 0)) {
    if (IsSameWord(month.name, name)) return month.month;
  }
  for (const auto& other : kOtherNames) {
    if (IsSameWord(other.name, name)) return other.month;
  }
  return 0;
}

struct Worded {
  DateFields fields;
  std::string monthName;
};

// A day, a month's name, which may have two words, and a year of at least three digits or none.
std::optional<Worded> Words(const std::string& text) {
  std::vector<std::string_view> parts = PartsOf(text, ' ');
  Worded worded;
  if (parts.size() < 2 || !IsNumber(parts.front())) return std::nullopt;
  worded.fields.day = parts.front();
  if (IsNumber(parts.back()) && parts.back().size() > 2) {
    worded.fields.year = parts.back();
    parts.pop_back();
  }
  for (size_t i = 1; i < parts.size(); ++i) worded.monthName.append(i == 1 ? "" : " ").append(parts[i]);
  return worded;
}

DateInWords Fault(std::string message) {
  return {std::nullopt, Calendar::kGregorian, std::move(message)};
}

DateInWords Read(Calendar calendar, const DateFields& fields) {
  const persons::DateReading reading = persons::ReadDate(calendar, fields, persons::YearIs::kOptional);
  return {reading.date, calendar, reading.message};
}

DateInWords ReadJewish(const Worded& worded) {
  if (!IsSameWord(worded.monthName, "Adar") || worded.fields.year.size() > 4 || worded.fields.year.empty()) {
    return Read(Calendar::kJewish, worded.fields);
  }
  const int32_t year = static_cast<int32_t>(std::stol(worded.fields.year));
  if (!calendar::IsJewishLeapYear(year)) return Read(Calendar::kJewish, worded.fields);
  return Fault(worded.fields.year + " has Adar I and Adar II; write which of them it is.");
}

}  // namespace

// Years have four digits: of fewer it could not be told whether they belong to "Adar 2".
std::string DateWords(const persons::EventDate& event) {
  if (event.calendar == Calendar::kGregorian) return NumericDate(event.date);
  std::string words = persons::JewishDateText(event.date);
  if (event.date.year == persons::kUnknownYear) return words;
  const size_t digits = std::to_string(event.date.year).size();
  return words.insert(words.size() - digits, kDigitsOfYear - digits, '0');
}

DateInWords ReadDateWords(std::string_view words, std::optional<Calendar> calendar) {
  const std::string text = OneLine(words);
  if (text.empty()) return Fault("There is no date.");
  if (const auto fields = Numeric(text)) {
    if (calendar != Calendar::kJewish) return Read(Calendar::kGregorian, *fields);
    return Fault("\"" + text + "\" is no Jewish date; write it with the month's name, such as 16 Adar 5710.");
  }
  if (auto worded = Words(text)) {
    if (calendar != Calendar::kJewish && (worded->fields.month = GregorianMonth(worded->monthName)) != 0) {
      return Read(Calendar::kGregorian, worded->fields);
    }
    if (calendar != Calendar::kGregorian && (worded->fields.month = JewishMonth(worded->monthName)) != 0) {
      return ReadJewish(*worded);
    }
  }
  return Fault("\"" + text + "\" is no date as they are read here, such as 16.02.1950 or 16 Adar 5710.");
}

}  // namespace kinship
