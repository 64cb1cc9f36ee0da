#include "libraries/lections/divided_text.h"

#include "libraries/lections/encoded_text.h"
#include "libraries/lections/language.h"

namespace lections {
namespace {

using namespace std::string_view_literals;

constexpr uint8_t kBothFirst = kFirstOfTorah | kFirstOfHaftarot;
constexpr uint8_t kBothHaftarot = kFirstOfHaftarot | kSecondOfHaftarot;
constexpr uint32_t kSpanishCode = 10;

// English, Czech (windows-1250), Greek (windows-1253), German, Dutch, Danish and Norwegian, Spanish, French, and texts
// in the bytes of a Hebrew display font.
constexpr Divider kDividers[] = {
    {"; Afternoon: "sv, kBothFirst, false},
    {"; Morning: "sv, kBothFirst, false},
    {"; ve\xe8"
     "er: "sv,
     kBothFirst, false},
    {"; \xe2\xf1\xdc\xe4\xf5: "sv, kBothFirst, false},
    {"; \xf0\xf1\xf9\xdf: "sv, kBothFirst, false},
    {"; Abends: "sv, kBothFirst, false},
    {"; Morgends: "sv, kFirstOfHaftarot, false},
    {"; Morgens: "sv, kFirstOfTorah, false},
    {"; middag: "sv, kFirstOfTorah, false},
    {"; eftermiddag: "sv, kFirstOfTorah, false},
    {"+ Enhjv% "sv, kBothFirst, false},
    {"+ Dtxthjv% "sv, kBothFirst, false},
    {"Ivbyb Fwthtn"sv, kFirstOfTorah, false},
    {"\xcc\xf0\xe5\xf4\xe1\xec\xef\xfd\xe6, \xf0\xf1\xf9\xdf: "sv, kFirstOfTorah, true},
    {"2 ltym Ifdejn- "sv, kFirstOfTorah, true},
    {" (Sephardi"sv, kFirstOfHaftarot, true},
    {" (sefardi"sv, kBothHaftarot, true},
    {" (Sefardisch"sv, kFirstOfHaftarot, true},
    {" (Seph\xe2radim"sv, kFirstOfHaftarot, true},
    {" (sefardisk"sv, kBothHaftarot, true},
    {" (\xd3\xe5\xf6\xe1\xf1\xe4\xe9:"sv, kBothHaftarot, true},
    {" (Ctafhlbv%"sv, kBothHaftarot, true},
    {" (Jgnfwbz%"sv, kFirstOfHaftarot, true},
    {" \xe1\xed\xf4\xe9\xea\xe1\xf4\xdc\xf3\xf4\xe1\xf3\xe7 \xde \xf3\xf5\xec\xf0\xeb\xde\xf1\xf9\xec\xe1 "sv,
     kFirstOfHaftarot, true},
    {" n\xe1hrada nebo "sv, kFirstOfHaftarot, true},
    {"+ Qj'km "sv, kFirstOfHaftarot, true},
    {"; Joel "sv, kFirstOfHaftarot, true, kSpanishCode},
    {"; \xc9\xe7\xe5\xeb "sv, kFirstOfHaftarot, true},
};

uint8_t LineOf(Slot slot) {
  switch (slot) {
    case Slot::kTorah1: return kFirstOfTorah;
    case Slot::kHaftarah1: return kFirstOfHaftarot;
    case Slot::kHaftarah2: return kSecondOfHaftarot;
    default: return 0;
  }
}

// Null where the program does not divide the text in a language.
const Divider* DividerOf(Slot slot, std::string_view encoded, uint32_t language) {
  if (language == kUndividedLanguage) return nullptr;
  for (const Divider& divider : kDividers) {
    const bool isOfLanguage = divider.language == kAnyLanguage || divider.language == language;
    if (isOfLanguage && (divider.lines & LineOf(slot)) != 0 && IsDividedAt(encoded, divider)) return &divider;
  }
  return nullptr;
}

}  // namespace

std::span<const Divider> Dividers() {
  return kDividers;
}

bool IsDividedAt(std::string_view encoded, const Divider& divider) {
  const size_t at = encoded.find(divider.separator);
  return at != std::string_view::npos && at + divider.separator.size() < encoded.size();
}

std::string DivisionRemark(const OwnPlace& place, std::string_view text) {
  for (const Language* language : Languages()) {
    if (place.language != kAnyLanguage && place.language != language->code) continue;
    const Divider* const divider = DividerOf(place.slot, Encoded(text, language->codePage), language->code);
    if (!divider) continue;
    const bool movesDown = divider->movesNextDown && place.slot != Slot::kHaftarah2;
    return "The program divides it at \"" + Decoded(divider->separator, language->codePage) +
           "\": the rest takes the next line, " +
           (movesDown ? "and what stands there moves down." : "in place of what stands there.");
  }
  return {};
}

}  // namespace lections
