#include "libraries/hours/own_fields.h"

#include <algorithm>

#include "libraries/hours/choice_editing.h"
#include "libraries/hours/description_text.h"

namespace hours {
namespace {

constexpr wchar_t kAlef = 0x05D0;
constexpr wchar_t kTav = 0x05EA;
constexpr wchar_t kGeresh = 0x05F3;
constexpr wchar_t kGershayim = 0x05F4;
constexpr unsigned kAlefByte = 0xE0;
constexpr unsigned kTavByte = 0xFA;

std::string_view WithoutBlanks(std::string_view text) {
  const size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") + 1 - first);
}

std::optional<int32_t> NumberIn(std::string_view typed) {
  std::string number(WithoutBlanks(typed));
  std::ranges::replace(number, ',', '.');
  return ThousandthsIn(number);
}

const char* Range(Unit unit) {
  switch (unit) {
    case Unit::kDegrees: return "more than 0 and at most 60 degrees.";
    case Unit::kMinutes:
    case Unit::kProportionalMinutes: return "from 0 to 360 minutes.";
    case Unit::kHours: return "from 0 to 24 hours.";
  }
  return "";
}

// A text of the zman that is changed, as it was before; empty for a new one.
std::string_view Stored(const Choice& choice, uint32_t number, std::string OwnZman::*text) {
  const OwnZman* const zman = FindOwn(choice, OwnId(number));
  return zman ? std::string_view(zman->*text) : std::string_view();
}

// What is wrong with a description, apart from its being missing; empty when nothing is. What was stored stays usable.
std::string TextComplaint(const std::string& name, std::string_view text, std::string_view stored) {
  if (text == stored) return {};
  constexpr std::string_view kNotInNames = "{}\\";  // they command the word processors that read exported files
  if (const size_t at = text.find_first_of(kNotInNames); at != text.npos) {
    return name + " has a \"" + text[at] + "\", which the name of a zman cannot have. Write it without.";
  }
  if (text.size() > kMostDescriptionBytes) {
    return name + " has " + std::to_string(text.size()) + " letters, but at most " +
           std::to_string(kMostDescriptionBytes) + " have room. Shorten it.";
  }
  if (CleanDescription(text) != text) {
    return name + " has a \"|\" or a letter that cannot be shown. Write it without.";
  }
  return {};
}

std::string DescriptionComplaint(const OwnTyped& typed, const Choice& choice, uint32_t number) {
  if (!typed.description) {
    return "The description has letters that English names cannot have. Write it in Western European letters; Hebrew "
           "has a field of its own.";
  }
  const std::string_view description = WithoutBlanks(*typed.description);
  if (description.empty()) return "The description is missing. Write what the zman is called, such as First light.";
  const std::string_view stored = Stored(choice, number, &OwnZman::description);
  if (std::string complaint = TextComplaint("The description", description, stored); !complaint.empty()) {
    return complaint;
  }
  const std::string own = number == 0 ? std::string() : OwnId(number);
  const auto isTaken = [&](const OfferedZman& other) {
    return other.id != own && other.zman.description == description;
  };
  if (!std::ranges::any_of(OfferedZmanim(choice), isTaken)) return {};
  return "Another zman is called " + std::string(description) + " already. Write another description.";
}

std::string HebrewComplaint(const OwnTyped& typed, const Choice& choice, uint32_t number) {
  if (typed.hebrew) {
    return TextComplaint("The Hebrew description", WithoutBlanks(*typed.hebrew),
                         Stored(choice, number, &OwnZman::hebrew));
  }
  return "The Hebrew description has letters that Hebrew names cannot have. Write it in Hebrew letters without points, "
         "or leave it empty.";
}

// name: of the field, "The amount".
std::string AmountComplaint(const std::string& name, std::string_view typed, const OwnForm& form) {
  const std::optional<int32_t> amount = NumberIn(typed);
  if (!amount) return name + " must be a number such as 72 or 16.1, with at most 3 digits behind the point.";
  return IsAmount(form.unit, *amount) ? "" : name + " must be " + Range(form.unit);
}

}  // namespace

OwnAnswer ReadOwn(const OwnTyped& typed, const Choice& choice, uint32_t number) {
  if (std::string complaint = DescriptionComplaint(typed, choice, number); !complaint.empty()) {
    return {{}, OwnField::kDescription, complaint};
  }
  if (std::string complaint = HebrewComplaint(typed, choice, number); !complaint.empty()) {
    return {{}, OwnField::kHebrew, complaint};
  }
  if (std::string complaint = AmountComplaint("The amount", typed.amount, *typed.form); !complaint.empty()) {
    return {{}, OwnField::kAmount, complaint};
  }
  if (typed.combination != Combination::kNone) {
    std::string complaint = AmountComplaint("The second amount", typed.otherAmount, *typed.otherForm);
    if (!complaint.empty()) return {{}, OwnField::kOtherAmount, complaint};
  }
  const OwnTimes times = TimesIn(typed).value();
  OwnAnswer answer;
  answer.zman = {number,
                 typed.form,
                 times.thousandths,
                 typed.rounding,
                 std::string(WithoutBlanks(*typed.description)),
                 std::string(WithoutBlanks(*typed.hebrew)),
                 times.other};
  return answer;
}

std::optional<OwnTimes> TimesIn(const OwnTyped& typed) {
  const std::optional<int32_t> amount = AmountIn(typed.amount, *typed.form);
  if (!amount) return std::nullopt;
  if (typed.combination == Combination::kNone) return OwnTimes{*amount, {}};
  const std::optional<int32_t> other = AmountIn(typed.otherAmount, *typed.otherForm);
  if (!other) return std::nullopt;
  return OwnTimes{*amount, OwnOther{typed.combination == Combination::kLater, typed.otherForm, *other}};
}

std::optional<int32_t> AmountIn(std::string_view typed, const OwnForm& form) {
  const std::optional<int32_t> amount = NumberIn(typed);
  return amount && IsAmount(form.unit, *amount) ? amount : std::nullopt;
}

std::wstring WideHebrew(std::string_view text) {
  std::wstring wide;
  for (const char c : text) {
    const unsigned byte = static_cast<unsigned char>(c);
    const bool isLetter = byte >= kAlefByte && byte <= kTavByte;
    wide += static_cast<wchar_t>(isLetter ? byte - kAlefByte + static_cast<unsigned>(kAlef) : byte);
  }
  return wide;
}

std::optional<std::string> NarrowHebrew(std::wstring_view text) {
  std::string narrow;
  for (const wchar_t c : text) {
    if (c >= kAlef && c <= kTav) {
      narrow += static_cast<char>(kAlefByte + static_cast<unsigned>(c - kAlef));
    } else if (c == kGeresh || c == kGershayim) {
      narrow += c == kGeresh ? '\'' : '"';
    } else if (c >= 0x20 && c <= 0x7E) {
      narrow += static_cast<char>(c);
    } else {
      return std::nullopt;
    }
  }
  return narrow;
}

}  // namespace hours
