#include "readings/core/split_rules.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <optional>
#include <string_view>

namespace {

using Slot = char (ReadingsEntry::*)[kTextSize];

constexpr Slot kTorah1 = &ReadingsEntry::torah1;
constexpr Slot kTorah2 = &ReadingsEntry::torah2;
constexpr Slot kTorah3 = &ReadingsEntry::torah3;
constexpr Slot kHaftarah1 = &ReadingsEntry::haftarah1;
constexpr Slot kHaftarah2 = &ReadingsEntry::haftarah2;
constexpr Slot kHaftarah3 = &ReadingsEntry::haftarah3;

// Where a text is cut and where its rest begins, in bytes from the separator's start or, afterSeparator, from its end;
// and whether what the target held moves on to the next slot or is lost.
struct Division {
  bool afterSeparator;
  std::size_t cut;
  std::size_t rest;
  bool targetMovesOn;
};

constexpr Division kDropMark{false, 0, 2, false};       // "; " or "+ " before the rest is dropped
constexpr Division kKeepBracket{false, 0, 1, true};     // the blank before the rest's bracket is dropped
constexpr Division kMoveBracket{false, 0, 1, false};    // the same, over what the target held
constexpr Division kKeepFirstWord{false, 9, 11, true};  // the separator's first word, of nine letters, stays
constexpr Division kAfterNext{true, 1, 2, false};       // the separator and a character after it stay
constexpr Division kKeepMark{false, 1, 2, true};        // the separator's first character stays
constexpr Division kAfter{true, 0, 1, true};            // the separator stays

constexpr uint32_t kEveryLanguage = 0;

struct SplitRule {
  std::string_view separator;
  Slot searched;
  Division division;
  Slot target;
  uint32_t language = kEveryLanguage;
};

// In their order. Separators are bytes of windows-1250 (Czech), 1252, 1253 (Greek) or of a display font; each runs
// whatever the language, since the texts of another language do not hold it.
constexpr SplitRule kSplitRules[] = {
    // The Haftarah of a second service of the day.
    {"; Afternoon: ", kHaftarah1, kDropMark, kHaftarah2},
    {"; Morning: ", kHaftarah1, kDropMark, kHaftarah2},
    {"; ve\xe8"
     "er: ",
     kHaftarah1, kDropMark, kHaftarah2},
    {"; \xe2\xf1\xdc\xe4\xf5: ", kHaftarah1, kDropMark, kHaftarah2},
    {"; \xf0\xf1\xf9\xdf: ", kHaftarah1, kDropMark, kHaftarah2},
    {"; Abends: ", kHaftarah1, kDropMark, kHaftarah2},
    {"; Morgends: ", kHaftarah1, kDropMark, kHaftarah2},
    {"+ Enhjv% ", kHaftarah1, kDropMark, kHaftarah2},
    {"+ Dtxthjv% ", kHaftarah1, kDropMark, kHaftarah2},
    // The Sephardi Haftarah.
    {" (Sephardi", kHaftarah1, kKeepBracket, kHaftarah2},
    {" (sefardi", kHaftarah1, kKeepBracket, kHaftarah2},
    {" (Sefardisch", kHaftarah1, kKeepBracket, kHaftarah2},
    {" (Seph\xe2radim", kHaftarah1, kKeepBracket, kHaftarah2},
    {" (sefardisk", kHaftarah1, kKeepBracket, kHaftarah2},
    {" (\xd3\xe5\xf6\xe1\xf1\xe4\xe9:", kHaftarah2, kMoveBracket, kHaftarah3},
    {" (\xd3\xe5\xf6\xe1\xf1\xe4\xe9:", kHaftarah1, kKeepBracket, kHaftarah2},
    {" (Ctafhlbv%", kHaftarah1, kKeepBracket, kHaftarah2},
    {" (Ctafhlbv%", kHaftarah2, kMoveBracket, kHaftarah3},
    {" (sefardi", kHaftarah2, kMoveBracket, kHaftarah3},
    // The Torah reading of a second service.
    {"; Morning: ", kTorah1, kDropMark, kTorah2},
    {"; ve\xe8"
     "er: ",
     kTorah1, kDropMark, kTorah2},
    {"; Afternoon: ", kTorah1, kDropMark, kTorah2},
    {"; middag: ", kTorah1, kDropMark, kTorah2},
    {"; Morgens: ", kTorah1, kDropMark, kTorah2},
    {"; Abends: ", kTorah1, kDropMark, kTorah2},
    {"; \xf0\xf1\xf9\xdf: ", kTorah1, kDropMark, kTorah2},
    {"; \xe2\xf1\xdc\xe4\xf5: ", kTorah1, kDropMark, kTorah2},
    {"\xcc\xf0\xe5\xf4\xe1\xec\xef\xfd\xe6, \xf0\xf1\xf9\xdf: ", kTorah1, kKeepFirstWord, kTorah2},
    {"+ Enhjv% ", kTorah1, kDropMark, kTorah2},
    {"+ Dtxthjv% ", kTorah1, kDropMark, kTorah2},
    {"Ivbyb Fwthtn", kTorah1, kAfterNext, kTorah2},
    {"; eftermiddag: ", kTorah1, kDropMark, kTorah2},
    // Haftarot of other customs, and verses that are added.
    {" (Jgnfwbz%", kHaftarah1, kKeepBracket, kHaftarah2},
    {" \xe1\xed\xf4\xe9\xea\xe1\xf4\xdc\xf3\xf4\xe1\xf3\xe7 \xde \xf3\xf5\xec\xf0\xeb\xde\xf1\xf9\xec\xe1 ", kHaftarah1,
     kKeepBracket, kHaftarah2},
    {" n\xe1hrada nebo ", kHaftarah1, kKeepBracket, kHaftarah2},
    {"+ Qj'km ", kHaftarah1, kKeepMark, kHaftarah2},
    {"; Joel ", kHaftarah1, kKeepMark, kHaftarah2, kSpanish},
    {"; \xc9\xe7\xe5\xeb ", kHaftarah1, kKeepMark, kHaftarah2},
    {"2 ltym Ifdejn- ", kTorah1, kAfter, kTorah2},
};
static_assert(std::size(kSplitRules) == 39);

// A separator counts only with a character after it.
std::optional<std::size_t> FindSeparator(std::string_view text, std::string_view separator) {
  const std::size_t found = text.find(separator);
  if (found == text.npos || found + separator.size() == text.size()) return std::nullopt;
  return found;
}

void MoveOn(ReadingsEntry& entry, Slot from) {
  if (from == kTorah2) std::memcpy(entry.*kTorah3, entry.*kTorah2, kTextSize);
  if (from == kHaftarah2) std::memcpy(entry.*kHaftarah3, entry.*kHaftarah2, kTextSize);
}

void Apply(const SplitRule& rule, ReadingsEntry& entry) {
  char* const searched = entry.*rule.searched;
  const std::string_view text(searched);
  const std::optional<std::size_t> found = FindSeparator(text, rule.separator);
  if (!found) return;
  const Division& division = rule.division;
  const std::size_t base = *found + (division.afterSeparator ? rule.separator.size() : 0);
  // What is cut after its last character has no rest.
  const std::string_view rest = text.substr(std::min(base + division.rest, text.size()));
  if (division.targetMovesOn) MoveOn(entry, rule.target);
  char* const target = entry.*rule.target;
  target[rest.copy(target, kTextSize - 1)] = '\0';
  searched[base + division.cut] = '\0';
}

}  // namespace

void SplitReadings(ReadingsEntry& entry, uint32_t language) {
  if (language == kFinnish) return;
  for (const SplitRule& rule : kSplitRules) {
    if (rule.language == kEveryLanguage || rule.language == language) Apply(rule, entry);
  }
}
