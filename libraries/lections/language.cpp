#include "libraries/lections/language.h"

#include <algorithm>

#include "libraries/calendar/jewish.h"

namespace lections {
namespace {

constexpr const Language* kLanguages[] = {&kEnglish, &kAshkenaziEnglish, &kHebrew};

}  // namespace

std::span<const Language* const> Languages() {
  return kLanguages;
}

const Language& LanguageOf(uint32_t code) {
  const auto* found = std::ranges::find(kLanguages, code, &Language::code);
  return found == std::end(kLanguages) ? kEnglish : **found;
}

const char* MonthName(const std::array<const char*, 14>& months, int32_t month, bool isLeapYear) {
  const bool isAdarI = month == calendar::kAdar && isLeapYear;
  return months[isAdarI ? 0 : static_cast<size_t>(month)];
}

}  // namespace lections
