#include "libraries/persons/person.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <map>
#include <utility>

#include "libraries/settings_folder/text_lines.h"

namespace persons {
namespace {

constexpr char kSeparator = '|';
constexpr std::string_view kSeparators(&kSeparator, 1);
constexpr size_t kFields = 6;

constexpr std::array<std::string_view, kKinds> kKindWords = {"birthday", "yahrzeit", "wedding", "other"};
constexpr std::array<std::string_view, 3> kAdarWords = {"adar-1", "adar-2", "both"};
constexpr std::string_view kJewishWord = " jewish";
constexpr std::string_view kEveningWord = " evening";

constexpr std::string_view kFirstLine =
    "# Birthdays, yahrzeit and other dates: kind|date|Adar in leap years|name|what another date is|notes (UTF-8)\r\n";

template <typename Value, size_t kCount>
std::optional<Value> ValueOf(const std::array<std::string_view, kCount>& words, std::string_view word) {
  const auto found = std::ranges::find(words, word);
  if (found == words.end()) return std::nullopt;
  return static_cast<Value>(found - words.begin());
}

// How many bytes a character of UTF-8 takes at the start of a text, 0 where none starts; the shortest forms alone, no
// surrogates, up to U+10FFFF (RFC 3629).
size_t CharacterLength(std::string_view text) {
  const auto byte = [&text](size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0u; };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  if (lead < 0xC2 || lead > 0xF4) return 0;
  const size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  const unsigned least = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const unsigned most = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  if (byte(1) < least || byte(1) > most) return 0;
  for (size_t i = 2; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  return length;
}

// UTF-8 without control characters but those allowed.
bool IsText(std::string_view text, size_t longest, std::string_view allowedControls = {}) {
  if (text.size() > longest) return false;
  while (!text.empty()) {
    const auto first = static_cast<unsigned char>(text.front());
    const bool isControl = first < 0x20 || first == 0x7F;
    const size_t length = CharacterLength(text);
    if (length == 0 || (isControl && allowedControls.find(text.front()) == allowedControls.npos)) return false;
    text.remove_prefix(length);
  }
  return true;
}

// Two or four digits, followed by a separator.
std::optional<int32_t> TakeNumber(std::string_view& text, size_t digits, std::string_view end) {
  if (text.size() < digits) return std::nullopt;
  int32_t number = 0;
  const auto [last, error] = std::from_chars(text.data(), text.data() + digits, number);
  if (error != std::errc() || last != text.data() + digits || number < 0 || text[0] == '-') return std::nullopt;
  text.remove_prefix(digits);
  if (!text.starts_with(end)) return std::nullopt;
  text.remove_prefix(end.size());
  return number;
}

bool TakeWord(std::string_view& text, std::string_view word) {
  if (!text.starts_with(word)) return false;
  text.remove_prefix(word.size());
  return true;
}

std::optional<EventDate> EventIn(std::string_view text) {
  const auto year = TakeNumber(text, 4, "-");
  const auto month = year ? TakeNumber(text, 2, "-") : std::nullopt;
  const auto day = month ? TakeNumber(text, 2, "") : std::nullopt;
  if (!day) return std::nullopt;
  EventDate event;
  event.date = {*day, *month, *year};
  event.calendar = TakeWord(text, kJewishWord) ? Calendar::kJewish : Calendar::kGregorian;
  event.afterSunset = TakeWord(text, kEveningWord);
  if (!text.empty()) return std::nullopt;
  return event;
}

std::string TextOf(const EventDate& event) {
  char numbers[48];
  std::snprintf(numbers, sizeof numbers, "%04d-%02d-%02d", event.date.year, event.date.month, event.date.day);
  std::string text = numbers;
  if (event.calendar == Calendar::kJewish) text += kJewishWord;
  if (event.afterSunset) text += kEveningWord;
  return text;
}

// None where there are more or fewer.
std::optional<std::array<std::string_view, kFields>> FieldsIn(std::string_view line) {
  std::array<std::string_view, kFields> fields;
  for (size_t i = 0; i < kFields; ++i) {
    const bool isLast = i + 1 == kFields;
    const size_t end = line.find(kSeparator);
    if ((end == line.npos) != isLast) return std::nullopt;
    fields[i] = line.substr(0, end);
    if (!isLast) line.remove_prefix(end + 1);
  }
  return fields;
}

// Empty lines and those that start with "#".
bool IsNobodys(std::string_view line) {
  return line.find_first_not_of(" \t") == line.npos || line.front() == '#';
}

struct WrittenLine {
  std::string content;
  std::string_view end;
  bool stays = true;
};

// The lines of a file while changes are made in them.
class ChangedLines {
 public:
  explicit ChangedLines(std::string_view text) : text_(text.substr(settings_folder::MarkLength(text))) {
    mark_ = text.substr(0, text.size() - text_.size());
    for (const settings_folder::Line& line : settings_folder::LinesOf(text_)) {
      if (const auto person = PersonIn(line.content)) linesOf_[LineOf(*person)].push_back(lines_.size());
      lines_.push_back({std::string(line.content), line.end});
    }
    // The last of the lines that say the same is at the back; the first is to be changed first.
    for (auto& [line, numbers] : linesOf_) std::ranges::reverse(numbers);
  }

  bool Has(const Person& person) const {
    const auto found = linesOf_.find(LineOf(person));
    return found != linesOf_.end() && !found->second.empty();
  }

  // Whether there was such a line.
  bool Change(const Person& before, const std::optional<Person>& after) {
    const auto found = linesOf_.find(LineOf(before));
    if (found == linesOf_.end() || found->second.empty()) return false;
    const size_t number = found->second.back();
    found->second.pop_back();
    lines_[number].stays = after.has_value();
    if (after) lines_[number].content = LineOf(*after);
    return true;
  }

  void Add(const Person& person) { added_.push_back(LineOf(person)); }

  std::string Text() const {
    std::string text(mark_);
    std::string_view lastEnd = "\n";
    for (const WrittenLine& line : lines_) {
      if (!line.stays) continue;
      text.append(line.content).append(line.end);
      lastEnd = line.end;
    }
    const std::string_view end = settings_folder::FirstLineEnd(text_);
    if (text_.empty() && !added_.empty()) text += kFirstLine;
    if (lastEnd.empty() && !added_.empty()) text += end;
    for (const std::string& line : added_) text.append(line).append(end);
    return text;
  }

 private:
  std::string_view mark_;
  std::string_view text_;
  std::vector<WrittenLine> lines_;
  std::map<std::string, std::vector<size_t>, std::less<>> linesOf_;  // by the line as the program writes it
  std::vector<std::string> added_;
};

}  // namespace

bool CanBeKept(const Person& person) {
  return IsDate(person.event) && IsText(person.name, kLongestName) && IsText(person.title, kLongestTitle) &&
         IsText(person.notes, kLongestNotes, "\n\t") && person.name.find_first_not_of(' ') != std::string::npos;
}

std::optional<Person> PersonIn(std::string_view line) {
  const auto fields = FieldsIn(line);
  if (!fields) return std::nullopt;
  const auto& [kindWord, date, adarWord, name, title, notes] = *fields;
  const auto kind = ValueOf<Kind>(kKindWords, kindWord);
  const auto event = EventIn(date);
  const auto adar = ValueOf<AdarCustom>(kAdarWords, adarWord);
  auto nameText = settings_folder::PercentDecoded(name);
  auto titleText = settings_folder::PercentDecoded(title);
  auto notesText = settings_folder::PercentDecoded(notes);
  if (!kind || !event || (!adar && !adarWord.empty()) || !nameText || !titleText || !notesText) return std::nullopt;
  Person person = {*kind, *event, adar, std::move(*nameText), std::move(*titleText), std::move(*notesText)};
  if (!CanBeKept(person)) return std::nullopt;
  return person;
}

std::string LineOf(const Person& person) {
  std::string line(kKindWords[static_cast<size_t>(person.kind)]);
  line += kSeparator + TextOf(person.event) + kSeparator;
  if (person.adar) line += kAdarWords[static_cast<size_t>(*person.adar)];
  for (const std::string* text : {&person.name, &person.title, &person.notes}) {
    line += kSeparator + settings_folder::PercentCoded(*text, kSeparators);
  }
  return line;
}

Persons PersonsIn(std::string_view fileText) {
  Persons found;
  fileText.remove_prefix(settings_folder::MarkLength(fileText));
  for (int32_t number = 1; !fileText.empty(); ++number) {
    const std::string_view line = settings_folder::TakeLine(fileText).content;
    if (IsNobodys(line)) continue;
    if (auto person = PersonIn(line)) {
      found.persons.push_back(std::move(*person));
    } else {
      found.damagedLines.push_back(number);
    }
  }
  return found;
}

std::string Applied(const std::vector<Change>& changes, std::string_view fileText, std::vector<Change>* missed) {
  missed->clear();
  ChangedLines lines(fileText);
  for (const Change& change : changes) {
    if (!change.before) {
      if (change.after) lines.Add(*change.after);
      continue;
    }
    if (change.before == change.after || lines.Change(*change.before, change.after)) continue;
    if (change.after && lines.Has(*change.after)) continue;  // another copy has changed it so too
    if (change.after) lines.Add(*change.after);
    missed->push_back(change);
  }
  return lines.Text();
}

}  // namespace persons
