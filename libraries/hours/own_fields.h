// The fields in which the user writes a zman of his own.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "libraries/hours/choice.h"

namespace hours {

enum class OwnField { kDescription, kHebrew, kAmount, kOtherAmount };

// What becomes of a second time beside the first.
enum class Combination : uint8_t { kNone, kLater, kEarlier };

// The fields as they stand. A text with letters that its code page lacks is none.
struct OwnTyped {
  std::optional<std::string> description;  // windows-1252
  std::optional<std::string> hebrew;       // windows-1255 in logical order
  std::string amount;                      // a comma may stand for the point
  const OwnForm* form;
  Rounding rounding;
  Combination combination = Combination::kNone;
  std::string otherAmount = {};  // of no meaning without a combination, like the next
  const OwnForm* otherForm = nullptr;
};

// The zman; without one, the field to be put right and a sentence that says how.
struct OwnAnswer {
  std::optional<OwnZman> zman;
  OwnField field = OwnField::kDescription;
  std::string complaint;
};

// number: of the zman that is changed; 0 for a new one.
OwnAnswer ReadOwn(const OwnTyped& typed, const Choice& choice, uint32_t number);

// The amount alone, thousandths of the form's unit; nothing when it is none that the form takes.
std::optional<int32_t> AmountIn(std::string_view typed, const OwnForm& form);

// The form, the amount and the second time as they are typed; nothing when an amount is none that its form takes.
struct OwnTimes {
  int32_t thousandths;
  std::optional<OwnOther> other;
};
std::optional<OwnTimes> TimesIn(const OwnTyped& typed);

// windows-1255 as Unicode and back, letters and ASCII: other bytes stand for the characters of their numbers, other
// characters for none. Hebrew quotation marks become the ASCII ones.
std::wstring WideHebrew(std::string_view text);
std::optional<std::string> NarrowHebrew(std::wstring_view text);

}  // namespace hours
